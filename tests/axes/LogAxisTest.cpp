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
using testing::DoubleNear;
using testing::ElementsAre;
using testing::NanSensitiveDoubleEq;

namespace {

constexpr auto Linear = Axis::Linear;
constexpr auto Logarithmic = Axis::Logarithmic;
const boost::shared_ptr<const Axis::ScrollScaleState> noBase;

testing::Matcher<double> is(double value)
{
    return NanSensitiveDoubleEq(value);
}

} // namespace

TEST(LogAxisTest, MapsBothForms)
{
    const LogAxis axis(0.001, 1000.0);
    EXPECT_DOUBLE_EQ(axis.transform(Linear, 1.0), 0.5);
    EXPECT_DOUBLE_EQ(axis.transform(Logarithmic, 6.0), 1.5);
    EXPECT_DOUBLE_EQ(axis.transform(Logarithmic, -4.5), -0.25);
    EXPECT_EQ(axis.transform(Linear, 0.0), -Infinity);
    EXPECT_EQ(axis.transform(Linear, -3.0), -Infinity);
    EXPECT_EQ(axis.transform(Linear, Infinity), Infinity);
    EXPECT_DOUBLE_EQ(axis.inverseTransform(Linear, 1.0), 1000.0);
    EXPECT_DOUBLE_EQ(axis.inverseTransform(Logarithmic, 0.0), -3.0);
    EXPECT_EQ(LogAxis().transform(Linear, 1.0), 0.0);
    EXPECT_EQ(LogAxis().transform(Linear, 10.0), 1.0);
    for (const auto mode : {Linear, Logarithmic}) {
        EXPECT_TRUE(std::isnan(axis.transform(mode, NaN)));
        EXPECT_TRUE(std::isnan(axis.inverseTransform(mode, NaN)));
    }
    EXPECT_EQ(axis.scaleMode(), Logarithmic);
}

TEST(LogAxisTest, OddLimitsGiveOddNumbers)
{
    struct Row
    {
        double smallest, largest;
        double position; // Of the value 10.
        double middle;   // The logarithm at position 0.5.
    };
    const Row rows[] = {
        {1.0, 1.0, 2.0, -0.5}, // Nothing has changed since the beginning.
        {1.0, 1.0 + 1e-13, 2.0, -0.5},
        {10.0, 10.0, 0.0, -0.0}, // A decade went down to nothing after the first limit.
        {0.0, 100.0, Infinity, -Infinity},
        {-1.0, 100.0, NaN, NaN},
        {1.0, -5.0, NaN, NaN},
        {1.0, 0.0, -0.0, -Infinity},
        {1.0, Infinity, 0.0, Infinity},
        {NaN, 10.0, NaN, NaN},
        {1.0, NaN, NaN, NaN},
        {1000.0, 1.0, 2.0 / 3.0, 1.5}, // Turned round.
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.smallest << " to " << row.largest);
        const LogAxis axis(row.smallest, row.largest);
        EXPECT_THAT(axis.transform(Linear, 10.0), is(row.position));
        EXPECT_THAT(axis.inverseTransform(Logarithmic, 0.5), is(row.middle));
    }
    EXPECT_EQ(LogAxis(1.0 + 1e-13, 2.0).smallest(), 1.0);
    EXPECT_EQ(LogAxis(10.0, 10.0).transform(Linear, 100.0), -1.0);
}

TEST(LogAxisTest, SettersTellInOrderAndOnlyOfChanges)
{
    LogAxis axis(1.0, 100.0);
    SignalLog log(&axis);
    axis.setSmallest(1.0 + 1e-13);
    axis.setLargest(100.0);
    EXPECT_EQ(log.take(), "");
    axis.setSmallest(10.0);
    EXPECT_EQ(log.take(),
              "ticksUpdated() smallestChanged(10) minValueChanged(10) parametersChanged(self)");
    axis.setProperty("largest", 1000.0);
    EXPECT_EQ(log.take(),
              "ticksUpdated() largestChanged(1000) maxValueChanged(1000) parametersChanged(self)");
    EXPECT_EQ(axis.property("smallest").toDouble(), 10.0);
    EXPECT_EQ(axis.transform(Linear, 100.0), 0.5);
    axis.setLargest(NaN); // Never equal, so it is taken each time.
    axis.setLargest(NaN);
    EXPECT_EQ(log.take().count("largestChanged"), 2);
}

