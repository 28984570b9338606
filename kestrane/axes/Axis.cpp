#include "kestrane/axes/Axis.h"

#include "kestrane/axes/detail/InTurn.h"
#include "kestrane/axes/detail/RankOrder.h"

namespace pelorin {
namespace ui {
namespace chart {

namespace {

void rankIfUnranked(QVector<Axis::Tick>& ticks, int index, double weight)
{
    Axis::Tick& tick = ticks[index];
    if (tick.rank() == 0.0)
        tick.setRank((static_cast<double>(index) / ticks.size() + 1.0) * weight);
}

// Ranks the ends of [first, last], then each half with half the weight. A tick that is reached at
// depth d gets weight / 2^d to just under twice that, so that no deeper tick outranks it.
void rankByBisection(QVector<Axis::Tick>& ticks, int first, int last, double weight)
{
    for (;;) {
        rankIfUnranked(ticks, first, weight);
        rankIfUnranked(ticks, last, weight);
        if (first >= last)
            return;
        weight /= 2.0;
        const int mid = first + (last - first) / 2;
        rankByBisection(ticks, first, mid, weight);
        if (mid == first)
            return;
        first = mid;
    }
}

} // namespace

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
{}

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
    constexpr double heaviest = 500.0;
    constexpr double majorBonus = 1500.0;

    if (!ticks.isEmpty())
        rankByBisection(ticks, 0, ticks.size() - 1, heaviest);
    if (isMajor) {
        for (Tick& tick : ticks)
            tick.setRank(tick.rank() + majorBonus);
    }
    detail::sortByRank(ticks);
}

} // namespace chart
} // namespace ui
} // namespace pelorin
