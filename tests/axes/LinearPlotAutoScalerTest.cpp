#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::LinearAxis;
using pelorin::ui::chart::LinearPlotAutoScaler;
using tests::NaN;

namespace {

struct Data
{
    double bottom;
    double top;
    double scale = 1.0;
    double minimumExtent = 0.1;
    bool offsetIsAdded = false;
    bool force = false;
};

LinearPlotAutoScaler::Suggestion suggest(const Data& data)
{
    return LinearPlotAutoScaler::suggest(data.scale, 0.0, data.bottom, data.top, 10, 0.9, 0.1,
                                         data.minimumExtent, 1e-9, data.offsetIsAdded, data.force);
}

} // namespace

TEST(LinearPlotAutoScalerTest, MovesDataThatLeaveTheBandAndRoundsTheScaleUp)
{
    struct Row
    {
        Data data;
        double scale;
        double offset;
    };
    // clang-format off
    const Row rows[] = {
        // bottom  top   scale  extent added  force    scale   offset
        {{0.4,    0.6,   1.0,   0.1,   false, false},  1.0,    0.0},
        {{0.4,    0.6,   1.0,   0.1,   false, true},   1.0,    0.0},
        {{0.6,    1.0,   1.0,   0.1,   false, false},  1.0,    3.0},
        {{0.6,    1.0,   1.0,   0.1,   true,  false},  1.0,   -3.0},
        {{0.6,    1.0,   3.0,   0.1,   false, false},  3.0,    9.0},
        {{2.0,    3.0,   1.0,   0.2,   false, false},  2.0,   15.0},
        {{0.2,    0.25,  1.0,   0.1,   false, false},  0.07,   1.9},
        {{0.5,    0.5,   1.0,   0.1,   false, false},  2e-9,   5.0},
        {{NaN,    0.6,   1.0,   0.1,   false, true},   1.0,    0.0},
        {{0.4,    NaN,   1.0,   0.1,   false, true},   1.0,    0.0},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.data.bottom << " to " << row.data.top);
        EXPECT_NEAR(suggest(row.data).scale, row.scale, 1e-15);
        EXPECT_NEAR(suggest(row.data).offset, row.offset, 1e-7);
    }
    EXPECT_TRUE(std::isnan(suggest({0.6, 1.0, NaN}).scale));
}

TEST(LinearPlotAutoScalerTest, NoBandFallsBackToTheFloor)
{
    // A quotient of zeros is not a number and so not greater than the floor.
    const auto suggestion =
        LinearPlotAutoScaler::suggest(0.0, 0.0, 0.5, 0.5, 10, 0.5, 0.5, 0.1, 1e-9, false, true);
    EXPECT_EQ(suggestion.scale, std::ceil(1e-9 / std::pow(10.0, -9)) * std::pow(10.0, -9));

    const auto unknown =
        LinearPlotAutoScaler::suggest(1.0, 0.0, 0.2, 0.21, 10, 0.9, 0.1, 0.1, NaN, false, true);
    EXPECT_EQ(unknown.scale, 1.0);
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
