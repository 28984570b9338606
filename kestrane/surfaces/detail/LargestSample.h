#ifndef KESTRANE_SURFACES_DETAIL_LARGESTSAMPLE_H
#define KESTRANE_SURFACES_DETAIL_LARGESTSAMPLE_H

#include "kestrane/backend/GridPosition.h"

#include <array>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The value of a cell: the largest sample of the block that begins at @p position, at least 0.
/// Samples of NaN don't count. Each sample is read once.
template<typename T>
T largestSample(const backend::GridPosition<T>& position, const std::array<long long, 2>& size)
{
    T largest = 0;
    position.visitBlock(size, [&largest](T sample) {
        largest = sample > largest ? sample : largest; // False for NaN.
    });
    return largest;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
