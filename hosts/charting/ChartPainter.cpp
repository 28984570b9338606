#include "hosts/charting/ChartPainter.h"

#include "hosts/charting/CrossingLabels.h"
#include "hosts/charting/PolylineClipper.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace hosts::charting {

using Style = TextMeasure::Style;

namespace {

// Minor ticks that are nearer to each other than that, on an average or any two, run together.
constexpr double leastMeanDistance = 3.5;
constexpr double leastDistance = 3.0;
constexpr int linesAtATime = 16;

// Ticks at the very same place count as one.
double smallestDistance(const QVector<TickMark>& marks)
{
    QVector<double> places;
    for (const TickMark& mark : marks)
        places.append(mark.place);
    std::sort(places.begin(), places.end());
    double smallest = 1.0;
    for (int i = 1; i < places.size(); ++i) {
        const double distance = places[i] - places[i - 1];
        if (distance > 1e-6)
            smallest = std::min(smallest, distance);
    }
    return smallest;
}

template<typename Action>
void forEachMark(const QVector<TickMark>& marks, double length, const Action& act)
{
    const bool haveMinorsRoom = marks.size() * leastMeanDistance <= length &&
                                smallestDistance(marks) * length >= leastDistance;
    for (const TickMark& mark : marks) {
        if (mark.major || haveMinorsRoom)
            act(mark);
    }
}

} // namespace

