// What takes no memory at all, and how much a repeated request takes beside its result.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"

#include "tests/faults/Faults.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>
#include <gmock/gmock.h>

#include <functional>
#include <utility>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

template<typename Operation>
long allocationsOf(const Operation& operation)
{
    const long before = allocations();
    operation();
    return allocations() - before;
}

// The second time; of the memory taken only what is given back again, while the result lives.
template<typename Request>
long takenBesideResult(const Request& request)
{
    request();
    const long made = allocations(), live = liveAllocations();
    const auto result = request();
    return (allocations() - made) - (liveAllocations() - live);
}

std::vector<double> wave(int count)
{
    std::vector<double> samples;
    for (int i = 0; i < count; ++i)
        samples.push_back(i % 17 - 0.1 * (i % 5));
    return samples;
}

} // namespace

TEST(AllocationsTest, AxesAskedAndMovedTakeNoMemory)
{
    LinearAxis linear;
    LogAxis log(1.0, 1e3);
    MirroredAxis mirror(&log);
    AggregateAxis aggregate;
    aggregate.addAxis(&mirror, 0.0, 0.5).addAxis(&linear, 0.5, 1.0);
    for (Axis* const axis : {static_cast<Axis*>(&linear), static_cast<Axis*>(&log),
                             static_cast<Axis*>(&mirror), static_cast<Axis*>(&aggregate)}) {
        for (const auto mode : {Axis::Linear, Axis::Logarithmic}) {
            EXPECT_EQ(allocationsOf([&] { axis->transform(mode, 3.0); }), 0);
            EXPECT_EQ(allocationsOf([&] { axis->inverseTransform(mode, 0.3); }), 0);
        }
        EXPECT_EQ(allocationsOf([&] { return axis->minValue() + axis->maxValue(); }), 0);
        EXPECT_EQ(allocationsOf([&] { return axis->smallestTickDistance(true); }), 0);
        axis->majorTicks();
        if (axis != &aggregate) { // Which merges ticks at each call.
            EXPECT_EQ(allocationsOf([&] { return axis->majorTicks(); }), 0);
            EXPECT_EQ(allocationsOf([&] { return axis->minorTicks(); }), 0);
        }
    }
    LinearAxis lone;
    LogAxis loneLog(1.0, 1e3); // The other one has a mirror, which renews its ticks at once.
    for (Axis* const axis : {static_cast<Axis*>(&lone), static_cast<Axis*>(&loneLog)}) {
        const auto base = axis->scrollScaleState();
        EXPECT_EQ(allocationsOf([&] { axis->scrollAxis(0.7, 0.1, base); }), 0);
        EXPECT_EQ(allocationsOf([&] { axis->scaleAxis(0.7, 0.1, base); }), 0);
    }
    const auto suggest = [] {
        LinearPlotAutoScaler::suggest(1.0, 0.0, 0.1, 2.0, 10, 0.9, 0.1, 0.3, 1e-9, false, true);
    };
    EXPECT_EQ(allocationsOf(suggest), 0);
}

// A few lists, however many samples and cells there are.
TEST(AllocationsTest, ARepeatedRequestTakesItsResultAndLittleElse)
{
    for (const int size : {1000, 100000}) {
        const auto x = linearAxis(size), y = linearAxis(40.0, -20.0);
        const auto data = snapshot({segment(wave(size))});
        const double width = 10.0 / size;
        SamplePlotAlgorithm samplePlot;
        NeedlePlotAlgorithm needlePlot;
        XYPlotAlgorithm xyPlot;
        Histogram2DPlotAlgorithm histogram;
        samplePlot.setSnapshot(data);
        needlePlot.setSnapshot(data);
        xyPlot.setSnapshot(data, data);
        histogram.setSnapshot(Grids<double>({grid<double>({100, size / 100}, wave(size))}));
        const pelorin::ui::ColorMap map;
        const long taken[] = {
            takenBesideResult([&] { return samplePlot.createSegments(x, y, width, 1.0); }),
            takenBesideResult(
                [&] { return needlePlot.createNeedles(x.data(), y.data(), width).values; }),
            takenBesideResult([&] { return xyPlot.createSegments(y, y, width, 1.0); }),
            takenBesideResult([&] { return histogram.makeColorArrays(x, x, map, width, 0.1); })};
        EXPECT_THAT(taken,
                    testing::ElementsAre(testing::Le(2), 0, testing::Le(5), testing::Le(30)));
    }
}
