#ifndef KESTRANE_AXES_LINEARAXIS_H
#define KESTRANE_AXES_LINEARAXIS_H

#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

/// A linear axis whose ticks follow the values: they stand on whole multiples of scale() and slide
/// along as the axis scrolls. All else is that of FixedPositionLinearAxis.
///
/// Major ticks stand at 0.0 <= position <= 1.0, minor ticks at 0.0 <= position < 1.0, both without
/// a tolerance; the values of major ones are within 4 ulp of the larger of offset and full range.
/// While one of the two numbers of divisions is 0 the lists stay what they were.
/// The scale is taken as it is; LinearPlotAutoScaler suggests a round one.
///
/// @code
/// LinearAxis axis(0.5, 12.25); // Ten divisions of 0.5 from 12.25 on.
/// axis.majorTicks().first().logicalPosition(); // = 17
/// @endcode
///
/// @image html ticks-linear.png
/// @ingroup axes
class KESTRANE_EXPORT LinearAxis : public FixedPositionLinearAxis
{
public:
    /// The arguments are those of FixedPositionLinearAxis.
    explicit LinearAxis(double scale = 1.0, double offset = 0.0, double anchor = 0.0,
                        bool offsetIsAdded = false, int numMajorDivisions = 10,
                        int numMinorDivisions = 1, QObject* parent = nullptr);
    ~LinearAxis() override;

    LinearAxis* clone() const override;

protected:
    void updateTicks() override;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
