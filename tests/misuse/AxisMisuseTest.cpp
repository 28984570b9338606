#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/axes/TickFormatter.h"

#include "tests/misuse/Misuse.h"

#include <QPointer>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// A mirror without its source has 0.0 for all, NaN among them.
void askAll(Axis& axis, bool isWhole = true)
{
    for (const double number : hardNumbers) {
        for (const auto mode : {Axis::Linear, Axis::Logarithmic}) {
            const double position = axis.transform(mode, number);
            const double value = axis.inverseTransform(mode, number);
            const bool isNumber = !std::isnan(position) || !std::isnan(value);
            EXPECT_FALSE(std::isnan(number) && isNumber && isWhole);
        }
    }
    axis.smallestTickDistance(true);
    axis.smallestTickDistance(false);
    axis.anchor();
    EXPECT_LE(axis.majorTicks().size() + axis.minorTicks().size(), 20000);
    EXPECT_TRUE(std::unique_ptr<Axis>(axis.clone()));
}

void moveAll(Axis& axis, const boost::shared_ptr<const Axis::ScrollScaleState>& base)
{
    for (const double number : hardNumbers) {
        axis.scrollAxis(0.5, number, base);
        axis.scaleAxis(number, 0.25, base);
        axis.scrollAxis(number, number, base, number, -number, number);
        axis.scaleAxis(number, number, base, number, -number, number);
    }
}

void oddLinearAxes()
{
    forHardPairs([](double a, double b) {
        for (const double anchor : {0.0, NaN, 1e300}) {
            LinearAxis moving(a, b, anchor, false, 10, 5);
            FixedPositionLinearAxis fixed(a, b, anchor, true, 0, -1);
            askAll(moving);
            askAll(fixed);
            moving.setOffsetAndScale(b, a);
            moving.setNumMinorDivisions(-3);
            moving.setNumMajorDivisions(-7);
            askAll(moving);
            EXPECT_TRUE(fixed.majorTicks().isEmpty());
            fixed.setScale(b);
            fixed.setOffset(a);
            fixed.setAnchor(b);
            fixed.setOffsetIsAdded(a > b);
            askAll(fixed);
        }
    });
}

void oddLogAxes()
{
    for (const double a : {NaN, Infinity, 0.0, -1.0, 5e-324, Highest}) {
        for (const double b : {NaN, Infinity, 0.0, -1.0, 5e-324, Highest}) {
            LogAxis axis(a, b);
            askAll(axis);
            axis.setSmallest(b);
            axis.setLargest(a);
            askAll(axis);
        }
    }
}

struct Ranker : LinearAxis
{
    using Axis::updateRanking;
};

void oddRanks()
{
    for (const int count : {0, 1, 2, 3, 1000}) {
        for (const double number : hardNumbers) {
            QVector<Axis::Tick> ticks(count, Axis::Tick(number, number, number, {number}, true));
            Ranker().updateRanking(ticks, true);
            EXPECT_EQ(ticks.size(), count);
        }
    }
    LinearAxis axis;
    QObject::connect(&axis, &Axis::parametersChanged, &axis, [&] { axis.disconnect(); });
    axis.update();
}

void oddGestures()
{
    LinearAxis linear;
    LogAxis log(1.0, 1e3);
    MirroredAxis mirror(&log);
    AggregateAxis aggregate;
    aggregate.addAxis(&mirror, 0.0, 0.5).addAxis(&linear, 0.5, 1.0);
    for (Axis* const axis : {static_cast<Axis*>(&linear), static_cast<Axis*>(&log),
                             static_cast<Axis*>(&mirror), static_cast<Axis*>(&aggregate)}) {
        for (const Axis* const other :
             {static_cast<const Axis*>(&linear), static_cast<const Axis*>(&log),
              static_cast<const Axis*>(&aggregate)}) {
            moveAll(*axis, nullptr);
            moveAll(*axis, other->scrollScaleState());
        }
        askAll(*axis);
    }
}

void deadParts()
{
    MirroredAxis none(nullptr);
    auto source = std::make_unique<LogAxis>(1.0, 1e3);
    MirroredAxis orphan(source.get());
    AggregateAxis aggregate;
    aggregate.addAxis(source.get(), 0.0, 0.5).addAxis(&orphan, 0.5, 0.5).addAxis(&none, NaN, 2.0);
    source.reset();
    for (Axis* const axis :
         {static_cast<Axis*>(&none), static_cast<Axis*>(&orphan), static_cast<Axis*>(&aggregate)}) {
        askAll(*axis, false);
        moveAll(*axis, axis->scrollScaleState());
    }
    EXPECT_TRUE(std::isnan(aggregate.transform(Axis::Linear, 2.0)));
    aggregate.setAnchor(NaN);
    EXPECT_TRUE(std::isnan(aggregate.anchor()));
    aggregate.removeAxis(nullptr).removeAxis(&aggregate).removeAllAxes().removeAllAxes();
    EXPECT_TRUE(std::isnan(aggregate.minValue()));
}

