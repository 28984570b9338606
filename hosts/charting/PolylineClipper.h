#ifndef HOSTS_CHARTING_POLYLINECLIPPER_H
#define HOSTS_CHARTING_POLYLINECLIPPER_H

#include <QPointF>
#include <QRectF>
#include <QVector>

namespace hosts::charting {

/// The parts of a polyline that lie within a rectangle, its border included, in order.
///
/// Not every paint device clips, and none draws a line with a NaN in it; after this neither is
/// needed. Points with a NaN are passed over. Infinite coordinates are far outside, as are those of
/// values that have no place on a logarithmic axis. O(points).
QVector<QVector<QPointF>> clipPolyline(const QVector<QPointF>& points, const QRectF& bounds);

} // namespace hosts::charting

#endif
