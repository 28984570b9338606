#include "hosts/charting/AxisDivision.h"

#include <kestrane/axes/LinearAxis.h>

#include <algorithm>
#include <cmath>

namespace hosts::charting {

using pelorin::ui::chart::FixedPositionLinearAxis;
using pelorin::ui::chart::LinearAxis;

namespace {

// Share of a division by which an axis begins early and counts as reached: a LinearAxis drops a
// tick that rounding has put outside by the last bit.
constexpr double roundingAllowance = 1e-9;

struct Decimal
{
    double digit; // 1.0 <= digit < 10.0, up to rounding
    int exponent;
};

Decimal decimalOf(double value)
{
    const int exponent = int(std::floor(std::log10(value)));
    return {value / std::pow(10.0, exponent), exponent};
}

// Dividing by a whole power keeps 3 * 10^-1 the double nearest to 0.3, which multiplying does not.
double timesPowerOfTen(double digit, int exponent)
{
    return exponent < 0 ? digit / std::pow(10.0, -exponent) : digit * std::pow(10.0, exponent);
}

AxisDivision fixedDivision(double from, double to, int wanted)
{
    AxisDivision division;
    division.from = from;
    division.step = (to - from) / wanted;
    division.major = wanted;
    division.minor = 2;
    division.places = TickPlaces::Fixed;
    return division;
}

} // namespace

double AxisDivision::roundStep(double step)
{
    const Decimal decimal = decimalOf(step);
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (decimal.digit <= digit * (1.0 + roundingAllowance))
            return timesPowerOfTen(digit, decimal.exponent);
    }
    return timesPowerOfTen(1.0, decimal.exponent + 1);
}

int AxisDivision::minorDivisionsOf(double step)
{
    constexpr int divisions[] = {5, 5, 4, 3, 4, 5, 3, 7, 4, 3, 5}; // by the leading digit
    return divisions[std::lround(decimalOf(step).digit)];
}

bool AxisDivision::isUsableRange(double from, double to)
{
    const double size = std::max(std::abs(from), std::abs(to));
    return std::isfinite(to - from) && to - from > size * 1e-12 && to - from > 1e-290;
}

std::pair<double, double> AxisDivision::spread(double low, double high)
{
    if (isUsableRange(low, high))
        return {low, high};
    const double room = low == 0.0 ? 1.0 : std::abs(low) * 0.5;
    return {low - room, high + room};
}

std::pair<double, double> AxisDivision::rounded(double from, double to, int wanted)
{
    const double step = roundStep((to - from) / wanted);
    const int minor = minorDivisionsOf(step);
    const double first = std::floor(from / step * minor + roundingAllowance);
    const double last = std::ceil(to / step * minor - roundingAllowance);
    return {first * step / minor, last * step / minor};
}

AxisDivision AxisDivision::of(double from, double to, int wanted, TickPlaces places)
{
    if (places == TickPlaces::Fixed)
        return fixedDivision(from, to, wanted);
    return withStep(from, to, roundStep((to - from) / wanted));
}

AxisDivision AxisDivision::withStep(double from, double to, double step)
{
    AxisDivision division;
    division.step = step;
    division.minor = minorDivisionsOf(step);
    division.from = from - step * roundingAllowance;
    division.major = 1 + int(std::floor((to - from) / step + roundingAllowance));
    division.visible = (to - division.from) / (step * division.major);
    return division;
}

QSharedPointer<FixedPositionLinearAxis> AxisDivision::makeAxis() const
{
    if (places == TickPlaces::Fixed)
        return QSharedPointer<FixedPositionLinearAxis>::create(step, from, 0.0, false, major,
                                                               minor);
    return QSharedPointer<LinearAxis>::create(step, from, 0.0, false, major, minor);
}

} // namespace hosts::charting
