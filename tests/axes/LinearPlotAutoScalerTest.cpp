#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace pelorin::ui::chart;
using tests::NaN;

TEST(LinearPlotAutoScalerTest, MovesDataThatLeaveTheBandAndRoundsTheScaleUp)
{
    struct Row
    {
        double scale, offset, bottom, top, minimumExtent;
        bool isAdded, force;
        double newScale, newOffset;
    };
    // clang-format off
    const Row rows[] = {
        // The band is 0.125 to 0.875 of 10 divisions.
        // scale offset bottom  top    extent  added  force   scale  offset
        {1.0,   7.0,   0.4,    0.6,    0.1,   false, false,   1.0,    7.0},
        {1.0,   7.0,   0.4,    0.6,    0.1,   false, true,    1.0,    7.0},
        {1.0,   7.0,   0.625,  1.125,  0.1,   false, false,   1.0,   10.75},
        {1.0,   7.0,   0.625,  1.125,  0.1,   true,  false,   1.0,    3.25},
        {3.0,   7.0,   0.625,  1.125,  0.1,   false, false,   3.0,   18.25},
        {1.0,   7.0,   2.0,    3.0,    0.2,   false, false,   2.0,   22.0},
        {1.0,   7.0,   2.0,    3.0,    0.2,   true,  false,   2.0,  -18.0},
        {1.0,   7.0,   0.25,   0.3125, 0.1,   false, false,   0.09,   9.3625},
        {1.0,   7.0,   0.5,    0.5,    0.1,   false, false,   2e-9,  11.999999995},
        // On the limits: inside the band, as large as the band, as small as wanted.
        {1.0,   7.0,   0.125,  0.375,  0.1,   false, false,   1.0,    7.0},
        {1.0,   7.0,   0.625,  0.875,  0.25,  false, false,   1.0,    7.0},
        {1.0,   7.0,   0.25,   1.0,    0.1,   false, false,   1.0,    8.25},
        {1.0,   7.0,   0.75,   1.0,    0.25,  false, false,   0.4,   13.75},
        // A scale of one digit stays what it is: 0.75 * 4 / 0.75.
        {4.0,   7.0,   0.25,   1.0,    0.75,  false, false,   4.0,   12.0},
        // Nothing is suggested for numbers that are none.
        {1.0,   7.0,   NaN,    0.6,    0.1,   false, true,    1.0,    7.0},
        {1.0,   7.0,   0.4,    NaN,    0.1,   false, true,    1.0,    7.0},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - rows);
        const auto suggestion =
            LinearPlotAutoScaler::suggest(row.scale, row.offset, row.bottom, row.top, 10, 0.875,
                                          0.125, row.minimumExtent, 1e-9, row.isAdded, row.force);
        EXPECT_DOUBLE_EQ(suggestion.scale, row.newScale);
        EXPECT_DOUBLE_EQ(suggestion.offset, row.newOffset);
    }
}

TEST(LinearPlotAutoScalerTest, WhatIsUnknownGoesBackAsItIsAndNoBandFallsBackToTheFloor)
{
    const auto suggest = LinearPlotAutoScaler::suggest;
    for (const bool force : {false, true}) {
        const auto scale = suggest(NaN, 7.0, 2.0, 3.0, 10, 0.9, 0.1, 0.1, 1e-9, false, force);
        EXPECT_TRUE(std::isnan(scale.scale) && scale.offset == 7.0);
        const auto offset = suggest(1.0, NaN, 2.0, 3.0, 10, 0.9, 0.1, 0.1, 1e-9, false, force);
        EXPECT_TRUE(offset.scale == 1.0 && std::isnan(offset.offset));
    }
    const auto floor = suggest(1.0, 0.0, 0.2, 0.21, 10, 0.9, 0.1, 0.1, NaN, false, true);
    EXPECT_EQ(floor.scale, 1.0);
    // A quotient of zeros is not a number and so not greater than the floor.
    const auto none = suggest(0.0, 0.0, 0.5, 0.5, 10, 0.5, 0.5, 0.1, 1e-9, false, true);
    EXPECT_EQ(none.scale, std::ceil(1e-9 / std::pow(10.0, -9)) * std::pow(10.0, -9));
}

TEST(LinearPlotAutoScalerTest, ApplyingASuggestionBringsTheDataIntoTheBand)
{
    const double ranges[][2] = {{-3.2, 17.0}, {1e6, 1e6 + 3}, {-8e-7, -1e-7}, {0.0, 250.0}};
    for (const auto& range : ranges) {
        LinearAxis axis;
        for (int i = 0; i < 3; ++i) { // The rounded scale moves the centre, the next call mends it.
            const auto suggestion = LinearPlotAutoScaler::suggest(
                axis.scale(), axis.offset(), axis.transform(Axis::Linear, range[0]),
                axis.transform(Axis::Linear, range[1]), axis.numMajorDivisions(), 0.95, 0.05, 0.3,
                1e-12, axis.offsetIsAdded(), false);
            axis.setOffsetAndScale(suggestion.offset, suggestion.scale);
        }
        EXPECT_GE(axis.transform(Axis::Linear, range[0]), 0.05 - 1e-9) << range[0];
        EXPECT_LE(axis.transform(Axis::Linear, range[1]), 0.95 + 1e-9) << range[1];
    }
}
