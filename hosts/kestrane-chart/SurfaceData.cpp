#include "hosts/kestrane-chart/SurfaceData.h"

#include "hosts/charting/AxisView.h"
#include "hosts/data/Events.h"
#include "hosts/data/InStep.h"
#include "hosts/data/Spectrogram.h"
#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/Extent.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace hosts::chart {

using charting::AxisView;
using charting::ShownAxis;
using data::Bins;
using data::Events;
using data::Grid;
using data::Series;
using pelorin::ui::chart::Axis;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double farthest = 1e300;  // From 0, for an axis to have room around it.
constexpr double usualRange = 80.0; // Of a spectrogram, in decibels.
constexpr int pixelsPerBin = 5;     // At least.

// An axis that covers values, closely where that looks well.
template<typename ForEachValue>
ShownAxis axisFor(AxisOptions axis, int wanted, bool isClose, const ForEachValue& forEachValue)
{
    std::optional<Extent> all;
    std::optional<Extent> measured;
    forEachValue([&](double value) {
        Extent::widen(all, value);
        Extent::widen(measured, axis.kind->measure()(value));
    });
    if (!all)
        throw WorkError(QStringLiteral("there are no values to draw"));
    if (std::max(-all->low, all->high) > farthest || axis.from.value_or(all->low) > all->high ||
        axis.to.value_or(all->high) < all->low)
        throw WorkError(axis.outsideText(*all));
    const double from = axis.from.value_or(measured ? measured->low : 0.0);
    const double to = axis.to.value_or(measured ? measured->high : 0.0);
    if (isClose && axis.kind->suitsAnyRange() && from < to) {
        axis.from = from;
        axis.to = to;
    }
    return axis.kind->forAbscissas(axis, measured, wanted);
}

ShownAxis axisFor(const std::vector<Grid>& grids, std::size_t dimension, const AxisOptions& axis,
                  int wanted)
{
    return axisFor(axis, wanted, true, [&](const auto& take) {
        for (const Grid& grid : grids) {
            for (long long i = 0; i <= grid.shape[dimension]; ++i)
                take(double(i) * grid.metaInfo[dimension].scale + grid.metaInfo[dimension].offset);
        }
    });
}

const Series& onlyOne(const Recordings& recordings)
{
    if (recordings.series.size() != 1)
        throw WorkError(
            QStringLiteral("a spectrogram shows one column or channel, not %1; choose with "
                           "--column or --channel")
                .arg(recordings.series.size()));
    return recordings.series.front();
}

Events eventsOf(const std::vector<Series>& series)
{
    if (series.size() == 1)
        return data::valuesAndSlopes(series[0]);
    if (series.size() != 2)
        throw WorkError(QStringLiteral("cells and columns need one or two columns or a table of "
                                       "numbers, not %1 columns; choose with --column")
                            .arg(series.size()));
    const auto [x, y] = data::inStep(series[0], series[1]);
    return data::eventsOf(x, y);
}

// As many as let the counts stand out, but none too small to be seen.
Bins binsFor(const ShownAxis& shown, const std::optional<int>& asked,
             const std::vector<double>& values, int pixels)
{
    const AxisView axis(shown, QString());
    const bool isLog = shown.axis->scaleMode() == Axis::Logarithmic && axis.from() > 0.0;
    if (asked)
        return {axis.from(), axis.to(), *asked, isLog};
    const int most = std::max(4, pixels / pixelsPerBin);
    const int suiting = int(2.0 * std::cbrt(double(values.size())));
    return data::binsThatSuit(values,
                              {axis.from(), axis.to(), std::clamp(suiting, 4, most), isLog});
}

std::vector<double> valuesOf(const Events& events, double Events::value_type::*member)
{
    std::vector<double> values;
    for (const auto& event : events)
        values.push_back(event.*member);
    return values;
}

void toDecibels(std::vector<Grid>& grids, bool isFloorOpen)
{
    const auto extremes = data::extremesAbove(grids, 0.0);
    if (!extremes)
        throw WorkError(QStringLiteral("nothing changes in the data, so there is no spectrogram"));
    const auto decibels = [](double amplitude) { return 20.0 * std::log10(amplitude); };
    const double floor = isFloorOpen ? decibels(extremes->second) - usualRange : -1e4;
    for (Grid& grid : grids) {
        for (double& value : grid.values)
            value = std::max(decibels(value), floor);
    }
}

void takeEvents(SurfaceData& result, const Recordings& recordings, const Options& options,
                int wantedX, int wantedY)
{
    const Events events = eventsOf(recordings.series);
    const std::vector<double> xs = valuesOf(events, &Events::value_type::first);
    const std::vector<double> ys = valuesOf(events, &Events::value_type::second);
    const auto each = [](const std::vector<double>& values) {
        return [&values](const auto& take) { std::for_each(values.begin(), values.end(), take); };
    };
    result.x = axisFor(options.x, wantedX, false, each(xs));
    result.y = axisFor(options.y, wantedY, false, each(ys));
    const auto& bins = options.surface.bins;
    const auto across = bins ? std::optional<int>(bins->first) : std::nullopt;
    const auto upwards = bins ? std::optional<int>(bins->second) : std::nullopt;
    result.grids = {data::countEvents(events, binsFor(result.x, across, xs, options.size.width()),
                                      binsFor(result.y, upwards, ys, options.size.height()))};
    result.xName = recordings.series[0].name;
    result.yName = recordings.series.size() > 1 ? recordings.series[1].name
                                                : QStringLiteral("Slope of %1").arg(result.xName);
    result.valueName = QStringLiteral("Count");
    result.areEvents = true;
}

void takeSpectrogram(SurfaceData& result, const Recordings& recordings, const Options& options)
{
    result.grids = data::spectrogramOf(onlyOne(recordings), options.surface.stretches);
    if (options.draw == Draw::Columns)
        return;
    toDecibels(result.grids, options.surface.thresholds.isEmpty());
    result.valueName = QStringLiteral("Level in dB");
}

} // namespace

SurfaceData SurfaceData::of(const Recordings& recordings, const Options& options,
                            int wantedXDivisions, int wantedYDivisions)
{
    SurfaceData result;
    const bool isSpectrogram =
        options.draw == Draw::Spectrogram || (options.draw == Draw::Columns && recordings.isSound);
    if (recordings.matrix)
        result.grids = {*recordings.matrix};
    else if (isSpectrogram)
        takeSpectrogram(result, recordings, options);
    else
        takeEvents(result, recordings, options, wantedXDivisions, wantedYDivisions);
    if (!result.areEvents) {
        result.x = axisFor(result.grids, 0, options.x, wantedXDivisions);
        result.y = axisFor(result.grids, 1, options.y, wantedYDivisions);
    }
    return result;
}

charting::ColorScale::Values SurfaceData::values(SurfaceOptions::Scale scale) const
{
    const bool isLog = scale == SurfaceOptions::Scale::Logarithmic;
    const bool areCounts = data::areCounts(grids);
    const auto extremes = data::extremesAbove(grids, isLog || areCounts ? 0.0 : -infinity);
    if (!extremes)
        throw WorkError(areEvents ? QStringLiteral("there are no events in sight")
                                  : QStringLiteral("no value is above 0, so there are no colours"));
    if (!std::isfinite((extremes->second - extremes->first) * 2.0))
        throw WorkError(QStringLiteral("the values, from %1 to %2, are too far apart for colours")
                            .arg(extremes->first)
                            .arg(extremes->second));
    return {extremes->first, extremes->second, areCounts};
}

} // namespace hosts::chart
