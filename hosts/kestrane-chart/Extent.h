#ifndef HOSTS_KESTRANE_CHART_EXTENT_H
#define HOSTS_KESTRANE_CHART_EXTENT_H

#include "hosts/data/Series.h"

#include <optional>
#include <vector>

namespace hosts::chart {

/// The least and the greatest of some values.
struct Extent
{
    /// What of a value counts; NaN for one that does not.
    using Measure = double (*)(double value);

    static double asItIs(double value) { return value; }

    double low;
    double high;

    /// Widens it to hold @p value, if that is finite.
    void take(double value);

    /// Likewise; the first finite value makes an extent of @p extent.
    static void widen(std::optional<Extent>& extent, double value);

    /// Of the abscissas of all samples; none without samples that count. O(segments).
    /// @param measure monotonic on either side of 0
    static std::optional<Extent> ofAbscissas(const std::vector<data::Series>& series,
                                             Measure measure);

    /// Of the samples from x = @p from to @p to; of a segment that has none there, but on both
    /// sides, of these two. None if no segment reaches into the range.
    static std::optional<Extent> ofValues(const std::vector<data::Series>& series, double from,
                                          double to, Measure measure = asItIs);
};

} // namespace hosts::chart

#endif
