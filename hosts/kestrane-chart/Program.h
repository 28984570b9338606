#ifndef HOSTS_KESTRANE_CHART_PROGRAM_H
#define HOSTS_KESTRANE_CHART_PROGRAM_H

#include <functional>

namespace hosts::chart {

/// Does the work of a program. What it throws, and what Qt gives up for, becomes one line on the
/// standard error, behind the name of the program.
/// @return its exit status: that of @p work, 2 for wrong usage, 1 for all else that failed
int runProgram(const char* name, const std::function<int()>& work);

} // namespace hosts::chart

#endif
