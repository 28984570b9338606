// Axes within axes: what is told through the layers, and what may die when.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/support/SignalLog.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;

TEST(NestedAxesTest, AnAggregateOfAMirrorAndItsSourceHearsBoth)
{
    LogAxis source(1.0, 100.0);
    MirroredAxis mirror(&source);
    AggregateAxis axis;
    axis.addAxis(&mirror, 0.0, 0.5).addAxis(&source, 0.5, 1.0);
    SignalLog log(&axis);
    source.setLargest(1e4); // The mirror was connected first.
    EXPECT_EQ(log.take(), "ticksUpdated() ticksUpdated() minValueChanged(-10000) "
                          "maxValueChanged(10000) parametersChanged(self) parametersChanged(self)");
    axis.scrollAxis(0.25, 0.25); // Grips the mirror, which drags its source the other way.
    EXPECT_EQ(log.take(),
              "ticksUpdated() ticksUpdated() maxValueChanged(100) minValueChanged(-100) "
              "minValueChanged(-100) maxValueChanged(100) parametersChanged(self) "
              "parametersChanged(self) axisChangedViaScalingOrScrolling() "
              "axisChangedViaScalingOrScrolling()");
}

TEST(NestedAxesTest, AMirrorOfAnAggregateTellsTheAggregatesLimitsTurnedRound)
{
    LogAxis low(1.0, 10.0);
    LinearAxis high(10.0, 10.0);
    AggregateAxis axis;
    axis.addAxis(&low, 0.0, 0.5).addAxis(&high, 0.5, 1.0);
    MirroredAxis mirror(&axis);
    EXPECT_EQ(mirror.transform(Axis::Linear, -60.0), 0.25);
    SignalLog log(&mirror);
    axis.scrollAxis(0.75, 0.05);
    EXPECT_EQ(log.take(), "maxValueChanged(-1) minValueChanged(-120) ticksUpdated() "
                          "parametersChanged(other) axisChangedViaScalingOrScrolling()");
    mirror.scrollAxis(0.25, 0.05); // The same grip, dragged back.
    EXPECT_EQ(high.offset(), 10.0);
    EXPECT_EQ(mirror.majorTicks().size(), 1 + axis.majorTicks().size());
}

TEST(NestedAxesTest, AnAggregateOfAggregatesFollowsItsInnermostAxes)
{
    LinearAxis a(1.0, 0.0), b(1.0, 10.0), c(1.0, 20.0);
    AggregateAxis inner, outer;
    inner.addAxis(&a, 0.0, 0.5).addAxis(&b, 0.5, 1.0);
    outer.addAxis(&inner, 0.0, 0.5).addAxis(&c, 0.5, 1.0);
    EXPECT_EQ(outer.transform(Axis::Linear, 15.0), 0.375);
    EXPECT_EQ(outer.inverseTransform(Axis::Linear, 0.375), 15.0);
    SignalLog log(&outer);
    const auto base = outer.scrollScaleState();
    outer.scrollAxis(0.3, 0.05, base);
    EXPECT_EQ(b.offset(), 12.0);
    EXPECT_EQ(log.take(), "minValueChanged(0) maxValueChanged(30) ticksUpdated() "
                          "parametersChanged(self) axisChangedViaScalingOrScrolling()");
    outer.scrollAxis(0.3, 0.05, base);
    EXPECT_EQ(log.take(), "");
    inner.removeAxis(&a); // Without ticksUpdated(), as ever.
    EXPECT_EQ(log.take(), "minValueChanged(12) maxValueChanged(30) parametersChanged(self)");
    EXPECT_EQ(outer.transform(Axis::Linear, 15.0), 0.5 * (0.5 + 0.5 * 0.3));
}

namespace {

struct Nest
{
    LogAxis* source = new LogAxis(1.0, 100.0);
    MirroredAxis* mirror = new MirroredAxis(source);
    AggregateAxis* axis = new AggregateAxis;
    LinearAxis* linear = new LinearAxis;
    AggregateAxis* outer = new AggregateAxis;

