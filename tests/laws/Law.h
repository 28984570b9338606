#ifndef TESTS_LAWS_LAW_H
#define TESTS_LAWS_LAW_H

#include "tests/support/Dice.h"
#include "tests/support/Seeds.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tests {

/// Looks whether a law holds in random cases: 300 of them as a rule, or as many as the environment
/// has for KESTRANE_CASES, from the seed KESTRANE_SEED on.
template<typename Law>
void hold(Law law)
{
    const int cases = qEnvironmentVariableIntValue("KESTRANE_CASES");
    const Seeds seeds(cases > 0 ? unsigned(cases) : usualCases(300));
    for (unsigned seed = seeds.first; seed != seeds.end; ++seed) {
        Dice dice(seed);
        law(dice);
        ASSERT_FALSE(testing::Test::HasFailure()) << "with KESTRANE_SEED=" << seed;
    }
}

} // namespace tests

/// Defines a law as a test: LAW(Suite, Name) { ... dice ... }
#define LAW(suite, name)                                                                           \
    static void law##name(tests::Dice& dice);                                                      \
    TEST(suite, name)                                                                              \
    {                                                                                              \
        tests::hold(law##name);                                                                    \
    }                                                                                              \
    static void law##name(tests::Dice& dice)

#endif
