#ifndef HOSTS_DATA_TIMEGRID_H
#define HOSTS_DATA_TIMEGRID_H

#include "hosts/data/RowGrid.h"

#include <string>
#include <string_view>
#include <vector>

namespace hosts::data {

/// Finds the regular grid behind a column of times that a file writes rounded to some decimals.
///
/// The abscissas of the grid differ from the times of the file by at most the rounding unit of the
/// file or a thousandth of a step, whichever is more, and by less than half a step. Rounding units
/// are told from the decimals and the significant digits seen so far, so that cells with the zeros
/// at their end left out do no harm.
class TimeGrid
{
public:
    /// @param firstCells the beginning of the column, to learn its typical step and its format
    TimeGrid(const std::vector<std::string>& firstCells, char decimalPoint);

    enum Verdict { Regular, NotAscending, OffGrid };

    /// Takes the time of the next row. Nothing may follow a verdict other than Regular. O(1).
    /// @param cell how the file writes @p time
    Verdict put(double time, std::string_view cell);

    /// The mean distance of the places taken so far, or the typical step before the second.
    double meanStep() const;

    /// The grid of the rows taken; its ends are the first and the last time as far as the times
    /// between allow.
    RowGrid grid() const;

private:
    double roundingUnit(std::string_view cell);

    double m_typicalStep; ///< Of the beginning; tells a step from a jump.
    RowGrid m_grid;
    double m_last = 0.0;
    double m_slowest = 0.0; ///< The steps that fit all times are those from here
    double m_fastest;       ///< to here.
    long long m_row = 0;
    long long m_place = 0;       ///< Of the last time.
    int m_lastPlace;             ///< Power of ten of the finest decimal seen.
    int m_significantDigits = 1; ///< The most seen.
};

} // namespace hosts::data

#endif
