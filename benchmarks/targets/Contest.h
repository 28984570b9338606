#ifndef BENCHMARKS_TARGETS_CONTEST_H
#define BENCHMARKS_TARGETS_CONTEST_H

#include <functional>
#include <string>
#include <vector>

namespace targets {

/// Work whose time is taken.
struct Contestant
{
    std::string name;
    std::function<void()> call;
    std::function<void()> prepare = [] {}; ///< Before each call, its time does not count.
    int calls = 1;                         ///< Taken together, where one is too short for a clock.
};

/// The median time of a call in seconds, one for each contestant. They take turns, so that what
/// else the machine does meets all of them.
std::vector<double> medianSeconds(const std::vector<Contestant>& contestants, int repetitions = 11);

} // namespace targets

#endif
