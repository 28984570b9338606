#ifndef KESTRANE_AXES_DETAIL_RANKORDER_H
#define KESTRANE_AXES_DETAIL_RANKORDER_H

#include "kestrane/axes/Axis.h"

#include <algorithm>
#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Sorts ticks by rank, highest first. A rank of NaN, which only an axis from outside can bring,
/// sorts last: without that the order would not be one.
inline void sortByRank(QVector<Axis::Tick>& ticks)
{
    std::sort(ticks.begin(), ticks.end(), [](const Axis::Tick& a, const Axis::Tick& b) {
        return a.rank() > b.rank() || (std::isnan(b.rank()) && !std::isnan(a.rank()));
    });
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
