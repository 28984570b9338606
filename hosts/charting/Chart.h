#ifndef HOSTS_CHARTING_CHART_H
#define HOSTS_CHARTING_CHART_H

#include "hosts/charting/AxisView.h"

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

/// All the texts of a chart.
struct ChartTexts
{
    QString title;
    QString xCaption;
    QString yCaption;
    QStringList legend;       ///< One for each curve; empty for no legend.
    QVector<TickMark> xMarks; ///< Highest rank first, as are the next.
    QVector<TickMark> yMarks;
};

/// A whole chart, ready to be painted.
struct Chart
{
    ChartTexts texts;
    AxisView x;
    AxisView y;
    QVector<Curve> curves;
};

} // namespace hosts::charting

#endif