TEST(LogAxisTest, ValuesAreInStepBeforeTheFirstSignal)
{
    LogAxis axis(1.0, 100.0);
    double position = 0.0;
    QObject::connect(&axis, &Axis::ticksUpdated,
                     [&] { position = axis.transform(Linear, axis.maxValue()); });
    axis.setLargest(1000.0);
    EXPECT_DOUBLE_EQ(position, 1.0);
}

TEST(LogAxisTest, ScrollingMovesBothLimitsOrNone)
{
    struct Row
    {
        double by, bottom, top;
        double smallest, largest; // 0.0 for no change.
    };
    const Row rows[] = {
        {0.5, Lowest, Highest, 10.0, 1000.0},
        {-0.5, Lowest, Highest, 0.1, 10.0},
        {1.0, Lowest, 2000.0, 100.0, 2000.0}, // A limit on the way narrows the range.
        {-1.0, 0.05, Highest, 0.05, 1.0},
        {-0.5, 1.0, Highest, 0.0, 0.0}, // Standing at a limit already.
        {0.5, Lowest, 100.0, 0.0, 0.0},
        {NaN, 0.5, 50.0, 0.5, NaN},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.by);
        LogAxis axis(1.0, 100.0);
        SignalLog log(&axis);
        axis.scrollAxis(0.0, row.by, noBase, row.bottom, row.top);
        const bool changes = row.smallest != 0.0;
        EXPECT_THAT(axis.smallest(), is(changes ? row.smallest : 1.0));
        EXPECT_THAT(axis.largest(), is(changes ? row.largest : 100.0));
        EXPECT_EQ(log.take().isEmpty(), !changes);
    }
}

TEST(LogAxisTest, ScalingKeepsTheSmallestValue)
{
    struct Row
    {
        double at, by, top;
        double largest;
    };
    const Row rows[] = {
        {0.5, 0.25, Highest, 1e4},    // Twice the decades.
        {0.5, -0.5, Highest, 10.0},   // Half of them.
        {0.0, -0.5, Highest, 1.0},    // None.
        {0.5, 0.5, Highest, Highest}, // To the start of the axis: as far as it goes.
        {0.5, 0.75, 1e6, 1e6},        {0.5, 0.25, 5000.0, 5000.0},
        {0.5, NaN, Highest, NaN},     {0.5, 0.25, NaN, 1e4}, // No limit at all.
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.at << ' ' << row.by);
        LogAxis axis(1.0, 100.0);
        axis.scaleAxis(row.at, row.by, noBase, 50.0, row.top);
        EXPECT_EQ(axis.smallest(), 1.0);
        EXPECT_THAT(axis.largest(), is(row.largest));
    }
    LogAxis axis(1.0, 100.0);
    SignalLog log(&axis);
    axis.scaleAxis(0.5, 0.5, noBase, Lowest, 100.0);
    EXPECT_EQ(log.take(), "");
}

TEST(LogAxisTest, GesturesCountFromTheirBaseAndTellOnce)
{
    LogAxis axis(1.0, 100.0);
    SignalLog log(&axis);
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
    EXPECT_EQ(log.take(), "ticksUpdated() largestChanged(10000) maxValueChanged(10000) "
                          "parametersChanged(self) axisChangedViaScalingOrScrolling()");
    EXPECT_DOUBLE_EQ(axis.smallest(), 10.0);
    axis.scaleAxis(0.5, 0.25, base);
    EXPECT_EQ(log.take(), "");
}

