// What every kind of axis promises.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/laws/Law.h"
#include "tests/laws/Specimen.h"
#include "tests/support/Numbers.h"
#include "tests/support/Ticks.h"

#include <cmath>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

Ticks allTicks(Axis& axis)
{
    return axis.majorTicks() + axis.minorTicks();
}

constexpr double rankOfJoint = 2500.0; // What shows another value than that of its place.

} // namespace

LAW(AxisLawsTest, APositionComesBackFromItsValue)
{
    const Specimen specimen = Specimen::any(dice);
    const double position = dice.between(0.001, 0.999);
    for (const auto mode : {Axis::Linear, Axis::Logarithmic}) {
        if (mode == Axis::Logarithmic && !specimen.takesLogarithms)
            continue;
        const double value = specimen.axis->inverseTransform(mode, position);
        EXPECT_NEAR(specimen.axis->transform(mode, value), position, specimen.tolerance(position))
            << mode;
    }
}

LAW(AxisLawsTest, TheLimitsLieAtTheEnds)
{
    const Specimen specimen = Specimen::any(dice);
    Axis& axis = *specimen.axis;
    EXPECT_NEAR(axis.transform(Axis::Linear, axis.minValue()), 0.0, specimen.tolerance(0.0));
    EXPECT_NEAR(axis.transform(Axis::Linear, axis.maxValue()), 1.0, specimen.tolerance(1.0));
}

LAW(AxisLawsTest, ValuesAscendWithPositions)
{
    const Specimen specimen = Specimen::any(dice);
    const double a = dice.between(0.0, 0.999), b = dice.between(a, 0.999);
    EXPECT_LE(specimen.axis->inverseTransform(Axis::Linear, a),
              specimen.axis->inverseTransform(Axis::Linear, b));
}

LAW(AxisLawsTest, PositionsAscendWithValues)
{
    const Specimen specimen = Specimen::simple(dice);
    const Axis& axis = *specimen.axis;
    const double a = dice.between(axis.minValue(), axis.maxValue()),
                 b = dice.between(a, axis.maxValue());
    EXPECT_LE(axis.transform(Axis::Linear, a), axis.transform(Axis::Linear, b));
}

LAW(AxisLawsTest, ALogarithmStandsForItsNumber)
{
    const Specimen specimen = Specimen::any(dice);
    const double position = dice.between(0.001, 0.999);
    const double value = specimen.axis->inverseTransform(Axis::Linear, position);
    if (!specimen.takesLogarithms || !(value > 0.0))
        return;
    const double logarithm = specimen.axis->inverseTransform(Axis::Logarithmic, position);
    EXPECT_NEAR(logarithm, std::log10(value), 1e-14 * (1.0 + std::fabs(logarithm)));
    EXPECT_NEAR(specimen.axis->transform(Axis::Logarithmic, std::log10(value)),
                specimen.axis->transform(Axis::Linear, value), specimen.tolerance(position));
}

LAW(AxisLawsTest, NaNStaysNaN)
{
    const Specimen specimen = Specimen::any(dice);
    for (const auto mode : {Axis::Linear, Axis::Logarithmic}) {
        EXPECT_TRUE(std::isnan(specimen.axis->transform(mode, NaN)));
        EXPECT_TRUE(std::isnan(specimen.axis->inverseTransform(mode, NaN)));
    }
}

LAW(AxisLawsTest, TicksStandAtTheirValues)
{
    const Specimen specimen = Specimen::any(dice);
    for (const Axis::Tick& tick : allTicks(*specimen.axis)) {
        const double value = tick.logicalPosition(), place = tick.axisPosition();
        const bool isBetween = std::fabs(place - 0.5) > 1e-9; // There, two axes may be in charge.
        if (tick.rank() < rankOfJoint && isBetween) {
            EXPECT_NEAR(specimen.axis->transform(Axis::Linear, value), place,
                        4.0 * specimen.tolerance(place));
        }
    }
}

LAW(AxisLawsTest, TicksLieOnTheAxis)
{
    const Specimen specimen = Specimen::any(dice);
    // But the powers of ten around the ends of a logarithmic axis.
    const bool isAggregate = qobject_cast<AggregateAxis*>(specimen.axis.get());
    for (const Axis::Tick& tick :
         isAggregate ? allTicks(*specimen.axis) : specimen.axis->minorTicks()) {
        EXPECT_GE(tick.axisPosition(), -1e-9);
        EXPECT_LE(tick.axisPosition(), 1.0 + 1e-9);
    }
}

LAW(AxisLawsTest, TicksComeInTheOrderOfTheirRanks)
{
    const Specimen specimen = Specimen::any(dice);
    const Ticks majors = specimen.axis->majorTicks(), minors = specimen.axis->minorTicks();
    for (const Ticks& ticks : {majors, minors}) {
        for (int i = 1; i < ticks.size(); ++i)
            EXPECT_GE(ticks[i - 1].rank(), ticks[i].rank());
    }
    if (!majors.isEmpty() && !minors.isEmpty()) {
        EXPECT_GT(majors.last().rank(), minors.first().rank());
    }
}

