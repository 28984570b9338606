#ifndef KESTRANE_BACKEND_MULTIDIMENSIONALPLOTSEGMENT_H
#define KESTRANE_BACKEND_MULTIDIMENSIONALPLOTSEGMENT_H

#include "kestrane/backend/MetaInfo.h"
#include "kestrane/backend/OmbrelExport.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <cstddef>

namespace pelorin {
namespace backend {

/// A grid of samples with a mapping from its indices to values on one axis per dimension.
///
/// Sample (i0, i1) is the element of the memory at
///
///     originOffset + strides[0] * i0 + strides[1] * i1
///
/// so that one piece of memory serves many grids without a copy: with the origin at another
/// sample and a smaller shape, a part of a grid; with the strides exchanged, its transpose; with
/// a negative stride, its mirror image.
///
/// A segment shares its samples; a copy reads the same ones. Nobody writes to a sample that a
/// segment reads. O(1) to make and to copy.
///
/// Threads: copies may be made, read and destroyed on different threads at the same time.
///
/// Instantiated for T = double and unsigned int and two dimensions, 0 being x and 1 being y.
///
/// @code
/// const auto values = boost::make_shared<double[]>(6); // 3 x 2, row by row.
/// const backend::MetaInfo x(0.0, 1.0), y(10.0, 0.5);
/// const backend::MultiDimensionalPlotSegment<double, 2> grid(values, {x, y}, {3, 2});
/// grid.strides[1]; // = 3
/// @endcode
///
/// @ingroup backend
template<typename T, std::size_t Dimensions>
class MultiDimensionalPlotSegment
{
public:
    using Indices = std::array<long long, Dimensions>;

    /// A grid that fills its memory from the start, dimension 0 running fastest.
    /// @param samples at least as many as the product of @p shape
    /// @param metaInfo where the samples lie: index k of a dimension at k * scale + offset
    /// @param shape number of samples in each dimension, none negative
    MultiDimensionalPlotSegment(const boost::shared_ptr<const T[]>& samples,
                                const std::array<MetaInfo, Dimensions>& metaInfo,
                                const Indices& shape);

    /// A grid that lies in its memory in any way.
    /// @param strides elements from one index to the next, in each dimension
    /// @param originOffset elements from the start of the memory to sample (0, 0)
    MultiDimensionalPlotSegment(const boost::shared_ptr<const T[]>& samples,
                                const std::array<MetaInfo, Dimensions>& metaInfo,
                                const Indices& shape, const Indices& strides,
                                long long originOffset = 0);

    MultiDimensionalPlotSegment(const MultiDimensionalPlotSegment& other);
    MultiDimensionalPlotSegment& operator=(const MultiDimensionalPlotSegment& other);
    ~MultiDimensionalPlotSegment();

    std::array<MetaInfo, Dimensions> metaInfo;

private:
    boost::shared_ptr<const T[]> m_samples;

public:
    const T* base; ///< Start of the sample memory, kept alive by this segment.
    long long originOffset;
    Indices extents; ///< Size of the grid; the same as the shape.
    Indices strides;
    Indices shape; ///< Number of samples that count in each dimension.
};

extern template class OMBREL_EXPORT MultiDimensionalPlotSegment<double, 2>;
extern template class OMBREL_EXPORT MultiDimensionalPlotSegment<unsigned int, 2>;

} // namespace backend
} // namespace pelorin

#endif
