#include "hosts/kestrane-chart/XYPlot.h"

#include "hosts/data/InStep.h"
#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/Extent.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <kestrane/plots/XYPlotAlgorithm.h>

#include <limits>
#include <utility>

namespace hosts::chart {

using charting::AxisView;
using charting::Curve;
using charting::ShownAxis;
using data::Series;
using pelorin::backend::PlotSegment;
using pelorin::ui::chart::XYPlotAlgorithm;

namespace {

// Columns begin at points of the data and not where those of pixels do: if they were as wide,
// slopes would get steps.
constexpr double columnsInPixel = 8.0;

std::vector<Series> pairOf(const std::vector<Series>& series)
{
    if (series.size() != 2)
        throw WorkError(QStringLiteral("--plot xy: takes two columns, not %1; choose with --column")
                            .arg(series.size()));
    auto [x, y] = data::inStep(series[0], series[1]);
    return {std::move(x), std::move(y)};
}

std::optional<Extent> extentOf(const Series& series, Extent::Measure measure)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return Extent::ofValues({series}, -infinity, infinity, measure);
}

// Of y where x is in sight, or of all y if only lines get there.
std::optional<Extent> extentInSight(const Series& x, const Series& y, double from, double to,
                                    Extent::Measure measure)
{
    std::optional<Extent> extent;
    for (std::size_t i = 0; i < x.snapshot.segments.size(); ++i) {
        const PlotSegment& xs = x.snapshot.segments[i];
        auto value = y.snapshot.segments[i].begin;
        for (auto sample = xs.begin; sample != xs.end; ++sample, ++value) {
            if (*sample >= from && *sample <= to)
                Extent::widen(extent, measure(*value));
        }
    }
    return extent ? extent : extentOf(y, measure);
}

AxisKind::Curves noSplines(const Extent& data)
{
    return [data](const ShownAxis&) { return data; };
}

} // namespace

XYPlot::XYPlot(const std::vector<Series>& series, const Options& options)
    : Plot(pairOf(series), options)
{}

ShownAxis XYPlot::xAxis() const
{
    const AxisOptions& x = options().x;
    const Extent data = *extentOf(series()[0], Extent::asItIs);
    if (x.from.value_or(data.low) > data.high || x.to.value_or(data.high) < data.low)
        throw WorkError(x.outsideText(data));
    return x.kind->forValues(x, extentOf(series()[0], x.kind->measure()), noSplines(data),
                             wantedXDivisions());
}

ShownAxis XYPlot::yAxis(const AxisView& x) const
{
    const AxisOptions& y = options().y;
    const auto inSight = [&](Extent::Measure measure) {
        return extentInSight(series()[0], series()[1], x.from(), x.to(), measure);
    };
    return y.kind->forValues(y, inSight(y.kind->measure()), noSplines(*inSight(Extent::asItIs)),
                             wantedYDivisions());
}

QVector<Curve> XYPlot::curves(const AxisView& x, const AxisView& y, double plotWidth) const
{
    XYPlotAlgorithm algorithm;
    algorithm.setSnapshot(series()[0].snapshot, series()[1].snapshot);
    const auto segments =
        algorithm.createSegments(x.axis(), y.axis(), columnWidth(x, plotWidth) / columnsInPixel,
                                 symbolSpacing() * columnsInPixel);
    return {{segments.first, segments.second, {}}};
}

QStringList XYPlot::names() const
{
    return {series()[1].name};
}

QString XYPlot::xCaption() const
{
    return series()[0].name;
}

QString XYPlot::yCaption() const
{
    return series()[1].name;
}

} // namespace hosts::chart
