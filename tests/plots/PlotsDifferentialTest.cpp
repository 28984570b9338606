// The plots of lines against their plain rules, bit for bit.
#include "tests/support/Comparisons.h"
#include "tests/support/Seeds.h"

#include <gtest/gtest.h>

using namespace tests;

TEST(SamplePlotDifferentialTest, AgreesWithThePlainRulesBitForBit)
{
    Seen seen;
    const Seeds seeds(4000);
    for (unsigned seed = seeds.first; seed < seeds.end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        compareSamplePlots(dice, seen);
    }
    EXPECT_GT(seen.of["polylines"], 2000u);
    EXPECT_GT(seen.of["symbols"], 2000u);
    EXPECT_EQ(seen.axes.size(), 16u); // Every pair of linear, logarithmic, mirrored and aggregate.
}

TEST(XYAndNeedlesDifferentialTest, AgreeWithThePlainRulesBitForBit)
{
    Seen seen;
    const Seeds seeds(4000);
    for (unsigned seed = seeds.first; seed < seeds.end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        compareXYPlots(dice, seen);
        compareNeedles(dice, seen);
    }
    EXPECT_GT(seen.of["lines"], 2000u);
    EXPECT_GT(seen.of["symbols"], 2000u);
    EXPECT_GT(seen.of["needles"], 10000u);
    EXPECT_GT(seen.of["throws"], 5u);
    EXPECT_EQ(seen.axes.size(), 16u); // Every pair of linear, logarithmic, mirrored and aggregate.
}
