#include "kestrane/axes/Axis.h"
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"
#include "tests/support/Ticks.h"

#include <QMetaMethod>
#include <QMetaProperty>

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

using namespace pelorin::ui::chart;
using namespace tests;
using testing::ElementsAre;

namespace {

// Opens what Axis keeps for its subclasses.
class OpenAxis : public FixedPositionLinearAxis
{
public:
    using Axis::emitMaxValChanged;
    using Axis::emitMinValChanged;
    using Axis::updateRanking;
};

Ticks unrankedTicks(int count)
{
    Ticks ticks;
    for (int i = 0; i < count; ++i)
        ticks.append(Axis::Tick(i, i, 0.0, {}, false));
    return ticks;
}

// The rule as it is told: a tick is ranked where the bisection first meets it.
void bisect(std::vector<double>& ranks, int first, int last, double weight)
{
    for (;;) {
        for (const int i : {first, last}) {
            if (ranks[std::size_t(i)] == 0.0)
                ranks[std::size_t(i)] = (double(i) / double(ranks.size()) + 1.0) * weight;
        }
        const int mid = (first + last) / 2;
        weight /= 2.0;
        if (first < last)
            bisect(ranks, first, mid, weight);
        if (mid == first)
            return;
        first = mid;
    }
}

} // namespace

TEST(AxisTickTest, OnlyValidTicksAtTheSamePlaceAreEqual)
{
    const Axis::Tick tick(1.0, 0.5, 7.0, {2.0}, true);

    EXPECT_TRUE(tick == Axis::Tick(99.0, 0.5, 0.0, {}, false));
    EXPECT_FALSE(tick == Axis::Tick(1.0, std::nextafter(0.5, 1.0), 7.0, {2.0}, true));
    EXPECT_FALSE(Axis::Tick(1.0, NaN, 0.0, {}, false) == Axis::Tick(1.0, NaN, 0.0, {}, false));

    const Axis::Tick invalid;
    EXPECT_FALSE(invalid == invalid);
    EXPECT_FALSE(invalid == Axis::Tick(0.0, 0.0, 0.0, {}, false));
    EXPECT_FALSE(Axis::Tick(0.0, 0.0, 0.0, {}, false) == invalid);
    EXPECT_FALSE(invalid.isValid() || invalid.isInvisible());
    EXPECT_EQ(invalid.rank(), -100.0);
}

TEST(AxisTickTest, MovedFromTickKeepsAllButItsList)
{
    const QList<double> list{2.0, 3.0};
    const auto expectMovedFrom = [](const Axis::Tick& tick) {
        EXPECT_TRUE(tick.isValid() && tick.isInvisible());
        EXPECT_THAT((std::vector<double>{tick.logicalPosition(), tick.axisPosition(), tick.rank()}),
                    ElementsAre(1.0, 0.5, 7.0));
        EXPECT_TRUE(tick.secondaryLogicalPositions().isEmpty());
    };
    Axis::Tick source(1.0, 0.5, 7.0, list, true), target(std::move(source));
    EXPECT_EQ(target.secondaryLogicalPositions(), list);
    expectMovedFrom(source);
    Axis::Tick assigned(0.0, 0.0, 0.0, {9.0}, false);
    assigned = std::move(target);
    EXPECT_EQ(assigned.secondaryLogicalPositions(), list);
    expectMovedFrom(target);
}

