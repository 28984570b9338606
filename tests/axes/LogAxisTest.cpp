#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"
#include "tests/support/Ticks.h"

#include <QVariant>

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;
using namespace testing;

namespace {

constexpr auto linear = Axis::Linear;
constexpr auto logarithmic = Axis::Logarithmic;
const boost::shared_ptr<const Axis::ScrollScaleState> noBase;

Matcher<double> is(double value)
{
    return NanSensitiveDoubleEq(value);
}

Matcher<double> near(double value)
{
    return NanSensitiveDoubleNear(value, 1e-6);
}

// 1 to 100.
class LogAxisTest : public testing::Test
{
protected:
    LogAxis axis{1.0, 100.0};
    SignalLog log{&axis};
};

} // namespace

TEST_F(LogAxisTest, MapsBothFormsWhateverTheLimits)
{
    struct Row
    {
        double smallest, largest;
        double position; // Of the value 10.
        double middle;   // The logarithm at position 0.5.
    };
    const Row rows[] = {
        {0.001, 1000.0, 2.0 / 3, 0.0},
        {1.0, 10.0, 1.0, 0.5},
        {1000.0, 1.0, 2.0 / 3, 1.5}, // Turned round.
        {1.0, 1.0, 2.0, -0.5},       // Nothing has changed since the beginning,
        {1.0, 1.0 + 1e-13, 2.0, -0.5},
        {10.0, 10.0, 0.0, -0.0}, // and here a decade went down to nothing.
        {0.0, 100.0, Infinity, -Infinity},
        {-1.0, 100.0, NaN, NaN},
        {1.0, -5.0, NaN, NaN},
        {1.0, 0.0, -0.0, -Infinity},
        {1.0, Infinity, 0.0, Infinity},
        {NaN, 10.0, NaN, NaN},
        {1.0, NaN, NaN, NaN},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Message() << row.smallest << " to " << row.largest);
        const LogAxis odd(row.smallest, row.largest);
        EXPECT_THAT(odd.transform(linear, 10.0), is(row.position));
        EXPECT_THAT(odd.inverseTransform(logarithmic, 0.5), is(row.middle));
    }
    EXPECT_EQ(LogAxis(10.0, 10.0).transform(linear, 100.0), -1.0);
    EXPECT_EQ(LogAxis(100.0, 10.0).transform(linear, 0.0), -Infinity);
    EXPECT_EQ(axis.transform(linear, 0.0), -Infinity);
    EXPECT_EQ(axis.transform(linear, -3.0), -Infinity);
    EXPECT_EQ(axis.transform(linear, Infinity), Infinity);
    EXPECT_EQ(axis.transform(logarithmic, -3.0), -1.5);
    EXPECT_DOUBLE_EQ(axis.inverseTransform(linear, 1.5), 1000.0);
    for (const auto mode : {linear, logarithmic})
        EXPECT_TRUE(std::isnan(axis.transform(mode, NaN) + axis.inverseTransform(mode, NaN)));
    EXPECT_EQ(axis.scaleMode(), logarithmic);
}

TEST_F(LogAxisTest, SettersTellInOrderAndOnlyOfChanges)
{
    double position = 0.0; // All values are in step before the first signal.
    QObject::connect(&axis, &Axis::ticksUpdated,
                     [&] { position = axis.transform(linear, axis.maxValue()); });
    axis.setSmallest(1.0 + 1e-13);
    axis.setLargest(100.0);
    EXPECT_EQ(log.take(), "");
    axis.setSmallest(10.0);
    EXPECT_EQ(log.take(),
              "ticksUpdated() smallestChanged(10) minValueChanged(10) parametersChanged(self)");
    axis.setProperty("largest", 1000.0);
    EXPECT_EQ(log.take(),
              "ticksUpdated() largestChanged(1000) maxValueChanged(1000) parametersChanged(self)");
    EXPECT_EQ(position, 1.0);
    EXPECT_EQ(axis.property("smallest").toDouble(), 10.0);
    axis.setLargest(NaN); // Never equal, so it is taken each time.
    axis.setLargest(NaN);
    EXPECT_EQ(log.take().count("largestChanged"), 2);
}

TEST_F(LogAxisTest, ScrollingMovesBothLimitsOrNone)
{
    struct Row
    {
        double by, bottom, top;
        double smallest, largest;
    };
    const Row rows[] = {
        {0.5, Lowest, Highest, 10.0, 1000.0},
        {-0.5, Lowest, Highest, 0.1, 10.0},
        {1.0, Lowest, 2000.0, 100.0, 2000.0}, // A limit on the way narrows the range.
        {-1.0, 0.05, Highest, 0.05, 1.0},
        {-0.5, 1.0, Highest, 1.0, 100.0}, // It stands at a limit already.
        {0.5, Lowest, 100.0, 1.0, 100.0},
        {1e-14, Lowest, Highest, std::pow(10.0, 2e-14), std::pow(10.0, (1e-14 + 1.0) * 2.0)},
        {NaN, 0.5, 50.0, 0.5, NaN},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Message() << row.by);
        LogAxis moved(1.0, 100.0);
        SignalLog told(&moved);
        moved.scrollAxis(0.0, row.by, noBase, row.bottom, row.top);
        EXPECT_THAT(moved.smallest(), is(row.smallest));
        EXPECT_THAT(moved.largest(), is(row.largest));
        EXPECT_EQ(told.take().isEmpty(), row.largest == 100.0);
    }
}

