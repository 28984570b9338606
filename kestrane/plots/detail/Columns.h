#ifndef KESTRANE_PLOTS_DETAIL_COLUMNS_H
#define KESTRANE_PLOTS_DETAIL_COLUMNS_H

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

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
