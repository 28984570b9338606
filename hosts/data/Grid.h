#ifndef HOSTS_DATA_GRID_H
#define HOSTS_DATA_GRID_H

#include <kestrane/backend/MetaInfo.h>

#include <boost/shared_ptr.hpp>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace hosts::data {

/// Values in cells over x and y, dimensions 0 and 1. Cell (i, j) reaches from index i to i + 1 of
/// x and from j to j + 1 of y; a NaN is a cell without a value.
struct Grid
{
    using Ends = std::pair<double, double>;

    /// Cells with the value 0.
    Grid(const std::array<pelorin::backend::MetaInfo, 2>& metaInfo,
         const std::array<long long, 2>& shape);

    double& at(long long i, long long j) { return values[index(i, j)]; }
    double at(long long i, long long j) const { return values[index(i, j)]; }

    /// The values of x (0) or y (1) at the outer edges, the lower first.
    Ends edges(std::size_t dimension) const;

    std::array<pelorin::backend::MetaInfo, 2> metaInfo;
    std::array<long long, 2> shape;
    std::vector<double> values; ///< x runs fastest.

private:
    std::size_t index(long long i, long long j) const { return std::size_t(j * shape[0] + i); }
};

/// The least and the greatest value above @p floor; none if there is no such value. O(cells).
std::optional<Grid::Ends> extremesAbove(const std::vector<Grid>& grids, double floor);

/// Whether all values are whole numbers from 0 on, none too large for 32 bits. O(cells).
bool areCounts(const std::vector<Grid>& grids);

} // namespace hosts::data

#endif
