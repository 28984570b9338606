#ifndef HOSTS_KESTRANE_CHART_COMMANDLINE_H
#define HOSTS_KESTRANE_CHART_COMMANDLINE_H

#include "hosts/kestrane-chart/Options.h"

#include <optional>

namespace hosts::chart {

/// Reads the command line.
/// @return nothing if it asked for the help or the version, which are printed then
/// @throws UsageError
std::optional<Options> readCommandLine(int argc, char** argv);

} // namespace hosts::chart

#endif