TEST_F(LogAxisTest, ScalingKeepsTheSmallestValue)
{
    struct Row
    {
        double at, by, top;
        double largest;
    };
    const Row rows[] = {
        {0.5, 0.25, Highest, 1e4},  // Twice the decades.
        {0.5, -0.5, Highest, 10.0}, // Half of them.
        {0.0, -0.5, Highest, 1.0},  // None.
        {0.0, 0.0, Highest, Highest}, {0.5, 0.5, 100.0 * (1.0 + 1e-13), 100.0 * (1.0 + 1e-13)},
        {0.5, 0.5, Highest, Highest}, // To the start of the axis: as far as it goes.
        {0.5, 0.75, 1e6, 1e6},        {0.5, 0.25, 5000.0, 5000.0},
        {0.5, NaN, Highest, NaN},     {0.5, 0.25, NaN, 1e4}, // No limit at all.
        {0.5, 0.25, -1.0, -1.0},                             // One that has no logarithm.
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Message() << row.at << ' ' << row.by);
        LogAxis scaled(1.0, 100.0);
        scaled.scaleAxis(row.at, row.by, noBase, 50.0, row.top);
        EXPECT_EQ(scaled.smallest(), 1.0);
        EXPECT_THAT(scaled.largest(), is(row.largest));
    }
    axis.scaleAxis(0.5, 0.5, noBase, Lowest, 100.0);
    EXPECT_EQ(log.take(), "");

    LogAxis turned(100.0, 1.0), small(0.1, 10.0), odd(2.0, 1000.0), half(2.0, 5.0);
    half.scaleAxis(0.5, -0.5, noBase, Lowest, 10.0);
    EXPECT_EQ(half.largest(), std::pow(10.0, std::log10(5.0 / 2.0) * 0.5) * 2.0);
    half.scaleAxis(0.9, -1.0, noBase, Lowest, 4.0);
    EXPECT_LT(half.largest(), 4.0);
    turned.scaleAxis(0.5, 0.25);
    EXPECT_EQ(turned.largest(), Highest); // No decades are beyond its limit.
    small.scaleAxis(0.6, 0.1, noBase, Lowest, 100.0);
    EXPECT_DOUBLE_EQ(small.largest(), std::pow(10.0, 2.0 * 0.6 / 0.5) * 0.1);
    odd.scaleAxis(0.7, 0.1);
    EXPECT_EQ(odd.largest(), std::pow(10.0, std::log10(500.0) * 0.7 / (0.7 - 0.1)) * 2.0);
}

TEST_F(LogAxisTest, GesturesCountFromTheirBaseAndTellOnce)
{
    const auto base = axis.scrollScaleState();
    axis.scrollAxis(0.3, 0.5, base);
    EXPECT_EQ(log.take(), "ticksUpdated() smallestChanged(10) minValueChanged(10) "
                          "largestChanged(1000) maxValueChanged(1000) parametersChanged(self) "
                          "axisChangedViaScalingOrScrolling()");
    axis.scrollAxis(0.3, 0.5, base);
    EXPECT_EQ(log.take(), "");
    axis.scrollAxis(0.3, 0.0, LinearAxis().scrollScaleState()); // Not a base of this axis.
    EXPECT_DOUBLE_EQ(axis.smallest(), 10.0);

    log.take();
    axis.scaleAxis(0.5, 0.25, base); // The decades and the smallest value of the base.
    axis.scaleAxis(0.5, 0.25, base);
    EXPECT_EQ(log.take(), "ticksUpdated() largestChanged(10000) maxValueChanged(10000) "
                          "parametersChanged(self) axisChangedViaScalingOrScrolling()");
    EXPECT_DOUBLE_EQ(axis.smallest(), 10.0);
}

