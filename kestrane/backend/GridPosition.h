#ifndef KESTRANE_BACKEND_GRIDPOSITION_H
#define KESTRANE_BACKEND_GRIDPOSITION_H

#include "kestrane/backend/MultiDimensionalPlotSegment.h"

#include <array>
#include <cstddef>
#include <cstdlib>

namespace pelorin {
namespace backend {

/// A place in a grid of two dimensions. It starts at (0, 0) and may stand anywhere, also outside
/// the grid, as long as no sample is read there. The segment has to outlive it.
///
/// Threads: any; it only reads the segment.
template<typename T>
class GridPosition
{
public:
    using Segment = MultiDimensionalPlotSegment<T, 2>;

    explicit GridPosition(const Segment& segment)
        : m_segment(&segment)
    {}

    void move(std::size_t dimension, long long distance) { m_indices[dimension] += distance; }

    /// The sample at this place.
    const T& operator*() const { return m_segment->base[offset()]; }

    /// Calls visit(sample) for each sample of the block that begins at this place, in whichever
    /// order is that of the memory. A size of 0 or less in any dimension is no sample at all.
    template<typename Visit>
    void visitBlock(const std::array<long long, 2>& size, Visit&& visit) const
    {
        const auto& strides = m_segment->strides;
        const std::size_t inner = std::llabs(strides[1]) < std::llabs(strides[0]) ? 1 : 0;
        const std::size_t outer = 1 - inner;
        const T* const base = m_segment->base;
        long long row = offset();
        for (long long k = 0; k < size[outer]; ++k, row += strides[outer]) {
            long long element = row;
            for (long long i = 0; i < size[inner]; ++i, element += strides[inner])
                visit(base[element]);
        }
    }

private:
    long long offset() const
    {
        return m_segment->originOffset + m_segment->strides[0] * m_indices[0] +
               m_segment->strides[1] * m_indices[1];
    }

    const Segment* m_segment;
    std::array<long long, 2> m_indices{0, 0};
};

} // namespace backend
} // namespace pelorin

#endif
