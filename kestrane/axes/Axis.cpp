#include "kestrane/axes/Axis.h"

#include "kestrane/axes/detail/InTurn.h"
#include "kestrane/axes/detail/RankOrder.h"
#include "kestrane/library/detail/OwnCopy.h"

#include <QPointer>

namespace pelorin {
namespace ui {
namespace chart {

Axis::Tick::Tick(double logicalPosition, double axisPosition, double rank,
                 const QList<double>& secondaryLogicalPositions, bool invisible)
    : m_valid(true)
    , m_invisible(invisible)
    , m_logicalPosition(logicalPosition)
    , m_axisPosition(axisPosition)
    , m_rank(rank)
    , m_secondaryLogicalPositions(secondaryLogicalPositions)
{}

bool Axis::Tick::operator==(const Tick& other) const
{
    return m_valid && other.m_valid && m_axisPosition == other.m_axisPosition;
}

Axis::ScrollScaleState::~ScrollScaleState() = default;

Axis::Axis(QObject* parent)
    : QObject(parent)
{
    // All guards of an object share one piece of memory. Taken here, it cannot be missing in the
    // middle of a change.
    const QPointer<QObject> guard(this);
}

bool Axis::operator!=(const Axis& other) const
{
    return !operator==(other);
}

void Axis::update()
{
    emitParametersChanged();
}

void Axis::emitParametersChanged()
{
    Q_EMIT parametersChanged(this);
}

void Axis::emitMinValChanged(bool withParamChange)
{
    detail::inTurn(
        this, [&] { Q_EMIT minValueChanged(minValue()); },
        [&] {
            if (withParamChange)
                Q_EMIT parametersChanged(this);
        });
}

void Axis::emitMaxValChanged(bool withParamChange)
{
    detail::inTurn(
        this, [&] { Q_EMIT maxValueChanged(maxValue()); },
        [&] {
            if (withParamChange)
                Q_EMIT parametersChanged(this);
        });
}

void Axis::updateRanking(QVector<Tick>& ticks, bool isMajor)
{
    if (!ticks.isDetached())
        ticks = detail::ownCopy(ticks);
    detail::visitByRank(ticks.size(), [&](int index, double rank) {
        Tick& tick = ticks[index];
        if (tick.rank() == 0.0)
            tick.setRank(rank);
    });
    if (isMajor) {
        for (Tick& tick : ticks)
            tick.setRank(tick.rank() + detail::majorBonus);
    }
    detail::sortByRank(ticks);
}

} // namespace chart
} // namespace ui
} // namespace pelorin
