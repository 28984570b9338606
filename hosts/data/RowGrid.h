#ifndef HOSTS_DATA_ROWGRID_H
#define HOSTS_DATA_ROWGRID_H

#include <kestrane/backend/MetaInfo.h>

#include <vector>

namespace hosts::data {

/// Where the rows of a recording lie: on a regular grid, one place on from row to row but for
/// jumps over places that the recording leaves out.
struct RowGrid
{
    struct Jump
    {
        long long row;   ///< The row behind the jump.
        long long place; ///< Its index in the grid.
    };

    /// Where the run of rows without a jump ends that begins with @p row, at most @p end.
    /// O(log of the number of jumps).
    long long runEnd(long long row, long long end) const;

    /// The grid of a segment that begins with @p row. O(log of the number of jumps).
    pelorin::backend::MetaInfo segmentInfo(long long row) const;

    double offset = 0.0;     ///< The abscissa of row 0.
    double scale = 1.0;      ///< The distance of the places; positive.
    std::vector<Jump> jumps; ///< Ascending.
};

} // namespace hosts::data

#endif
