#include "kestrane/plots/SamplePlotAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>
#include <thread>

using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::SamplePlotAlgorithm;
using tests::exact;
using tests::linearAxis;
using tests::NaN;
using tests::Points;
using tests::segment;
using tests::snapshot;

namespace {

struct Plot
{
    std::vector<Points> polylines;
    std::vector<Points> symbols;
};

Plot plotOf(SamplePlotAlgorithm& algorithm, const QSharedPointer<const Axis>& xAxis,
            double columnWidth, double symbolSpacing = 1.0)
{
    const auto result = algorithm.createSegments(xAxis, linearAxis(), columnWidth, symbolSpacing);
    return {exact(result.first), exact(result.second)};
}

Plot plotOf(PlotSnapshot data, const QSharedPointer<const Axis>& xAxis, double columnWidth,
            double symbolSpacing = 1.0)
{
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(std::move(data));
    return plotOf(algorithm, xAxis, columnWidth, symbolSpacing);
}

void expectNear(const Points& actual, const Points& expected, double tolerance)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_NEAR(actual[i].first, expected[i].first, tolerance) << i;
        EXPECT_NEAR(actual[i].second, expected[i].second, tolerance) << i;
    }
}

} // namespace

TEST(SamplePlotAlgorithmTest, OneSampleAColumnGivesTheSamples)
{
    const std::vector<double> samples{0.25, 0.5, 0.75, 0.5, 0.25, 0.5, 0.75, 0.5, 0.25};
    const Plot plot = plotOf(snapshot({segment(samples)}), linearAxis(8.0), 0.125);
    ASSERT_EQ(plot.polylines.size(), 1u);
    Points expected;
    for (std::size_t i = 0; i < 8; ++i)
        expected.emplace_back(double(i) * 0.125 + 0.0625, samples[i]);
    EXPECT_EQ(plot.polylines[0], expected);
    EXPECT_TRUE(plot.symbols.empty());
}

TEST(SamplePlotAlgorithmTest, SparseSamplesGiveASmoothCurveWithSymbols)
{
    const Plot plot =
        plotOf(snapshot({segment({0.0, 1.0, 0.0}, 0.0, 4.0)}), linearAxis(8.0), 0.125);
    ASSERT_EQ(plot.polylines.size(), 1u);
    expectNear(plot.polylines[0],
               {{0.0625, 0.0},
                {0.1875, 0.3756},
                {0.3125, 0.7010},
                {0.4375, 0.9258},
                {0.5625, 1.0},
                {0.6875, 0.9258},
                {0.8125, 0.7010},
                {0.9375, 0.3756}},
               5e-5);
    EXPECT_EQ(plot.symbols, (std::vector<Points>{{{0.0, 0.0}, {0.5, 1.0}, {1.0, 0.0}}}));
}

TEST(SamplePlotAlgorithmTest, DenseSamplesKeepTheirExtremes)
{
    const Plot plot = plotOf(
        snapshot({segment({0, 1, 0, 1, 0.5, 0.5, 0.5, 0.5, 0.25, 0.25, 0.25, 0.75, 0.5, 0.5, 0.5},
                          0.0, 0.25)}),
        linearAxis(4.0), 0.25);
    EXPECT_EQ(plot.polylines, (std::vector<Points>{{{0.125, 0.0},
                                                    {0.125, 1.0},
                                                    {0.375, 0.5},
                                                    {0.625, 0.25},
                                                    {0.625, 0.75},
                                                    {0.875, 0.5}}}));
}

TEST(SamplePlotAlgorithmTest, SymbolsShowWhereSamplesAreFurtherApartThanTheSpacing)
{
    const PlotSnapshot data = snapshot({segment(std::vector<double>(9, 0.5))});
    const double justBelow = std::nextafter(1.0, 0.0);
    EXPECT_TRUE(plotOf(data, linearAxis(8.0), 0.125, 1.0).symbols.empty());
    EXPECT_EQ(plotOf(data, linearAxis(8.0), 0.125, justBelow).symbols.at(0).size(), 9u);
    EXPECT_TRUE(plotOf(data, linearAxis(8.0), 0.125, NaN).symbols.empty());
}

