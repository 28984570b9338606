#include "hosts/kestrane-chart/Drawing.h"

#include "hosts/charting/ChartPainter.h"
#include "hosts/charting/CrossingLabels.h"
#include "hosts/charting/FontMeasure.h"
#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/Plot.h"
#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <kestrane/backend/QuantityManager.h>

#include <algorithm>

namespace hosts::chart {

using charting::AxisView;
using charting::Chart;
using charting::ChartLayout;
using charting::ChartTexts;
using charting::Look;
using charting::TickMark;
using pelorin::ui::chart::Axis;
using pelorin::utilities::Singleton;
using pelorin::variables::Quantity;
using pelorin::variables::QuantityManager;

namespace {

// Line ends and their like have no picture, and no place in an SVG.
QString printable(QString text)
{
    for (QChar& c : text) {
        if (!c.isPrint() && !c.isSurrogate())
            c = QLatin1Char(' ');
    }
    return text;
}

// The cursors as they were asked for, and where they stand.
QVector<TickMark> cursorMarks(const AxisView& x, const QVector<double>& cursors)
{
    constexpr double rounding = 1e-9;
    QVector<TickMark> marks;
    for (const double cursor : cursors) {
        const double place = x.place(x.axis()->transform(Axis::Linear, cursor));
        if (!(place >= -rounding && place <= 1.0 + rounding))
            throw WorkError(QStringLiteral("--cursor %1: out of sight; x goes from %2 to %3")
                                .arg(cursor, 0, 'g', 15)
                                .arg(x.textOf(x.from()), x.textOf(x.to())));
        marks.append({std::clamp(place, 0.0, 1.0), false, {x.textOf(cursor, 1e-6)}});
    }
    return marks;
}

QStringList curveNames(const Plot& plot, const Options& options)
{
    const QStringList ownNames = plot.names();
    if (options.legend.size() > ownNames.size())
        throw UsageError(QStringLiteral("--legend: there are %1 names, but only %2 to draw")
                             .arg(options.legend.size())
                             .arg(ownNames.size()));
    QStringList names = options.legend + ownNames.mid(options.legend.size());
    std::transform(names.begin(), names.end(), names.begin(), printable);
    return names;
}

ChartTexts textsOf(const AxisView& x, const AxisView& y, const Plot& plot, const Options& options)
{
    const QStringList names = curveNames(plot, options);
    ChartTexts texts;
    texts.title = printable(options.title);
    texts.xCaption = printable(options.x.caption.isEmpty() ? plot.xCaption() : options.x.caption);
    texts.yCaption = printable(options.y.caption.isEmpty() ? plot.yCaption() : options.y.caption);
    if (options.showLegend && (names.size() > 1 || !options.legend.isEmpty()))
        texts.legend = names;
    texts.xMarks = x.marks();
    texts.yMarks = y.marks();
    texts.cursors = cursorMarks(x, options.cursors);
    texts.colorBar = plot.colorBar();
    if (!options.surface.caption.isEmpty())
        texts.colorBar.caption = options.surface.caption;
    texts.colorBar.caption = printable(texts.colorBar.caption);
    return texts;
}

// Vector formats have no pixels, but a surface has; they should not show.
double surfaceScale(const Options& options)
{
    const bool hasPixels = options.output.isEmpty() || // On a screen.
                           PictureFile::formatOf(options.output) == PictureFile::Format::Png;
    return hasPixels ? options.deviceScale() : std::max(options.deviceScale(), 2.0);
}

} // namespace

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

Drawing Drawing::of(const Recordings& recordings, const Options& options)
{
    const std::unique_ptr<Plot> plot = Plot::of(recordings, options);
    const charting::ShownAxis xAxis = plot->xAxis();
    const AxisView x(xAxis, quantityOf(options.x), options.x.reference);
    return of(*plot, xAxis, plot->yAxis(x), options);
}

Drawing Drawing::of(const Plot& plot, const charting::ShownAxis& xAxis,
                    const charting::ShownAxis& yAxis, const Options& options)
{
    const AxisView x(xAxis, quantityOf(options.x), options.x.reference);
    const AxisView y(yAxis, quantityOf(options.y), options.y.reference);
    Chart chart = {textsOf(x, y, plot, options), x, y, {}, {}};
    const Look look = options.isDark ? Look::dark() : Look::light();
    const charting::FontMeasure measure(look);
    ChartLayout layout = ChartLayout::of(options.size, chart.texts, measure);
    chart.curves = plot.curves(x, y, layout.plot.width());
    chart.surface = plot.surface(x, y, layout.plotPixels(surfaceScale(options)).size());
    chart.crossings = plot.crossings(x, y);
    layout.crossings = charting::placeCrossings(chart, layout, measure);
    return {look, chart, layout};
}

void Drawing::paint(QPainter& painter, double deviceScale) const
{
    charting::ChartPainter(painter, look, deviceScale).paint(chart, layout);
}

} // namespace hosts::chart
