#ifndef KESTRANE_PLOTS_INTERSECTION_H
#define KESTRANE_PLOTS_INTERSECTION_H

#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

/// A place where a plot crosses a vertical line. A plain value.
///
/// @code
/// SamplePlotAlgorithm plot;
/// plot.setSnapshot(backend::PlotSnapshot({backend::PlotSegment(
///     boost::make_shared<backend::SampleVector>(backend::SampleVector{0.0, 2.0, 4.0}))}));
/// const LinearAxis x(1.0), y(1.0);
/// const QList<Intersection> crossings = plot.doIntersect(&x, &y, 0.1);
/// crossings[0].value;    // = 2
/// crossings[0].position; // = 0.2
/// @endcode
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
