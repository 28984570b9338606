#include "hosts/kestrane-chart/Extent.h"

#include <algorithm>
#include <cmath>

namespace hosts::chart {

using pelorin::backend::PlotSegment;

namespace {

void take(std::optional<Extent>& extent, double value)
{
    if (std::isnan(value))
        return;
    if (!extent)
        extent = Extent{value, value};
    extent->low = std::min(extent->low, value);
    extent->high = std::max(extent->high, value);
}

double abscissaOf(const PlotSegment& segment, double index)
{
    return index * segment.xInfo.scale + segment.xInfo.offset;
}

void takeValues(std::optional<Extent>& extent, const PlotSegment& segment, double from, double to)
{
    const double last = double(segment.count - 1);
    if (segment.count == 0 || abscissaOf(segment, 0.0) > to || abscissaOf(segment, last) < from)
        return;
    const auto index = [&](double x) { return (x - segment.xInfo.offset) / segment.xInfo.scale; };
    const auto first = std::ptrdiff_t(std::clamp(std::floor(index(from)), 0.0, last));
    const auto end = std::ptrdiff_t(std::clamp(std::ceil(index(to)), 0.0, last)) + 1;
    for (auto sample = segment.begin + first; sample != segment.begin + end; ++sample)
        take(extent, *sample);
}

} // namespace

std::optional<Extent> Extent::ofAbscissas(const std::vector<data::Series>& series)
{
    std::optional<Extent> extent;
    for (const data::Series& one : series) {
        for (const PlotSegment& segment : one.snapshot.segments) {
            if (segment.count == 0)
                continue;
            take(extent, abscissaOf(segment, 0.0));
            take(extent, abscissaOf(segment, double(segment.count - 1)));
        }
    }
    return extent;
}

std::optional<Extent> Extent::ofValues(const std::vector<data::Series>& series, double from,
                                       double to)
{
    std::optional<Extent> extent;
    for (const data::Series& one : series) {
        for (const PlotSegment& segment : one.snapshot.segments)
            takeValues(extent, segment, from, to);
    }
    return extent;
}

} // namespace hosts::chart
