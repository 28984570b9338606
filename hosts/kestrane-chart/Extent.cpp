#include "hosts/kestrane-chart/Extent.h"

#include <algorithm>
#include <cmath>

namespace hosts::chart {

using pelorin::backend::PlotSegment;

namespace {

double abscissaOf(const PlotSegment& segment, double index)
{
    return index * segment.xInfo.scale + segment.xInfo.offset;
}

// Its ends, and what is next to zero.
void takeAbscissas(std::optional<Extent>& extent, const PlotSegment& segment,
                   Extent::Measure measure)
{
    if (segment.count == 0)
        return;
    const double last = double(segment.count - 1);
    const double zero = std::round(-segment.xInfo.offset / segment.xInfo.scale);
    for (const double index : {0.0, zero - 1.0, zero, zero + 1.0, last})
        Extent::widen(extent, measure(abscissaOf(segment, std::clamp(index, 0.0, last))));
}

// Of millions of samples, without a decision for each. Not if some are infinite.
bool takePlain(std::optional<Extent>& extent, const double* begin, const double* end)
{
    double low = *begin, high = *begin;
    for (const double* sample = begin; sample != end; ++sample) {
        low = *sample < low ? *sample : low;
        high = *sample > high ? *sample : high;
    }
    if (!std::isfinite(low) || !std::isfinite(high))
        return false;
    Extent::widen(extent, low);
    Extent::widen(extent, high);
    return true;
}

void takeValues(std::optional<Extent>& extent, const PlotSegment& segment, double from, double to,
                Extent::Measure measure)
{
    const double last = double(segment.count - 1);
    if (segment.count == 0 || abscissaOf(segment, 0.0) > to || abscissaOf(segment, last) < from)
        return;
    const auto index = [&](double x) { return (x - segment.xInfo.offset) / segment.xInfo.scale; };
    // The first sample inside and the last one, or the other way round if there is none.
    const auto ends = std::minmax({std::ceil(index(from)), std::floor(index(to))});
    const auto first = std::ptrdiff_t(std::clamp(ends.first, 0.0, last));
    const auto end = std::ptrdiff_t(std::clamp(ends.second, 0.0, last)) + 1;
    const double* const samples = &*segment.begin;
    if (measure == Extent::asItIs && takePlain(extent, samples + first, samples + end))
        return;
    for (std::ptrdiff_t k = first; k < end; ++k)
        Extent::widen(extent, measure(samples[k]));
}

} // namespace

void Extent::take(double value)
{
    if (!std::isfinite(value))
        return;
    low = std::min(low, value);
    high = std::max(high, value);
}

void Extent::widen(std::optional<Extent>& extent, double value)
{
    if (!extent && std::isfinite(value))
        extent = Extent{value, value};
    if (extent)
        extent->take(value);
}

std::optional<Extent> Extent::ofAbscissas(const std::vector<data::Series>& series, Measure measure)
{
    std::optional<Extent> extent;
    for (const data::Series& one : series) {
        for (const PlotSegment& segment : one.snapshot.segments)
            takeAbscissas(extent, segment, measure);
    }
    return extent;
}

std::optional<Extent> Extent::ofValues(const std::vector<data::Series>& series, double from,
                                       double to, Measure measure)
{
    std::optional<Extent> extent;
    for (const data::Series& one : series) {
        for (const PlotSegment& segment : one.snapshot.segments)
            takeValues(extent, segment, from, to, measure);
    }
    return extent;
}

} // namespace hosts::chart
