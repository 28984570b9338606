#include "kestrane/axes/FixedPositionLinearAxis.h"

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/axes/detail/InTurn.h"
#include "kestrane/axes/detail/TickPlaces.h"

#include <boost/make_shared.hpp>

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

bool ignoredBySetter(double value, double stored)
{
    return qFuzzyCompare(value, stored) || std::isnan(value) || std::isnan(stored);
}

bool differs(double value, double stored)
{
    return std::isnan(value) != std::isnan(stored) ||
           (!std::isnan(value) && !qFuzzyCompare(value, stored));
}

} // namespace

struct FixedPositionLinearAxis::FPLScrollScaleState : Axis::ScrollScaleState
{
    explicit FPLScrollScaleState(const FixedPositionLinearAxis& axis)
        : offset(axis.m_offset)
        , scale(axis.m_scale)
        , anchor(axis.m_anchor)
        , offsetIsAdded(axis.m_offsetIsAdded)
        , numMajorDivisions(axis.m_numMajorDivisions)
    {}

    // The state that a gesture counts from: its base, or else the axis as it is now.
    static FPLScrollScaleState of(const boost::shared_ptr<const ScrollScaleState>& base,
                                  const FixedPositionLinearAxis& axis)
    {
        const auto* own = dynamic_cast<const FPLScrollScaleState*>(base.get());
        return own ? *own : FPLScrollScaleState(axis);
    }

    double offset;
    double scale;
    double anchor;
    bool offsetIsAdded;
    int numMajorDivisions;
};

FixedPositionLinearAxis::FixedPositionLinearAxis(double scale, double offset, double anchor,
                                                 bool offsetIsAdded, int numMajorDivisions,
                                                 int numMinorDivisions, QObject* parent)
    : Axis(parent)
    , m_numMajorDivisions(numMajorDivisions)
    , m_numMinorDivisions(numMinorDivisions)
    , m_offset(offset)
    , m_scale(scale)
    , m_anchor(anchor)
    , m_offsetIsAdded(offsetIsAdded)
{
    updateInternalValues();
}

FixedPositionLinearAxis::~FixedPositionLinearAxis() = default;

double FixedPositionLinearAxis::minValue() const
{
    return m_minValue;
}

double FixedPositionLinearAxis::maxValue() const
{
    return m_maxValue;
}

QVector<Axis::Tick> FixedPositionLinearAxis::majorTicks()
{
    updateTicks();
    return m_majorTicks;
}

QVector<Axis::Tick> FixedPositionLinearAxis::minorTicks()
{
    updateTicks();
    return m_minorTicks;
}

double FixedPositionLinearAxis::transform(ScaleMode mode, double value) const
{
    if (std::isnan(value))
        return value;
    return linearMap().positionOf(mode == Logarithmic ? std::pow(10.0, value) : value);
}

double FixedPositionLinearAxis::inverseTransform(ScaleMode mode, double position) const
{
    if (std::isnan(position))
        return position;
    const double value = linearMap().valueAt(position);
    return mode == Logarithmic ? std::log10(std::fabs(value)) : value;
}

Axis::ScaleMode FixedPositionLinearAxis::scaleMode() const
{
    return Linear;
}

double FixedPositionLinearAxis::smallestTickDistance(bool major) const
{
    return major ? m_scale : m_scale / m_numMinorDivisions;
}

double FixedPositionLinearAxis::anchor() const
{
    return m_anchor;
}

boost::shared_ptr<const Axis::ScrollScaleState> FixedPositionLinearAxis::scrollScaleState() const
{
    return boost::make_shared<const FPLScrollScaleState>(*this);
}

FixedPositionLinearAxis* FixedPositionLinearAxis::clone() const
{
    return new FixedPositionLinearAxis(m_scale, m_offset, m_anchor, m_offsetIsAdded,
                                       m_numMajorDivisions, m_numMinorDivisions);
}

bool FixedPositionLinearAxis::operator==(const Axis& other) const
{
    const auto* linear = dynamic_cast<const FixedPositionLinearAxis*>(&other);
    return linear && m_numMajorDivisions == linear->m_numMajorDivisions &&
           m_numMinorDivisions == linear->m_numMinorDivisions && m_scale == linear->m_scale &&
           m_offset == linear->m_offset && m_anchor == linear->m_anchor &&
           m_offsetIsAdded == linear->m_offsetIsAdded;
}

int FixedPositionLinearAxis::numMajorDivisions() const
{
    return m_numMajorDivisions;
}

int FixedPositionLinearAxis::numMinorDivisions() const
{
    return m_numMinorDivisions;
}

double FixedPositionLinearAxis::offset() const
{
    return m_offset;
}

double FixedPositionLinearAxis::scale() const
{
    return m_scale;
}

bool FixedPositionLinearAxis::offsetIsAdded() const
{
    return m_offsetIsAdded;
}

