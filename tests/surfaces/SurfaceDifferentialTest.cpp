// Both surface plots against their plain rules, bit for bit.
#include "tests/support/Comparisons.h"
#include "tests/support/Seeds.h"

#include <gtest/gtest.h>

using namespace tests;

TEST(SurfaceDifferentialTest, AgreesWithThePlainRulesBitForBit)
{
    Seen seen;
    const Seeds seeds(usualCases(300));
    for (unsigned seed = seeds.first; seed < seeds.end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        compareSurfaces(dice, Surface::Both, seen);
    }
    EXPECT_GT(seen.of["cells"], usualCases(50000));
    EXPECT_GT(seen.of["needles"], usualCases(5000));
    EXPECT_GT(seen.of["reused"], usualCases(20));
    EXPECT_GT(seen.of["thrown"], usualCases(5));
}
