#include "hosts/kestrane-chart/Drawing.h"

#include "hosts/charting/FontMeasure.h"
#include "hosts/charting/StraightLines.h"
#include "hosts/kestrane-chart/AxisKind.h"
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

using charting::AxisView;
using charting::Chart;
using charting::ChartLayout;
using charting::ChartTexts;
using charting::Curve;
using charting::Look;
using charting::ShownAxis;
using charting::StraightLines;
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

ShownAxis xAxis(const std::vector<Series>& series, const Options& options)
{
    const AxisKind& kind = *options.x.kind;
    if (!Extent::ofAbscissas(series, Extent::asItIs))
        throw WorkError(QStringLiteral("there are no samples to draw"));
    return kind.forAbscissas(options.x, Extent::ofAbscissas(series, kind.measure()),
                             divisionsIn(options.size.width(), pixelsPerXDivision));
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

// Whether symbols suit is judged by the distance of samples at the left; on a logarithmic axis they
// crowd further right.
QVector<QPointF> uncrowded(const QVector<QPointF>& symbols, double distance)
{
    const double least = distance * (1.0 - 1e-6); // Rounding must not thin out a regular row.
    QVector<QPointF> apart;
    for (int i = 0; i < symbols.size(); ++i) {
        const double x = symbols[i].x();
        const bool isNearPrevious = i > 0 && x - symbols[i - 1].x() < least;
        const bool isNearNext = i + 1 < symbols.size() && symbols[i + 1].x() - x < least;
        if (!isNearPrevious && !isNearNext)
            apart.append(symbols[i]);
    }
    return apart;
}

Curve curveOf(const Series& series, const AxisView& x, const AxisView& y, double plotWidth,
              const Options& options)
{
    const double columnWidth = x.visible() / (plotWidth * options.deviceScale());
    const double symbolColumns = options.symbolSpacing * options.deviceScale();
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(StraightLines::whereTheySuit(series.snapshot, y.axis()));
    auto segments = algorithm.createSegments(x.axis(), y.axis(), columnWidth, symbolColumns);
    for (QVector<QPointF>& symbols : segments.second)
        symbols = uncrowded(symbols, symbolColumns * columnWidth);
    return {segments.first, segments.second, loneSamples(series, x, y, columnWidth)};
}

// What is to be seen of the curves: between samples a spline goes beyond them.
Extent extentOfCurves(const std::vector<Series>& series, const AxisView& x, const AxisView& y,
                      const Extent& data, const Options& options)
{
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

ShownAxis yAxis(const std::vector<Series>& series, const AxisView& x, const Options& options)
{
    const AxisKind& kind = *options.y.kind;
    const std::optional<Extent> data = Extent::ofValues(series, x.from(), x.to());
    if (!data)
        throw WorkError(options.x.rangeText() + QStringLiteral(": a gap in the data"));
    return kind.forValues(
        options.y, Extent::ofValues(series, x.from(), x.to(), kind.measure()),
        [&](const ShownAxis& y) {
            return extentOfCurves(series, x, AxisView(y, QString()), *data, options);
        },
        divisionsIn(options.size.height(), pixelsPerYDivision));
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
    const AxisView x(xAxis(series, options), quantityOf(options.x), options.x.reference);
    const AxisView y(yAxis(series, x, options), quantityOf(options.y), options.y.reference);
    Chart chart = {textsOf(x, y, curveNames(series, options), options), x, y, {}};
    const Look look = options.isDark ? Look::dark() : Look::light();
    const ChartLayout layout =
        ChartLayout::of(options.size, chart.texts, charting::FontMeasure(look));
    for (const Series& one : series)
        chart.curves.append(curveOf(one, x, y, layout.plot.width(), options));
    return {look, chart, layout};
}

} // namespace hosts::chart
