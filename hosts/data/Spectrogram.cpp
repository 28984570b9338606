#include "hosts/data/Spectrogram.h"

#include "hosts/data/StretchTransform.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;

namespace {

constexpr long long shortestStretch = 4;
constexpr long long usualStretch = 1024;
constexpr long long stretchesInSeries = 24; // At least, if the usual length is too long for that.
constexpr long long mostColumns = 4096;
constexpr long long mostCells = 1 << 24;

const PlotSegment* longestRun(const Series& series)
{
    const auto& runs = series.snapshot.segments;
    const auto longest =
        std::max_element(runs.begin(), runs.end(), [](const PlotSegment& a, const PlotSegment& b) {
            return a.count < b.count;
        });
    return longest == runs.end() ? nullptr : &*longest;
}

Grid gridOf(const PlotSegment& run, long long length, long long hop, long long inColumn)
{
    StretchTransform stretch(length, StretchTransform::unitFor(run));
    const long long columns = ((run.count - length) / hop + inColumn) / inColumn;
    const double width = double(hop * inColumn) * run.xInfo.scale;
    const double middle = double(length + hop * (inColumn - 1)) / 2.0 * run.xInfo.scale;
    const double step = 1.0 / (double(length) * run.xInfo.scale);
    Grid grid(
        {MetaInfo(run.xInfo.offset + middle - width / 2.0, width), MetaInfo(step / 2.0, step)},
        {columns, length / 2});
    for (long long k = 0; k * hop + length <= run.count; ++k) {
        const std::vector<double>& powers = stretch.powers(run.begin + k * hop);
        for (long long bin = 0; bin < length / 2; ++bin) {
            double& cell = grid.at(k / inColumn, bin);
            cell = std::max(cell, stretch.unit() * std::sqrt(powers[std::size_t(bin)]));
        }
    }
    return grid;
}

} // namespace

std::vector<Grid> spectrogramOf(const Series& series, const Stretches& stretches)
{
    const PlotSegment* const longest = longestRun(series);
    const long long samples = longest ? longest->count : 0;
    const long long suiting =
        std::clamp(samples / stretchesInSeries, shortestStretch, usualStretch);
    const long long wanted = stretches.length.value_or(suiting);
    if (samples < wanted)
        throw std::runtime_error(series.name.toStdString() + ": a spectrogram needs " +
                                 std::to_string(wanted) + " samples in a row, there are " +
                                 std::to_string(samples));
    const long long length = StretchTransform::fastLength(wanted);
    const auto hop = std::max(1LL, std::llround(double(length) * (1.0 - stretches.overlap)));
    const long long columns = std::min(mostColumns, mostCells / length);
    const long long inColumn = ((samples - length) / hop + columns) / columns;
    std::vector<Grid> grids;
    for (const PlotSegment& run : series.snapshot.segments) {
        if (run.count >= length)
            grids.push_back(gridOf(run, length, hop, inColumn));
    }
    return grids;
}

} // namespace hosts::data