TEST(LogAxisTest, TicksStandInEveryDecadeAndHangOver)
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
        {0.25, 3.5, {{0.1, -0.347204}, {1, 0.525299}}, 9, 0.3, 3},
        {1000.0, 1.0, {{1000, 0}}, 0, 0, 0},
        {1.0, 0.0, {{1, 0}}, 0, 0, 0},
        {1.0, NaN, {{1, NaN}}, 0, 0, 0},
        {-1.0, 10.0, {{NaN, NaN}}, 0, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.smallest << " to " << row.largest);
        LogAxis axis(row.smallest, row.largest);
        const Places major = places(axis.majorTicks());
        ASSERT_EQ(major.size(), row.major.size());
        for (std::size_t i = 0; i < major.size(); ++i) {
            EXPECT_THAT(major[i].first, is(row.major[i].first));
            EXPECT_THAT(major[i].second,
                        testing::NanSensitiveDoubleNear(row.major[i].second, 1e-6));
        }
        const Places minor = places(axis.minorTicks());
        ASSERT_EQ(int(minor.size()), row.minor);
        if (row.minor) {
            EXPECT_THAT(minor.front().first, DoubleNear(row.firstMinor, 1e-12));
            EXPECT_THAT(minor.back().first, DoubleNear(row.lastMinor, 1e-12));
            EXPECT_EQ(minor.front().second,
                      axis.transform(Logarithmic, std::log10(row.firstMinor)));
        }
        EXPECT_TRUE(arePlain(axis.majorTicks()) && arePlain(axis.minorTicks()));
    }
}

TEST(LogAxisTest, MinorTicksAreExactPowersInRankOrder)
{
    LogAxis axis(1.0, 10.0);
    const auto value = [](double mantissa) { return std::pow(10.0, std::log10(mantissa) + 0.0); };
    // By index 7 0 3 5 1 6 4 2: the ends first, then the middle and the quarters.
    EXPECT_THAT(values(axis.minorTicks()), ElementsAre(value(9), value(2), value(5), value(7),
                                                       value(3), value(8), value(6), value(4)));
    EXPECT_THAT(values(axis.majorTicks()), ElementsAre(10.0, 1.0));
    EXPECT_THAT(ranks(axis.majorTicks()), ElementsAre(2250.0, 2000.0));
    EXPECT_EQ(places(axis.minorTicks()).front().second, std::log10(2.0));
}

TEST(LogAxisTest, EndlessRangesStopTheTicks)
{
    LogAxis fromZero(0.0, 10.0), toInfinity(1.0, Infinity);
    EXPECT_EQ(fromZero.majorTicks().size(), 1251);
    EXPECT_TRUE(fromZero.minorTicks().isEmpty());
    EXPECT_EQ(fromZero.majorTicks().last().logicalPosition(), 0.0);
    EXPECT_EQ(toInfinity.majorTicks().size(), 1251);
    EXPECT_EQ(toInfinity.minorTicks().size(), 10000);
}

TEST(LogAxisTest, TicksAreBuiltOncePerChange)
{
    LogAxis axis(1.0, 100.0);
    const Ticks major = axis.majorTicks();
    EXPECT_EQ(major.constData(), axis.majorTicks().constData());
    axis.setLargest(1000.0);
    EXPECT_EQ(axis.majorTicks().size(), 4);
    EXPECT_EQ(axis.minorTicks().size(), 24);
}

TEST(LogAxisTest, AnchorAndTickDistancesFollowTheDecades)
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
        SCOPED_TRACE(testing::Message() << row.smallest << " to " << row.largest);
        const LogAxis axis(row.smallest, row.largest);
        EXPECT_THAT(axis.anchor(), testing::NanSensitiveDoubleNear(row.anchor, 1e-15));
        EXPECT_THAT(axis.smallestTickDistance(true), is(row.major));
        EXPECT_THAT(axis.smallestTickDistance(false),
                    testing::NanSensitiveDoubleNear(row.minor, 1e-14));
    }
}

TEST(LogAxisTest, ClonesAreEqualAndOthersAreNot)
{
    QObject parent;
    const LogAxis axis(2.0, 50.0, &parent);
    const std::unique_ptr<LogAxis> clone(axis.clone());
    EXPECT_TRUE(*clone == axis);
    EXPECT_EQ(clone->parent(), nullptr);
    EXPECT_TRUE(axis != LogAxis(2.0, 51.0));
    EXPECT_TRUE(axis != LogAxis(3.0, 50.0));
    EXPECT_TRUE(axis != LinearAxis());
    EXPECT_TRUE(LogAxis(NaN, 50.0) != LogAxis(NaN, 50.0));
}