LAW(AxisLawsTest, NoTwoTicksOfASimpleAxisStandAtOnePlace)
{
    const Specimen specimen = Specimen::simple(dice);
    const Places ticks = places(allTicks(*specimen.axis));
    for (std::size_t i = 1; i < ticks.size(); ++i)
        EXPECT_GT(ticks[i].second, ticks[i - 1].second);
}

LAW(AxisLawsTest, TicksAreNoNearerThanTheSmallestDistance)
{
    const Specimen specimen = Specimen::simple(dice);
    if (specimen.axis->scaleMode() == Axis::Logarithmic)
        return;
    const Places ticks = places(specimen.axis->majorTicks());
    const double least = specimen.axis->smallestTickDistance(true);
    for (std::size_t i = 1; i < ticks.size(); ++i)
        EXPECT_GE(ticks[i].first - ticks[i - 1].first, least * (1.0 - 1e-9));
}

LAW(AxisLawsTest, AReadOfTheTicksChangesNothing)
{
    const Specimen specimen = Specimen::any(dice);
    const Places first = places(allTicks(*specimen.axis));
    EXPECT_EQ(places(allTicks(*specimen.axis)), first);
}

LAW(AxisLawsTest, ACloneDoesWhatItsModelDoes)
{
    const Specimen specimen = Specimen::any(dice);
    const std::unique_ptr<Axis> clone(specimen.axis->clone());
    const double position = dice.between(0.0, 1.0);
    const double value = clone->inverseTransform(Axis::Linear, position);
    EXPECT_EQ(value, specimen.axis->inverseTransform(Axis::Linear, position));
    EXPECT_EQ(clone->transform(Axis::Linear, value), specimen.axis->transform(Axis::Linear, value));
    EXPECT_EQ(places(clone->majorTicks()), places(specimen.axis->majorTicks()));
    const bool isAggregate = qobject_cast<AggregateAxis*>(specimen.axis.get()) ||
                             !specimen.axis->findChildren<AggregateAxis*>().isEmpty();
    EXPECT_NE(*clone == *specimen.axis, isAggregate); // These compare who their parts are.
}

LAW(AxisLawsTest, ACloneStaysWhereItIs)
{
    const Specimen specimen = Specimen::any(dice);
    const std::unique_ptr<Axis> clone(specimen.axis->clone());
    const double before = clone->inverseTransform(Axis::Linear, 0.25);
    specimen.axis->scrollAxis(0.25, 0.125);
    EXPECT_EQ(clone->inverseTransform(Axis::Linear, 0.25), before);
    EXPECT_NE(specimen.axis->inverseTransform(Axis::Linear, 0.25), before);
}

LAW(AxisLawsTest, AMirrorShowsTheOppositeAtTheOppositePlace)
{
    const Specimen specimen = Specimen::any(dice);
    const MirroredAxis mirror(specimen.axis.get());
    const double position = dice.between(0.0, 1.0), value = dice.between(-100.0, 100.0);
    EXPECT_EQ(mirror.transform(Axis::Linear, value),
              1.0 - specimen.axis->transform(Axis::Linear, -value));
    EXPECT_EQ(mirror.inverseTransform(Axis::Linear, position),
              -specimen.axis->inverseTransform(Axis::Linear, 1.0 - position));
    EXPECT_EQ(mirror.minValue(), -specimen.axis->maxValue());
    EXPECT_EQ(mirror.maxValue(), -specimen.axis->minValue());
}

LAW(AxisLawsTest, AMirrorOfAMirrorIsWhatItWas)
{
    const Specimen specimen = Specimen::any(dice);
    MirroredAxis once(specimen.axis.get());
    const MirroredAxis twice(&once);
    const double value = specimen.axis->inverseTransform(Axis::Linear, dice.between(0.0, 1.0));
    EXPECT_NEAR(twice.transform(Axis::Linear, value), specimen.axis->transform(Axis::Linear, value),
                1e-15);
    EXPECT_EQ(twice.minValue(), specimen.axis->minValue());
}

LAW(AxisLawsTest, AnAggregateLaysItsPartsIntoTheirStretches)
{
    Specimen part = Specimen::simple(dice);
    const double from = dice.between(-1.0, 1.0), to = from + dice.between(0.1, 1.0);
    AggregateAxis whole;
    whole.addAxis(part.axis.get(), from, to);
    const double value = dice.between(part.axis->minValue(), part.axis->maxValue());
    EXPECT_EQ(whole.transform(Axis::Linear, value),
              (to - from) * part.axis->transform(Axis::Linear, value) + from);
    const double position = dice.between(from, to);
    EXPECT_EQ(whole.inverseTransform(Axis::Linear, position),
              part.axis->inverseTransform(Axis::Linear, (position - from) / (to - from)));
}