// A chain of mirrors and aggregates over a linear axis that is changed while it tells of a change.
template<typename React>
void fromInsideSignals(const React& react)
{
    const std::function<QMetaObject::Connection(Axis*, std::function<void()>)> signals_[] = {
        [](Axis* axis, auto slot) { return QObject::connect(axis, &Axis::minValueChanged, slot); },
        [](Axis* axis, auto slot) { return QObject::connect(axis, &Axis::maxValueChanged, slot); },
        [](Axis* axis, auto slot) { return QObject::connect(axis, &Axis::ticksUpdated, slot); },
        [](Axis* axis, auto slot) {
            return QObject::connect(axis, &Axis::parametersChanged, slot);
        },
        [](Axis* axis, auto slot) {
            return QObject::connect(axis, &Axis::axisChangedViaScalingOrScrolling, slot);
        }};
    for (const auto& connectTo : signals_) {
        for (int sender = 0; sender < 3; ++sender) {
            const QPointer<LinearAxis> linear(new LinearAxis);
            const QPointer<MirroredAxis> mirror(new MirroredAxis(linear));
            const QPointer<AggregateAxis> aggregate(new AggregateAxis);
            aggregate->addAxis(mirror, 0.0, 0.5).addAxis(linear, 0.5, 1.0);
            Axis* const senders[] = {linear, mirror, aggregate};
            int left = 3;
            connectTo(senders[sender], [&, linear, mirror, aggregate] {
                if (--left >= 0)
                    react(linear, mirror, aggregate);
            });
            linear->scrollAxis(0.5, 0.25);
            if (linear)
                linear->setOffsetAndScale(7.0, 3.0);
            EXPECT_LT(left, 3);
            delete aggregate;
            delete mirror;
            delete linear;
        }
    }
}

void changedInsideItsSignals()
{
    fromInsideSignals([](LinearAxis* linear, MirroredAxis* mirror, AggregateAxis* aggregate) {
        linear->setScale(linear->scale() + 1.0);
        linear->scaleAxis(0.5, 0.1);
        aggregate->removeAxis(mirror).addAxis(mirror, 0.0, 0.5);
        aggregate->majorTicks();
    });
}

void deletedInsideItsSignals()
{
    fromInsideSignals([](LinearAxis* linear, MirroredAxis*, AggregateAxis*) { delete linear; });
    fromInsideSignals([](LinearAxis*, MirroredAxis* mirror, AggregateAxis*) { delete mirror; });
    fromInsideSignals([](LinearAxis*, MirroredAxis*, AggregateAxis* whole) { delete whole; });
    fromInsideSignals([](LinearAxis* linear, MirroredAxis* mirror, AggregateAxis* aggregate) {
        delete mirror;
        delete aggregate;
        delete linear;
    });
}

void oddScalings()
{
    forHardPairs([](double a, double b) {
        for (const int divisions : {0, -1, std::numeric_limits<int>::max()}) {
            LinearPlotAutoScaler::suggest(a, b, a, b, divisions, a, b, a, b, true, true);
            LinearPlotAutoScaler::suggest(1.0, 0.0, a, b, divisions, b, a, b, a, false, false);
        }
    });
}

void oddLabels()
{
    TickFormatter formatter;
    for (const int odd :
         {std::numeric_limits<int>::min(), -1, 0, std::numeric_limits<int>::max()}) {
        formatter.setSignificantDigits(odd);
        formatter.setLimitRangeCount(odd);
        formatter.setPreferredPrefix(odd);
        formatter.setPreferredUnit(odd);
        formatter.setPreferredUnitSystem(odd < 0 ? QString() : QString(odd % 1000, 'x'));
        formatter.setQuantity(odd == 0 ? QString() : QStringLiteral("nobody knows it"));
        formatter.setSizeTemplate(QString());
        formatter.setOptions(TickFormatter::FormatterOptions(odd));
        forHardPairs([&](double value, double reference) {
            const Axis::Tick tick(value, 0.0, 0.0, {reference}, true);
            EXPECT_EQ(formatter.formatTick(tick, reference).size(), 2);
        });
        EXPECT_EQ(formatter.formatTick(Axis::Tick(), NaN).size(), 1);
    }
}

const Misuse misuses[] = {{"linear axes of odd numbers", oddLinearAxes},
                          {"logarithmic axes of odd numbers", oddLogAxes},
                          {"ticks of odd ranks", oddRanks},
                          {"gestures by odd numbers, with states of others", oddGestures},
                          {"parts that are missing or dead", deadParts},
                          {"axes changed inside their own signals", changedInsideItsSignals},
                          {"axes deleted inside their own signals", deletedInsideItsSignals},
                          {"an auto scaler given odd numbers", oddScalings},
                          {"labels of odd numbers in odd settings", oddLabels}};

} // namespace

class AxisMisuseTest : public testing::TestWithParam<Misuse>
{
};

TEST_P(AxisMisuseTest, EndsAsDocumented)
{
    expectToPass(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, AxisMisuseTest, testing::ValuesIn(misuses));
