#ifndef HOSTS_CHARTING_AUTORANGE_H
#define HOSTS_CHARTING_AUTORANGE_H

#include "hosts/charting/AxisDivision.h"

namespace hosts::charting {

/// An axis that holds all of the data between @p low and @p high with some room above and below,
/// as LinearPlotAutoScaler suggests it.
///
/// The scaler keeps to one significant digit for a division, whichever. Of the numbers of divisions
/// next to @p wanted this takes the one for which that digit is 1, 2 or 5 and the data fill the
/// axis best.
///
/// @param low,high finite; they may be equal
AxisDivision autoRange(double low, double high, int wanted, TickPlaces places);

} // namespace hosts::charting

#endif