TEST(AxisRankingTest, BisectionGivesTheEndsThenTheMiddleThenTheQuarters)
{
    OpenAxis axis;
    struct Row
    {
        int count;
        bool isMajor;
        std::vector<double> values, ranks;
    };
    const Row rows[] = {
        {0, false, {}, {}},
        {0, true, {}, {}},
        {1, true, {0}, {2000}},
        {2, false, {1, 0}, {750, 500}},
        {5, false, {4, 0, 2, 3, 1}, {900, 500, 350, 200, 150}},
    };
    for (const Row& row : rows) {
        Ticks ticks = unrankedTicks(row.count);
        axis.updateRanking(ticks, row.isMajor);
        EXPECT_EQ(values(ticks), row.values);
        EXPECT_EQ(ranks(ticks), row.ranks);
    }
    Ticks preset = unrankedTicks(3);
    preset[1].setRank(2500.0);
    preset[2].setRank(NaN);
    axis.updateRanking(preset, true);
    EXPECT_THAT(values(preset), ElementsAre(1, 0, 2));
    EXPECT_EQ(preset.first().rank(), 4000.0);

    Ticks below = unrankedTicks(3);
    below[0].setRank(-1.0);
    axis.updateRanking(below, false);
    EXPECT_EQ(below.last().rank(), -1.0); // It has a rank already.
}

TEST(AxisRankingTest, TicksOfAnAxisHaveTheRanksOfTheBisectionInDescendingOrder)
{
    for (int count = 1; count < 300; ++count) {
        std::vector<double> expected(std::size_t(count), 0.0);
        bisect(expected, 0, count - 1, 500.0);

        FixedPositionLinearAxis axis(1.0, 0.0, 0.0, false, count, 2);
        for (const auto& [ticks, bonus] :
             {std::pair(axis.majorTicks(), 1500.0), std::pair(axis.minorTicks(), 0.0)}) {
            ASSERT_EQ(ticks.size(), count);
            for (const auto& tick : ticks)
                ASSERT_EQ(tick.rank(), expected[std::size_t(tick.logicalPosition())] + bonus);
            const auto inOrder = ranks(ticks);
            ASSERT_TRUE(std::is_sorted(inOrder.rbegin(), inOrder.rend())) << count;
        }
        Ticks ticks = unrankedTicks(count);
        OpenAxis().updateRanking(ticks, true);
        ASSERT_EQ(values(ticks), values(axis.majorTicks()));
        ASSERT_EQ(ranks(ticks), ranks(axis.majorTicks()));
    }
}

TEST(AxisSignalsTest, UpdateAndTheEmittersTellWhatTheyAreToldTo)
{
    OpenAxis axis;
    SignalLog log(&axis);
    axis.update();
    EXPECT_EQ(log.take(), "parametersChanged(self)");
    axis.emitMinValChanged();
    EXPECT_EQ(log.take(), "minValueChanged(0) parametersChanged(self)");
    axis.emitMaxValChanged();
    EXPECT_EQ(log.take(), "maxValueChanged(10) parametersChanged(self)");
    axis.emitMinValChanged(false);
    axis.emitMaxValChanged(false);
    EXPECT_EQ(log.take(), "minValueChanged(0) maxValueChanged(10)");
}

TEST(AxisSignalsTest, OfSeveralExceptionsOfListenersTheFirstOneIsThrown)
{
    LogAxis axis(1.0, 100.0);
    QObject::connect(&axis, &LogAxis::largestChanged, [] { throw 1; });
    QObject::connect(&axis, &Axis::axisChangedViaScalingOrScrolling, [] { throw 2.0; });
    EXPECT_THROW(axis.scrollAxis(0.0, 0.5), int);
    EXPECT_EQ(axis.maxValue(), 1000.0);
}

TEST(AxisMetaObjectTest, EveryClassHasTheSameDefaultLimits)
{
    LogAxis log(1.0, 100.0), source(1.0, 100.0), sub(1.0, 100.0);
    MirroredAxis mirror(&source);
    AggregateAxis aggregate;
    aggregate.addAxis(&sub, 0.0, 1.0);
    mirror.scaleAxis(0.5, -0.5); // Each drags its grip to the start and so goes to the top limit.
    log.scaleAxis(0.5, 0.5);
    aggregate.scaleAxis(0.5, 0.5);
    for (LogAxis* axis : {&log, &source, &sub}) {
        EXPECT_EQ(axis->largest(), Highest);
        axis->setLargest(100.0);
    }
    log.scrollAxis(0.0, 1.0);
    mirror.scrollAxis(0.0, -1.0);
    aggregate.scrollAxis(0.0, 1.0);
    for (const LogAxis* axis : {&log, &source, &sub})
        EXPECT_EQ(axis->smallest(), 100.0);
}

