#include "hosts/kestrane-chart/Drawing.h"

#include "hosts/charting/AutoRange.h"
#include "hosts/charting/FontMeasure.h"
#include "hosts/kestrane-chart/Extent.h"
#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <kestrane/backend/QuantityManager.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace hosts::chart {

using charting::AxisDivision;
using charting::AxisView;
using charting::Chart;
using charting::ChartLayout;
using charting::ChartTexts;
using charting::Curve;
using charting::Look;
using charting::TickPlaces;
using data::Series;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::SamplePlotAlgorithm;
using pelorin::utilities::Singleton;
using pelorin::variables::Quantity;
using pelorin::variables::QuantityManager;

namespace {

constexpr int pixelsPerXDivision = 100;
constexpr int pixelsPerYDivision = 60;

QString outsideText(const AxisOptions& axis, const Extent& data)
{
    return QStringLiteral("%1: the data go from %2 to %3")
        .arg(axis.rangeText())
        .arg(data.low, 0, 'g', 10)
        .arg(data.high, 0, 'g', 10);
}

// Line ends and their like have no picture, and no place in an SVG.
QString printable(QString text)
{
    for (QChar& c : text) {
        if (!c.isPrint() && !c.isSurrogate())
            c = QLatin1Char(' ');
    }
    return text;
}

int divisionsIn(int length, int pixelsPerDivision)
{
    return std::clamp(length / pixelsPerDivision, 2, 30);
}

// A unit that is to be written as it is, is a quantity of its own whose unit takes no prefix.
QString quantityOf(const AxisOptions& axis)
{
    if (axis.unit.isEmpty())
        return axis.quantity;
    QString name = QStringLiteral("in ") + axis.unit;
    Quantity::Unit unit;
    unit.symbol = axis.unit;
    Singleton<QuantityManager>::instance().add(Quantity(name, {unit}));
    return name;
}

AxisDivision xDivision(const std::vector<Series>& series, const Options& options)
{
    const std::optional<Extent> data = Extent::ofAbscissas(series);
    if (!data)
        throw WorkError(QStringLiteral("there are no samples to draw"));
    const auto spread = AxisDivision::spread(data->low, data->high);
    const double least = options.x.from.value_or(spread.first);
    const double most = options.x.to.value_or(spread.second);
    if (least > data->high || most < data->low || !AxisDivision::isUsableRange(least, most))
        throw WorkError(outsideText(options.x, *data));
    const int wanted = divisionsIn(options.size.width(), pixelsPerXDivision);
    const auto rounded = AxisDivision::rounded(least, most, wanted);
    const double from = options.x.from.value_or(rounded.first);
    const double to = options.x.to.value_or(rounded.second);
    return AxisDivision::of(from, to, wanted, options.ticks);
}

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

Curve curveOf(const Series& series, const AxisView& x, const AxisView& y, double plotWidth,
              const Options& options)
{
    const double columnWidth = x.visible() / (plotWidth * options.deviceScale());
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(series.snapshot);
    const auto segments = algorithm.createSegments(x.axis(), y.axis(), columnWidth,
                                                   options.symbolSpacing * options.deviceScale());
    return {segments.first, segments.second, loneSamples(series, x, y, columnWidth)};
}

// What is to be seen of the curves: between samples a spline goes beyond them.
Extent extentOfCurves(const std::vector<Series>& series, const AxisView& x, const Extent& data,
                      const Options& options)
{
    const auto range = AxisDivision::spread(data.low, data.high);
    const AxisView y(AxisDivision::of(range.first, range.second, 2, TickPlaces::Fixed), QString());
    Extent extent = data;
    for (const Series& one : series) {
        for (const auto& polyline : curveOf(one, x, y, options.size.width(), options).polylines) {
            for (const QPointF& point : polyline) {
                if (point.x() >= 0.0 && point.x() <= x.visible())
                    extent.take(y.axis()->inverseTransform(Axis::Linear, point.y()));
            }
        }
    }
    return extent;
}

AxisDivision yDivision(const std::vector<Series>& series, const AxisView& x, const Options& options)
{
    const std::optional<Extent> data = Extent::ofValues(series, x.from(), x.to());
    if (!data)
        throw WorkError(options.x.rangeText() + QStringLiteral(": a gap in the data"));
    if (!std::isfinite((data->high - data->low) * 8.0))
        throw WorkError(QStringLiteral("the values, from %1 to %2, are too far apart to draw")
                            .arg(data->low)
                            .arg(data->high));
    const Extent seen = extentOfCurves(series, x, *data, options);
    const int wanted = divisionsIn(options.size.height(), pixelsPerYDivision);
    const AxisDivision automatic = charting::autoRange(seen.low, seen.high, wanted, options.ticks);
    if (!options.y.from && !options.y.to)
        return automatic;
    const double bottom = options.y.from.value_or(automatic.from);
    const double top = options.y.to.value_or(automatic.to());
    if (!AxisDivision::isUsableRange(bottom, top))
        throw WorkError(outsideText(options.y, *data));
    return AxisDivision::of(bottom, top, wanted, options.ticks);
}

QStringList curveNames(const std::vector<Series>& series, const Options& options)
{
    if (options.legend.size() > int(series.size()))
        throw UsageError(QStringLiteral("--legend: there are %1 names, but only %2 to draw")
                             .arg(options.legend.size())
                             .arg(series.size()));
    QStringList names = options.legend;
    for (int i = int(names.size()); i < int(series.size()); ++i)
        names.append(series[std::size_t(i)].name);
    std::transform(names.begin(), names.end(), names.begin(), printable);
    return names;
}

ChartTexts textsOf(const AxisView& x, const AxisView& y, const QStringList& names,
                   const Options& options)
{
    ChartTexts texts;
    texts.title = printable(options.title);
    texts.xCaption = printable(options.x.caption);
    texts.yCaption = printable(options.y.caption);
    if (options.showLegend && (names.size() > 1 || !options.legend.isEmpty()))
        texts.legend = names;
    texts.xMarks = x.marks();
    texts.yMarks = y.marks();
    return texts;
}

} // namespace

Drawing Drawing::of(const std::vector<Series>& series, const Options& options)
{
    const AxisView x(xDivision(series, options), quantityOf(options.x), options.x.reference);
    const AxisView y(yDivision(series, x, options), quantityOf(options.y), options.y.reference);
    Chart chart = {textsOf(x, y, curveNames(series, options), options), x, y, {}};
    const Look look = options.isDark ? Look::dark() : Look::light();
    const ChartLayout layout =
        ChartLayout::of(options.size, chart.texts, charting::FontMeasure(look));
    for (const Series& one : series)
        chart.curves.append(curveOf(one, x, y, layout.plot.width(), options));
    return {look, chart, layout};
}

} // namespace hosts::chart
