#include "hosts/charting/LogRange.h"

#include "hosts/charting/Decimal.h"

#include <kestrane/axes/LogAxis.h>

#include <cmath>

namespace hosts::charting {

using pelorin::ui::chart::LogAxis;

namespace {

// By this share of itself a limit lies further out: a LogAxis drops a tick that rounding has put
// outside by the last bit.
constexpr double roundingAllowance = 1e-10;

// Between these, products and quotients of neighbouring ticks are ordinary numbers.
constexpr double leastValue = 1e-305;
constexpr double mostValue = 1e305;

constexpr double manyDecades = 1e3;

double firstTickFrom(double value)
{
    const Decimal decimal = Decimal::of(value);
    return Decimal{std::ceil(decimal.digit - roundingAllowance), decimal.exponent}.value();
}

double tickAfter(double tick)
{
    const Decimal decimal = Decimal::of(tick);
    return Decimal{std::round(decimal.digit) + 1.0, decimal.exponent}.value();
}

} // namespace

bool LogRange::isUsable() const
{
    return from >= leastValue && to <= mostValue && std::isfinite(to / from) &&
           tickAfter(firstTickFrom(from)) <= to * (1.0 + roundingAllowance);
}

LogRange LogRange::around(double low, double high)
{
    const LogRange tight = {roundedDown(low), roundedUp(high)};
    return tight.isUsable() ? tight : LogRange{roundedDown(low / 1.5), roundedUp(high * 1.5)};
}

LogRange LogRange::inDecades() const
{
    return to / from < manyDecades ? *this : LogRange{decadeBelow(from), decadeAbove(to)};
}

ShownAxis LogRange::shown() const
{
    return {QSharedPointer<LogAxis>::create(from * (1.0 - roundingAllowance),
                                            to * (1.0 + roundingAllowance))};
}

} // namespace hosts::charting
