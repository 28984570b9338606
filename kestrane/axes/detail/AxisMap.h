#ifndef KESTRANE_AXES_DETAIL_AXISMAP_H
#define KESTRANE_AXES_DETAIL_AXISMAP_H

#include "kestrane/axes/Axis.h"

#include <cmath>
#include <limits>
#include <optional>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// What a linear or logarithmic axis does with the values of one form, in plain numbers, for loops
/// that cannot afford to ask it: with w the value or its logarithm,
///
///     position = (w + add) * factor + shift          w = (position - shift) * range - subtract
///
/// An addend that plays no part is the zero that changes no number, -0.0 not excepted.
struct AxisMap
{
    double add, factor, shift;
    double range, subtract;
    bool isLogarithmic; ///< Values are no logarithms, and their axis is one of logarithms.

    /// That of @p axis for values of the form @p mode. Nothing if the class of the axis is not
    /// exactly one of this library's that can be told in these numbers.
    static std::optional<AxisMap> of(const Axis& axis, Axis::ScaleMode mode);

    double positionOf(double value) const
    {
        if (isLogarithmic) {
            if (value <= 0.0)
                return -std::numeric_limits<double>::infinity();
            value = std::log10(value);
        }
        return (value + add) * factor + shift;
    }

    double valueAt(double position) const
    {
        const double value = (position - shift) * range - subtract;
        return isLogarithmic ? std::pow(10.0, value) : value;
    }

    /// Whether no number but NaN has NaN for its position, nor one of them a position below that of
    /// a lesser one (or above it, on an axis that is turned round). To the last bits of a logarithm
    /// this does not apply.
    bool isOrderly() const
    {
        const bool isFinite = std::isfinite(add) && std::isfinite(factor) && std::isfinite(shift);
        return isFinite && (isLogarithmic ? factor > 0.0 : factor != 0.0);
    }

    /// Whether values that follow each other by @p step, from @p start to @p end at most, have
    /// positions that ascend with them: on a logarithmic axis they have to differ by many errors of
    /// a logarithm, a few units in the last place of a number below 309.
    bool ascends(double start, double step, double end) const
    {
        constexpr double apart = 1e-11;
        return isOrderly() && factor > 0.0 && step > 0.0 && std::isfinite(step) &&
               std::isfinite(start) && (!isLogarithmic || step > apart * end);
    }
};

/// The same for any axis, by asking it.
struct AskedAxis
{
    const Axis& axis;
    Axis::ScaleMode mode;

    double positionOf(double value) const { return axis.transform(mode, value); }
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