TEST(AxisMetaObjectTest, PropertiesAreReadWrittenAndTellOfChanges)
{
    struct Row
    {
        const char* name;
        double value;
        bool isStored;
        const char* notify; // "" for a constant.
    };
    const Row rows[] = {
        {"minValue", 90.0, false, "minValueChanged"},
        {"maxValue", 110.0, false, "maxValueChanged"},
        {"scaleMode", 1.0, true, ""},
        {"numMajorDivisions", 10.0, true, "numMajorDivisionsChanged"},
        {"numMinorDivisions", 5.0, true, "numMinorDivisionsChanged"},
        {"offset", 100.0, true, "offsetChanged"},
        {"scale", 2.0, true, "scaleChanged"},
        {"anchor", 0.5, true, "anchorChanged"},
        {"offsetIsAdded", 0.0, true, "offsetIsAddedChanged"},
    };
    FixedPositionLinearAxis axis(2.0, 100.0, 0.5, false, 10, 5);
    const QMetaObject* meta = axis.metaObject();
    ASSERT_EQ(meta->propertyCount() - QObject::staticMetaObject.propertyCount(), 9);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QMetaProperty property = meta->property(meta->indexOfProperty(row.name));
        EXPECT_EQ(property.read(&axis).toDouble(), row.value);
        EXPECT_EQ(property.isStored() && property.isDesignable(), row.isStored);
        EXPECT_EQ(QByteArray(property.notifySignal().name()), row.notify);
        EXPECT_EQ(property.isConstant(), property.isEnumType());
        const bool isParameter = row.isStored && !property.isConstant();
        EXPECT_EQ(property.isWritable(), isParameter);
        if (isParameter) {
            EXPECT_TRUE(property.write(&axis, 1));
            EXPECT_EQ(property.read(&axis).toDouble(), 1.0);
        }
    }
    const auto mode = meta->enumerator(meta->indexOfEnumerator("ScaleMode"));
    EXPECT_EQ(mode.keyToValue("Linear"), 1);
    EXPECT_EQ(mode.keyToValue("Logarithmic"), 0);
}

TEST(AxisMetaObjectTest, ShortFormsOfGesturesKnowNoLimits)
{
    FixedPositionLinearAxis linear(1e299); // Its own default arguments.
    linear.scrollAxis(0.0, -1.0);
    EXPECT_EQ(linear.minValue(), -1e300);

    LinearAxis moved(1e299), scaled(1.0);
    Axis &axis = moved, &scaledAxis = scaled; // Those of the contract.
    axis.scrollAxis(0.0, -1.0);
    EXPECT_EQ(axis.minValue(), -1e300);
    EXPECT_TRUE(
        QMetaObject::invokeMethod(&axis, "scrollAxis", Q_ARG(double, 0.0), Q_ARG(double, 2.0)));
    EXPECT_EQ(axis.maxValue(), 2e300);

    scaledAxis.scaleAxis(1e-9, 1.0); // The span is one pixel.
    EXPECT_EQ(scaled.scale(), 1e-9 / 1e-18);
    scaled.scaleAxis(1e-9, 1.0);
    EXPECT_EQ(scaled.scale(), 1e-9 / 1e-18 * (1e-9 / 1e-18));
    EXPECT_TRUE(QMetaObject::invokeMethod(&scaledAxis, "scaleAxis", Q_ARG(double, 0.5),
                                          Q_ARG(double, 0.25)));
    EXPECT_EQ(scaled.scale(), 2e18);
}
