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
///
/// @code
/// const auto values = boost::make_shared<double[]>(6); // 3 x 2, row by row.
/// values[4] = 7.0;
/// const backend::MultiDimensionalPlotSegment<double, 2> grid(
///     values, {backend::MetaInfo(), backend::MetaInfo()}, {3, 2});
/// backend::GridPosition<double> place(grid);
/// place.move(0, 1);
/// place.move(1, 1);
/// *place; // = 7
/// @endcode
///
/// @ingroup backend
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

    /// The dimension whose samples lie nearer to each other in memory.
    std::size_t denserDimension() const
    {
        const auto& strides = m_segment->strides;
        return std::llabs(strides[1]) < std::llabs(strides[0]) ? 1 : 0;
    }

    /// Walks the block that begins at this place, row by row: calls visit(first, count, stride) for
    /// each row of samples, first[0] to first[(count - 1) * stride]. Rows lie along
    /// denserDimension(). A size of 0 or less in any dimension is no sample at all.
    template<typename Visit>
    void visitRows(const std::array<long long, 2>& size, Visit&& visit) const
    {
        const auto& strides = m_segment->strides;
        const std::size_t inner = denserDimension();
        const std::size_t outer = 1 - inner;
        if (size[inner] <= 0)
            return;
        long long row = offset();
        for (long long k = 0; k < size[outer]; ++k, row += strides[outer])
            visit(m_segment->base + row, size[inner], strides[inner]);
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
