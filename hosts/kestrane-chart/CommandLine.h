#ifndef HOSTS_KESTRANE_CHART_COMMANDLINE_H
#define HOSTS_KESTRANE_CHART_COMMANDLINE_H

#include "hosts/kestrane-chart/Options.h"
#include "hosts/kestrane-chart/RawOptions.h"

namespace hosts::chart {

/// Lets @p app read the command line.
/// @return false if it asked for the help or the version, which are printed then
/// @throws UsageError
bool readCommandLine(CLI::App& app, int argc, char** argv);

/// Options that are checked and in order.
/// @throws UsageError
Options optionsOf(const RawOptions& raw);

} // namespace hosts::chart

#endif
