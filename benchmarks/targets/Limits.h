#ifndef BENCHMARKS_TARGETS_LIMITS_H
#define BENCHMARKS_TARGETS_LIMITS_H

#include <cstddef>

namespace targets {

struct Extremes
{
    double min, max;
};

/// The least that can be done to find the extremes of samples, none of which is NaN: one pass,
/// several lanes wide. The yardstick called a pass.
Extremes plainPass(const double* samples, std::size_t count);

} // namespace targets

#endif
