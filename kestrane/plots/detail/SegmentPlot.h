#ifndef KESTRANE_PLOTS_DETAIL_SEGMENTPLOT_H
#define KESTRANE_PLOTS_DETAIL_SEGMENTPLOT_H

#include "kestrane/plots/detail/SampleSummary.h"

#include <QPointF>
#include <QVector>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

using algo::detail::Extremes;

/// The stretch [left, right) of x axis positions whose points are being collected.
struct Column
{
    double left;
    double right;
};

/// What there is to draw of one segment, in axis space.
struct SegmentPlot
{
    QVector<QPointF> polyline;
    QVector<QPointF> symbols;

    /// Closes a column before the first sample, where there is no curve.
    /// @param extremes those of the positions in the column
    void appendExtremes(double x, const Extremes& extremes)
    {
        if (extremes.isEmpty())
            return;
        polyline.append(QPointF(x, extremes.min));
        if (!qFuzzyCompare(extremes.max, extremes.min))
            polyline.append(QPointF(x, extremes.max));
    }

    /// Closes a column with the position of the curve in it.
    void appendExtremesBeside(double x, double curve, const Extremes& extremes)
    {
        polyline.append(QPointF(x, curve));
        if (extremes.isEmpty())
            return;
        if (!qFuzzyCompare(curve, extremes.min))
            polyline.append(QPointF(x, extremes.min));
        if (!qFuzzyCompare(extremes.max, extremes.min))
            polyline.append(QPointF(x, extremes.max));
    }
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
