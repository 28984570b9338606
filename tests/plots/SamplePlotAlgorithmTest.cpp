#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

using pelorin::algo::Subsampler;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleIterator;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::SamplePlotAlgorithm;
using tests::exact;
using tests::Infinity;
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

// On an axis of eight columns of 1.0.
Plot plotOf(PlotSnapshot data, double columnWidth = 0.125, double symbolSpacing = 0.5)
{
    return plotOf(std::move(data), linearAxis(8.0), columnWidth, symbolSpacing);
}

// A backend's curve: the same everywhere, also outside the samples.
class Constant : public Subsampler
{
public:
    explicit Constant(double value)
        : m_value(value)
    {}

    double operator[](const double&) override { return m_value; }
    boost::shared_ptr<Subsampler> tail(long long) override { return {}; }

private:
    double m_value;
};

PlotSegment withCurve(const PlotSegment& segment, double value)
{
    return segment.setSubsampler(boost::make_shared<Constant>(value));
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

TEST(SamplePlotAlgorithmTest, ArgumentsThatLeaveNothingToDraw)
{
    const PlotSnapshot data = snapshot({segment({0.1, 0.2, 0.3})});
    for (const double width : {0.0, -0.0, -0.125, -Infinity, 1e-17, 1e-300}) {
        EXPECT_TRUE(plotOf(data, width).polylines.empty()) << width;
        EXPECT_TRUE(plotOf(data, width).symbols.empty()) << width;
    }
    EXPECT_TRUE(plotOf(data, {}, 0.125).polylines.empty());
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(data);
    EXPECT_TRUE(algorithm.createSegments(linearAxis(), {}, 0.125, 0.5).second.isEmpty());
    EXPECT_TRUE(plotOf(PlotSnapshot()).polylines.empty());
    EXPECT_TRUE(plotOf(snapshot({segment({})})).polylines.empty());
}

TEST(SamplePlotAlgorithmTest, ColumnWidthsThatAreNoNumberMakeOneColumn)
{
    const Plot unknown = plotOf(snapshot({segment({0.5, 0.25, 0.75})}), NaN);
    ASSERT_EQ(unknown.polylines.size(), 1u);
    ASSERT_EQ(unknown.polylines[0].size(), 3u); // Curve, minimum, maximum.
    EXPECT_TRUE(std::isnan(unknown.polylines[0][0].first));
    EXPECT_EQ(unknown.polylines[0][1].second, 0.25);
    EXPECT_TRUE(unknown.symbols.empty());

    const Plot endless = plotOf(snapshot({segment({0.5, 0.25, 0.75})}), Infinity);
    ASSERT_EQ(endless.polylines.size(), 1u);
    EXPECT_EQ(endless.polylines[0], (Points{{Infinity, 0.5}, {Infinity, 0.25}, {Infinity, 0.75}}));
}

TEST(SamplePlotAlgorithmTest, ALoneSampleIsASymbol)
{
    const Plot inside = plotOf(snapshot({segment({0.5}, 3.0)}));
    EXPECT_TRUE(inside.polylines.empty());
    EXPECT_EQ(inside.symbols, (std::vector<Points>{{{0.375, 0.5}}}));

    // Not on a column edge: the column before it holds no curve, so that the sample is all there
    // is. The curve can't be read behind it, and the lone point is dropped.
    const Plot between = plotOf(snapshot({segment({0.5}, 3.5)}));
    EXPECT_TRUE(between.polylines.empty());
    EXPECT_EQ(between.symbols.at(0), (Points{{0.4375, 0.5}}));
}

TEST(SamplePlotAlgorithmTest, ALonePointIsJoinedByTheNextColumnOrByItself)
{
    // Both samples in one column whose left edge lies before them.
    const PlotSegment pair = segment({0.5, 0.5}, 0.25, 0.5);
    const Plot dropped = plotOf(snapshot({pair}));
    EXPECT_TRUE(dropped.polylines.empty());

    const Plot joined = plotOf(snapshot({withCurve(pair, 0.75)}));
    EXPECT_EQ(joined.polylines, (std::vector<Points>{{{0.0625, 0.5}, {0.1875, 0.75}}}));

    const Plot doubled = plotOf(snapshot({withCurve(pair, NaN)}));
    EXPECT_EQ(doubled.polylines, (std::vector<Points>{{{0.0625, 0.5}, {0.0625, 0.5}}}));
}

TEST(SamplePlotAlgorithmTest, TheSampleThatEndsTheWalkBelongsToTheLastColumn)
{
    const Plot plot = plotOf(snapshot({segment({0.25, 0.75}, 0.0, 80.0)}));
    ASSERT_EQ(plot.symbols.size(), 1u);
    EXPECT_EQ(plot.symbols[0].back(), std::make_pair(10.0, 0.75));
    ASSERT_EQ(plot.polylines.size(), 1u);
    // The column behind the axis: curve at its edge, then the far sample as its only extreme.
    EXPECT_EQ(plot.polylines[0].back(), std::make_pair(1.0625, 0.75));
    EXPECT_EQ(plot.polylines[0].size(), 10u);
}

TEST(SamplePlotAlgorithmTest, DataOutsideTheAxis)
{
    const Plot right = plotOf(snapshot({segment({0.1, 0.2, 0.3}, 9.0)}));
    EXPECT_TRUE(right.polylines.empty() && right.symbols.empty());
    const Plot left = plotOf(snapshot({segment({0.1, 0.2, 0.3}, -9.0)}));
    EXPECT_TRUE(left.polylines.empty() && left.symbols.empty());

    // 1.0 lies inside a column of 0.3: the walk starts, and the second sample ends it.
    const Plot inLastColumn = plotOf(snapshot({segment({0.1, 0.2, 0.3}, 9.0)}), 0.3, 0.25);
    EXPECT_EQ(inLastColumn.symbols.at(0), (Points{{1.125, 0.1}, {1.25, 0.2}}));
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
