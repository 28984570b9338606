#ifndef HOSTS_KESTRANE_CHART_EXTENT_H
#define HOSTS_KESTRANE_CHART_EXTENT_H

#include "hosts/data/Series.h"

#include <optional>
#include <vector>

namespace hosts::chart {

/// The least and the greatest of some values.
struct Extent
{
    double low;
    double high;

    /// Of the abscissas of all samples; none without samples. O(segments).
    static std::optional<Extent> ofAbscissas(const std::vector<data::Series>& series);

    /// Of the values that a curve from x = @p from to @p to passes: those of the samples in the
    /// range and of their neighbours just outside. None if no segment reaches into the range.
    static std::optional<Extent> ofValues(const std::vector<data::Series>& series, double from,
                                          double to);
};

} // namespace hosts::chart

#endif