void FixedPositionLinearAxis::setNumMajorDivisions(int numDivisions)
{
    if (numDivisions == m_numMajorDivisions)
        return;
    m_numMajorDivisions = numDivisions;
    detail::inTurn(
        this, [&] { Q_EMIT numMajorDivisionsChanged(numDivisions); },
        [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setNumMinorDivisions(int numDivisions)
{
    if (numDivisions == m_numMinorDivisions)
        return;
    m_numMinorDivisions = numDivisions;
    detail::inTurn(
        this, [&] { Q_EMIT numMinorDivisionsChanged(numDivisions); },
        [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setOffset(double offset)
{
    if (ignoredBySetter(offset, m_offset))
        return;
    m_offset = offset;
    detail::inTurn(
        this, [&] { Q_EMIT offsetChanged(offset); }, [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setScale(double scale)
{
    if (ignoredBySetter(scale, m_scale))
        return;
    m_scale = scale;
    detail::inTurn(
        this, [&] { Q_EMIT scaleChanged(scale); }, [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setOffsetAndScale(double offset, double scale)
{
    const bool offsetDiffers = differs(offset, m_offset);
    const bool scaleDiffers = differs(scale, m_scale);
    m_offset = offset;
    m_scale = scale;
    const auto tellOffset = [&] {
        if (offsetDiffers)
            Q_EMIT offsetChanged(offset);
    };
    const auto tellScale = [&] {
        if (scaleDiffers)
            Q_EMIT scaleChanged(scale);
    };
    detail::inTurn(this, tellOffset, tellScale, [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setAnchor(double anchor)
{
    if (ignoredBySetter(anchor, m_anchor))
        return;
    m_anchor = anchor;
    detail::inTurn(
        this, [&] { Q_EMIT anchorChanged(anchor); }, [&] { updateInternalValues(); });
}

void FixedPositionLinearAxis::setOffsetIsAdded(bool offsetIsAdded)
{
    if (offsetIsAdded == m_offsetIsAdded)
        return;
    m_offsetIsAdded = offsetIsAdded;
    detail::inTurn(
        this, [&] { Q_EMIT offsetIsAddedChanged(offsetIsAdded); }, [&] { updateInternalValues(); });
}

// The bounds below are written as "not greater than" since NaN has to take a bound's place too.

void FixedPositionLinearAxis::scrollAxis(double /*at*/, double by,
                                         const boost::shared_ptr<const ScrollScaleState>& base,
                                         double bottomLimit, double topLimit, double /*pixelSize*/)
{
    const auto from = FPLScrollScaleState::of(base, *this);
    const int n = from.numMajorDivisions;

    double candidate = (from.offsetIsAdded ? -1.0 : 1.0) * by * from.scale * n + from.offset;
    const double lower = from.anchor * from.scale * n + bottomLimit;
    if (!(candidate > lower))
        candidate = lower;
    const double upper = (from.anchor - 1.0) * from.scale * n + topLimit;
    if (!(upper > candidate))
        candidate = upper;

    if (candidate == m_offset)
        return;
    m_offset = candidate;
    detail::inTurn(
        this, [&] { Q_EMIT offsetChanged(candidate); }, [&] { updateInternalValues(); },
        [&] { Q_EMIT axisChangedViaScalingOrScrolling(); });
}

void FixedPositionLinearAxis::scaleAxis(double at, double by,
                                        const boost::shared_ptr<const ScrollScaleState>& base,
                                        double /*bottomLimit*/, double topLimit, double pixelSize)
{
    const auto from = FPLScrollScaleState::of(base, *this);

    double span = at - by;
    if (!(span > pixelSize))
        span = pixelSize;
    double candidate = at / span * from.scale;
    const double largest = (topLimit - m_minValue) / m_numMajorDivisions;
    if (!(largest > candidate))
        candidate = largest;

    if (candidate == m_scale)
        return;
    m_scale = candidate;
    detail::inTurn(
        this, [&] { Q_EMIT scaleChanged(candidate); }, [&] { updateInternalValues(); },
        [&] { Q_EMIT axisChangedViaScalingOrScrolling(); });
}

void FixedPositionLinearAxis::updateInternalValues()
{
    m_signedOffset = (m_offsetIsAdded ? 1.0 : -1.0) * m_offset;
    m_fullRange = m_numMajorDivisions * m_scale;
    m_inverseRange = 1.0 / m_fullRange;

    detail::inTurn(
        this, [&] { updateMinimum(); }, [&] { updateMaximum(); }, [&] { invalidateTicks(); },
        [&] { emitParametersChanged(); });
}

detail::AxisMap FixedPositionLinearAxis::linearMap() const
{
    return {m_signedOffset, m_inverseRange, m_anchor, m_fullRange, m_signedOffset, false};
}

void FixedPositionLinearAxis::updateMinimum()
{
    const double minimum = -m_anchor * m_fullRange - m_signedOffset;
    if (minimum == m_minValue)
        return;
    m_minValue = minimum;
    emitMinValChanged(false);
}

void FixedPositionLinearAxis::updateMaximum()
{
    const double maximum = m_minValue + m_fullRange;
    if (maximum == m_maxValue)
        return;
    m_maxValue = maximum;
    emitMaxValChanged(false);
}

void FixedPositionLinearAxis::invalidateTicks()
{
    m_ticksDirty = true;
    Q_EMIT ticksUpdated();
}

void FixedPositionLinearAxis::updateTicks()
{
    if (!m_ticksDirty)
        return;

    const int n = m_numMajorDivisions;
    const int m = m_numMinorDivisions;
    const double majorStep = 1.0 / n;
    const double minorStep = majorStep / m;
    const double minorValueStep = m_scale / m;

    detail::TickPlaces major;
    detail::TickPlaces minor;
    for (int i = 0; i < n; ++i) {
        const double value = minValue() + m_scale * i;
        const double position = i * majorStep;
        major.append(value, position);
        for (int j = 0; j < m; ++j) {
            const double minorPosition = j * minorStep + position;
            const double minorValue = j * minorValueStep + value;
            if (!qFuzzyCompare(position, minorPosition))
                minor.append(minorValue, minorPosition);
        }
    }
    storeTicks(major.ranked(true), minor.ranked(false));
}

void FixedPositionLinearAxis::storeTicks(const QVector<Tick>& major, const QVector<Tick>& minor)
{
    m_majorTicks = major;
    m_minorTicks = minor;
    m_ticksDirty = false;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
