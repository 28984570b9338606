#include "kestrane/backend/MultiDimensionalPlotSegment.h"

namespace pelorin {
namespace backend {

namespace {

template<std::size_t Dimensions>
std::array<long long, Dimensions> denseStrides(const std::array<long long, Dimensions>& shape)
{
    std::array<long long, Dimensions> strides{};
    long long stride = 1;
    for (std::size_t d = 0; d < Dimensions; ++d) {
        strides[d] = stride;
        stride *= shape[d];
    }
    return strides;
}

} // namespace

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSegment<T, Dimensions>::MultiDimensionalPlotSegment(
    const boost::shared_ptr<const T[]>& samples, const std::array<MetaInfo, Dimensions>& metaInfo_,
    const Indices& shape_)
    : MultiDimensionalPlotSegment(samples, metaInfo_, shape_, denseStrides(shape_))
{}

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSegment<T, Dimensions>::MultiDimensionalPlotSegment(
    const boost::shared_ptr<const T[]>& samples, const std::array<MetaInfo, Dimensions>& metaInfo_,
    const Indices& shape_, const Indices& strides_, long long originOffset_)
    : metaInfo(metaInfo_)
    , m_samples(samples)
    , base(samples.get())
    , originOffset(originOffset_)
    , extents(shape_)
    , strides(strides_)
    , shape(shape_)
{}

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSegment<T, Dimensions>::MultiDimensionalPlotSegment(
    const MultiDimensionalPlotSegment& other) = default;

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSegment<T, Dimensions>& MultiDimensionalPlotSegment<T, Dimensions>::operator=(
    const MultiDimensionalPlotSegment& other) = default;

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSegment<T, Dimensions>::~MultiDimensionalPlotSegment() = default;

template class MultiDimensionalPlotSegment<double, 2>;
template class MultiDimensionalPlotSegment<unsigned int, 2>;

} // namespace backend
} // namespace pelorin