ChartPainter::ChartPainter(QPainter& painter, const Look& look, double deviceScale)
    : m_painter(painter)
    , m_look(look)
    , m_measure(look)
    , m_deviceScale(deviceScale)
{
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void ChartPainter::paint(const Chart& chart, const ChartLayout& layout)
{
    m_painter.fillRect(QRectF(QPointF(0.0, 0.0), layout.size), m_look.background);
    m_painter.fillRect(layout.plot, m_look.plotBackground);
    paintGrid(chart, layout, false);
    paintGrid(chart, layout, true);
    paintTicks(chart, layout);
    paintSurface(chart.surface, layout);
    paintColorBar(chart.texts.colorBar, layout);
    paintCursors(chart, layout);
    for (int i = 0; i < chart.curves.size(); ++i)
        paintCurve(chart, layout, i);
    paintFrame(layout.plot);
    paintCrossings(chart, layout);
    for (const PlacedText& label : layout.tickLabels)
        paintText(label, Style::Text, m_look.faintText);
    for (const PlacedText& cursor : layout.cursors)
        paintText(cursor, Style::Text, m_look.text);
    paintLegend(chart, layout);
    paintHeadings(layout);
}

double ChartPainter::lineWidth() const
{
    if (m_deviceScale == 0.0)
        return m_look.gridWidth;
    return std::max(1.0, std::floor(m_look.gridWidth * m_deviceScale)) / m_deviceScale;
}

// The middle of a line of lineWidth() that covers whole device pixels.
double ChartPainter::onPixel(double coordinate) const
{
    if (m_deviceScale == 0.0)
        return coordinate;
    const double half = lineWidth() / 2.0;
    return std::floor((coordinate - half) * m_deviceScale + 0.5) / m_deviceScale + half;
}

double ChartPainter::lineAtX(const ChartLayout& layout, const TickMark& mark) const
{
    return onPixel(layout.xAt(mark.place));
}

double ChartPainter::lineAtY(const ChartLayout& layout, const TickMark& mark) const
{
    return onPixel(layout.yAt(mark.place));
}

void ChartPainter::setLinePen(const QColor& color)
{
    QPen pen(color, lineWidth());
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
}

void ChartPainter::paintGrid(const Chart& chart, const ChartLayout& layout, bool major)
{
    const QRectF& plot = layout.plot;
    setLinePen(major ? m_look.majorGrid : m_look.minorGrid);
    forEachMark(chart.texts.xMarks, plot.width(), [&](const TickMark& mark) {
        const double x = lineAtX(layout, mark);
        if (mark.major == major)
            m_painter.drawLine(QLineF(x, plot.top(), x, plot.bottom()));
    });
    forEachMark(chart.texts.yMarks, plot.height(), [&](const TickMark& mark) {
        const double y = lineAtY(layout, mark);
        if (mark.major == major)
            m_painter.drawLine(QLineF(plot.left(), y, plot.right(), y));
    });
}

void ChartPainter::paintTicks(const Chart& chart, const ChartLayout& layout)
{
    const QRectF& plot = layout.plot;
    setLinePen(m_look.frame);
    forEachMark(chart.texts.xMarks, plot.width(), [&](const TickMark& mark) {
        const double x = lineAtX(layout, mark);
        const double length = mark.major ? m_look.majorTickLength : m_look.minorTickLength;
        m_painter.drawLine(QLineF(x, plot.bottom(), x, plot.bottom() + length));
    });
    forEachMark(chart.texts.yMarks, plot.height(), [&](const TickMark& mark) {
        const double y = lineAtY(layout, mark);
        const double length = mark.major ? m_look.majorTickLength : m_look.minorTickLength;
        m_painter.drawLine(QLineF(plot.left() - length, y, plot.left(), y));
    });
}

void ChartPainter::paintFrame(const QRectF& plot)
{
    setLinePen(m_look.frame);
    m_painter.drawRect(QRectF(QPointF(onPixel(plot.left()), onPixel(plot.top())),
                              QPointF(onPixel(plot.right()), onPixel(plot.bottom()))));
}

// Pixel on pixel where there are any: scaled by a fraction they would be drawn beside themselves.
void ChartPainter::paintSurface(const QImage& surface, const ChartLayout& layout)
{
    if (surface.isNull())
        return;
    if (m_deviceScale == 0.0) {
        m_painter.drawImage(layout.plot, surface);
        return;
    }
    m_painter.save();
    m_painter.resetTransform();
    m_painter.drawImage(layout.plotPixels(m_deviceScale).topLeft(), surface);
    m_painter.restore();
}

// Each field reaches up below the next ones, which leaves no gaps on any device.
void ChartPainter::paintColorBar(const ColorBar& bar, const ChartLayout& layout)
{
    if (bar.isEmpty())
        return;
    const QRectF& place = layout.colorBar;
    const double right = onPixel(place.right());
    const double left = onPixel(place.left());
    const double top = onPixel(place.top());
    for (int i = 0; i < bar.colors.size(); ++i) {
        const double bottom = onPixel(layout.yAt(i / double(bar.colors.size())));
        m_painter.fillRect(QRectF(left, top, right - left, bottom - top), bar.colors[i]);
    }
    setLinePen(m_look.frame);
    m_painter.drawRect(QRectF(QPointF(left, top), QPointF(right, onPixel(place.bottom()))));
    for (const TickMark& mark : bar.marks) {
        const double y = lineAtY(layout, mark);
        m_painter.drawLine(QLineF(right, y, right + m_look.minorTickLength, y));
    }
}

void ChartPainter::paintCurve(const Chart& chart, const ChartLayout& layout, int index)
{
    const Curve& curve = chart.curves[index];
    const QColor color = m_look.curveColor(index);
    const auto toPicture = [&](const QPointF& point) { return layout.at(chart.placeOf(point)); };
    for (const QVector<QPointF>& polyline : curve.polylines) {
        QVector<QPointF> points = polyline;
        std::transform(polyline.cbegin(), polyline.cend(), points.begin(), toPicture);
        for (const QVector<QPointF>& piece : clipPolyline(points, layout.plot))
            paintLine(piece, color, layout.plot.width());
    }
    const auto paintMarks = [&](const QVector<QPointF>& points, double radius, const QColor& fill) {
        for (const QPointF& point : points) {
            const QPointF centre = toPicture(point);
            if (layout.plot.contains(centre))
                paintMark(centre, radius, color, fill);
        }
    };
    paintMarks(curve.loneSamples, m_look.dotRadius, color);
    for (const QVector<QPointF>& symbols : curve.symbols)
        paintMarks(symbols, m_look.symbolRadius, m_look.plotBackground);
}

// Pixels are filled as fast as one should hope only by lines of one pixel or less, and by few at a
// time: the time for a line goes with the square of its points. Where there are so many that they
// fill the plot anyway, nobody sees how wide each is.
void ChartPainter::paintLine(const QVector<QPointF>& points, const QColor& color, double plotWidth)
{
    const bool isDense = points.size() > 2.0 * plotWidth * m_deviceScale;
    const bool hasPixels = m_deviceScale > 0.0;
    QPen pen(color, m_look.curveWidth);
    if (hasPixels && isDense)
        pen.setWidthF(std::min(m_look.curveWidth, 1.0 / m_deviceScale));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    const int step = hasPixels ? linesAtATime : points.size();
    int first = 0;
    do {
        m_painter.drawPolyline(&points[first], std::min<int>(step + 1, points.size() - first));
        first += step;
    } while (first + 1 < points.size());
}

void ChartPainter::paintMark(const QPointF& centre, double radius, const QColor& color,
                             const QColor& fill)
{
    m_painter.setPen(QPen(color, m_look.curveWidth));
    m_painter.setBrush(fill);
    m_painter.drawEllipse(centre, radius, radius);
}

void ChartPainter::paintCursors(const Chart& chart, const ChartLayout& layout)
{
    setLinePen(m_look.faintText);
    QPen pen = m_painter.pen();
    pen.setDashPattern({4.0, 3.0});
    m_painter.setPen(pen);
    for (const TickMark& cursor : chart.texts.cursors) {
        const double x = lineAtX(layout, cursor);
        m_painter.drawLine(
            QLineF(x, layout.plot.bottom(), x, layout.plot.top() - m_look.minorTickLength));
    }
}

void ChartPainter::paintCrossings(const Chart& chart, const ChartLayout& layout)
{
    for (const Crossing& crossing : chart.crossings) {
        m_painter.setPen(QPen(m_look.curveColor(crossing.curve), m_look.crossingWidth));
        m_painter.setBrush(m_look.plotBackground);
        m_painter.drawEllipse(layout.at(crossing.place), m_look.crossingRadius,
                              m_look.crossingRadius);
    }
    QColor fill = m_look.plotBackground;
    fill.setAlphaF(0.85);
    for (int i = 0; i < layout.crossings.size(); ++i) {
        const PlacedText& label = layout.crossings[i];
        if (label.text.isEmpty())
            continue;
        const double half = m_look.gridWidth / 2.0;
        const double dx = crossingPadding.width() - half;
        const double dy = crossingPadding.height() - half;
        m_painter.setPen(QPen(m_look.curveColor(chart.crossings[i].curve), m_look.gridWidth));
        m_painter.setBrush(fill);
        m_painter.drawRoundedRect(label.place.adjusted(-dx, -dy, dx, dy), 3.0, 3.0);
        paintText(label, Style::Text, m_look.text);
    }
}

void ChartPainter::paintLegend(const Chart& chart, const ChartLayout& layout)
{
    for (const LegendEntry& entry : layout.legend) {
        paintText(entry.name, Style::Text, m_look.text);
        if (entry.curve < 0)
            continue;
        const QColor color = m_look.curveColor(entry.curve);
        const double y = entry.sample.center().y();
        m_painter.setPen(QPen(color, m_look.curveWidth * 2.0));
        m_painter.drawLine(QLineF(entry.sample.left(), y, entry.sample.right(), y));
        if (!chart.curves[entry.curve].symbols.isEmpty())
            paintMark(entry.sample.center(), m_look.symbolRadius, color, m_look.plotBackground);
    }
}

void ChartPainter::paintHeadings(const ChartLayout& layout)
{
    paintText(layout.title, Style::Title, m_look.text);
    paintText(layout.xCaption, Style::Text, m_look.text);
    paintUprightText(layout.yCaption, m_look.text);
    paintUprightText(layout.colorCaption, m_look.text);
}

void ChartPainter::paintText(const PlacedText& text, Style style, const QColor& color)
{
    m_painter.setPen(color);
    m_painter.setFont(style == Style::Title ? m_look.titleFont() : m_look.textFont());
    m_painter.drawText(text.place.topLeft() + QPointF(0.0, m_measure.ascent(style)), text.text);
}

void ChartPainter::paintUprightText(const PlacedText& text, const QColor& color)
{
    m_painter.save();
    m_painter.translate(text.place.bottomLeft());
    m_painter.rotate(-90.0);
    const QSizeF size = text.place.size().transposed();
    paintText({text.text, QRectF(QPointF(0.0, 0.0), size)}, Style::Text, color);
    m_painter.restore();
}

} // namespace hosts::charting
