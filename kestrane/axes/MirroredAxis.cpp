#include "kestrane/axes/MirroredAxis.h"

#include <memory>

namespace pelorin {
namespace ui {
namespace chart {

MirroredAxis::MirroredAxis(Axis* source, QObject* parent)
    : Axis(parent)
    , m_source(source)
{
    if (!source)
        return;
    connect(source, &Axis::maxValueChanged, this, [this](double v) { Q_EMIT minValueChanged(-v); });
    connect(source, &Axis::minValueChanged, this, [this](double v) { Q_EMIT maxValueChanged(-v); });
    connect(source, &Axis::parametersChanged, this, &Axis::parametersChanged);
    connect(source, &Axis::ticksUpdated, this, &MirroredAxis::onTicksUpdated);
    connect(source, &Axis::axisChangedViaScalingOrScrolling, this,
            &Axis::axisChangedViaScalingOrScrolling);
    onTicksUpdated();
}

MirroredAxis::~MirroredAxis() = default;

double MirroredAxis::minValue() const
{
    return m_source ? -m_source->maxValue() : 0.0;
}

double MirroredAxis::maxValue() const
{
    return m_source ? -m_source->minValue() : 0.0;
}

QVector<Axis::Tick> MirroredAxis::majorTicks()
{
    updateTicks();
    return m_majorTicks;
}

QVector<Axis::Tick> MirroredAxis::minorTicks()
{
    updateTicks();
    return m_minorTicks;
}

double MirroredAxis::transform(ScaleMode mode, double value) const
{
    return m_source ? 1.0 - m_source->transform(mode, -value) : 0.0;
}

double MirroredAxis::inverseTransform(ScaleMode mode, double position) const
{
    return m_source ? -m_source->inverseTransform(mode, 1.0 - position) : 0.0;
}

Axis::ScaleMode MirroredAxis::scaleMode() const
{
    return m_source ? m_source->scaleMode() : Linear;
}

double MirroredAxis::smallestTickDistance(bool major) const
{
    return m_source ? m_source->smallestTickDistance(major) : 0.0;
}

double MirroredAxis::anchor() const
{
    return m_source ? m_source->anchor() : 0.0;
}

boost::shared_ptr<const Axis::ScrollScaleState> MirroredAxis::scrollScaleState() const
{
    return m_source ? m_source->scrollScaleState() : nullptr;
}

MirroredAxis* MirroredAxis::clone() const
{
    std::unique_ptr<MirroredAxis>
        mirror; // Outlives a source that finds no room among its children.
    std::unique_ptr<Axis> source(m_source ? m_source->clone() : nullptr);
    mirror = std::make_unique<MirroredAxis>(source.get());
    if (source) {
        source->setParent(mirror.get());
        source.release();
    }
    return mirror.release();
}

bool MirroredAxis::operator==(const Axis& other) const
{
    const auto* mirror = dynamic_cast<const MirroredAxis*>(&other);
    if (!mirror)
        return false;
    if (!m_source || !mirror->m_source)
        return !m_source && !mirror->m_source;
    return *m_source == *mirror->m_source;
}

void MirroredAxis::scrollAxis(double at, double by,
                              const boost::shared_ptr<const ScrollScaleState>& base,
                              double bottomLimit, double topLimit, double pixelSize)
{
    if (m_source)
        m_source->scrollAxis(1.0 - at, -by, base, bottomLimit, topLimit, pixelSize);
}

void MirroredAxis::scaleAxis(double at, double by,
                             const boost::shared_ptr<const ScrollScaleState>& base,
                             double bottomLimit, double topLimit, double pixelSize)
{
    if (m_source)
        m_source->scaleAxis(1.0 - at, -by, base, bottomLimit, topLimit, pixelSize);
}

void MirroredAxis::onTicksUpdated()
{
    m_ticksStale = true;
    try {
        updateTicks();
    } catch (...) {
        // Thrown again to whoever asks for the ticks, if there is still cause.
    }
    Q_EMIT ticksUpdated();
}

void MirroredAxis::updateTicks()
{
    if (!m_ticksStale || !m_source)
        return;
    QVector<Tick> major;
    major.append(jointTick());
    const QVector<Tick> mirrored = tickHelper(m_source->majorTicks());
    for (const Tick& tick : mirrored) {
        if (!(tick == major.constLast()))
            major.append(tick);
    }
    m_minorTicks = tickHelper(m_source->minorTicks());
    m_majorTicks.swap(major);
    m_ticksStale = false;
}

Axis::Tick MirroredAxis::jointTick() const
{
    constexpr double highestRank = 2500.0;

    const double value = m_source->minValue();
    const double mirrored = maxValue();
    QList<double> secondary;
    if (value != mirrored)
        secondary.append(mirrored);
    return Tick(value, 1.0, highestRank, secondary, false);
}

QVector<Axis::Tick> MirroredAxis::tickHelper(const QVector<Tick>& ticks)
{
    QVector<Tick> mirrored;
    mirrored.reserve(ticks.size());
    for (const Tick& tick : ticks)
        mirrored.append(Tick(-tick.logicalPosition(), 1.0 - tick.axisPosition(), tick.rank(),
                             tick.secondaryLogicalPositions(), tick.isInvisible()));
    return mirrored;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
