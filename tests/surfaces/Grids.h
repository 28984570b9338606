#ifndef TESTS_SURFACES_GRIDS_H
#define TESTS_SURFACES_GRIDS_H

#include "kestrane/axes/LinearAxis.h"
#include "kestrane/backend/MultiDimensionalPlotSnapshot.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <vector>

namespace tests {

using pelorin::backend::MetaInfo;

template<typename T>
using Grid = pelorin::backend::MultiDimensionalPlotSegment<T, 2>;
template<typename T>
using Grids = pelorin::backend::MultiDimensionalPlotSnapshot<T, 2>;

using Indices = std::array<long long, 2>;
using Doubles = std::vector<double>;

template<typename T>
boost::shared_ptr<const T[]> memory(const std::vector<T>& samples)
{
    const auto result = boost::make_shared<T[]>(samples.size());
    std::copy(samples.begin(), samples.end(), result.get());
    return result;
}

/// Samples row by row, x running fastest.
template<typename T>
Grid<T> grid(const Indices& shape, const std::vector<T>& samples, const MetaInfo& x = MetaInfo(),
             const MetaInfo& y = MetaInfo())
{
    return Grid<T>(memory(samples), {x, y}, shape);
}

template<typename Vector>
Doubles doubles(const Vector& values)
{
    return Doubles(values.begin(), values.end());
}

} // namespace tests

#endif
