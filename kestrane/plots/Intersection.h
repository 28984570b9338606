#ifndef KESTRANE_PLOTS_INTERSECTION_H
#define KESTRANE_PLOTS_INTERSECTION_H

#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

/// A place where a plot crosses a vertical line. A plain value.
///
/// @image html cursors.png
/// @ingroup plots
struct KESTRANE_EXPORT Intersection
{
    Intersection(double position, double value);

    double position; ///< Where the crossing lies on the y axis, in axis space.
    double value;    ///< What the plot shows there, in the form in which its data is written.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
