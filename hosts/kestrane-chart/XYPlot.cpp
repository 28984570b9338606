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

// Each but the first in step with the first, which stands before it: gaps part both.
std::vector<Series> pairsOf(const std::vector<Series>& series)
{
    if (series.size() < 2)
        throw WorkError(QStringLiteral("--plot xy: takes two columns or more, not %1; choose with "
                                       "--column")
                            .arg(series.size()));
    std::vector<Series> pairs;
    for (std::size_t i = 1; i < series.size(); ++i) {
        auto [x, y] = data::inStep(series[0], series[i]);
        pairs.push_back(std::move(x));
        pairs.push_back(std::move(y));
    }
    return pairs;
}

std::vector<Series> everySecond(const std::vector<Series>& series, std::size_t first)
{
    std::vector<Series> result;
    for (std::size_t i = first; i < series.size(); i += 2)
        result.push_back(series[i]);
    return result;
}

std::optional<Extent> extentOf(const std::vector<Series>& series, Extent::Measure measure)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    return Extent::ofValues(series, -infinity, infinity, measure);
}

// Of y where x is in sight, or of all y if only lines get there.
std::optional<Extent> extentInSight(const std::vector<Series>& pairs, double from, double to,
                                    Extent::Measure measure)
{
    std::optional<Extent> extent;
    for (std::size_t k = 0; k < pairs.size(); k += 2) {
        for (std::size_t i = 0; i < pairs[k].snapshot.segments.size(); ++i) {
            const PlotSegment& xs = pairs[k].snapshot.segments[i];
            auto value = pairs[k + 1].snapshot.segments[i].begin;
            for (auto sample = xs.begin; sample != xs.end; ++sample, ++value) {
                if (*sample >= from && *sample <= to)
                    Extent::widen(extent, measure(*value));
            }
        }
    }
    return extent ? extent : extentOf(everySecond(pairs, 1), measure);
}

AxisKind::Curves noSplines(const Extent& data)
{
    return [data](const ShownAxis&) { return data; };
}

} // namespace

XYPlot::XYPlot(const std::vector<Series>& series, const Options& options)
    : Plot(pairsOf(series), options)
{}

ShownAxis XYPlot::xAxis() const
{
    const AxisOptions& x = options().x;
    const std::vector<Series> values = everySecond(series(), 0);
    const Extent data = *extentOf(values, Extent::asItIs);
    if (x.from.value_or(data.low) > data.high || x.to.value_or(data.high) < data.low)
        throw WorkError(x.outsideText(data));
    return x.kind->forValues(x, extentOf(values, x.kind->measure()), noSplines(data),
                             wantedXDivisions());
}

ShownAxis XYPlot::yAxis(const AxisView& x) const
{
    const AxisOptions& y = options().y;
    const auto inSight = [&](Extent::Measure measure) {
        return extentInSight(series(), x.from(), x.to(), measure);
    };
    return y.kind->forValues(y, inSight(y.kind->measure()), noSplines(*inSight(Extent::asItIs)),
                             wantedYDivisions());
}

QVector<Curve> XYPlot::curves(const AxisView& x, const AxisView& y, double plotWidth) const
{
    QVector<Curve> curves;
    for (std::size_t i = 0; i < series().size(); i += 2) {
        XYPlotAlgorithm algorithm;
        algorithm.setSnapshot(series()[i].snapshot, series()[i + 1].snapshot);
        const auto segments =
            algorithm.createSegments(x.axis(), y.axis(), columnWidth(x, plotWidth) / columnsInPixel,
                                     symbolSpacing() * columnsInPixel);
        curves.append({segments.first, segments.second, {}});
    }
    return curves;
}

QStringList XYPlot::names() const
{
    QStringList names;
    for (const Series& y : everySecond(series(), 1))
        names.append(y.name);
    return names;
}

QString XYPlot::xCaption() const
{
    return series()[0].name;
}

QString XYPlot::yCaption() const
{
    return series().size() == 2 ? series()[1].name : QString();
}

} // namespace hosts::chart
