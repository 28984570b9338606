#ifndef HOSTS_CHARTING_AXISDIVISION_H
#define HOSTS_CHARTING_AXISDIVISION_H

#include "hosts/charting/ShownAxis.h"

#include <kestrane/axes/FixedPositionLinearAxis.h>

#include <QSharedPointer>

#include <utility>

namespace hosts::charting {

/// Where the ticks of an axis stand: on round values, or at fixed places whatever their values.
enum class TickPlaces { Moving, Fixed };

/// The parameters of a linear axis that shows a given range.
///
/// An axis covers a whole number of divisions. One with round divisions is made a little longer
/// than the range, and the chart shows the part from position 0.0 to @c visible only, so that any
/// range can be had exactly and with round tick values.
struct AxisDivision
{
    double from = 0.0;    ///< The value at position 0.0.
    double step = 1.0;    ///< One major division, in logical units.
    int major = 10;       ///< Major divisions of the whole axis.
    int minor = 1;        ///< Minor divisions of a major one.
    double visible = 1.0; ///< The axis position at the end of the range; at most 1.0.
    TickPlaces places = TickPlaces::Moving;

    /// Divides @p from to @p to, of which isUsableRange() holds.
    /// @param wanted the number of divisions to come near to; with round steps there are from two
    ///        fifths of it up to all of it, and more than that never. Fixed places have round steps
    ///        if one of these numbers divides the range into such.
    static AxisDivision of(double from, double to, int wanted, TickPlaces places);

    /// Moving ticks at the multiples of @p step.
    static AxisDivision withStep(double from, double to, double step);

    /// Ticks at fixed places, at both ends too, around @p divisions of the size @p step.
    static AxisDivision withPlaces(double from, double step, int divisions);

    /// Finite limits, the lower first, far enough apart for their difference to have digits.
    static bool isUsableRange(double from, double to);

    /// @p low and @p high, or for values that are (nearly) equal a usable range around them.
    static std::pair<double, double> spread(double low, double high);

    /// A range that ends on minor divisions and holds @p from to @p to.
    static std::pair<double, double> rounded(double from, double to, int wanted);

    /// Whether @p step is 1, 2 or 5 times a power of ten, up to rounding.
    static bool isRoundStep(double step);

    /// How many minor divisions suit a major step: they fall on round values too.
    static int minorDivisionsOf(double step);

    /// The end of the range.
    double to() const { return from + step * major * visible; }

    QSharedPointer<pelorin::ui::chart::FixedPositionLinearAxis> makeAxis() const;

    ShownAxis shown() const { return {makeAxis(), visible}; }
};

} // namespace hosts::charting

#endif
