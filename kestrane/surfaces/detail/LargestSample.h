#ifndef KESTRANE_SURFACES_DETAIL_LARGESTSAMPLE_H
#define KESTRANE_SURFACES_DETAIL_LARGESTSAMPLE_H

#include "kestrane/backend/GridPosition.h"

#include <array>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Of the two values, @p candidate if it is greater: NaN is not.
template<typename T>
T greater(T candidate, T value)
{
    return candidate > value ? candidate : value;
}

/// The value of a cell: the largest sample of the block that begins at @p position, at least 0.
/// Samples of NaN don't count. Each sample is read once.
template<typename T>
T largestSample(const backend::GridPosition<T>& position, const std::array<long long, 2>& size)
{
    T largest = 0;
    T other = 0; // Of every other sample, since one value would have to wait for itself.
    position.visitRows(size, [&](const T* samples, long long count, long long stride) {
        long long k = 0;
        for (; k + 1 < count; k += 2) {
            largest = greater(samples[k * stride], largest);
            other = greater(samples[(k + 1) * stride], other);
        }
        if (k < count)
            largest = greater(samples[k * stride], largest);
    });
    return greater(other, largest);
}

/// Calls put(k, sample) for each of some samples, in their order.
template<typename T, typename Put>
void putEach(const T* samples, long long count, long long stride, Put put)
{
    if (stride == 1) { // A loop of its own: it takes several samples at a step.
        for (long long k = 0; k < count; ++k)
            put(k, samples[k]);
    } else {
        for (long long k = 0; k < count; ++k)
            put(k, samples[k * stride]);
    }
}

/// Raises each of some values to the sample in its place, unless that is less or NaN.
template<typename T>
void raise(T* __restrict values, const T* samples, long long count, long long stride)
{
    putEach(samples, count, stride,
            [values](long long k, T sample) { values[k] = greater(sample, values[k]); });
}

/// What raise() makes of zeros.
template<typename T>
void raiseZeros(T* __restrict values, const T* samples, long long count, long long stride)
{
    putEach(samples, count, stride,
            [values](long long k, T sample) { values[k] = greater(sample, T(0)); });
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
