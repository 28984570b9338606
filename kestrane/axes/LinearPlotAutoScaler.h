#ifndef KESTRANE_AXES_LINEARPLOTAUTOSCALER_H
#define KESTRANE_AXES_LINEARPLOTAUTOSCALER_H

#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

/// Suggests a scale and an offset for a linear axis that keep the data within a target band of it.
///
/// While the data lie inside the band and are not too small, nothing changes, so that a plot keeps
/// still. Otherwise the data are centred on the band, and a scale that has to change is rounded up
/// to one significant digit.
///
/// @code
/// LinearAxis axis(1.0, 0.0); // 0 to 10, for data from -0.7 to 2.9.
/// const LinearPlotAutoScaler::Suggestion fit = LinearPlotAutoScaler::suggest(
///     axis.scale(), axis.offset(), axis.transform(Axis::Linear, -0.7),
///     axis.transform(Axis::Linear, 2.9), axis.numMajorDivisions(), 0.95, 0.05, 0.5, 1e-9,
///     axis.offsetIsAdded(), false);
/// axis.setOffsetAndScale(fit.offset, fit.scale);
/// axis.maxValue(); // = 3.1
/// @endcode
///
/// @ingroup axes
class KESTRANE_EXPORT LinearPlotAutoScaler
{
public:
    /// What to hand to FixedPositionLinearAxis::setOffsetAndScale(), in logical units.
    struct Suggestion
    {
        double scale;
        double offset;
    };

    /// Pure and O(1); any thread. All positions and extents are in axis space under the present
    /// scale and offset: the host gets the place of its data from Axis::transform().
    ///
    /// @param scale the axis's present scale
    /// @param offset the axis's present offset
    /// @param dataBottom position of the lowest data value
    /// @param dataTop position of the highest data value
    /// @param numDivisions the axis's number of major divisions
    /// @param targetTop position that the data must not pass upwards
    /// @param targetBottom position that the data must not pass downwards
    /// @param minimumExtent smallest extent that the data should fill
    /// @param extentFloor lower bound of the data's extent and of the suggested scale; a small
    ///        positive number, without which data of no extent get a NaN scale
    /// @param offsetIsAdded the axis's offsetIsAdded
    /// @param force true to go on even when the data are well placed
    /// @return @p scale and @p offset as they are if one of them, @p dataBottom or @p dataTop is
    ///         NaN
    static Suggestion suggest(double scale, double offset, double dataBottom, double dataTop,
                              int numDivisions, double targetTop, double targetBottom,
                              double minimumExtent, double extentFloor, bool offsetIsAdded,
                              bool force);
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
