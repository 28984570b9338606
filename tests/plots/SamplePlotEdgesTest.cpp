#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

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

Plot plotOf(PlotSnapshot data, double columnWidth = 0.125, double symbolSpacing = 0.5,
            const QSharedPointer<const Axis>& xAxis = linearAxis(8.0),
            const QSharedPointer<const Axis>& yAxis = linearAxis())
{
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(std::move(data));
    const auto result = algorithm.createSegments(xAxis, yAxis, columnWidth, symbolSpacing);
    return {exact(result.first), exact(result.second)};
}

// A backend's resampler: answers anywhere, until it gives up.
class Constant : public Subsampler
{
public:
    Constant(double value, int answers)
        : m_value(value)
        , m_answers(answers)
    {}

    double operator[](const double&) override
    {
        if (m_answers-- == 0)
            throw std::runtime_error("no more");
        return m_value;
    }

    boost::shared_ptr<Subsampler> tail(long long) override { return {}; }

private:
    double m_value;
    int m_answers;
};

PlotSegment withSubsampler(const PlotSegment& segment, double value, int answers = 1000)
{
    return segment.setSubsampler(boost::make_shared<Constant>(value, answers));
}

} // namespace

TEST(SamplePlotEdgesTest, ArgumentsThatLeaveNothingToDraw)
{
    const PlotSnapshot data = snapshot({segment({0.1, 0.2, 0.3})});
    for (const double width : {0.0, -0.0, -0.125, -Infinity, 1e-17, 1e-300}) {
        EXPECT_TRUE(plotOf(data, width).polylines.empty()) << width;
        EXPECT_TRUE(plotOf(data, width).symbols.empty()) << width;
    }
    EXPECT_TRUE(plotOf(data, 0.125, 0.5, {}).polylines.empty());
    EXPECT_TRUE(plotOf(data, 0.125, 0.5, linearAxis(8.0), {}).symbols.empty());
    EXPECT_TRUE(plotOf(PlotSnapshot()).polylines.empty());
    EXPECT_TRUE(plotOf(snapshot({segment({})})).polylines.empty());
}

TEST(SamplePlotEdgesTest, ColumnWidthsThatAreNoNumberMakeOneColumn)
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

TEST(SamplePlotEdgesTest, ALoneSampleIsASymbol)
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

TEST(SamplePlotEdgesTest, ALonePointIsJoinedByTheNextColumnOrByItself)
{
    // Both samples in one column whose left edge lies before them.
    const PlotSegment pair = segment({0.5, 0.5}, 0.25, 0.5);
    const Plot dropped = plotOf(snapshot({pair}));
    EXPECT_TRUE(dropped.polylines.empty());

    const Plot joined = plotOf(snapshot({withSubsampler(pair, 0.75)}));
    EXPECT_EQ(joined.polylines, (std::vector<Points>{{{0.0625, 0.5}, {0.1875, 0.75}}}));

    const Plot doubled = plotOf(snapshot({withSubsampler(pair, NaN)}));
    EXPECT_EQ(doubled.polylines, (std::vector<Points>{{{0.0625, 0.5}, {0.0625, 0.5}}}));
}

TEST(SamplePlotEdgesTest, TheSampleThatEndsTheWalkBelongsToTheLastColumn)
{
    const Plot plot = plotOf(snapshot({segment({0.25, 0.75}, 0.0, 80.0)}));
    ASSERT_EQ(plot.symbols.size(), 1u);
    EXPECT_EQ(plot.symbols[0].back(), std::make_pair(10.0, 0.75));
    ASSERT_EQ(plot.polylines.size(), 1u);
    // The column behind the axis: curve at its edge, then the far sample as its only extreme.
    EXPECT_EQ(plot.polylines[0].back(), std::make_pair(1.0625, 0.75));
    EXPECT_EQ(plot.polylines[0].size(), 10u);
}

TEST(SamplePlotEdgesTest, DataOutsideTheAxis)
{
    const Plot right = plotOf(snapshot({segment({0.1, 0.2, 0.3}, 9.0)}));
    EXPECT_TRUE(right.polylines.empty() && right.symbols.empty());
    const Plot left = plotOf(snapshot({segment({0.1, 0.2, 0.3}, -9.0)}));
    EXPECT_TRUE(left.polylines.empty() && left.symbols.empty());

    // 1.0 lies inside a column of 0.3: the walk starts, and the second sample ends it.
    const Plot inLastColumn = plotOf(snapshot({segment({0.1, 0.2, 0.3}, 9.0)}), 0.3, 0.25);
    EXPECT_EQ(inLastColumn.symbols.at(0), (Points{{1.125, 0.1}, {1.25, 0.2}}));
}

