#include "hosts/charting/AxisDivision.h"

#include "hosts/charting/Decimal.h"

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

constexpr double leastRange = 1e-300; // Its hundredth and its inverse are ordinary numbers.

// A number of divisions that gives round values to them, should there be one.
int fixedDivisions(double range, int wanted)
{
    for (int divisions = wanted; divisions > wanted * 2 / 5; --divisions) {
        if (AxisDivision::isRoundStep(range / divisions))
            return divisions;
    }
    return wanted;
}

} // namespace

bool AxisDivision::isRoundStep(double step)
{
    return step > roundedUp(step) * (1.0 - roundingAllowance);
}

int AxisDivision::minorDivisionsOf(double step)
{
    constexpr int divisions[] = {5, 5, 4, 3, 4, 5, 3, 7, 4, 3, 5}; // by the leading digit
    return divisions[std::lround(Decimal::of(step).digit)];
}

bool AxisDivision::isUsableRange(double from, double to)
{
    const double size = std::max(std::abs(from), std::abs(to));
    return std::isfinite(to - from) && to - from > size * 1e-12 && to - from > leastRange;
}

std::pair<double, double> AxisDivision::spread(double low, double high)
{
    if (isUsableRange(low, high))
        return {low, high};
    const double room = std::abs(low) * 0.5;
    return room > leastRange ? std::pair(low - room, high + room)
                             : std::pair(low - 1.0, high + 1.0);
}

std::pair<double, double> AxisDivision::rounded(double from, double to, int wanted)
{
    const double step = roundedUp((to - from) / wanted);
    const int minor = minorDivisionsOf(step);
    const double first = std::floor(from / step * minor + roundingAllowance);
    const double last = std::ceil(to / step * minor - roundingAllowance);
    return {first * step / minor, last * step / minor};
}

AxisDivision AxisDivision::of(double from, double to, int wanted, TickPlaces places)
{
    if (places == TickPlaces::Fixed) {
        const int divisions = fixedDivisions(to - from, wanted);
        return withPlaces(from, (to - from) / divisions, divisions);
    }
    return withStep(from, to, roundedUp((to - from) / wanted));
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

// The axis has no tick at its end, so that of the range is the first one of a further division.
AxisDivision AxisDivision::withPlaces(double from, double step, int divisions)
{
    AxisDivision division;
    division.from = from;
    division.step = step;
    division.major = divisions + 1;
    division.minor = isRoundStep(step) ? minorDivisionsOf(step) : 2;
    division.visible = double(divisions) / division.major;
    division.places = TickPlaces::Fixed;
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
