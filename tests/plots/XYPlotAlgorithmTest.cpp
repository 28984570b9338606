#include "kestrane/plots/XYPlotAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <future>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

static_assert(std::is_base_of_v<PointsBasedPlotHelper, XYPlotAlgorithm>);

namespace {

using Lists = std::vector<Points>;

struct Plot
{
    Lists polylines, symbols;
};

Plot plotOf(XYPlotAlgorithm& algorithm, double columnWidth = 0.125,
            const QSharedPointer<const Axis>& xAxis = linearAxis(),
            const QSharedPointer<const Axis>& yAxis = linearAxis())
{
    const auto result = algorithm.createSegments(xAxis, yAxis, columnWidth, 1.0);
    return {exact(result.first), exact(result.second)};
}

Plot plotOf(const PlotSnapshot& x, const PlotSnapshot& y, double columnWidth = 0.125)
{
    XYPlotAlgorithm algorithm;
    algorithm.setSnapshot(x, y);
    return plotOf(algorithm, columnWidth);
}

} // namespace

TEST(XYPlotAlgorithmTest, PointsBecomeColumnsLinesAndSymbols)
{
    struct Row
    {
        const char* what;
        std::vector<double> x, y;
        Lists polylines, symbols;
    };
    const Lists four{{{0.0, 1}, {0.25, 2}, {0.5, 3}, {0.75, 4}}};
    const Lists split{{{0.0, 1}, {0.25, 2}}, {{0.5, 3}, {0.75, 4}}};
    // clang-format off
    const Row rows[] = {
        {"a point a column", {0.0, 0.25, 0.5, 0.75}, {1, 2, 3, 4}, four, four},
        {"two a column", {0.0, 0.0625, 0.25, 0.3125}, {1, 3, 2, 0},
         {{{0.0, 1}, {0.0, 3}, {0.25, 2}, {0.25, 0}, {0.25, 2}, {0.25, 0}}}, {}},
        {"an x of NaN", {0.0, 0.25, NaN, 0.5, 0.75}, {1, 2, 9, 3, 4}, split, split},
        {"a y of NaN", {0.0, 0.25, 0.5, 0.75}, {1, NaN, 3, 4},
         {{{0.0, 1}, {0.125, 1}}, split[1]}, {{{0.0, 1}}, split[1]}},
        {"a lone point", {0.5}, {1}, {{{0.5, 1}, {0.625, 1}}}, {{{0.5, 1}}}},
        {"a step back", {0.0, 0.5, 0.25, 0.75}, {1, 2, 3, 4},
         {{{0.0, 1}, {0.5, 2}, {0.25, 3}, {0.75, 4}}}, {}},
        {"more x than y", {0.0, 0.25, 0.5, 0.75, 1.0}, {1, 2}, {split[0]}, {split[0]}},
        {"-1.0 is no column", {-1.0, 0.5}, {1, 2}, {{{0.5, 1}, {0.5, 2}}}, {{{-1.0, 1}, {0.5, 2}}}},
        {"nor is it in between", {-1.5, -1.0, -0.5}, {1, 2, 3},
         {{{-1.5, 1}, {-0.5, 2}, {-0.5, 3}}}, {{{-1.5, 1}, {-1.0, 2}, {-0.5, 3}}}},
        {"nor where symbols have ended", {0.0, 0.05, -1.5, -1.0, -0.5}, {1, 2, 3, 4, 5},
         {{{0, 1}, {0, 2}, {-1.5, 3}, {-0.5, 4}, {-0.5, 5}}}, {}},
        {"NaN alone", {NaN, 0.5}, {1, NaN}, {}, {}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const Plot plot = plotOf(snapshot({segment(row.x)}), snapshot({segment(row.y)}));
        EXPECT_EQ(plot.polylines, row.polylines) << row.what;
        EXPECT_EQ(plot.symbols, row.symbols) << row.what;
    }
}

TEST(XYPlotAlgorithmTest, EachPairOfSegmentsStandsAloneAndItsGridDoesNotCount)
{
    PlotSegment x = segment({-Infinity, 0.0}, NaN, 0.0, Axis::Linear, Axis::Logarithmic);
    PlotSegment y = segment({1.0, 2.0}, 7.0, NaN, Axis::Linear, Axis::Logarithmic);
    x.count = 0;
    y.count = 1;
    const Plot plot = plotOf(snapshot({segment({0.0, 0.0625}), x, x, x}),
                             snapshot({segment({0.5, 0.5}), y, segment({3, 4, 5})}));
    const Lists expected{{{0.0, 0.5}, {0.125, 0.5}}, {{0, 10}, {1, 100}}, {{0, 3}, {1, 4}}};
    EXPECT_EQ(plot.polylines, expected);
    EXPECT_EQ(plot.symbols, Lists(expected.begin() + 1, expected.end()));
}

TEST(XYPlotAlgorithmTest, ALongLineIsComplete)
{
    std::vector<double> x;
    Points points;
    for (int i = 0; i < 300000; ++i) {
        x.push_back(i / 512.0);
        points.emplace_back(x.back(), x.back());
    }
    const PlotSnapshot data = snapshot({segment(x)});
    const Plot plot = plotOf(data, data, 1.0 / 512);
    EXPECT_EQ(plot.polylines, Lists{points});
    EXPECT_EQ(plot.symbols, Lists{points});
}

TEST(XYPlotAlgorithmTest, ColumnWidthsAndWhatLeavesNothingToDraw)
{
    const PlotSnapshot x = snapshot({segment({0.5, 0.0, 0.75})}),
                       y = snapshot({segment({1, 2, 3})});
    EXPECT_EQ(plotOf(x, y, NaN).polylines, (Lists{{{0.5, 1}, {0.5, 3}}}));
    EXPECT_EQ(plotOf(x, y, NaN).symbols, (Lists{{{0.5, 1}, {0.0, 2}, {0.75, 3}}}));
    EXPECT_EQ(plotOf(x, y, Infinity).polylines, (Lists{{{0.5, 1}, {0.5, 3}}}));
    for (const double width : {0.0, -0.0, -0.125, -Infinity})
        EXPECT_TRUE(plotOf(x, y, width).polylines.empty()) << width;
    EXPECT_TRUE(plotOf(x, PlotSnapshot()).polylines.empty());
    EXPECT_TRUE(plotOf(PlotSnapshot(), y).symbols.empty());

    XYPlotAlgorithm algorithm;
    EXPECT_TRUE(plotOf(algorithm).polylines.empty());
    algorithm.setSnapshot(x, y);
    EXPECT_TRUE(plotOf(algorithm, 0.125, {}).polylines.empty());
    EXPECT_TRUE(plotOf(algorithm, 0.125, linearAxis(), {}).polylines.empty());
    EXPECT_EQ(plotOf(algorithm).polylines.size(), 1u);
}

TEST(XYPlotAlgorithmTest, NewDataWaitForARequestAndRequestsForNothingDoNot)
{
    const auto samples = boost::make_shared<SampleVector>(1, 0.5);
    const PlotSnapshot data = snapshot({PlotSegment(samples)});
    XYPlotAlgorithm algorithm;
    algorithm.setSnapshot(data, data);
    const long before = samples.use_count();
    long during = 0;
    std::future<void> later;
    QSharedPointer<const Axis> axis;
    axis = QSharedPointer<HookedAxis>::create([&](double) {
        during = samples.use_count();
        EXPECT_TRUE(plotOf(algorithm, 0.125, {}).symbols.empty());
        EXPECT_TRUE(plotOf(algorithm, 0.125, axis, {}).symbols.empty());
        EXPECT_TRUE(plotOf(algorithm, 0.0, axis).symbols.empty());
        later = std::async(std::launch::async, [&] { algorithm.setSnapshot({}, {}); });
        EXPECT_EQ(later.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    });
    EXPECT_EQ(plotOf(algorithm, 0.125, axis).symbols.size(), 1u);
    EXPECT_GE(during, before + 4) << "two copied segments";
    later.get();

    algorithm.setSnapshot(data, data);
    axis = QSharedPointer<HookedAxis>::create([](double) { throw 1; });
    EXPECT_THROW(plotOf(algorithm, 0.125, linearAxis(), axis), int);
    EXPECT_EQ(plotOf(algorithm).symbols.size(), 1u);
    EXPECT_EQ(samples.use_count(), before);
}

TEST(XYPlotAlgorithmTest, SamplesMayAskForTheNewPlotWhenTheyDieIfItIsEmpty)
{
    XYPlotAlgorithm algorithm;
    int answers = 0;
    const auto data = [&] {
        const auto ask = [&](SampleVector* samples) {
            delete samples;
            answers += plotOf(algorithm).symbols.empty();
        };
        return snapshot({PlotSegment(boost::shared_ptr<SampleVector>(new SampleVector(1), ask))});
    };
    algorithm.setSnapshot(data(), data());
    algorithm.setSnapshot(PlotSnapshot(), data());
    algorithm.setSnapshot(data(), PlotSnapshot());
    algorithm.setSnapshot(PlotSnapshot(), PlotSnapshot());
    EXPECT_EQ(answers, 4);
}
