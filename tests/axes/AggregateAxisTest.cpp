#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"
#include "tests/support/Ticks.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;
using testing::AnyOf;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pair;

namespace {

constexpr auto Linear = Axis::Linear;
constexpr auto Logarithmic = Axis::Logarithmic;

const QString limits = "minValueChanged(-100) maxValueChanged(100) parametersChanged(self)";

// -100 to -1 in the lower half, 1 to 100 in the upper one.
class AggregateAxisTest : public testing::Test
{
protected:
    AggregateAxisTest() { bipolar.addAxis(&mirror, 0.0, 0.5).addAxis(source.get(), 0.5, 1.0); }

    std::unique_ptr<LogAxis> source = std::make_unique<LogAxis>(1.0, 100.0);
    MirroredAxis mirror{source.get()};
    AggregateAxis bipolar;
};

} // namespace

TEST(EmptyAggregateAxisTest, AnswersWithoutNumbers)
{
    AggregateAxis axis;
    SignalLog log(&axis);
    EXPECT_TRUE(std::isnan(axis.minValue()) && std::isnan(axis.maxValue()));
    EXPECT_TRUE(std::isnan(axis.transform(Linear, 1.0)));
    EXPECT_TRUE(std::isnan(axis.inverseTransform(Logarithmic, 0.5)));
    EXPECT_EQ(axis.scaleMode(), Linear);
    EXPECT_EQ(axis.smallestTickDistance(true), 0.0);
    EXPECT_EQ(axis.anchor(), 0.5);
    EXPECT_TRUE(axis.majorTicks().isEmpty() && axis.minorTicks().isEmpty());
    EXPECT_TRUE(axis.scrollScaleState());
    EXPECT_TRUE(axis == AggregateAxis());
    axis.scrollAxis(0.5, 0.1, axis.scrollScaleState());
    axis.scaleAxis(0.5, 0.1);
    EXPECT_EQ(&axis.addAxis(nullptr, 0.0, 1.0), &axis);
    EXPECT_EQ(log.take(), "");
}

TEST(EmptyAggregateAxisTest, NeverHoldsItself)
{
    AggregateAxis axis, outer;
    MirroredAxis mirror(&axis);
    outer.addAxis(&mirror, 0.0, 1.0);
    SignalLog log(&axis);
    for (Axis* const endless :
         {static_cast<Axis*>(&axis), static_cast<Axis*>(&mirror), static_cast<Axis*>(&outer)})
        EXPECT_EQ(&axis.addAxis(endless, 0.0, 1.0), &axis);
    EXPECT_EQ(log.take(), "");
    EXPECT_TRUE(std::isnan(axis.minValue()));
}

TEST_F(AggregateAxisTest, BothSignsShareOneLine)
{
    EXPECT_EQ(bipolar.minValue(), -100.0);
    EXPECT_EQ(bipolar.maxValue(), 100.0);
    EXPECT_EQ(bipolar.scaleMode(), Logarithmic);
    const Places expected = {{-100, 0}, {-10, 0.25}, {-1, 0.5}, {1, 0.5}, {10, 0.75}, {100, 1}};
    for (const auto& [value, position] : expected)
        EXPECT_EQ(bipolar.transform(Linear, value), position) << value;
    EXPECT_EQ(bipolar.transform(Logarithmic, 1.0), 0.75);
    EXPECT_EQ(bipolar.transform(Linear, 0.1), Infinity); // Falls to the mirror.
    EXPECT_TRUE(std::isnan(bipolar.transform(Linear, NaN)));

    EXPECT_DOUBLE_EQ(bipolar.inverseTransform(Linear, 0.75), 10.0);
    EXPECT_DOUBLE_EQ(bipolar.inverseTransform(Logarithmic, 0.75), 1.0);
    EXPECT_DOUBLE_EQ(bipolar.inverseTransform(Linear, 0.25), -10.0);
    EXPECT_EQ(bipolar.inverseTransform(Linear, 0.5), 1.0); // The upper side has the boundary.
    EXPECT_TRUE(std::isnan(bipolar.inverseTransform(Linear, NaN)));
    EXPECT_EQ(bipolar.smallestTickDistance(true), 4.5);
}

