#ifndef HOSTS_CHARTING_SYMBOLS_H
#define HOSTS_CHARTING_SYMBOLS_H

#include <QPointF>
#include <QVector>

namespace hosts::charting {

/// Those of some symbols, in ascending x, that have @p distance in x to both neighbours.
///
/// A plot judges by the distance of samples at its left whether symbols suit, or not at all; on a
/// logarithmic axis they crowd further right.
QVector<QPointF> uncrowdedSymbols(const QVector<QPointF>& symbols, double distance);

} // namespace hosts::charting

#endif
