#include "hosts/charting/Decimal.h"

#include <cmath>
#include <initializer_list>

namespace hosts::charting {

namespace {

constexpr double roundingAllowance = 1e-9; // Relative.

} // namespace

Decimal Decimal::of(double value)
{
    const int exponent = int(std::floor(std::log10(value)));
    return {value / std::pow(10.0, exponent), exponent};
}

// Dividing by a whole power keeps 3 * 10^-1 the double nearest to 0.3, which multiplying does not.
double Decimal::value() const
{
    return exponent < 0 ? digit / std::pow(10.0, -exponent) : digit * std::pow(10.0, exponent);
}

double roundedUp(double value)
{
    const Decimal decimal = Decimal::of(value);
    for (const double digit : {1.0, 2.0, 5.0}) {
        if (decimal.digit <= digit * (1.0 + roundingAllowance))
            return Decimal{digit, decimal.exponent}.value();
    }
    return Decimal{1.0, decimal.exponent + 1}.value();
}

double roundedDown(double value)
{
    const Decimal decimal = Decimal::of(value * (1.0 + roundingAllowance));
    for (const double digit : {5.0, 2.0}) {
        if (decimal.digit >= digit)
            return Decimal{digit, decimal.exponent}.value();
    }
    return Decimal{1.0, decimal.exponent}.value();
}

double decadeAbove(double value)
{
    return Decimal{1.0, int(std::ceil(std::log10(value) - roundingAllowance))}.value();
}

double decadeBelow(double value)
{
    return Decimal{1.0, int(std::floor(std::log10(value) + roundingAllowance))}.value();
}

} // namespace hosts::charting
