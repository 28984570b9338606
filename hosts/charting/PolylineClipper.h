#ifndef HOSTS_CHARTING_POLYLINECLIPPER_H
#define HOSTS_CHARTING_POLYLINECLIPPER_H

#include <QPointF>
#include <QRectF>
#include <QVector>

namespace hosts::charting {

/// The parts of a polyline that lie within a rectangle, its border included, in order.
///
/// Not every paint device clips, and none draws a line with a NaN in it; after this neither is
/// needed. Points that are not finite are passed over. O(points).
QVector<QVector<QPointF>> clipPolyline(const QVector<QPointF>& points, const QRectF& bounds);

} // namespace hosts::charting

#endif