TEST(AggregateAxisStretchesTest, ASubAxisAnswersBeyondItsStretchAndInGaps)
{
    LogAxis low(1.0, 100.0);
    LinearAxis high(1.0, 1000.0);
    AggregateAxis axis;
    axis.addAxis(&low, 0.5, 1.0);
    EXPECT_EQ(axis.transform(Linear, 0.1), 0.25);
    axis.addAxis(&high, 2.0, 4.0);
    EXPECT_EQ(axis.transform(Linear, 10000.0), 2.0 + 2.0 * 900.0);
    EXPECT_EQ(axis.transform(Linear, 500.0), low.transform(Linear, 500.0) * 0.5 + 0.5);
    EXPECT_DOUBLE_EQ(axis.inverseTransform(Linear, 1.5), 1e4); // A gap goes to the one below.
    EXPECT_EQ(axis.scaleMode(), Logarithmic);
    EXPECT_EQ(axis.smallestTickDistance(true), 0.5 * 9.0); // Of the first one both.
    EXPECT_EQ(axis.transform(Logarithmic, 0.3), axis.transform(Linear, std::pow(10.0, 0.3)));
    MirroredAxis nowhere(nullptr);
    axis.addAxis(&nowhere, 5.0, 6.0);
    EXPECT_EQ(axis.inverseTransform(Linear, NaN), 0.0); // Of the last one.
    LinearAxis narrow;
    AggregateAxis third;
    third.addAxis(&narrow, 0.1, 0.4);
    EXPECT_EQ(third.inverseTransform(Linear, 0.16), (0.16 - 0.1) / (0.4 - 0.1) * 10.0);
    third.removeAllAxes();
    EXPECT_TRUE(std::isnan(third.transform(Linear, 5.0)));
    EXPECT_EQ(axis.inverseTransform(Linear, 0.0), 0.01);
}

TEST_F(AggregateAxisTest, MergesTheTicksInsideTheirStretchesByRank)
{
    const Ticks major = bipolar.majorTicks();
    const double end = 2000.0 + 1000.0 / 3, middle = 1750.0 + 250.0 / 3;
    const auto near = [](double value) { return DoubleNear(value, 1e-9); };
    EXPECT_THAT(ranks(major), ElementsAre(2500.0, near(end), near(end), 2000.0, 2000.0,
                                          near(middle), near(middle)));
    EXPECT_THAT(places(major),
                ElementsAre(Pair(-100.0, 0.0), Pair(-10.0, 0.25), Pair(-1.0, 0.5), Pair(1.0, 0.5),
                            Pair(1.0, 0.5), Pair(10.0, 0.75), Pair(100.0, 1.0)));
    EXPECT_EQ(major.first().secondaryLogicalPositions(), QList<double>{-1.0});
    EXPECT_EQ(bipolar.minorTicks().size(), 32);
    source->setLargest(95.0); // 100 hangs over, on both ends.
    EXPECT_EQ(bipolar.majorTicks().size(), 5);
}

TEST(AggregateAxisTicksTest, CarriesOnlyValidTicksInside)
{
    class Ticked : public LinearAxis
    {
    public:
        QVector<Tick> majorTicks() override
        {
            return {{1.0, 0.0, 7.0, {}, true},
                    {2.0, 1.0, 9.0, {3.0}, false},
                    Tick(),
                    {4.0, NaN, 1.0, {}, false},
                    {5.0, std::nextafter(1.0, 2.0), 1.0, {}, false},
                    {6.0, -1e-300, 1.0, {}, false},
                    {8.0, 0.5, NaN, {}, false},
                    {9.0, 0.5, NaN, {}, false},
                    {10.0, 0.25, 8.0, {}, false}};
        }
    };
    Ticked sub;
    AggregateAxis axis;
    axis.addAxis(&sub, 0.25, 0.75);
    const Ticks ticks = axis.majorTicks();
    EXPECT_THAT(values(ticks), ElementsAre(2.0, 10.0, 1.0, AnyOf(8.0, 9.0), AnyOf(8.0, 9.0)));
    EXPECT_THAT(places(ticks), ElementsAre(Pair(1.0, 0.25), Pair(2.0, 0.75), Pair(8.0, 0.5),
                                           Pair(9.0, 0.5), Pair(10.0, 0.375)));
    EXPECT_EQ(ticks[0].secondaryLogicalPositions(), QList<double>{3.0});
    EXPECT_TRUE(ticks[2].isInvisible() && !ticks[0].isInvisible());
}

