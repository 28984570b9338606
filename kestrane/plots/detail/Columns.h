#ifndef KESTRANE_PLOTS_DETAIL_COLUMNS_H
#define KESTRANE_PLOTS_DETAIL_COLUMNS_H

#include <QPointF>
#include <QVector>

#include <algorithm>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// How a plot is thinned out.
struct Thinning
{
    double columnWidth;   ///< In x axis space.
    double symbolSpacing; ///< In columns.
};

/// The first column edge at or before a position, on a grid that starts at 0.0, within the axis;
/// 0.0 for NaN.
double leftEdgeOfColumnAt(double position, double columnWidth);

/// The first of the indices from @p low to @p high that is not before some place, by a comparison
/// that ascends with the index, also a little way outside; @p high if there is none below it. Looks
/// beside the guess, ever farther, and then between the last two places: O(log of the distance to
/// the guess).
template<typename IsBefore>
long long firstNotBefore(long long low, long long high, double guess, const IsBefore& isBefore)
{
    if (guess >= static_cast<double>(low) && guess <= static_cast<double>(high)) {
        auto place = static_cast<long long>(guess);
        // Counted, not branched upon: where samples lie on the edges, rounding decides at random.
        if (isBefore(place - 2) && !isBefore(place + 1)) {
            place += (isBefore(place - 1) ? 1 : 0) + (isBefore(place) ? 1 : 0) - 1;
            return std::min(std::max(place, low), high);
        }
        for (long long step = 1; place >= low && place < high; step *= 2) {
            if (isBefore(place)) {
                low = place + 1;
                place += step;
            } else {
                high = place;
                place -= step;
            }
        }
    }
    while (low < high) {
        const long long middle = low + (high - low) / 2;
        if (isBefore(middle))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

/// The values of a column, none of them NaN, reduced to those that a line is drawn through.
struct ColumnValues
{
    double first = 0.0, min = 0.0, max = 0.0, last = 0.0;
    bool isEmpty = true;

    void put(double value)
    {
        if (isEmpty) {
            first = min = max = value;
            isEmpty = false;
        }
        min = value < min ? value : min;
        max = value > max ? value : max;
        last = value;
    }

    /// Appends them at @p x, the first, the smallest, the largest and the last one; of two equal
    /// neighbours only one.
    void appendTo(QVector<QPointF>& points, double x) const
    {
        points.append(QPointF(x, first));
        if (first != min)
            points.append(QPointF(x, min));
        if (min != max)
            points.append(QPointF(x, max));
        if (max != last)
            points.append(QPointF(x, last));
    }
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
