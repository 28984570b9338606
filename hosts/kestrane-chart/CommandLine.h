#ifndef HOSTS_KESTRANE_CHART_COMMANDLINE_H
#define HOSTS_KESTRANE_CHART_COMMANDLINE_H

#include "hosts/kestrane-chart/Options.h"
#include "hosts/kestrane-chart/RawOptions.h"

namespace hosts::chart {

/// Options that are checked and in order.
/// @throws UsageError
Options optionsOf(const RawOptions& raw);

} // namespace hosts::chart

#endif