TEST(LogAxisTicksTest, StandInEveryDecadeAndHangOver)
{
    struct Row
    {
        double smallest, largest;
        Places major;
        int minor;
        double firstMinor, lastMinor;
    };
    const Row rows[] = {
        {1.0, 1000.0, {{1, 0}, {10, 1.0 / 3}, {100, 2.0 / 3}, {1000, 1}}, 24, 2, 900},
        {1.0, 100.0, {{1, 0}, {10, 0.5}, {100, 1}}, 16, 2, 90},
        {1.0, 95.0, {{1, 0}, {10, 0.505632}, {100, 1.011264}}, 16, 2, 90},
        {1.0, 85.0, {{1, 0}, {10, 0.518291}}, 15, 2, 80},
        {25.0, 75.0, {{10, -0.834044}}, 5, 30, 70},
        {1.0, 5.0, {{1, 0}}, 4, 2, 5}, // The last one on the limit itself.
        {0.25, 3.5, {{0.1, -0.347204}, {1, 0.525299}}, 9, 0.3, 3},
        {1000.0, 1.0, {{1000, 0}}, 0, 0, 0},
        {1.0, 0.0, {{1, 0}}, 0, 0, 0},
        {1.0, NaN, {{1, NaN}}, 0, 0, 0},
        {-1.0, 10.0, {{NaN, NaN}}, 0, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Message() << row.smallest << " to " << row.largest);
        LogAxis axis(row.smallest, row.largest);
        std::vector<Matcher<Place>> expected;
        for (const auto& [value, position] : row.major)
            expected.push_back(Pair(is(value), near(position)));
        EXPECT_THAT(places(axis.majorTicks()), ElementsAreArray(expected));
        const Places minor = places(axis.minorTicks());
        ASSERT_EQ(int(minor.size()), row.minor);
        if (row.minor) {
            EXPECT_THAT(minor.front().first, DoubleNear(row.firstMinor, 1e-12));
            EXPECT_THAT(minor.back().first, DoubleNear(row.lastMinor, 1e-12));
            EXPECT_EQ(minor.front().second,
                      axis.transform(logarithmic, std::log10(row.firstMinor)));
        }
        EXPECT_TRUE(arePlain(axis.majorTicks()) && arePlain(axis.minorTicks()));
    }
    for (LogAxis* endless : {new LogAxis(0.0, 10.0), new LogAxis(1.0, Infinity)}) {
        EXPECT_EQ(endless->majorTicks().size(), 1251);
        EXPECT_EQ(endless->minorTicks().size(), endless->smallest() == 0.0 ? 0 : 10000);
        delete endless;
    }
}

TEST(LogAxisTicksTest, MinorTicksArePowersAndTheListsRankedAndKept)
{
    LogAxis axis(1.0, 10.0);
    const auto at = [](double mantissa) { return std::pow(10.0, std::log10(mantissa)); };
    EXPECT_THAT(values(axis.minorTicks()),
                ElementsAre(at(9), at(2), at(5), at(7), at(3), at(8), at(6), at(4)));
    const Ticks major = axis.majorTicks();
    EXPECT_THAT(values(major), ElementsAre(10.0, 1.0));
    EXPECT_THAT(ranks(major), ElementsAre(2250.0, 2000.0));
    EXPECT_EQ(major.constData(), axis.majorTicks().constData());
    axis.setLargest(1000.0);
    EXPECT_EQ(axis.majorTicks().size(), 4);
}

TEST(LogAxisDistancesTest, AnchorAndTickDistancesFollowTheDecades)
{
    struct Row
    {
        double smallest, largest, anchor, major, minor;
    };
    const Row rows[] = {
        {0.5, 50.0, std::log10(2.0) / 2, 9.0, 0.1},
        {1.0, 100.0, 0.0, 9.0, 1.0},
        {1.0, 5.0, 0.0, 4.0, 1.0},
        {1.0, 1.5, 0.0, 0.5, 0.5},
        {20.0, 1e4, std::log10(5.0) / std::log10(500.0), 900.0, 10.0},
        {1.0, NaN, NaN, 9.0, 1.0}, // A range of NaN is not the lesser.
        {NaN, 5.0, NaN, NaN, NaN},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(Message() << row.smallest << " to " << row.largest);
        const LogAxis axis(row.smallest, row.largest);
        EXPECT_THAT(axis.anchor(), near(row.anchor));
        EXPECT_THAT(axis.smallestTickDistance(true), is(row.major));
        EXPECT_THAT(axis.smallestTickDistance(false), near(row.minor));
    }
    EXPECT_EQ(LogAxis(20.0, 1e4).smallestTickDistance(false),
              std::pow(10.0, std::log10(2.0) + 1.0) - 10.0);
}

TEST_F(LogAxisTest, ClonesAreEqualAndOthersAreNot)
{
    EXPECT_TRUE(*std::unique_ptr<LogAxis>(axis.clone()) == axis);
    EXPECT_TRUE(axis != LogAxis(1.0, 101.0));
    EXPECT_TRUE(axis != LogAxis(1.1, 100.0));
    EXPECT_TRUE(axis != LogAxis(1.0, std::nextafter(100.0, 0.0)));
    EXPECT_TRUE(LogAxis(2.0, 100.0) != LogAxis(std::nextafter(2.0, 3.0), 100.0));
    EXPECT_TRUE(axis != LinearAxis());
    EXPECT_TRUE(LogAxis(NaN, 50.0) != LogAxis(NaN, 50.0));
}