TEST(SamplePlotAlgorithmTest, SamplesLeftOfTheAxisAreSkippedAndThoseRightOfItNotVisited)
{
    // An axis that counts what it is asked shows that the cost follows what is visible.
    struct CountingAxis : pelorin::ui::chart::LinearAxis
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

TEST(SamplePlotAlgorithmTest, SegmentsStayApart)
{
    const Plot plot = plotOf(snapshot({segment({0.1, 0.2, 0.3}), segment({0.4, 0.5, 0.6}, 5.0)}),
                             linearAxis(8.0), 0.125, 0.5);
    ASSERT_EQ(plot.polylines.size(), 2u);
    EXPECT_EQ(plot.polylines[0], (Points{{0.0625, 0.1}, {0.1875, 0.2}}));
    EXPECT_EQ(plot.polylines[1], (Points{{0.6875, 0.4}, {0.8125, 0.5}}));
    ASSERT_EQ(plot.symbols.size(), 2u);
    EXPECT_EQ(plot.symbols[1], (Points{{0.625, 0.4}, {0.75, 0.5}, {0.875, 0.6}}));
}

TEST(SamplePlotAlgorithmTest, FormsOfTheSegmentGoToTheAxes)
{
    // Abscissae 10^0, 10^0.25 ... 10^1 and values 10^-2 ... 10^0, both given as logarithms.
    const PlotSnapshot data = snapshot(
        {segment({-2.0, -1.5, -1.0, -0.5, 0.0}, 0.0, 0.25, Axis::Logarithmic, Axis::Logarithmic)});
    const Plot plot = plotOf(data, linearAxis(10.0), 0.1, 0.3);
    ASSERT_EQ(plot.polylines.size(), 1u);
    double centre = 0.0;
    for (const auto& point : plot.polylines[0]) {
        if (point.first == centre)
            continue; // Only the first point of a column lies on the curve.
        centre = point.first;
        const double edge = centre - 0.05; // value = 10^(2 log10 x - 2) = (x / 10)^2
        EXPECT_NEAR(point.second, edge * edge, 1e-12) << edge;
    }
    EXPECT_NEAR(centre, 1.05, 1e-12) << "one column past the end";

    // The step 0.25 is held against columns as plain values, whatever its form.
    EXPECT_TRUE(plot.symbols.empty());
    EXPECT_EQ(plotOf(data, linearAxis(10.0), 0.1, 0.2).symbols.at(0).size(), 5u);
}

TEST(SamplePlotAlgorithmTest, ASecondCallBuildsNothingNewAndGivesTheSame)
{
    const PlotSegment own = segment({0.0, 1.0, 0.0, 0.5, 0.25});
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({own}));
    const Plot first = plotOf(algorithm, linearAxis(8.0), 0.03125);
    const Plot second = plotOf(algorithm, linearAxis(8.0), 0.03125);
    EXPECT_EQ(first.polylines, second.polylines);
    EXPECT_EQ(first.symbols, second.symbols);
    EXPECT_FALSE(own.subsampler()) << "the algorithm fills the slots of its own copy only";

    algorithm.setSnapshot(PlotSnapshot());
    EXPECT_TRUE(plotOf(algorithm, linearAxis(8.0), 0.125).polylines.empty());
}

// Whatever the data: three points a column at most, all at its centre, and every visible extreme
// kept.
TEST(SamplePlotAlgorithmTest, EveryColumnKeepsTheExtremesOfItsSamples)
{
    std::mt19937 random(11);
    std::normal_distribution<double> noise;
    for (const int count : {50, 400, 5000}) {
        std::vector<double> samples;
        for (int i = 0; i < count; ++i)
            samples.push_back(noise(random));
        const double width = 1.0 / 64; // Exact in binary, so that column edges are, too.
        const Plot plot = plotOf(snapshot({segment(samples)}), linearAxis(count), width);
        ASSERT_EQ(plot.polylines.size(), 1u);

        std::map<double, Points> columns;
        for (const auto& point : plot.polylines[0])
            columns[point.first].push_back(point);
        for (const auto& column : columns) {
            const double left = column.first - width / 2;
            EXPECT_LE(column.second.size(), 3u);
            for (int i = 0; i < count; ++i) {
                const double position = double(i) * (1.0 / count);
                if (position < left || position >= left + width)
                    continue;
                const auto extremes = std::minmax_element(
                    column.second.begin(), column.second.end(),
                    [](const auto& a, const auto& b) { return a.second < b.second; });
                EXPECT_GE(samples[std::size_t(i)], extremes.first->second);
                EXPECT_LE(samples[std::size_t(i)], extremes.second->second);
            }
        }
    }
}

TEST(SamplePlotAlgorithmTest, NewDataMayComeDuringARequest)
{
    SamplePlotAlgorithm algorithm;
    const std::vector<double> low(1000, 0.25);
    const std::vector<double> high(1000, 0.75);
    algorithm.setSnapshot(snapshot({segment(low)}));
    std::thread measuring([&] {
        for (int i = 0; i < 200; ++i)
            algorithm.setSnapshot(snapshot({segment(i % 2 ? low : high)}));
    });
    for (int i = 0; i < 200; ++i) {
        const Plot plot = plotOf(algorithm, linearAxis(1000.0), 0.01);
        ASSERT_EQ(plot.polylines.size(), 1u);
        for (const auto& point : plot.polylines[0])
            EXPECT_EQ(point.second, plot.polylines[0].front().second);
    }
    measuring.join();
}
