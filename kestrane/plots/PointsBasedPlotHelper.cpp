#include "kestrane/plots/PointsBasedPlotHelper.h"

#include "kestrane/plots/detail/Columns.h"

namespace pelorin {
namespace ui {
namespace chart {

PointsBasedPlotHelper::PointsBasedPlotHelper() = default;

PointsBasedPlotHelper::PointsBasedPlotHelper(const PointsBasedPlotHelper&) = default;

PointsBasedPlotHelper& PointsBasedPlotHelper::operator=(const PointsBasedPlotHelper&) = default;

PointsBasedPlotHelper::~PointsBasedPlotHelper() = default;

void PointsBasedPlotHelper::flushMinMax(double x, algo::MinMaxAverageAlgorithm& minMax,
                                        QVector<QPointF>& points)
{
    if (minMax.count() == 0)
        return;

    const detail::ColumnValues values{minMax.first(), minMax.minVal(), minMax.maxVal(),
                                      minMax.last(), false};
    const int size = points.size();
    try {
        values.appendTo(points, x);
    } catch (...) {
        if (points.size() > size) // All of the points or none.
            points.resize(size);
        throw;
    }
    minMax.reset();
}

} // namespace chart
} // namespace ui
} // namespace pelorin
