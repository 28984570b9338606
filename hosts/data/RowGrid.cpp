#include "hosts/data/RowGrid.h"

#include <algorithm>

namespace hosts::data {

namespace {

auto firstJumpBehind(const std::vector<RowGrid::Jump>& jumps, long long row)
{
    return std::upper_bound(jumps.begin(), jumps.end(), row,
                            [](long long r, const RowGrid::Jump& jump) { return r < jump.row; });
}

} // namespace

long long RowGrid::runEnd(long long row, long long end) const
{
    const auto jump = firstJumpBehind(jumps, row);
    return jump == jumps.end() ? end : std::min(end, jump->row);
}

pelorin::backend::MetaInfo RowGrid::segmentInfo(long long row) const
{
    const auto next = firstJumpBehind(jumps, row);
    const Jump last = next == jumps.begin() ? Jump{0, 0} : *(next - 1);
    const long long place = last.place + (row - last.row);
    return {static_cast<double>(place) * scale + offset, scale};
}

} // namespace hosts::data
