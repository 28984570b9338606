#include "hosts/charting/AutoRange.h"
#include "hosts/charting/Decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace hosts::charting {

namespace {

TEST(AutoRangeTest, HoldsTheDataWithRoomOnBothSidesAndWastesLittle)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> exponent(-30.0, 30.0);
    std::uniform_real_distribution<double> middle(-20.0, 20.0);
    for (int i = 0; i < 1000; ++i) {
        const double size = std::pow(10.0, exponent(random));
        const double low = middle(random) * size;
        const double high = low + size;
        const bool isFixed = i % 2 == 0;
        const AxisDivision division =
            autoRange(low, high, 8, isFixed ? TickPlaces::Fixed : TickPlaces::Moving);
        const double room = 0.03 * (division.to() - division.from);
        ASSERT_LE(division.from + room, low);
        ASSERT_GE(division.to() - room, high);
        ASSERT_LE(division.to() - division.from, 2.0 * size) << low << " to " << high;
        ASSERT_NEAR((division.from + division.to()) / 2.0, (low + high) / 2.0,
                    (isFixed ? 0.051 * division.step : 1e-6 * size));
        ASSERT_DOUBLE_EQ(division.step, roundedUp(division.step));
        const double tenth = isFixed ? division.step / 10.0 : 1e-12 * size;
        ASSERT_NEAR(std::remainder(division.from, tenth), 0.0, 1e-9 * size);
    }
}

TEST(AutoRangeTest, DataThatAreAllEqualStandInTheMiddleOfTheirOwnSize)
{
    for (const double value : {0.0, 1e-310, 5.0, -3e-7, 1e-295, 1e15}) {
        const AxisDivision division = autoRange(value, value, 8, TickPlaces::Moving);
        const double size = value < 1e-300 && value > -1e-300 ? 2.0 : std::abs(value);
        EXPECT_NEAR((division.from + division.to()) / 2.0, value, 1e-6 * size);
        EXPECT_GT(division.to() - division.from, size);
        EXPECT_LT(division.to() - division.from, 2.0 * size);
    }
}

} // namespace

} // namespace hosts::charting
