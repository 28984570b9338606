// What gestures do to every kind of axis, with and without bases and limits.
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LogAxis.h"

#include "tests/laws/Law.h"
#include "tests/laws/Specimen.h"
#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"

#include <cmath>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

using State = boost::shared_ptr<const Axis::ScrollScaleState>;

// A drag in small steps, so that it stays on numbers without limits.
struct Drag
{
    explicit Drag(Dice& dice)
        : gesture(dice.upTo(1) ? &Axis::scaleAxis : &Axis::scrollAxis)
        , at(dice.upTo(3) / 4.0)
    {
        at += dice.between(0.005, 0.245); // A few pixels off the ends of all parts.
        by = dice.between(-0.05, 0.05) * (isScaling() ? at : 1.0);
    }

    bool isScaling() const { return gesture == &Axis::scaleAxis; }

    void move(Axis& axis, double share, const State& base, const Leaf* limits = nullptr) const
    {
        const double bottom = limits ? limits->limits.first : Lowest;
        const double top = limits ? limits->limits.second : Highest;
        (axis.*gesture)(at, by * share, base, bottom, top, 1e-3);
    }

    decltype(&Axis::scrollAxis) gesture;
    double at;
    double by;
};

// In which it is the same distance everywhere.
double measured(const Axis& axis, double value)
{
    return axis.scaleMode() == Axis::Logarithmic ? std::log10(value) : value;
}

} // namespace

LAW(GestureLawsTest, OnlyTheLastOfTheMovesFromABaseCounts)
{
    const Specimen specimen = Specimen::any(dice);
    Axis& axis = *specimen.axis;
    const Axis& leaf = *specimen.leafAt(0.0).axis;
    const Drag drag(dice);
    const State base = axis.scrollScaleState();
    drag.move(axis, 1.0, base);
    const double min = leaf.minValue(), max = leaf.maxValue();
    drag.move(axis, dice.between(-1.0, 1.0), base);
    drag.move(axis, 1.0, base);
    EXPECT_EQ(leaf.minValue(), min);
    EXPECT_EQ(leaf.maxValue(), max);
}

LAW(GestureLawsTest, NoDistanceFromTheBaseIsWhereItBegan)
{
    const Specimen specimen = Specimen::any(dice);
    Axis& axis = *specimen.axis;
    const Drag drag(dice);
    const double value = axis.inverseTransform(Axis::Linear, drag.at);
    const State base = axis.scrollScaleState();
    drag.move(axis, 1.0, base);
    drag.move(axis, 0.0, base);
    EXPECT_NEAR(axis.transform(Axis::Linear, value), drag.at, 4.0 * specimen.tolerance(drag.at));
}

LAW(GestureLawsTest, WhatIsGrippedMovesAlong)
{
    const Specimen specimen = Specimen::any(dice);
    Axis& axis = *specimen.axis;
    const Drag drag(dice);
    const double target = drag.at - drag.by;
    const bool leavesItsHalf = (drag.at < 0.5) != (target < 0.5);
    const bool isComposed = specimen.axis.get() != specimen.leaves[0].axis;
    // A part scales from its own start, and a mirror among others is filed where it first stood.
    if (isComposed && (leavesItsHalf || drag.isScaling() || !specimen.takesLogarithms))
        return;
    const double value = axis.inverseTransform(Axis::Linear, drag.at);
    drag.move(axis, 1.0, nullptr);
    EXPECT_NEAR(axis.transform(Axis::Linear, value), target, 4.0 * specimen.tolerance(drag.at));
}

LAW(GestureLawsTest, AScrollKeepsTheLengthAndAScalingTheStart)
{
    const Specimen specimen = Specimen::simple(dice);
    Axis& axis = *specimen.axis;
    const Drag drag(dice);
    const double low = measured(axis, axis.minValue()), high = measured(axis, axis.maxValue());
    drag.move(axis, 1.0, nullptr);
    const double newLow = measured(axis, axis.minValue()),
                 newHigh = measured(axis, axis.maxValue());
    const double rounding = 1e-13 * (std::fabs(low) + std::fabs(high));
    if (drag.isScaling())
        EXPECT_EQ(newLow, low);
    else
        EXPECT_NEAR(newHigh - newLow, high - low, rounding);
}

LAW(GestureLawsTest, AScrollTowardsTheStartShowsLargerValues)
{
    const Specimen specimen = Specimen::simple(dice);
    Axis& axis = *specimen.axis;
    const double min = axis.minValue();
    axis.scrollAxis(0.5, dice.between(0.001, 1.0));
    EXPECT_GT(axis.minValue(), min);
}

