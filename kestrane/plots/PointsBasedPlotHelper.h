#ifndef KESTRANE_PLOTS_POINTSBASEDPLOTHELPER_H
#define KESTRANE_PLOTS_POINTSBASEDPLOTHELPER_H

#include "kestrane/backend/MinMaxAverageAlgorithm.h"
#include "kestrane/library/Export.h"

#include <QPointF>
#include <QVector>

namespace pelorin {
namespace ui {
namespace chart {

/// What the plots that produce lists of points have in common.
///
/// @code
/// algo::MinMaxAverageAlgorithm column;
/// for (const double y : {0.5, 0.9, 0.7, 0.2, 0.4})
///     column.put(y);
/// QVector<QPointF> points;
/// PointsBasedPlotHelper().flushMinMax(0.25, column, points);
/// points.size();  // = 4
/// points[1].y();  // = 0.2
/// column.count(); // = 0
/// @endcode
///
/// @ingroup plots
class KESTRANE_EXPORT PointsBasedPlotHelper
{
public:
    PointsBasedPlotHelper();
    PointsBasedPlotHelper(const PointsBasedPlotHelper& other);
    PointsBasedPlotHelper& operator=(const PointsBasedPlotHelper& other);
    virtual ~PointsBasedPlotHelper();

    /// Closes a column of drawing: reduces the values that fell into it to one to four points on a
    /// vertical line, so that a dense plot keeps its full height.
    ///
    /// The points are the first value, the minimum, the maximum and the last value, in this order
    /// whatever the order of arrival; one that equals its predecessor is left out. The line enters
    /// the column at its first value and leaves it at its last, where the next column takes over.
    ///
    /// @param x axis position of the column
    /// @param minMax positions on the y axis; empty afterwards. If it is empty, nothing happens.
    /// @param points where to append
    /// @throws std::bad_alloc, with nothing changed
    void flushMinMax(double x, algo::MinMaxAverageAlgorithm& minMax, QVector<QPointF>& points);
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
