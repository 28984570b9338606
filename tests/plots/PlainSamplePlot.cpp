#include "tests/plots/PlainSamplePlot.h"

#include "tests/plots/PlainSpline.h"

#include <algorithm>
#include <cmath>

namespace tests {

using namespace pelorin::backend;
using pelorin::algo::Subsampler;

namespace {

bool fuzzyEqual(double a, double b)
{
    return std::fabs(a - b) * 1000000000000.0 <= std::min(std::fabs(a), std::fabs(b));
}

struct Walk
{
    const Axis& xAxis;
    const Axis& yAxis;
    double columnWidth, symbolSpacing;
    double left = 0.0, right = columnWidth;

    Points polyline = {}, symbols = {};
    std::vector<double> column = {}; // The y positions in the present column.

    double indexAt(const PlotSegment& segment, double position) const
    {
        const auto& x = segment.xInfo;
        return (xAxis.inverseTransform(x.scaleMode, position) - x.offset) / x.scale;
    }

    void flushColumn(const PlotSegment& segment, Subsampler& curve)
    {
        const double centre = columnWidth * 0.5 + left;
        const double f = indexAt(segment, left);
        const auto extremes = std::minmax_element(column.begin(), column.end());
        if (f >= 0.0) {
            const double y = yAxis.transform(segment.yScaleMode, curve[f]);
            if (std::isnan(y))
                return;
            polyline.emplace_back(centre, y);
            if (!column.empty() && !fuzzyEqual(y, *extremes.first))
                polyline.emplace_back(centre, *extremes.first);
        } else if (!column.empty()) {
            polyline.emplace_back(centre, *extremes.first);
        }
        if (!column.empty() && !fuzzyEqual(*extremes.second, *extremes.first))
            polyline.emplace_back(centre, *extremes.second);
    }

    long long align(const PlotSegment& segment)
    {
        left = std::floor(xAxis.transform(segment.xInfo.scaleMode, segment.xInfo.offset) /
                          columnWidth) *
               columnWidth;
        if (left > 1.0)
            left = 1.0;
        if (!(left > 0.0))
            left = 0.0;
        right = left + columnWidth;
        const double skip = std::trunc(indexAt(segment, left));
        if (!(std::fabs(skip) < 9.2e18))
            return 0;
        return std::clamp((long long)(skip), 0LL, segment.count);
    }

    void run(const PlotSegment& segment)
    {
        const auto& x = segment.xInfo;
        const std::vector<double> samples(segment.begin, segment.end);
        PlainSpline own(samples);
        const auto foreign = segment.subsampler();
        Subsampler& curve = foreign ? *foreign : own;

        const double span = xAxis.inverseTransform(Axis::Linear, columnWidth * symbolSpacing) -
                            xAxis.inverseTransform(Axis::Linear, 0.0);
        long long index = segment.count > 0 ? align(segment) : 0;
        for (; index < segment.count && left < 1.0; ++index) {
            const double position =
                xAxis.transform(x.scaleMode, double(index) * x.scale + x.offset);
            if (std::isnan(position))
                continue;
            while (position >= right && left < 1.0) {
                flushColumn(segment, curve);
                column.clear();
                left = right;
                right += columnWidth;
            }
            const double y = yAxis.transform(segment.yScaleMode, samples[std::size_t(index)]);
            if (std::isnan(y))
                continue;
            if (x.scale > span)
                symbols.emplace_back(position, y);
            if (position >= left)
                column.push_back(y);
        }
        flushColumn(segment, curve);
        if (polyline.size() == 1) {
            auto point = polyline.front();
            const double g = indexAt(segment, right);
            if (g >= 0.0) {
                const double y = yAxis.transform(segment.yScaleMode, curve[g]);
                if (!std::isnan(y))
                    point = {columnWidth * 0.5 + right, y};
            }
            polyline.push_back(point);
        }
    }
};

} // namespace

std::pair<std::vector<Points>, std::vector<Points>>
plainSamplePlot(const PlotSnapshot& snapshot, const Axis& xAxis, const Axis& yAxis,
                double columnWidth, double symbolSpacing)
{
    std::pair<std::vector<Points>, std::vector<Points>> result;
    Walk walk{xAxis, yAxis, columnWidth, symbolSpacing};
    for (const PlotSegment& segment : snapshot.segments) {
        walk.polyline.clear();
        walk.symbols.clear();
        walk.column.clear();
        try {
            walk.run(segment);
        } catch (...) {
        }
        if (walk.polyline.size() >= 2)
            result.first.push_back(walk.polyline);
        if (!walk.symbols.empty())
            result.second.push_back(walk.symbols);
    }
    return result;
}

} // namespace tests
