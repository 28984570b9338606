#ifndef HOSTS_CHARTING_DECIMAL_H
#define HOSTS_CHARTING_DECIMAL_H

namespace hosts::charting {

/// A positive number as digit * 10^exponent.
struct Decimal
{
    double digit; ///< 1.0 <= digit < 10.0, up to rounding.
    int exponent;

    /// @param value normal and positive
    static Decimal of(double value);

    /// The nearest double if the digit is whole and the power no larger than 10^22.
    double value() const;
};

/// The smallest of 1, 2, 5 times a power of ten that is not below @p value, up to rounding.
double roundedUp(double value);

/// The largest of 1, 2, 5 times a power of ten that is not above @p value, up to rounding.
double roundedDown(double value);

/// The same with the powers of ten alone.
double decadeAbove(double value);
double decadeBelow(double value);

} // namespace hosts::charting

#endif