LAW(GestureLawsTest, NoGestureLeadsOutOfItsLimits)
{
    const Specimen specimen = Specimen::any(dice);
    const Drag drag(dice);
    const Leaf& leaf = specimen.leafAt(drag.at);
    const State base = dice.upTo(1) ? specimen.axis->scrollScaleState() : nullptr;
    for (const double share : {60.0, -60.0, 7.0}) {
        drag.move(*specimen.axis, share, base, &leaf);
        if (!(leaf.axis->minValue() < leaf.axis->maxValue()))
            return; // A scroll beyond the bottom limit turns a logarithmic axis round.
        EXPECT_GE(leaf.axis->minValue() + 1e-12 * std::fabs(leaf.axis->minValue()),
                  leaf.limits.first);
        EXPECT_LE(leaf.axis->maxValue() - 1e-12 * std::fabs(leaf.axis->maxValue()),
                  leaf.limits.second);
    }
}

LAW(GestureLawsTest, SignalsTellOfAChangeAndOfNothingElse)
{
    const Specimen specimen = Specimen::any(dice);
    const Drag drag(dice);
    const Axis& leaf = *specimen.leafAt(drag.at).axis;
    const State base = specimen.axis->scrollScaleState();
    SignalLog log(specimen.axis.get());
    for (const double share : {1.0, 1.0, 0.0, dice.between(-1.0, 1.0)}) {
        const std::unique_ptr<Axis> before(leaf.clone());
        drag.move(*specimen.axis, share, base);
        const QString heard = log.take();
        EXPECT_EQ(heard.isEmpty(), *before == leaf) << heard.toStdString();
        EXPECT_TRUE(heard.isEmpty() || heard.endsWith("axisChangedViaScalingOrScrolling()"));
    }
}

LAW(GestureLawsTest, NaNMovesNothingButNumbersComeBack)
{
    const Specimen specimen = Specimen::any(dice);
    const State base = specimen.axis->scrollScaleState();
    const Axis& leaf = *specimen.leafAt(0.25).axis;
    const double min = leaf.minValue();
    specimen.axis->scrollAxis(NaN, NaN, base);
    specimen.axis->scrollAxis(0.25, 0.0, base);
    EXPECT_NEAR(leaf.minValue(), min, 1e-12 * (1.0 + std::fabs(min)));
}

LAW(GestureLawsTest, AStateOfAnotherKindIsNone)
{
    const Specimen specimen = Specimen::simple(dice);
    const std::unique_ptr<Axis> twin(specimen.axis->clone());
    const LogAxis log(1.0, 10.0);
    const LinearAxis linear;
    const bool isLog = specimen.axis->scaleMode() == Axis::Logarithmic;
    const Drag drag(dice);
    drag.move(*specimen.axis, 1.0, isLog ? linear.scrollScaleState() : log.scrollScaleState());
    drag.move(*twin, 1.0, nullptr);
    EXPECT_EQ(specimen.axis->minValue(), twin->minValue());
    EXPECT_EQ(specimen.axis->maxValue(), twin->maxValue());
}

LAW(GestureLawsTest, ASetterThatChangesNothingSaysNothing)
{
    LinearAxis linear{dice.between(0.1, 10.0), dice.between(-10.0, 10.0)};
    LogAxis log{dice.between(0.1, 1.0), dice.between(2.0, 1e3)};
    SignalLog linearLog(&linear), logLog(&log);
    linear.setScale(linear.scale());
    linear.setOffset(linear.offset());
    linear.setNumMajorDivisions(linear.numMajorDivisions());
    log.setSmallest(log.smallest());
    log.setLargest(log.largest());
    EXPECT_EQ(linearLog.take() + logLog.take(), "");
}

LAW(GestureLawsTest, APositionComesBackFromItsValueAfterwardsToo)
{
    const Specimen specimen = Specimen::any(dice);
    if (!specimen.takesLogarithms) // A mirror among others is filed where it first stood.
        return;
    const Drag drag(dice);
    drag.move(*specimen.axis, 1.0, nullptr, &specimen.leafAt(drag.at));
    const double position = dice.between(0.001, 0.999);
    const double value = specimen.axis->inverseTransform(Axis::Linear, position);
    EXPECT_NEAR(specimen.axis->transform(Axis::Linear, value), position,
                specimen.tolerance(position));
}

LAW(GestureLawsTest, TheAutoScalerKeepsDataWhereItHasPutThem)
{
    const double low = dice.between(-100.0, 100.0), high = low + dice.between(0.01, 100.0);
    LinearAxis axis{dice.between(0.1, 10.0), dice.between(-10.0, 10.0)};
    const auto scaled = [&] {
        const auto suggested = LinearPlotAutoScaler::suggest(
            axis.scale(), axis.offset(), axis.transform(Axis::Linear, low),
            axis.transform(Axis::Linear, high), 10, 0.95, 0.05, 0.2, 1e-9, false, false);
        axis.setOffsetAndScale(suggested.offset, suggested.scale);
        return suggested;
    };
    scaled();
    EXPECT_GE(axis.transform(Axis::Linear, low), 0.05 - 1e-9);
    EXPECT_LE(axis.transform(Axis::Linear, high), 0.95 + 1e-9);
    const auto first = scaled(), second = scaled();
    EXPECT_NEAR(second.scale, first.scale, 1e-9 * first.scale);
}
