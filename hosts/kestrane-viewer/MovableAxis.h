#ifndef HOSTS_KESTRANE_VIEWER_MOVABLEAXIS_H
#define HOSTS_KESTRANE_VIEWER_MOVABLEAXIS_H

#include "hosts/charting/ShownAxis.h"
#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/Extent.h"

#include <boost/shared_ptr.hpp>

namespace hosts::viewer {

/// An axis of any kind that gestures move, by nothing else than Axis::scrollAxis() and scaleAxis().
///
/// Places are shares of the plot, from its left or its bottom.
///
/// Laws:
///  1. A drag ends where its last move says, however many there were before.
///  2. No gesture goes farther than the length of the home range beyond it, or so near that there
///     is nothing to read.
class MovableAxis
{
public:
    /// A view to come back to.
    struct State
    {
        boost::shared_ptr<const pelorin::ui::chart::Axis::ScrollScaleState> axis;
        double visible; ///< The axis position at the end of the plot.
    };

    /// What a drag began with.
    struct Grip
    {
        State base;
        double place;
        chart::Extent room; ///< As AxisKind::room().
        double leastZoom;   ///< The factor at which the range ends where it may.
    };

    /// @param home shows all data
    MovableAxis(const charting::ShownAxis& home, const chart::AxisKind& kind);

    /// The axis that is moved.
    const charting::ShownAxis& shown() const { return m_shown; }

    /// What it shows, on an axis that is good to look at.
    charting::ShownAxis divided(int wantedDivisions) const;

    Grip gripAt(double place) const;

    /// Moves what was at the place of the grip to @p place.
    void scroll(const Grip& grip, double place);

    /// The same by making the range larger or smaller. The start of an axis stays where it is, or
    /// the joint of one that has two halves.
    void scale(const Grip& grip, double place);

    /// Shows a range that is smaller by a factor, or larger by one below 1.0, with the same value
    /// at @p place as before.
    void zoom(double place, double factor);

    State state() const;
    void restore(const State& state);

    /// Shows what an axis of the same kind shows.
    void show(const charting::ShownAxis& other);

    void goHome() { show(m_home); }

    /// Sets what goHome() shows and how far gestures go. The axis stays as it is.
    void setHome(const charting::ShownAxis& home);

    /// Scrolls, however far, until the plot ends at a value.
    void scrollToEnd(double value);

private:
    double positionOf(double place) const;
    void scrollBy(double at, double by, const Grip& grip);
    void zoomFromPlaceThatStays(double lever, double factor, const Grip& grip);

    charting::ShownAxis m_shown;
    const chart::AxisKind& m_kind;
    charting::ShownAxis m_home;
    chart::Extent m_reach;
};

} // namespace hosts::viewer

#endif
