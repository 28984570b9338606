// New data while plots are asked for: each answer has to come of one setSnapshot() as a whole.
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"

#include "tests/stress/Threads.h"
#include "tests/support/Builders.h"

#include <gtest/gtest.h>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// Every fourth snapshot is empty, the others hold nothing but their number, as often as it says.
template<typename SetData, typename Check>
void exercise(const SetData& setData, const Check& check)
{
    runThreads([&](std::size_t thread) {
        repeat(300, [&](std::size_t round) {
            if (thread % 2 != 0)
                return check();
            const std::size_t number = (round + thread) % 4 * 16;
            setData(number == 0 ? PlotSnapshot()
                                : snapshot({segment(std::vector<double>(number, double(number)))}));
        });
    });
}

} // namespace

TEST(PlotStressTest, SamplePlotsAreOfOneSnapshot)
{
    SamplePlotAlgorithm plot;
    const auto axis = linearAxis(64.0);
    exercise([&](const PlotSnapshot& data) { plot.setSnapshot(data); },
             [&] {
                 const auto lists =
                     exact(plot.createSegments(axis, linearAxis(), 0.01, 0.5).second);
                 for (const Points& symbols : lists) {
                     for (const auto& symbol : symbols)
                         EXPECT_EQ(symbol.second, double(symbols.size()));
                 }
                 plot.doIntersect(axis.get(), axis.get(), 0.1);
             });
}

TEST(PlotStressTest, XAndYAreOfOneSnapshot)
{
    XYPlotAlgorithm plot;
    const auto axis = linearAxis();
    exercise([&](const PlotSnapshot& data) { plot.setSnapshot(data, data); },
             [&] {
                 const auto lists = exact(plot.createSegments(axis, axis, 0.1, 0.0).second);
                 for (const Points& symbols : lists) {
                     const double size = double(symbols.size());
                     EXPECT_EQ(symbols, Points(symbols.size(), {size, size}));
                 }
             });
}

TEST(PlotStressTest, NeedlesAreOfOneSnapshot)
{
    NeedlePlotAlgorithm plot;
    const auto axis = linearAxis(64.0);
    exercise([&](const PlotSnapshot& data) { plot.setSnapshot(data); },
             [&] {
                 const auto result = plot.createNeedles(axis.get(), linearAxis().get(), 0.01);
                 const double size = double(result.values.size());
                 EXPECT_EQ(result.lastPosition, size / 64.0);
                 EXPECT_EQ(result.values, SampleVector(result.values.size(), size));
             });
}
