#include "kestrane/axes/LogAxis.h"

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/axes/detail/InTurn.h"
#include "kestrane/axes/detail/TickPlaces.h"

#include <boost/make_shared.hpp>

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

// Not std::min, which takes the other one where NaN takes part.
double lesser(double a, double b)
{
    return a < b ? a : b;
}

double powerOfTen(double exponent)
{
    return std::pow(10.0, exponent);
}

} // namespace

struct LogAxis::LogScrollScaleState : Axis::ScrollScaleState
{
    explicit LogScrollScaleState(const LogAxis& axis)
        : smallest(axis.m_smallest)
        , decades(axis.m_decades)
        , positionOffset(axis.m_positionOffset)
    {}

    // The state that a gesture counts from: its base, or else the axis as it is now.
    static LogScrollScaleState of(const boost::shared_ptr<const ScrollScaleState>& base,
                                  const LogAxis& axis)
    {
        const auto* own = dynamic_cast<const LogScrollScaleState*>(base.get());
        return own ? *own : LogScrollScaleState(axis);
    }

    double smallest;
    double decades;
    double positionOffset;
};

LogAxis::LogAxis(double smallest, double largest, QObject* parent)
    : Axis(parent)
{
    blockSignals(true);
    setSmallest(smallest);
    setLargest(largest);
    blockSignals(false);
}

LogAxis::~LogAxis() = default;

double LogAxis::minValue() const
{
    return m_smallest;
}

double LogAxis::maxValue() const
{
    return m_largest;
}

QVector<Axis::Tick> LogAxis::majorTicks()
{
    updateTicks();
    return m_majorTicks;
}

QVector<Axis::Tick> LogAxis::minorTicks()
{
    updateTicks();
    return m_minorTicks;
}

double LogAxis::transform(ScaleMode mode, double value) const
{
    return std::isnan(value) ? value : mapOf(mode).positionOf(value);
}

double LogAxis::inverseTransform(ScaleMode mode, double position) const
{
    return std::isnan(position) ? position : mapOf(mode).valueAt(position);
}

Axis::ScaleMode LogAxis::scaleMode() const
{
    return Logarithmic;
}

double LogAxis::smallestTickDistance(bool major) const
{
    const double range = m_largest - m_smallest;
    if (major) {
        const double decade = std::ceil(std::log10(m_smallest));
        return lesser(range, powerOfTen(decade + 1.0) - powerOfTen(decade));
    }
    const double decade = std::floor(std::log10(m_smallest));
    return lesser(range, powerOfTen(std::log10(2.0) + decade) - powerOfTen(decade));
}

double LogAxis::anchor() const
{
    return transform(Logarithmic, std::ceil(std::log10(m_smallest)));
}

boost::shared_ptr<const Axis::ScrollScaleState> LogAxis::scrollScaleState() const
{
    return boost::make_shared<const LogScrollScaleState>(*this);
}

LogAxis* LogAxis::clone() const
{
    return new LogAxis(m_smallest, m_largest);
}

bool LogAxis::operator==(const Axis& other) const
{
    const auto* log = dynamic_cast<const LogAxis*>(&other);
    return log && m_largest == log->m_largest && m_smallest == log->m_smallest;
}

double LogAxis::smallest() const
{
    return m_smallest;
}

double LogAxis::largest() const
{
    return m_largest;
}

void LogAxis::setSmallest(double smallest)
{
    if (qFuzzyCompare(smallest, m_smallest))
        return;
    m_smallest = smallest;
    detail::inTurn(
        this, [&] { updateScale(); }, [&] { emitSmallestChanged(true); });
}

void LogAxis::setLargest(double largest)
{
    if (qFuzzyCompare(largest, m_largest))
        return;
    m_largest = largest;
    detail::inTurn(
        this, [&] { updateScale(); }, [&] { emitLargestChanged(true); });
}