TEST_F(AggregateAxisTest, AddingAndRemovingTellInOrder)
{
    SignalLog log(&bipolar);
    LinearAxis other;
    bipolar.addAxis(&other, 0.25, 0.5);
    EXPECT_EQ(log.take(), limits + " ticksUpdated()");
    other.setScale(2.0); // The limits told are those of the whole.
    EXPECT_EQ(log.take(), "maxValueChanged(100) ticksUpdated() parametersChanged(self)");
    bipolar.removeAxis(&other);
    EXPECT_EQ(log.take(), limits);
    other.setScale(3.0);
    EXPECT_EQ(log.take(), "");
    bipolar.removeAxis(&other);
    EXPECT_EQ(log.take(), limits);
    bipolar.removeAllAxes();
    EXPECT_EQ(log.take(), "minValueChanged(nan) maxValueChanged(nan) parametersChanged(self)");
    source->setLargest(1e3);
    EXPECT_EQ(log.take(), "");
    EXPECT_TRUE(bipolar == AggregateAxis());
}

TEST(AggregateAxisStretchesTest, AReplacedSubAxisIsStillHeard)
{
    LinearAxis old(1.0, 100.0), present(1.0, 50.0), twin(1.0, 50.0), last(1.0, 60.0);
    AggregateAxis axis, same;
    same.addAxis(&present, 0.0, 0.5).addAxis(&twin, 0.5, 1.0);
    EXPECT_EQ(same.transform(Linear, 55.0), 0.75); // Two with one minimum: the later one has it.
    axis.addAxis(&old, 0.0, 0.5).addAxis(&present, 0.0, 1.0);
    EXPECT_EQ(axis.minValue(), 50.0);
    EXPECT_EQ(axis.transform(Linear, 105.0), 5.5); // Both minima lead to the present one.
    SignalLog log(&axis);
    old.setScale(2.0);
    EXPECT_EQ(log.take(), "maxValueChanged(60) ticksUpdated() parametersChanged(self)");
    axis.addAxis(&last, 2.0, 3.0);
    present.setOffset(70.0); // Of its two minima the first one moves.
    EXPECT_EQ(axis.transform(Linear, 55.0), 1.5);
    axis.removeAxis(&last).removeAxis(&present);
    EXPECT_TRUE(std::isnan(axis.transform(Linear, 105.0)));
}

TEST_F(AggregateAxisTest, ValuesFollowAMinimumThatMoves)
{
    LinearAxis first(1.0, 0.0), second(1.0, 20.0), third(1.0, 40.0);
    AggregateAxis axis;
    axis.addAxis(&first, 0.0, 0.25).addAxis(&second, 0.25, 0.5).addAxis(&third, 0.5, 1.0);
    second.setOffset(10.0);
    EXPECT_EQ(axis.transform(Linear, 15.0), 0.375);
    // Of two with the same minimum the last to report it has the values, and the other none ever.
    second.setOffset(40.0);
    EXPECT_EQ(axis.transform(Linear, 45.0), 0.375);
    third.setOffset(60.0);
    EXPECT_EQ(axis.transform(Linear, 65.0), 0.875);
    second.setOffset(60.0);
    second.setOffset(80.0);
    EXPECT_EQ(axis.transform(Linear, 65.0), 1.625); // By the first one.

    source->setSmallest(10.0); // The mirror, too, tells of its source.
    EXPECT_EQ(bipolar.transform(Linear, 5.0), Infinity);
    EXPECT_EQ(bipolar.transform(Linear, 100.0), 1.0);
}

TEST(AggregateAxisStretchesTest, AnAggregateThatIsFilledLaterTakesItsPlace)
{
    LinearAxis low(1.0, -10.0), high(1.0, 0.0);
    AggregateAxis inner, outer;
    outer.addAxis(&high, 0.5, 1.0).addAxis(&inner, 0.0, 0.5);
    EXPECT_EQ(outer.transform(Linear, 5.0), 0.75);
    inner.addAxis(&low, 0.0, 1.0);
    EXPECT_EQ(outer.transform(Linear, -5.0), 0.25);
    EXPECT_EQ(outer.transform(Linear, 5.0), 0.75);
    EXPECT_EQ(outer.minValue(), -10.0);
}

