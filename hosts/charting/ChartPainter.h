#ifndef HOSTS_CHARTING_CHARTPAINTER_H
#define HOSTS_CHARTING_CHARTPAINTER_H

#include "hosts/charting/Chart.h"
#include "hosts/charting/ChartLayout.h"
#include "hosts/charting/FontMeasure.h"
#include "hosts/charting/Look.h"

#include <QPainter>

namespace hosts::charting {

/// Draws a chart where its layout has put everything.
class ChartPainter
{
public:
    /// @param painter scaled so that a unit is a logical pixel
    /// @param deviceScale device pixels in a logical pixel, for straight lines to fall on whole
    ///        ones; 0.0 for a device without pixels
    ChartPainter(QPainter& painter, const Look& look, double deviceScale);

    void paint(const Chart& chart, const ChartLayout& layout);

private:
    void paintGrid(const Chart& chart, const ChartLayout& layout, bool major);
    void paintTicks(const Chart& chart, const ChartLayout& layout);
    void paintFrame(const QRectF& plot);
    void paintSurface(const QImage& surface, const ChartLayout& layout);
    void paintColorBar(const ColorBar& bar, const ChartLayout& layout);
    void paintCurve(const Chart& chart, const ChartLayout& layout, int index);
    void paintMark(const QPointF& centre, double radius, const QColor& color, const QColor& fill);
    void paintLine(const QVector<QPointF>& points, const QColor& color, double plotWidth);
    void paintCursors(const Chart& chart, const ChartLayout& layout);
    void paintCrossings(const Chart& chart, const ChartLayout& layout);
    void paintLegend(const Chart& chart, const ChartLayout& layout);
    void paintHeadings(const ChartLayout& layout);
    void paintText(const PlacedText& text, TextMeasure::Style style, const QColor& color);
    void paintUprightText(const PlacedText& text, const QColor& color);
    void setLinePen(const QColor& color);
    double lineWidth() const;
    double onPixel(double coordinate) const;
    double lineAtX(const ChartLayout& layout, const TickMark& mark) const;
    double lineAtY(const ChartLayout& layout, const TickMark& mark) const;

    QPainter& m_painter;
    const Look& m_look;
    FontMeasure m_measure;
    double m_deviceScale;
};

} // namespace hosts::charting

#endif
