#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

namespace {

struct Plot
{
    std::vector<Points> polylines, symbols;
};

Plot plotOf(SamplePlotAlgorithm& algorithm, const QSharedPointer<const Axis>& xAxis,
            double columnWidth, double symbolSpacing)
{
    const auto result = algorithm.createSegments(xAxis, linearAxis(), columnWidth, symbolSpacing);
    return {exact(result.first), exact(result.second)};
}

// On an axis of eight columns of 1.0, unless told otherwise.
Plot plotOf(PlotSnapshot data, double columnWidth = 0.125, double symbolSpacing = 0.5,
            const QSharedPointer<const Axis>& xAxis = linearAxis(8.0))
{
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(std::move(data));
    return plotOf(algorithm, xAxis, columnWidth, symbolSpacing);
}

PlotSegment withCurve(const PlotSegment& segment, double value)
{
    // A backend's curve: the same everywhere, also outside the samples.
    struct Constant : pelorin::algo::Subsampler
    {
        explicit Constant(double answer)
            : m_answer(answer)
        {}
        double operator[](const double&) override { return m_answer; }
        boost::shared_ptr<Subsampler> tail(long long) override { return {}; }
        double m_answer;
    };
    return segment.setSubsampler(boost::make_shared<Constant>(value));
}

} // namespace

TEST(SamplePlotAlgorithmTest, OneSampleAColumnGivesTheSamples)
{
    const std::vector<double> samples{0.25, 0.5, 0.75, 0.5, 0.25, 0.5, 0.75, 0.5, 0.25};
    const Plot plot = plotOf(snapshot({segment(samples)}), 0.125, 1.0);
    Points expected;
    for (std::size_t i = 0; i < 8; ++i)
        expected.emplace_back(double(i) * 0.125 + 0.0625, samples[i]);
    EXPECT_EQ(plot.polylines, std::vector<Points>{expected});
    EXPECT_TRUE(plot.symbols.empty());
}

TEST(SamplePlotAlgorithmTest, SparseSamplesGiveASmoothCurveWithSymbols)
{
    const Plot plot = plotOf(snapshot({segment({0.0, 1.0, 0.0}, 0.0, 4.0)}), 0.125, 1.0);
    const double curve[] = {0.0, 0.3756, 0.7010, 0.9258, 1.0, 0.9258, 0.7010, 0.3756};
    ASSERT_EQ(plot.polylines.size(), 1u);
    ASSERT_EQ(plot.polylines[0].size(), 8u);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(plot.polylines[0][i].first, double(i) * 0.125 + 0.0625);
        EXPECT_NEAR(plot.polylines[0][i].second, curve[i], 5e-5) << i;
    }
    EXPECT_EQ(plot.symbols, (std::vector<Points>{{{0.0, 0.0}, {0.5, 1.0}, {1.0, 0.0}}}));
}

TEST(SamplePlotAlgorithmTest, DenseSamplesKeepTheirExtremes)
{
    const auto dense =
        segment({0, 1, 0, 1, 0.5, 0.5, 0.5, 0.5, 0.25, 0.25, 0.25, 0.75, 0.5, 0.5, 0.5}, 0.0, 0.25);
    const Points expected{{0.125, 0.0},  {0.125, 1.0},  {0.375, 0.5},
                          {0.625, 0.25}, {0.625, 0.75}, {0.875, 0.5}};
    EXPECT_EQ(plotOf(snapshot({dense}), 0.25, 1.0, linearAxis(4.0)).polylines,
              std::vector<Points>{expected});
}

TEST(SamplePlotAlgorithmTest, SamplesLeftOfTheAxisAreSkippedAndThoseRightOfItNotVisited)
{
    // An axis that counts what it is asked shows that the cost follows what is visible.
    struct CountingAxis : LinearAxis
    {
        using LinearAxis::LinearAxis;
        double transform(ScaleMode mode, double value) const override
        {
            ++transforms;
            return LinearAxis::transform(mode, value);
        }
        mutable int transforms = 0;
    };
    std::vector<double> samples(100000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = std::sin(double(i) * 0.01);
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment(samples)}));

    const auto xAxis = QSharedPointer<CountingAxis>::create(1000.0, 50000.5, 0.0, false, 1);
    const Plot plot = plotOf(algorithm, xAxis, 0.001, 0.5);
    EXPECT_LE(xAxis->transforms, 1003);
    ASSERT_EQ(plot.symbols.size(), 1u);
    // The first symbol is the last sample before the axis.
    EXPECT_EQ(plot.symbols[0].front(), std::make_pair(-0.0005, samples[50000]));
    EXPECT_GT(plot.symbols[0].back().first, 1.0);
    EXPECT_EQ(plot.polylines.at(0).front().first, 0.0005);
    EXPECT_NEAR(plot.polylines.at(0).back().first, 1.0005, 1e-12);
}

TEST(SamplePlotAlgorithmTest, ASecondCallGivesTheSameAndTheSegmentsStayAsTheyAre)
{
    const auto samples = boost::make_shared<pelorin::backend::SampleVector>(
        pelorin::backend::SampleVector{0.0, 1.0, 0.0, 0.5, 0.25});
    const PlotSegment own(samples);
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({own}));
    const long withoutSpline = samples.use_count();
    const Plot first = plotOf(algorithm, linearAxis(8.0), 0.03125, 1.0);
    const long withSpline = samples.use_count();
    EXPECT_GT(withSpline, withoutSpline) << "the spline, which reads the samples, is kept";
    EXPECT_EQ(first.polylines, plotOf(algorithm, linearAxis(8.0), 0.03125, 1.0).polylines);
    EXPECT_EQ(samples.use_count(), withSpline);
    EXPECT_FALSE(own.subsampler()) << "the algorithm fills the slots of its own copy only";
    algorithm.setSnapshot(PlotSnapshot());
    EXPECT_TRUE(plotOf(algorithm, linearAxis(8.0), 0.125, 1.0).polylines.empty());
}

