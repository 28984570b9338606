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
using pelorin::backend::PlotSegment;

// What nobody has written is some large number from now on.
static Q_NEVER_INLINE void fillStack()
{
    volatile double memory[8192];
    for (volatile double& place : memory)
        place = 1e300;
}

TEST(SamplePlotDifferentialTest, AgreesWithThePlainRulesBitForBit)
{
    Seen seen;
    const Seeds seeds(usualCases(4000));
    for (unsigned seed = seeds.first; seed < seeds.end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        compareSamplePlots(dice, seen);
    }
    EXPECT_GT(seen.of["polylines"], usualCases(2000));
    EXPECT_GT(seen.of["symbols"], usualCases(2000));
    EXPECT_EQ(seen.axes.size(), 16u); // Every pair of linear, logarithmic, mirrored and aggregate.
}

TEST(SamplePlotDifferentialTest, AgreesWhereShortcutsAreHardToTake)
{
    const auto sine = [](int i) { return std::sin(i); };
    // Numbers that are next to the extremes, as far as logarithms tell.
    const auto near = [](double extreme, int i) {
        return extreme + (5.0 - extreme) * 1e-16 * (i * 7 % 13);
    };
    const auto log = [](double smallest, double largest) {
        return QSharedPointer<const Axis>(new LogAxis(smallest, largest));
    };
    const auto decades = log(1.0, 100.0);
    const auto wide = linearAxis(20000.0);
    const struct
    {
        const char* what;
        int count;
        std::function<double(int)> sample;
        double offset, step;
        QSharedPointer<const Axis> xAxis, yAxis;
        double columnWidth;
    } rows[] = {
        // clang-format off
        {"extremes far behind", 20000,
         [&](int i) { return i % 5000 == 4700 ? 2.0 : 3.0 + sine(i); },
         0.0, 1.0, wide, decades, 0.25},
        {"extremes in each block", 20000,
         [&](int i) { return i % 64 < 2 ? near(2.0 + 7.0 * (i % 64), i % 999 < 99 ? i : 0) : 4.0; },
         0.0, 1.0, wide, decades, 0.25},
        {"extremes in some blocks", 20000,
         [&](int i) { return i % 999 < 2 ? near(2.0 + 7.0 * (i % 2), i) : 4.0; },
         0.0, 1.0, wide, decades, 0.25},
        {"many beside the extremes", 20000,
         [&](int i) { return i % 97 == 0 ? near(2.0, i) : i % 89 == 0 ? near(9.0, i) : 4.0; },
         0.0, 1.0, wide, decades, 0.25},
        {"a few beside them", 20000,
         [&](int i) { return i % 47 == 0 ? near(2.0, i) : i % 43 == 0 ? near(9.0, i) : 4.0; },
         0.0, 1.0, wide, decades, 1.0 / 256},
        {"one beside them in a block", 20000,
         [&](int i) {
             const int at = i % 128, block = i / 128;
             return at == 5    ? 9.0
                    : at == 20 ? 2.5
                    : at == 70 && block % 9 == 4 ? near(9.0, block)
                    : at == 99 && block % 7 == 3 ? near(2.5, block) : 4.0;
         },
         0.0, 1.0, wide, decades, 1.0 / 16},
        {"some beside them in the first blocks of groups", 20000,
         [&](int i) {
             const int at = i % 128, block = i / 128;
             const bool hasExtremes = block % 39 == 2, hasNear = block % 16 == 0 && block % 39 > 19;
             const bool isHigh = block / 16 % 2 == 0;
             return at == 5 && hasExtremes              ? 9.0
                    : at == 20 && hasExtremes           ? 2.5
                    : at == 70 && hasNear && isHigh     ? near(9.0, block)
                    : at == 99 && hasNear && !isHigh    ? near(2.5, block) : 4.0;
         },
         0.0, 1.0, wide, decades, 0.25},
        {"extremes at the ends of blocks", 20000,
         [&](int i) {
             const int at = i % 128, block = i / 128;
             return at == 0 ? 90.0 - 0.01 * block : at == 127 ? 2.0 - 0.005 * block : 4.0;
         },
         0.0, 1.0, wide, linearAxis(99.0), 1.0 / 16},
        {"a parabola", 20000, [](int i) { return double(i) * i; },
         0.0, 1.0, wide, linearAxis(4e8), 0.005},
        {"samples that share places", 4000, sine,
         1e15, 0.01, linearAxis(40.0, 1e15), linearAxis(), 0.02},
        {"columns that share places", 4000, sine,
         1e16, 0.01, linearAxis(40.0, 1e16), linearAxis(), 0.001},
        {"columns narrower than a step", 400, sine,
         1e16, 2.0, linearAxis(40.0, 1e16), linearAxis(), 0.01},
        {"logarithms that share places", 4000, sine,
         1e14 - 8e3, 4.0, log(1e9, 1e19), linearAxis(), 0.125},
        {"an axis from nowhere", 9, sine,
         0.0, 1.0, linearAxis(9.0), linearAxis(1.0, Infinity), 0.25},
        // clang-format on
    };
    for (const auto& row : rows) {
        // What lies around the samples is not to be read.
        std::vector<double> memory(std::size_t(row.count) + 2, NaN);
        for (int i = 0; i < row.count; ++i)
            memory[std::size_t(i) + 1] = row.sample(i);
        const auto whole = segment(memory, row.offset, row.step);
        const auto data = snapshot({PlotSegment(whole.begin + 1, whole.end - 1, whole.xInfo)});
        const auto expected = plainSamplePlot(data, *row.xAxis, *row.yAxis, row.columnWidth, 1.0);
        SamplePlotAlgorithm plot;
        plot.setSnapshot(data);
        for (int turn = 0; turn < 2; ++turn) { // Some of what the first one finds out is kept.
            fillStack();
            const auto lists = plot.createSegments(row.xAxis, row.yAxis, row.columnWidth, 1.0);
            EXPECT_TRUE(same(exact(lists.first), expected.first)) << row.what;
            EXPECT_TRUE(same(exact(lists.second), expected.second)) << row.what;
        }
    }
}

TEST(XYAndNeedlesDifferentialTest, AgreeWithThePlainRulesBitForBit)
{
    Seen seen;
    const Seeds seeds(usualCases(4000));
    for (unsigned seed = seeds.first; seed < seeds.end && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        compareXYPlots(dice, seen);
        compareNeedles(dice, seen);
    }
    EXPECT_GT(seen.of["lines"], usualCases(2000));
    EXPECT_GT(seen.of["symbols"], usualCases(2000));
    EXPECT_GT(seen.of["needles"], usualCases(10000));
    EXPECT_GT(seen.of["throws"], usualCases(5));
    EXPECT_EQ(seen.axes.size(), 16u); // Every pair of linear, logarithmic, mirrored and aggregate.
}