TEST_F(AggregateAxisTest, GesturesMoveOnlyWhatTheyGrip)
{
    LinearAxis first(1.0, 0.0), second(1.0, 20.0);
    AggregateAxis axis;
    axis.addAxis(&first, 0.0, 0.5).addAxis(&second, 0.5, 0.75);
    SignalLog log(&axis);
    for (const double at : {0.75, 1.0, -0.1, NaN}) {
        axis.scrollAxis(at, 0.1);
        axis.scaleAxis(at, 0.1);
    }
    EXPECT_EQ(log.take(), "");

    const auto base = axis.scrollScaleState();
    for (const double by : {0.2, 0.1, 0.05}) {
        axis.scrollAxis(0.5, by, base); // The boundary belongs to the upper side.
        axis.scrollAxis(0.0, by, base);
    }
    EXPECT_DOUBLE_EQ(second.offset(), 22.0);
    EXPECT_EQ(first.offset(), 1.0);
    axis.scaleAxis(0.6, 0.05, base); // 0.4 and 0.2 of the stretch.
    EXPECT_DOUBLE_EQ(second.scale(), 2.0);
    axis.scaleAxis(0.25, 0.5, {}, Lowest, 41.0, 0.25); // The pixel's size is handed on as it is.
    EXPECT_EQ(first.scale(), 2.0);

    axis.removeAxis(&second).removeAxis(&first).addAxis(&first, 0.0, 1.0);
    first.setOffsetAndScale(5.0, 3.0);
    axis.scrollAxis(0.6, 0.1, base); // The base is that of whatever stood at the grip.
    EXPECT_DOUBLE_EQ(first.offset(), 21.0);
    axis.addAxis(&second, 0.5, 0.75);

    // Neither a foreign base is one, nor that of an aggregate with nothing at the grip.
    for (const auto& none : {LinearAxis().scrollScaleState(), AggregateAxis().scrollScaleState()}) {
        second.setOffset(22.0);
        log.take();
        axis.scrollAxis(0.6, 0.025, none);
        EXPECT_EQ(log.take(), "minValueChanged(21) maxValueChanged(44) ticksUpdated() "
                              "parametersChanged(self) axisChangedViaScalingOrScrolling()");
    }
}

TEST_F(AggregateAxisTest, PassesOverASubAxisThatIsGone)
{
    const auto base = bipolar.scrollScaleState();
    SignalLog log(&bipolar);
    source.reset();
    EXPECT_EQ(log.take(), "");
    EXPECT_EQ(bipolar.minValue(), 0.0); // Of a mirror without a source.
    EXPECT_TRUE(std::isnan(bipolar.maxValue()));
    EXPECT_TRUE(std::isnan(bipolar.transform(Linear, 10.0)));
    EXPECT_TRUE(std::isnan(bipolar.inverseTransform(Linear, 0.75)));
    EXPECT_EQ(bipolar.majorTicks().size(), 4);
    EXPECT_TRUE(bipolar.scrollScaleState());
    bipolar.scrollAxis(0.75, 0.1, base);
    EXPECT_EQ(log.take(), "");
    const std::unique_ptr<AggregateAxis> clone(bipolar.clone());
    EXPECT_EQ(clone->children().size(), 1);

    LinearAxis again(1.0, 1.0);
    bipolar.addAxis(&again, 0.75, 1.0).removeAxis(nullptr);
    EXPECT_EQ(bipolar.inverseTransform(Linear, 0.5), 0.0); // By the mirror.
    EXPECT_EQ(bipolar.maxValue(), 11.0);

    AggregateAxis first;
    {
        LogAxis gone;
        first.addAxis(&gone, 0.0, 0.5);
        EXPECT_EQ(first.scaleMode(), Logarithmic);
    }
    EXPECT_EQ(first.scaleMode(), Linear);
    EXPECT_EQ(first.smallestTickDistance(true), 0.0);
    EXPECT_TRUE(std::isnan(first.minValue()));
}

TEST_F(AggregateAxisTest, ClonesOwnTheirSubAxesAndEqualityIsIdentity)
{
    bipolar.setAnchor(0.25);
    EXPECT_EQ(bipolar.anchor(), 0.25);
    const std::unique_ptr<AggregateAxis> clone(bipolar.clone());
    EXPECT_EQ(clone->anchor(), 0.5);
    EXPECT_EQ(clone->parent(), nullptr);
    EXPECT_EQ(clone->children().size(), 2);
    EXPECT_EQ(clone->transform(Linear, -10.0), 0.25);
    EXPECT_TRUE(*clone != bipolar);

    AggregateAxis same, shifted, shorter;
    same.addAxis(&mirror, 0.0, 0.5).addAxis(source.get(), 0.5, 1.0);
    shifted.addAxis(&mirror, 0.0, 0.5).addAxis(source.get(), 0.5, 0.9);
    shorter.addAxis(&mirror, 0.0, 0.5);
    EXPECT_TRUE(same == bipolar);
    AggregateAxis moved;
    moved.addAxis(&mirror, 0.25, 0.5).addAxis(source.get(), 0.5, 1.0);
    EXPECT_TRUE(moved != bipolar);
    EXPECT_TRUE(shifted != bipolar && shorter != bipolar && bipolar != shorter);
    EXPECT_TRUE(bipolar != mirror);
}