TEST(SamplePlotAlgorithmTest, ArgumentsThatLeaveNothingToDraw)
{
    const PlotSnapshot data = snapshot({segment({0.1, 0.2, 0.3})});
    for (const double width : {0.0, -0.0, -0.125, -Infinity, 1e-16, 1e-17, 1e-300}) {
        EXPECT_TRUE(plotOf(data, width).polylines.empty()) << width;
        EXPECT_TRUE(plotOf(data, width).symbols.empty()) << width;
    }
    EXPECT_TRUE(plotOf(data, 0.125, 0.5, {}).polylines.empty());
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(data);
    EXPECT_TRUE(algorithm.createSegments(linearAxis(), {}, 0.125, 0.5).second.isEmpty());
    EXPECT_TRUE(plotOf(snapshot({segment({})})).polylines.empty());
}

TEST(SamplePlotAlgorithmTest, EdgesOfTheData)
{
    const PlotSegment pair = segment({0.5, 0.5}, 0.25, 0.5); // In one column, behind its edge.
    const PlotSegment right = segment({0.5, 0.5, 0.5}, 9.0);
    struct Row
    {
        const char* what;
        PlotSnapshot data;
        double columnWidth;
        std::vector<Points> polylines, symbols;
    };
    const std::vector<Points> threeSymbols{{{0.0, 0.1}, {0.125, 0.2}, {0.25, 0.3}}};
    const std::vector<Points> pairOfSymbols{{{0.03125, 0.5}, {0.09375, 0.5}}};
    // clang-format off
    const Row rows[] = {
        {"two segments", snapshot({segment({0.1, 0.2, 0.3}), segment({0.4, 0.5, 0.6}, 5.0)}), 0.125,
         {{{0.0625, 0.1}, {0.1875, 0.2}}, {{0.6875, 0.4}, {0.8125, 0.5}}},
         {threeSymbols[0], {{0.625, 0.4}, {0.75, 0.5}, {0.875, 0.6}}}},
        {"a lone sample on an edge", snapshot({segment({0.5}, 3.0)}), 0.125, {}, {{{0.375, 0.5}}}},
        {"one between edges", snapshot({segment({0.5}, 3.5)}), 0.125, {}, {{{0.4375, 0.5}}}},
        {"a lone point whose curve ends", snapshot({pair}), 0.125, {}, pairOfSymbols},
        {"one that the next column joins", snapshot({withCurve(pair, 0.75)}), 0.125,
         {{{0.0625, 0.5}, {0.1875, 0.75}}}, pairOfSymbols},
        {"one that joins itself", snapshot({withCurve(pair, NaN)}), 0.125,
         {{{0.0625, 0.5}, {0.0625, 0.5}}}, pairOfSymbols},
        {"data on the left", snapshot({segment({0.1, 0.2, 0.3}, -9.0)}), 0.125, {}, {}},
        {"data on the right", snapshot({right}), 0.125, {}, {}},
        {"the same, 1.0 inside a column", snapshot({right}), 0.3125,
         {{{1.09375, 0.5}, {1.40625, 0.5}}}, {{{1.125, 0.5}, {1.25, 0.5}}}},
        {"a far sample ends the walk", snapshot({segment({0.25, 0.75}, 0.0, 80.0)}), 1.0,
         {{{0.5, 0.25}, {1.5, 0.3}, {1.5, 0.75}}}, {{{0.0, 0.25}, {10.0, 0.75}}}},
        {"no samples behind a segment",
         snapshot({segment({0.1, 0.2, 0.3}), withCurve(segment({}), 0.5)}), 0.125,
         {{{0.0625, 0.1}, {0.1875, 0.2}}, {{0.3125, 0.5}, {0.4375, 0.5}}}, threeSymbols},
        {"NaN among the samples", snapshot({segment({0.1, NaN, 0.3})}), 0.125, {},
         {{{0.0, 0.1}, {0.25, 0.3}}}},
        {"one endless column", snapshot({segment({0.5, 0.25, 0.75})}), Infinity,
         {{{Infinity, 0.5}, {Infinity, 0.25}, {Infinity, 0.75}}}, {}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const Plot plot = plotOf(row.data, row.columnWidth, 0.25);
        EXPECT_EQ(plot.polylines, row.polylines) << row.what;
        EXPECT_EQ(plot.symbols, row.symbols) << row.what;
    }
}

TEST(SamplePlotAlgorithmTest, ASubclassOfTheSplineMayAnswerWhereTheSplineDoesNot)
{
    struct Held : pelorin::algo::SplineAlgorithm<SampleIterator>
    {
        using SplineAlgorithm::SplineAlgorithm;
        double operator[](const double& index) override
        {
            return covers(index) ? SplineAlgorithm::operator[](index) : 0.9;
        }
    };
    const PlotSegment held = segment({0.1, 0.2, 0.3});
    held.setSubsampler(boost::make_shared<Held>(held.begin, held.count));
    EXPECT_EQ(plotOf(snapshot({held})).polylines.at(0).back(), std::make_pair(0.3125, 0.3));
}
