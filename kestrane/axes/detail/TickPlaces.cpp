#include "kestrane/axes/detail/TickPlaces.h"

#include "kestrane/axes/detail/RankOrder.h"

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

QVector<Axis::Tick> TickPlaces::ranked(bool isMajor) const
{
    const double bonus = isMajor ? majorBonus : 0.0;
    QVector<Axis::Tick> ticks;
    ticks.reserve(m_places.size());
    visitByRank(m_places.size(), [&](int index, double rank) {
        const Place& place = m_places[index];
        ticks.append(Axis::Tick(place.logical, place.axis, rank + bonus, {}, false));
    });
    return ticks;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
