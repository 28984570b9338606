#ifndef TESTS_SUPPORT_SEEDS_H
#define TESTS_SUPPORT_SEEDS_H

#include <QtGlobal>

namespace tests {

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
