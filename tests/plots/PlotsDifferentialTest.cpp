// The plots of lines against their plain rules, bit for bit.
#include "kestrane/axes/LogAxis.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"

#include "tests/plots/PlainSamplePlot.h"
#include "tests/support/Comparisons.h"
#include "tests/support/Seeds.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace pelorin::ui::chart;
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

TEST(SamplePlotDifferentialTest, AgreesWhereShortcutsAreHardToTake)
{
    using AxisPointer = QSharedPointer<const Axis>;
    const AxisPointer decades = QSharedPointer<LogAxis>::create(1.0, 100.0);
    const double next = 2.0 * (1.0 + 1e-13); // Beside 2.0, as far as logarithms tell.
    const struct
    {
        const char* what;
        int count;
        std::function<double(int)> sample;
        double offset, step;
        AxisPointer xAxis, yAxis;
        double columnWidth;
    } rows[] = {
        {"extremes far behind", 20000,
         [](int i) { return i % 5000 == 4700 ? 2.0 : 3.0 + std::sin(i); }, 0.0, 1.0,
         linearAxis(20000.0), decades, 0.25},
        {"extremes in each block", 20000,
         [=](int i) {
             return i % 64 == 0 ? 2.0 : i % 64 == 1 ? 9.0 : i == 7000 ? next : 4.0;
         },
         0.0, 1.0, linearAxis(20000.0), decades, 0.25},
        {"extremes in some blocks", 20000,
         [=](int i) {
             return i == 300 ? 2.0 : i == 500 ? 9.0 : i == 700 ? next : 4.0 + i % 2;
         },
         0.0, 1.0, linearAxis(20000.0), decades, 0.25},
        {"a parabola", 20000, [](int i) { return double(i) * i; }, 0.0, 1.0, linearAxis(20000.0),
         linearAxis(4e8), 0.005},
        {"samples that share places", 4000, [](int i) { return std::sin(i); }, 1e15, 0.01,
         linearAxis(40.0, 1e15), linearAxis(), 0.02},
        {"columns that share places", 4000, [](int i) { return std::sin(i); }, 1e16, 0.01,
         linearAxis(40.0, 1e16), linearAxis(), 0.001},
        {"columns narrower than a step", 400, [](int i) { return std::sin(i); }, 1e16, 2.0,
         linearAxis(40.0, 1e16), linearAxis(), 0.01},
        {"an axis from nowhere", 9, [](int i) { return double(i); }, 0.0, 1.0, linearAxis(9.0),
         linearAxis(1.0, Infinity), 0.25},
    };
    for (const auto& row : rows) {
        std::vector<double> samples;
        for (int i = 0; i < row.count; ++i)
            samples.push_back(row.sample(i));
        const auto data = snapshot({segment(samples, row.offset, row.step)});
        const auto expected = plainSamplePlot(data, *row.xAxis, *row.yAxis, row.columnWidth, 1.0);
        SamplePlotAlgorithm plot;
        plot.setSnapshot(data);
        for (int turn = 0; turn < 2; ++turn) { // Some of what the first one finds out is kept.
            const auto lists = plot.createSegments(row.xAxis, row.yAxis, row.columnWidth, 1.0);
            EXPECT_TRUE(same(exact(lists.first), expected.first)) << row.what;
            EXPECT_TRUE(same(exact(lists.second), expected.second)) << row.what;
        }
    }
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
