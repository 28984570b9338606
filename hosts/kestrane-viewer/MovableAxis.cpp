#include "hosts/kestrane-viewer/MovableAxis.h"

#include <kestrane/axes/LogAxis.h>

#include <algorithm>
#include <cmath>

namespace hosts::viewer {

using chart::Extent;
using charting::ShownAxis;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::LogAxis;

namespace {

// An aggregate of axes has no axis at its very end.
constexpr double lastPlace = 1.0 - 1e-9;

// Nearer to the place that stays a grip would scale the axis by leaps.
constexpr double leastLever = 0.05;

// Scaling leaves the smallest value of a logarithmic axis in place, wherever its anchor is.
double placeThatStays(const Axis& axis)
{
    return dynamic_cast<const LogAxis*>(&axis) ? 0.0 : axis.anchor();
}

} // namespace

MovableAxis::MovableAxis(const ShownAxis& home, const chart::AxisKind& kind)
    : m_shown{QSharedPointer<Axis>(home.axis->clone()), home.visible}
    , m_kind(kind)
    , m_home(home)
    , m_reach(kind.reach(home))
{}

ShownAxis MovableAxis::divided(int wantedDivisions) const
{
    return m_kind.divided(m_shown, wantedDivisions);
}

MovableAxis::Grip MovableAxis::gripAt(double place) const
{
    const double anchor = placeThatStays(*m_shown.axis);
    const double farthest = m_shown.axis->transform(Axis::Linear, m_reach.high);
    return {state(), place, m_kind.room(m_shown, m_reach),
            std::min(1.0, (m_shown.visible - anchor) / (farthest - anchor))};
}

void MovableAxis::scroll(const Grip& grip, double place)
{
    scrollBy(positionOf(grip.place), (grip.place - place) * m_shown.visible, grip);
}

void MovableAxis::scale(const Grip& grip, double place)
{
    const double distance = positionOf(grip.place) - placeThatStays(*m_shown.axis);
    const double lever = std::copysign(std::max(std::abs(distance), leastLever), distance);
    const double moved = lever + (place - grip.place) * m_shown.visible;
    zoomFromPlaceThatStays(lever, std::max(moved / lever, leastLever), grip);
}

// The value comes back to its place by a scroll, since scaling leaves another one in place.
void MovableAxis::zoom(double place, double factor)
{
    const double at = positionOf(place);
    const double value = m_shown.axis->inverseTransform(Axis::Linear, at);
    zoomFromPlaceThatStays(0.5 * (1.0 - placeThatStays(*m_shown.axis)), factor, gripAt(place));
    scrollBy(at, m_shown.axis->transform(Axis::Linear, value) - at, gripAt(place));
}

MovableAxis::State MovableAxis::state() const
{
    return {m_shown.axis->scrollScaleState(), m_shown.visible};
}

// A gesture that goes nowhere from a base leads back to it. A logarithmic axis does not scroll
// while one of its limits would stay, so that the way goes by two other places: at one of them at
// least both limits differ from what they are.
void MovableAxis::restore(const State& state)
{
    Axis& axis = *m_shown.axis;
    const double at = 0.5 * (1.0 + placeThatStays(axis));
    m_shown.visible = state.visible;
    for (const double by : {0.5, 0.3, 0.0})
        axis.scrollAxis(at, by, state.axis);
    axis.scaleAxis(at, 0.0, state.axis);
}

void MovableAxis::show(const ShownAxis& other)
{
    restore({other.axis->scrollScaleState(), other.visible});
    // Linear axes come to the same divisions, but not to the same number of them.
    const double end = m_shown.axis->transform(Axis::Linear, other.to());
    if (std::abs(end - m_shown.visible) > 1e-12)
        m_shown.visible = end;
    m_shown.axis->update();
}

void MovableAxis::setHome(const ShownAxis& home)
{
    m_home = home;
    m_reach = m_kind.reach(home);
}

void MovableAxis::scrollToEnd(double value)
{
    const double at = m_shown.axis->transform(Axis::Linear, value);
    m_shown.axis->scrollAxis(positionOf(1.0), at - m_shown.visible, state().axis);
}

double MovableAxis::positionOf(double place) const
{
    return std::clamp(place, 0.0, lastPlace) * m_shown.visible;
}

// Limits are kept here rather than by those of Axis, at which a scroll makes a range narrower, and
// which know nothing of the part of an axis that is shown. Below an anchor that is not at its
// start, an axis runs the other way.
void MovableAxis::scrollBy(double at, double by, const Grip& grip)
{
    const bool runsDown = at < placeThatStays(*m_shown.axis);
    const double within = runsDown ? std::clamp(by, -grip.room.high, -grip.room.low)
                                   : std::clamp(by, grip.room.low, grip.room.high);
    m_shown.axis->scrollAxis(at, within, grip.base.axis);
}

// Where the lever ends afterwards: at the factor times its length.
void MovableAxis::zoomFromPlaceThatStays(double lever, double factor, const Grip& grip)
{
    const State before = state();
    const double allowed = std::max(factor, grip.leastZoom);
    m_shown.axis->scaleAxis(placeThatStays(*m_shown.axis) + lever, lever * (1.0 - allowed),
                            grip.base.axis);
    if (!m_kind.isUsable(m_shown))
        restore(before);
}

} // namespace hosts::viewer
