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
    EXPECT_GT(seen.of["cells"], 50000u);
    EXPECT_GT(seen.of["needles"], 5000u);
    EXPECT_GT(seen.of["reused"], 20u);
    EXPECT_GT(seen.of["thrown"], 5u);
}
