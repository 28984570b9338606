#ifndef TESTS_SUPPORT_SEEDS_H
#define TESTS_SUPPORT_SEEDS_H

#include <QtGlobal>

namespace tests {

/// How many cases to try where nobody asks for a number: a third without optimization, which is
/// what sanitizers run, and slowly.
constexpr unsigned usualCases(unsigned count)
{
#if defined(__OPTIMIZE__)
    return count;
#else
    return count / 3;
#endif
}

/// The seeds of a random test, [first, end): @p count from 0 on, or from what the environment has
/// for KESTRANE_SEED.
struct Seeds
{
    unsigned first, end;

    explicit Seeds(unsigned count)
        : first(unsigned(qEnvironmentVariableIntValue("KESTRANE_SEED")))
        , end(first + count)
    {}
};

} // namespace tests

#endif
