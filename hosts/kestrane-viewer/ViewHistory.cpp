#include "hosts/kestrane-viewer/ViewHistory.h"

namespace hosts::viewer {

namespace {

constexpr std::size_t mostViews = 1000;

std::optional<View> exchange(std::vector<View>& from, std::vector<View>& to, const View& present)
{
    if (from.empty())
        return std::nullopt;
    const View view = from.back();
    from.pop_back();
    to.push_back(present);
    return view;
}

} // namespace

void ViewHistory::leave(const View& view)
{
    if (m_left.size() == mostViews)
        m_left.erase(m_left.begin());
    m_left.push_back(view);
    m_undone.clear();
}

std::optional<View> ViewHistory::undo(const View& present)
{
    return exchange(m_left, m_undone, present);
}

std::optional<View> ViewHistory::redo(const View& present)
{
    return exchange(m_undone, m_left, present);
}

void ViewHistory::clear()
{
    m_left.clear();
    m_undone.clear();
}

} // namespace hosts::viewer
