#ifndef HOSTS_CHARTING_COLUMNORDER_H
#define HOSTS_CHARTING_COLUMNORDER_H

#include <QPointF>
#include <QVector>

namespace hosts::charting {

/// A polyline whose dense columns are drawn towards the column that follows.
///
/// A plot gives for a column the curve's value, the minimum and the maximum, one above the other.
/// Where the curve falls, a line that takes them in this order comes back up to the maximum and
/// then goes down aslant, which makes falling flanks look thicker than rising ones. Here minimum
/// and maximum change places if that brings the last one nearer to the next column.
QVector<QPointF> inColumnOrder(QVector<QPointF> polyline);

} // namespace hosts::charting

#endif
