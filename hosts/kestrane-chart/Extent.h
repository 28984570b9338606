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

    /// Widens it to hold @p value, if that is finite.
    void take(double value);

    /// Of the abscissas of all samples; none without samples. O(segments).
    static std::optional<Extent> ofAbscissas(const std::vector<data::Series>& series);

    /// Of the samples from x = @p from to @p to; of a segment that has none there, but on both
    /// sides, of these two. None if no segment reaches into the range.
    static std::optional<Extent> ofValues(const std::vector<data::Series>& series, double from,
                                          double to);
};

} // namespace hosts::chart

#endif
