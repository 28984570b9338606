#ifndef HOSTS_KESTRANE_VIEWER_VIEWHISTORY_H
#define HOSTS_KESTRANE_VIEWER_VIEWHISTORY_H

#include "hosts/kestrane-viewer/MovableAxis.h"

#include <optional>
#include <vector>

namespace hosts::viewer {

/// What both axes show.
struct View
{
    MovableAxis::State x;
    MovableAxis::State y;
};

/// The views that were left, and those that were gone back from.
class ViewHistory
{
public:
    bool canUndo() const { return !m_left.empty(); }
    bool canRedo() const { return !m_undone.empty(); }

    /// Remembers a view that is about to be left; there is nothing to redo then.
    void leave(const View& view);

    /// The view to go back to, or on to, from @p present.
    std::optional<View> undo(const View& present);
    std::optional<View> redo(const View& present);

    void clear();

private:
    std::vector<View> m_left;
    std::vector<View> m_undone;
};

} // namespace hosts::viewer

#endif