void LogAxis::scrollAxis(double /*at*/, double by,
                         const boost::shared_ptr<const ScrollScaleState>& base, double bottomLimit,
                         double topLimit, double /*pixelSize*/)
{
    const auto from = LogScrollScaleState::of(base, *this);
    const double low = powerOfTen((by - from.positionOffset) * from.decades);
    const double high = powerOfTen(((by + 1.0) - from.positionOffset) * from.decades);
    const double smallest = low > bottomLimit ? low : bottomLimit;
    const double largest = high > topLimit ? topLimit : high;

    if (smallest == m_smallest || largest == m_largest)
        return;
    m_smallest = smallest;
    m_largest = largest;
    detail::inTurn(
        this, [&] { updateScale(); }, [&] { emitSmallestChanged(false); },
        [&] { emitLargestChanged(true); }, [&] { Q_EMIT axisChangedViaScalingOrScrolling(); });
}

void LogAxis::scaleAxis(double at, double by, const boost::shared_ptr<const ScrollScaleState>& base,
                        double /*bottomLimit*/, double topLimit, double /*pixelSize*/)
{
    const auto from = LogScrollScaleState::of(base, *this);
    // By this factor the decades may grow before the largest value passes the limit.
    const double limitFactor = std::log10(topLimit / from.smallest) / from.decades;

    // Written with "not" since a NaN in the comparisons takes the other way.
    double largest = topLimit;
    if (!(by >= at) && !(at / (at - by) > limitFactor)) {
        const double dragged = powerOfTen(from.decades * at / (at - by)) * from.smallest;
        largest = dragged > topLimit ? topLimit : dragged;
    }

    if (largest == m_largest)
        return;
    m_largest = largest;
    detail::inTurn(
        this, [&] { updateScale(); }, [&] { emitLargestChanged(true); },
        [&] { Q_EMIT axisChangedViaScalingOrScrolling(); });
}

void LogAxis::emitSmallestChanged(bool withParamChange)
{
    detail::inTurn(
        this, [&] { Q_EMIT smallestChanged(m_smallest); },
        [&] { emitMinValChanged(withParamChange); });
}

void LogAxis::emitLargestChanged(bool withParamChange)
{
    detail::inTurn(
        this, [&] { Q_EMIT largestChanged(m_largest); },
        [&] { emitMaxValChanged(withParamChange); });
}

// What a limit of 0.0 or equal limits leave without a meaning keeps its value.
void LogAxis::updateScale()
{
    if (m_smallest != 0.0)
        m_decades = std::log10(m_largest / m_smallest);
    if (m_decades != 0.0)
        m_positionScale = 1.0 / m_decades;
    m_positionOffset = -std::log10(m_smallest) * m_positionScale;
    invalidateTicks();
}

void LogAxis::invalidateTicks()
{
    m_ticksInvalid = true;
    Q_EMIT ticksUpdated();
}

detail::AxisMap LogAxis::mapOf(ScaleMode mode) const
{
    return {-0.0, m_positionScale, m_positionOffset, m_decades, 0.0, mode != Logarithmic};
}

void LogAxis::updateTicks()
{
    if (!m_ticksInvalid)
        return;

    // Ends the walk where a limit is 0.0 or infinite; the decades of all doubles need half of them.
    constexpr int mostPasses = 10000;

    const double end = std::log10(m_largest);
    double decade = std::floor(std::log10(m_smallest));
    double exponent = std::log10(2.0) + decade;
    int mantissa = 2;

    const detail::AxisMap map = mapOf(Logarithmic);
    detail::TickPlaces major;
    detail::TickPlaces minor;
    major.append(powerOfTen(decade), map.positionOf(decade));
    for (int pass = 0; pass < mostPasses && end >= exponent; ++pass) {
        const double position = map.positionOf(exponent);
        if (position >= 0.0)
            minor.append(powerOfTen(exponent), position);
        if (++mantissa == 10) {
            mantissa = 2;
            decade += 1.0;
            major.append(powerOfTen(decade), map.positionOf(decade));
        }
        exponent = std::log10(double(mantissa)) + decade;
    }
    m_majorTicks = major.ranked(true);
    m_minorTicks = minor.ranked(false);
    m_ticksInvalid = false;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
