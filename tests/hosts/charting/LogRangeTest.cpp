#include "hosts/charting/LogRange.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace hosts::charting {

namespace {

TEST(LogRangeTest, EndsOnRoundValuesAroundTheDataOrOnDecadesIfThereAreMany)
{
    const struct
    {
        double low, high;
        LogRange around, inDecades;
    } cases[] = {{3.0, 90.0, {2.0, 100.0}, {2.0, 100.0}},
                 {0.2, 0.5, {0.2, 0.5}, {0.2, 0.5}},
                 {2.1e-7, 4.9e-4, {2e-7, 5e-4}, {1e-7, 1e-3}},
                 {1e-3, 1.0, {1e-3, 1.0}, {1e-3, 1.0}},
                 {5.0, 5.0, {2.0, 10.0}, {2.0, 10.0}}, // A constant has room on both sides.
                 {1e-300, 1e-300, {5e-301, 2e-300}, {5e-301, 2e-300}}};
    for (const auto& c : cases) {
        const LogRange around = LogRange::around(c.low, c.high);
        EXPECT_DOUBLE_EQ(around.from, c.around.from);
        EXPECT_DOUBLE_EQ(around.to, c.around.to);
        EXPECT_DOUBLE_EQ(around.inDecades().from, c.inDecades.from);
        EXPECT_DOUBLE_EQ(around.inDecades().to, c.inDecades.to);
    }
}

TEST(LogRangeTest, IsUsableWithTwoTicks)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const LogRange good[] = {{0.3, 0.4}, {0.95, 2.0}, {1e-150, 1e150}, {9e-305, 1e-304}};
    const LogRange bad[] = {{3.0, 3.0},   {3.1, 4.9},          {4.0, 3.0},         {0.0, 1.0},
                            {-1.0, 1.0},  {1e-310, 1e-3},      {1e-200, 1e200},    {1.0, infinite},
                            {1.0, 1e308}, {std::nan(""), 1.0}, {1.0, std::nan("")}};
    for (const LogRange& range : good)
        EXPECT_TRUE(range.isUsable()) << range.from << " to " << range.to;
    for (const LogRange& range : bad)
        EXPECT_FALSE(range.isUsable()) << range.from << " to " << range.to;
}

} // namespace

} // namespace hosts::charting
