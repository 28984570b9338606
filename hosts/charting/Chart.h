#ifndef HOSTS_CHARTING_CHART_H
#define HOSTS_CHARTING_CHART_H

#include "hosts/charting/AxisView.h"
#include "hosts/charting/ColorBar.h"

#include <QImage>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace hosts::charting {

/// What a plot algorithm has to draw of one signal; all points in axis space.
struct Curve
{
    QVector<QVector<QPointF>> polylines;
    QVector<QVector<QPointF>> symbols;
    QVector<QPointF> loneSamples; ///< Those that no line can show, as it has two ends.
};

/// A place where a cursor crosses a curve.
struct Crossing
{
    int curve = 0;
    QPointF place; ///< Shares of the plot's width, from its left, and height, from its bottom.
    QString label;
};

/// All the texts of a chart.
struct ChartTexts
{
    QString title;
    QString xCaption;
    QString yCaption;
    QStringList legend;       ///< One for each curve; empty for no legend.
    QVector<TickMark> xMarks; ///< Highest rank first, as are the next.
    QVector<TickMark> yMarks;
    QVector<TickMark> cursors; ///< Vertical lines, the most important first; with one line each.
    ColorBar colorBar;         ///< Empty in a chart of curves.
};

/// A whole chart, ready to be painted.
struct Chart
{
    ChartTexts texts;
    AxisView x;
    AxisView y;
    QVector<Curve> curves;
    QVector<Crossing> crossings; ///< All within the plot.
    /// What fills the plot below curves, as large as ChartLayout::plotPixels(); null for nothing.
    QImage surface = {};

    /// Where in the plot a point of a curve lies, as shares of its width and height.
    QPointF placeOf(const QPointF& point) const { return {x.place(point.x()), y.place(point.y())}; }
};

} // namespace hosts::charting

#endif