    Nest()
    {
        axis->addAxis(mirror, 0.0, 0.5).addAxis(source, 0.5, 1.0);
        outer->addAxis(axis, 0.0, 0.5).addAxis(linear, 0.5, 1.0);
    }

    std::vector<QPointer<Axis>> all() { return {source, mirror, axis, linear, outer}; }

    // Uses everything that is still there.
    static void use(const std::vector<QPointer<Axis>>& axes)
    {
        for (const QPointer<Axis>& one : axes) {
            if (one)
                one->scrollAxis(0.3, 0.1, one->scrollScaleState());
            if (one)
                one->scaleAxis(0.7, 0.1);
            if (one)
                one->update();
            if (one && one->majorTicks().size() + one->minorTicks().size() > 0)
                one->transform(Axis::Linear, one->inverseTransform(Axis::Linear, 0.6));
        }
    }
};

// Each way of changing something, through each axis of the nest.
using Change = std::function<void(Nest&)>;

std::vector<Change> changes()
{
    return {
        [](Nest& nest) { nest.source->setSmallest(2.0); },
        [](Nest& nest) { nest.source->setLargest(50.0); },
        [](Nest& nest) { nest.source->scrollAxis(0.5, 0.1); },
        [](Nest& nest) { nest.mirror->scaleAxis(0.2, 0.1); },
        [](Nest& nest) { nest.axis->scrollAxis(0.2, 0.1); },
        [](Nest& nest) { nest.outer->scaleAxis(0.3, 0.01); },
        [](Nest& nest) { nest.outer->scrollAxis(0.6, 0.1); },
        [](Nest& nest) { nest.linear->setOffsetAndScale(3.0, 5.0); },
        [](Nest& nest) { nest.linear->setNumMajorDivisions(3); },
        [](Nest& nest) { nest.axis->removeAxis(nest.mirror); },
        [](Nest& nest) { nest.axis->addAxis(nest.linear, 0.2, 0.3); },
        [](Nest& nest) { nest.outer->removeAllAxes(); },
    };
}

} // namespace

// Under the address sanitizer: whatever is deleted inside whatever signal, in the midst of a
// change, what is left can be used and deleted.
TEST(NestedAxesTest, AnyAxisMayBeDeletedInsideAnySignal)
{
    int deletions = 0;
    for (const Change& change : changes()) {
        for (std::size_t listened = 0; listened < 5; ++listened) {
            for (std::size_t victim = 0; victim < 5; ++victim) {
                for (int after = 0; after < 6; ++after) {
                    Nest nest;
                    auto axes = nest.all();
                    int left = after;
                    const auto strike = [&] {
                        if (left-- == 0) {
                            delete axes[victim];
                            ++deletions;
                        }
                    };
                    Axis* const sender = axes[listened];
                    QObject::connect(sender, &Axis::minValueChanged, strike);
                    QObject::connect(sender, &Axis::maxValueChanged, strike);
                    QObject::connect(sender, &Axis::parametersChanged, strike);
                    QObject::connect(sender, &Axis::ticksUpdated, strike);
                    QObject::connect(sender, &Axis::axisChangedViaScalingOrScrolling, strike);
                    change(nest);
                    left = -1;
                    Nest::use(axes);
                    for (std::size_t i = 0; i < 5; ++i)
                        delete axes[(i + std::size_t(after)) % 5];
                }
            }
        }
    }
    EXPECT_GT(deletions, 500);
}

TEST(NestedAxesTest, AClonedNestOutlivesItsModelAndDiesInsideItsOwnSignal)
{
    QPointer<AggregateAxis> clone;
    {
        LogAxis source(1.0, 100.0);
        MirroredAxis mirror(&source);
        AggregateAxis axis;
        axis.addAxis(&mirror, 0.0, 0.5).addAxis(&source, 0.5, 1.0);
        clone = axis.clone();
    }
    EXPECT_EQ(clone->transform(Axis::Linear, -10.0), 0.25);
    // Its sub-axes, which are in the midst of telling, die with it.
    QObject::connect(clone, &Axis::ticksUpdated, [&] { delete clone; });
    clone->scrollAxis(0.75, 0.1);
    EXPECT_FALSE(clone);
}
