#include "kestrane/plots/PointsBasedPlotHelper.h"

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

    points.append(QPointF(x, minMax.first()));
    if (minMax.first() != minMax.minVal())
        points.append(QPointF(x, minMax.minVal()));
    if (minMax.minVal() != minMax.maxVal())
        points.append(QPointF(x, minMax.maxVal()));
    if (minMax.maxVal() != minMax.last())
        points.append(QPointF(x, minMax.last()));
    minMax.reset();
}

} // namespace chart
} // namespace ui
} // namespace pelorin
