#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

const boost::shared_ptr<const Axis::ScrollScaleState> noBase;

// 90 to 110, the value 100 in the middle.
class LinearGesturesTest : public testing::Test
{
protected:
    FixedPositionLinearAxis axis{2.0, 100.0, 0.5, false, 10, 5};
};

} // namespace

TEST_F(LinearGesturesTest, ScrollingMovesTheRangeUpForBothSignsOfTheOffset)
{
    axis.scrollAxis(0.0, 0.1);
    EXPECT_EQ(axis.offset(), 102.0);
    EXPECT_EQ(axis.minValue(), 92.0);

    FixedPositionLinearAxis added(2.0, 100.0, 0.5, true, 10, 5);
    added.scrollAxis(0.0, 0.1);
    EXPECT_EQ(added.offset(), 98.0);
    EXPECT_EQ(added.minValue(), -108.0);
}

TEST_F(LinearGesturesTest, ScrollingStopsAtTheLimitsAndTheTopOneWins)
{
    axis.scrollAxis(0.0, -0.5, noBase, 95.0, 120.0);
    EXPECT_EQ(axis.minValue(), 95.0);
    axis.scrollAxis(0.0, 5.0, noBase, 95.0, 120.0);
    EXPECT_EQ(axis.maxValue(), 120.0);
    axis.scrollAxis(0.0, 0.0, noBase, 100.0, 110.0);
    EXPECT_EQ(axis.maxValue(), 110.0);
    axis.scrollAxis(0.0, NaN, noBase, 95.0, 120.0); // What isn't greater gives way to the limit.
    EXPECT_EQ(axis.minValue(), 95.0);
    axis.scrollAxis(0.0, 0.1, noBase, NaN, 120.0); // To NaN first, and so on to the top limit.
    EXPECT_EQ(axis.maxValue(), 120.0);
    axis.scrollAxis(0.0, 0.1, noBase, 95.0, NaN);
    EXPECT_TRUE(std::isnan(axis.offset()));
}

TEST_F(LinearGesturesTest, GesturesTellInOrderAndOnlyOfChanges)
{
    SignalLog log(&axis);
    const QString tail =
        " ticksUpdated() parametersChanged(self) axisChangedViaScalingOrScrolling()";
    const auto base = axis.scrollScaleState();
    axis.scrollAxis(0.0, 0.1, base);
    EXPECT_EQ(log.take(), "offsetChanged(102) minValueChanged(92) maxValueChanged(112)" + tail);
    axis.scrollAxis(0.0, 0.1, base);
    axis.scrollAxis(0.0, 1e-16, noBase); // Less than a step of the offset.
    axis.scaleAxis(0.5, 0.0);
    EXPECT_EQ(log.take(), "");

    axis.scaleAxis(0.5, 0.25);
    EXPECT_EQ(log.take(), "scaleChanged(4) minValueChanged(82) maxValueChanged(122)" + tail);
    axis.scrollAxis(0.0, 1e-14); // Within the tolerance of setOffset(), and yet a change.
    EXPECT_TRUE(log.take().endsWith(tail));
    axis.scaleAxis(0.5, 1e-14);
    EXPECT_TRUE(log.take().endsWith(tail));
}

TEST_F(LinearGesturesTest, ScalingMovesTheGrippedValueBoundByThePixelAndTheTopLimit)
{
    LinearAxis fromStart;
    fromStart.scaleAxis(0.75, 0.25);
    EXPECT_EQ(fromStart.transform(Axis::Linear, 7.5), 0.5);

    const auto base = axis.scrollScaleState();
    axis.scaleAxis(0.5, 0.5, base, Lowest, Highest, 0.125);
    EXPECT_EQ(axis.scale(), 8.0);
    axis.scaleAxis(0.5, NaN, base, Lowest, Highest, 0.25);
    EXPECT_EQ(axis.scale(), 4.0);
    EXPECT_EQ(axis.minValue(), 80.0);
    axis.scaleAxis(0.5, 0.4, base, Lowest, 130.0); // (130 - 80) / 10 from the axis as it is now.
    EXPECT_EQ(axis.scale(), 5.0);
    axis.scaleAxis(0.0, 0.1, base);
    EXPECT_EQ(axis.scale(), 0.0);
    const double largest = (Highest - axis.minValue()) / 10;
    axis.scaleAxis(NaN, 0.0, base); // What isn't below the limit gives way to it.
    EXPECT_EQ(axis.scale(), largest);
}

TEST_F(LinearGesturesTest, AGestureCountsFromItsBaseWhateverHasBecomeOfTheAxis)
{
    const auto base = axis.scrollScaleState();
    axis.setScale(3.0);
    axis.setAnchor(0.25);
    axis.setOffsetIsAdded(true);
    axis.setNumMajorDivisions(8);

    struct Row
    {
        double by, bottomLimit, topLimit, offset;
    };
    const Row rows[] = {
        {0.1, Lowest, Highest, 0.1 * 2.0 * 10 + 100.0},
        {-9.0, 95.0, Highest, 0.5 * 2.0 * 10 + 95.0},
        {9.0, Lowest, 120.0, -0.5 * 2.0 * 10 + 120.0},
        {0.37, Lowest, Highest, 0.37 * 2.0 * 10 + 100.0},
    };
    for (const Row& row : rows) {
        axis.scrollAxis(0.3, row.by, base, row.bottomLimit, row.topLimit);
        EXPECT_EQ(axis.offset(), row.offset) << row.by;
    }
    axis.scaleAxis(0.3, 0.1, base);
    EXPECT_EQ(axis.scale(), 0.3 / (0.3 - 0.1) * 2.0);
    const double largest = (50.0 - axis.minValue()) / 8; // Of the axis as it is now.
    axis.scaleAxis(0.3, 0.2999, base, Lowest, 50.0);
    EXPECT_EQ(axis.scale(), largest);

    struct ForeignState : Axis::ScrollScaleState
    {
    };
    const double offset = axis.offset(); // A base of another kind counts as none.
    axis.scrollAxis(0.0, 0.1, boost::make_shared<ForeignState>());
    EXPECT_EQ(axis.offset(), -1.0 * 0.1 * largest * 8 + offset);
}
