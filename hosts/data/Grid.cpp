#include "hosts/data/Grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hosts::data {

Grid::Grid(const std::array<pelorin::backend::MetaInfo, 2>& metaInfo_,
           const std::array<long long, 2>& shape_)
    : metaInfo(metaInfo_)
    , shape(shape_)
    , values(std::size_t(shape[0] * shape[1]))
{}

Grid::Ends Grid::edges(std::size_t dimension) const
{
    const pelorin::backend::MetaInfo& info = metaInfo[dimension];
    const auto valueAt = [&](long long index) {
        const double value = double(index) * info.scale + info.offset;
        return info.scaleMode == pelorin::ui::chart::Axis::Logarithmic ? std::pow(10.0, value)
                                                                       : value;
    };
    return std::minmax({valueAt(0), valueAt(shape[dimension])});
}

std::optional<Grid::Ends> extremesAbove(const std::vector<Grid>& grids, double floor)
{
    std::optional<Grid::Ends> extremes;
    for (const Grid& grid : grids) {
        for (const double value : grid.values) {
            if (!(value > floor))
                continue;
            if (!extremes)
                extremes = Grid::Ends(value, value);
            extremes = {std::min(extremes->first, value), std::max(extremes->second, value)};
        }
    }
    return extremes;
}

bool areCounts(const std::vector<Grid>& grids)
{
    constexpr double most = std::numeric_limits<unsigned int>::max();
    return std::all_of(grids.begin(), grids.end(), [](const Grid& grid) {
        return std::all_of(grid.values.begin(), grid.values.end(), [](double value) {
            return value >= 0.0 && value <= most && value == std::floor(value);
        });
    });
}

} // namespace hosts::data
