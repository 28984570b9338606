#include "hosts/kestrane-chart/LinePlot.h"

#include "hosts/charting/ColumnOrder.h"
#include "hosts/charting/StraightLines.h"
#include "hosts/charting/Symbols.h"
#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace hosts::chart {

using charting::AxisView;
using charting::Crossing;
using charting::Curve;
using charting::ShownAxis;
using charting::StraightLines;
using data::Series;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::Intersection;
using pelorin::ui::chart::SamplePlotAlgorithm;

namespace {

// A sample between two gaps has no line, so it needs a mark of its own at any distance.
QVector<QPointF> loneSamples(const Series& series, const AxisView& x, const AxisView& y,
                             double columnWidth)
{
    std::vector<PlotSegment> alone;
    const auto& segments = series.snapshot.segments;
    std::copy_if(segments.begin(), segments.end(), std::back_inserter(alone),
                 [](const PlotSegment& segment) { return segment.count == 1; });
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(PlotSnapshot(std::move(alone)));
    QVector<QPointF> points;
    for (const QVector<QPointF>& symbols :
         algorithm.createSegments(x.axis(), y.axis(), columnWidth, 0.0).second)
        points += symbols;
    return points;
}

Curve curveOf(const Series& series, const AxisView& x, const AxisView& y, double columnWidth,
              double symbolSpacing)
{
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(StraightLines::whereTheySuit(series.snapshot, y.axis()));
    auto segments = algorithm.createSegments(x.axis(), y.axis(), columnWidth, symbolSpacing);
    for (QVector<QPointF>& polyline : segments.first)
        polyline = charting::inColumnOrder(polyline);
    for (QVector<QPointF>& symbols : segments.second)
        symbols = charting::uncrowdedSymbols(symbols, symbolSpacing * columnWidth);
    return {segments.first, segments.second, loneSamples(series, x, y, columnWidth)};
}

// What is to be seen of the curves: between samples a spline goes beyond them.
Extent extentOfCurves(const QVector<Curve>& curves, const AxisView& x, const ShownAxis& y,
                      const Extent& data)
{
    Extent extent = data;
    for (const Curve& curve : curves) {
        for (const QVector<QPointF>& polyline : curve.polylines) {
            for (const QPointF& point : polyline) {
                if (point.x() >= 0.0 && point.x() <= x.visible())
                    extent.take(y.axis->inverseTransform(Axis::Linear, point.y()));
            }
        }
    }
    return extent;
}

// Beside the very place too, by less than can be seen: rounding can put a cursor on the first
// sample just before it, and no curve counts as crossed at its last sample.
QList<Intersection> crossingsAt(double position, const SamplePlotAlgorithm& algorithm,
                                const AxisView& x, const AxisView& y)
{
    for (const double share : {0.0, 1e-9, -1e-9}) {
        const QList<Intersection> crossings =
            algorithm.doIntersect(x.axis().data(), y.axis().data(), position + share * x.visible());
        if (!crossings.isEmpty())
            return crossings;
    }
    return {};
}

} // namespace

LinePlot::LinePlot(const std::vector<Series>& series, const Options& options)
    : Plot(series, options)
{
    if (!Extent::ofAbscissas(series, Extent::asItIs))
        throw WorkError(QStringLiteral("there are no samples to draw"));
}

ShownAxis LinePlot::xAxis() const
{
    const AxisKind& kind = *options().x.kind;
    return kind.forAbscissas(options().x, Extent::ofAbscissas(series(), kind.measure()),
                             wantedXDivisions());
}

ShownAxis LinePlot::yAxis(const AxisView& x) const
{
    const AxisKind& kind = *options().y.kind;
    const Extent data = *valuesInSight(x, Extent::asItIs);
    return kind.forValues(
        options().y, valuesInSight(x, kind.measure()),
        [&](const ShownAxis& y) {
            const double width = options().size.width();
            return extentOfCurves(curves(x, AxisView(y, QString()), width), x, y, data);
        },
        wantedYDivisions());
}

std::optional<Extent> LinePlot::valuesInSight(const AxisView& x, Extent::Measure measure) const
{
    if (!Extent::ofValues(series(), x.from(), x.to()))
        throw WorkError(options().x.rangeText() + QStringLiteral(": a gap in the data"));
    return Extent::ofValues(series(), x.from(), x.to(), measure);
}

QVector<Curve> LinePlot::curves(const AxisView& x, const AxisView& y, double plotWidth) const
{
    QVector<Curve> curves;
    for (const Series& one : series())
        curves.append(curveOf(one, x, y, columnWidth(x, plotWidth), symbolSpacing()));
    return curves;
}

QVector<Crossing> LinePlot::crossings(const AxisView& x, const AxisView& y) const
{
    QVector<Crossing> crossings;
    for (int curve = 0; curve < int(series().size()); ++curve) {
        SamplePlotAlgorithm algorithm;
        algorithm.setSnapshot(
            StraightLines::whereTheySuit(series()[std::size_t(curve)].snapshot, y.axis()));
        for (const double cursor : options().cursors) {
            const double position = x.axis()->transform(Axis::Linear, cursor);
            for (const Intersection& found : crossingsAt(position, algorithm, x, y)) {
                const double height = y.place(found.position);
                if (height >= 0.0 && height <= 1.0)
                    crossings.append({curve, {x.place(position), height}, y.textOf(found.value)});
            }
        }
    }
    return crossings;
}

} // namespace hosts::chart
