#include "kestrane/plots/detail/Columns.h"

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

double leftEdgeOfColumnAt(double position, double columnWidth)
{
    double left = std::floor(position / columnWidth) * columnWidth;
    if (left > 1.0)
        left = 1.0;
    if (!(left > 0.0)) // NaN too starts at the left.
        left = 0.0;
    return left;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
