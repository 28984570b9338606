#include "hosts/charting/ColumnOrder.h"

#include <cmath>
#include <utility>

namespace hosts::charting {

QVector<QPointF> inColumnOrder(QVector<QPointF> polyline)
{
    for (int i = 2; i + 1 < polyline.size(); ++i) {
        QPointF& low = polyline[i - 1];
        QPointF& high = polyline[i];
        const QPointF& next = polyline[i + 1];
        const bool isWholeColumn = polyline[i - 2].x() == high.x() && low.x() == high.x();
        if (isWholeColumn && next.x() != high.x() &&
            std::abs(low.y() - next.y()) < std::abs(high.y() - next.y()))
            std::swap(low, high);
    }
    return polyline;
}

} // namespace hosts::charting
