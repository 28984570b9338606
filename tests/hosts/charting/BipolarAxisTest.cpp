#include "hosts/charting/BipolarAxis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace hosts::charting {

namespace {

TEST(BipolarAxisTest, PutsOnTheJointWhatIsNearerToZeroAndAllElseOnItsHalf)
{
    const BipolarAxis axis(0.1, 1000.0);
    const std::unique_ptr<BipolarAxis> clone(axis.clone());
    const std::pair<double, double> cases[] = {
        {1000.0, 1.0},  {10.0, 0.75}, {0.1, 0.5},    {0.099, 0.5},   {0.0, 0.5},
        {-1e-300, 0.5}, {-0.1, 0.5},  {-1.0, 0.375}, {-1000.0, 0.0}, {-1e5, -0.25}};
    for (const auto& [value, position] : cases) {
        EXPECT_NEAR(axis.transform(axis.Linear, value), position, 1e-15) << value;
        EXPECT_NEAR(clone->transform(axis.Linear, value), position, 1e-15) << value;
    }
    EXPECT_NEAR(axis.transform(axis.Logarithmic, 1.0), 0.75, 1e-15);
    EXPECT_EQ(axis.transform(axis.Logarithmic, -2.0), 0.5);
    EXPECT_TRUE(std::isnan(axis.transform(axis.Linear, std::nan(""))));
}

} // namespace

} // namespace hosts::charting
