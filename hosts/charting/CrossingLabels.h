#ifndef HOSTS_CHARTING_CROSSINGLABELS_H
#define HOSTS_CHARTING_CROSSINGLABELS_H

#include "hosts/charting/Chart.h"
#include "hosts/charting/ChartLayout.h"
#include "hosts/charting/TextMeasure.h"

#include <QSizeF>
#include <QVector>

namespace hosts::charting {

/// The room for a crossing's mark, for its radius and a little around it.
constexpr double crossingRadius = 6.0;

/// The room that a label keeps around its text, for its frame.
constexpr QSizeF crossingPadding(4.0, 1.0);

/// Finds the places for the labels of the crossings: beside their marks to the right or the left,
/// higher or lower if need be, near by where no curve and no other cursor runs; else wherever no
/// other label and no mark is.
///
/// Laws:
///  1. No label overlaps another or a mark, or passes the edge of the plot, its frame included.
///  2. The result has an entry for each crossing, an empty one for that which found no room.
///
/// O(points of the curves) for each crossing.
QVector<PlacedText> placeCrossings(const Chart& chart, const ChartLayout& layout,
                                   const TextMeasure& measure);

} // namespace hosts::charting

#endif
