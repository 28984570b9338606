#ifndef HOSTS_CHARTING_LOGRANGE_H
#define HOSTS_CHARTING_LOGRANGE_H

#include "hosts/charting/ShownAxis.h"

namespace hosts::charting {

/// The limits of a logarithmic axis.
struct LogRange
{
    double from = 1.0;
    double to = 10.0;

    /// Whether there can be an axis that can be read: two of its ticks have to lie within, whole
    /// digits times a power of ten, and their quotient has to be a number.
    bool isUsable() const;

    /// Holds @p low to @p high and ends on 1, 2 or 5 times a power of ten.
    /// @param low,high positive, the lower first; they may be equal
    static LogRange around(double low, double high);

    /// Widened to powers of ten, if it spans enough of them for that to make no odds.
    LogRange inDecades() const;

    /// The axis, with a tick at either end if the limit is the value of one.
    ShownAxis shown() const;
};

} // namespace hosts::charting

#endif
