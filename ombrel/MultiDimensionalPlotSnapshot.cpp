#include "kestrane/backend/MultiDimensionalPlotSnapshot.h"

#include <boost/make_shared.hpp>

#include <utility>

namespace pelorin {
namespace backend {

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSnapshot<T, Dimensions>::MultiDimensionalPlotSnapshot() = default;

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSnapshot<T, Dimensions>::MultiDimensionalPlotSnapshot(
    std::vector<Segment> segments)
{
    if (segments.empty())
        return;
    m_segments = boost::make_shared<const std::vector<Segment>>(std::move(segments));
    m_begin = m_segments->data();
    m_end = m_begin + m_segments->size();
}

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSnapshot<T, Dimensions>::MultiDimensionalPlotSnapshot(
    const MultiDimensionalPlotSnapshot& other) = default;

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSnapshot<T, Dimensions>& MultiDimensionalPlotSnapshot<T, Dimensions>::operator=(
    const MultiDimensionalPlotSnapshot& other) = default;

template<typename T, std::size_t Dimensions>
MultiDimensionalPlotSnapshot<T, Dimensions>::~MultiDimensionalPlotSnapshot() = default;

template<typename T, std::size_t Dimensions>
bool MultiDimensionalPlotSnapshot<T, Dimensions>::empty() const
{
    return m_begin == m_end;
}

template class MultiDimensionalPlotSnapshot<double, 2>;
template class MultiDimensionalPlotSnapshot<unsigned int, 2>;

} // namespace backend
} // namespace pelorin
