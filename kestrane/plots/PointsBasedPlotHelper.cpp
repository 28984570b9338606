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
    values.appendTo(points, x);
    minMax.reset();
}

} // namespace chart
} // namespace ui
} // namespace pelorin