TEST(SamplePlotEdgesTest, ColumnsOutliveTheirSegment)
{
    // The first segment leaves the walk at column 0.25; a segment without samples doesn't move it.
    const Plot plot =
        plotOf(snapshot({segment({0.1, 0.2, 0.3}), withSubsampler(segment({}), 0.5)}));
    ASSERT_EQ(plot.polylines.size(), 2u);
    EXPECT_EQ(plot.polylines[1], (Points{{0.3125, 0.5}, {0.4375, 0.5}}));
}

TEST(SamplePlotEdgesTest, SamplesWithoutAPositionArePassedOver)
{
    // On an axis that knows no place for its second value the walk goes on behind it.
    struct Holed : pelorin::ui::chart::LinearAxis
    {
        using LinearAxis::LinearAxis;
        double transform(ScaleMode mode, double value) const override
        {
            return value == 1.0 ? NaN : LinearAxis::transform(mode, value);
        }
    };
    const Plot plot = plotOf(snapshot({segment({0.1, 0.9, 0.3, 0.4})}), 0.125, 0.5,
                             QSharedPointer<Holed>::create(8.0, 0.0, 0.0, false, 1));
    EXPECT_EQ(plot.symbols, (std::vector<Points>{{{0.0, 0.1}, {0.25, 0.3}, {0.375, 0.4}}}));

    const Plot noY = plotOf(snapshot({withSubsampler(segment({0.1, NaN, 0.3}), 0.2)}));
    EXPECT_EQ(noY.symbols, (std::vector<Points>{{{0.0, 0.1}, {0.25, 0.3}}}));
    EXPECT_EQ(noY.polylines,
              (std::vector<Points>{
                  {{0.0625, 0.2}, {0.0625, 0.1}, {0.1875, 0.2}, {0.3125, 0.2}, {0.3125, 0.3}}}));

    EXPECT_TRUE(plotOf(snapshot({segment({0.1, NaN, 0.3})})).polylines.empty())
        << "the spline of such a segment knows nothing";
}

TEST(SamplePlotEdgesTest, AnExceptionEndsItsSegmentAndKeepsWhatThereIs)
{
    const Plot plot = plotOf(snapshot({withSubsampler(segment({0.1, 0.2, 0.3, 0.4, 0.5}), 0.7, 2),
                                       segment({0.6, 0.6, 0.6}, 5.0)}));
    ASSERT_EQ(plot.polylines.size(), 2u);
    EXPECT_EQ(plot.polylines[0],
              (Points{{0.0625, 0.7}, {0.0625, 0.1}, {0.1875, 0.7}, {0.1875, 0.2}}));
    EXPECT_EQ(plot.symbols.at(0), (Points{{0.0, 0.1}, {0.125, 0.2}, {0.25, 0.3}}));
    EXPECT_EQ(plot.polylines[1], (Points{{0.6875, 0.6}, {0.8125, 0.6}}));
}

TEST(SamplePlotEdgesTest, ASubclassOfTheSplineMayAnswerWhereTheSplineDoesNot)
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

TEST(SamplePlotEdgesTest, UnusableStepsAndOffsetsEndTheWalk)
{
    const std::vector<double> samples{0.1, 0.2, 0.3};
    for (const double offset : {NaN, Infinity, -Infinity, 1e300, -1e300}) {
        for (const double step : {1.0, 1e-300, -1.0, NaN, Infinity}) {
            const Plot plot = plotOf(snapshot({segment(samples, offset, step)}));
            EXPECT_LE(plot.polylines.size(), 1u) << offset << ' ' << step;
        }
    }
    // The number of samples to skip is more than an integer holds: it counts as none.
    const Plot tiny = plotOf(snapshot({segment(samples, -1.0, 1e-320)}), 0.125, -1.0);
    EXPECT_EQ(tiny.symbols, (std::vector<Points>{{{-0.125, 0.1}, {-0.125, 0.2}, {-0.125, 0.3}}}));
}
