// What every kind of axis promises, kept under random gestures with and without bases and limits.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <utility>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

using Range = std::pair<double, double>;

// A simple axis that gestures reach in the end, and the limits that it is held to.
struct Leaf
{
    Axis* axis;
    Range limits;
};

// An axis that owns all below it, and the leaf under each half of it.
struct Specimen
{
    std::unique_ptr<Axis> axis;
    std::vector<Leaf> leaves;
    bool takesLogarithms; // Round trips through logarithms are possible.

    const Leaf& leafAt(double at) const { return leaves[leaves.size() == 2 && at >= 0.5 ? 1 : 0]; }
};

LogAxis* log()
{
    return new LogAxis(0.5, 200.0);
}

LinearAxis* linear()
{
    return new LinearAxis(10.0, 2000.0);
}

const Range logLimits{1e-3, 1e3}, linearLimits{1500.0, 4000.0};

Specimen alone(Axis* axis, const Range& limits)
{
    return {std::unique_ptr<Axis>(axis), {{axis, limits}}, true};
}

Specimen mirrored(Specimen specimen)
{
    Axis* const source = specimen.axis.release();
    specimen.axis = std::make_unique<MirroredAxis>(source);
    source->setParent(specimen.axis.get());
    std::swap(specimen.leaves.front(), specimen.leaves.back());
    return specimen;
}

Specimen endToEnd(Axis* low, Axis* high, std::vector<Leaf> leaves, bool takesLogarithms)
{
    auto axis = std::make_unique<AggregateAxis>();
    axis->addAxis(low, 0.0, 0.5).addAxis(high, 0.5, 1.0);
    low->setParent(axis.get());
    high->setParent(axis.get());
    return {std::move(axis), std::move(leaves), takesLogarithms};
}

Specimen logAndLinear()
{
    LogAxis* const low = log();
    LinearAxis* const high = linear();
    return endToEnd(low, high, {{low, logLimits}, {high, linearLimits}}, true);
}

Specimen bipolar()
{
    LogAxis* const source = log();
    auto* const mirror = new MirroredAxis(source);
    return endToEnd(mirror, source, {{source, logLimits}}, false);
}

Specimen nested()
{
    Specimen inner = bipolar();
    LinearAxis* const high = linear();
    return endToEnd(inner.axis.release(), high, {inner.leaves[0], {high, linearLimits}}, false);
}

std::vector<Specimen> specimens()
{
    std::vector<Specimen> all;
    all.push_back(alone(log(), logLimits));
    all.push_back(alone(linear(), linearLimits));
    all.push_back(alone(new FixedPositionLinearAxis(10.0, 2000.0, 0.0, false, 7), linearLimits));
    all.push_back(mirrored(alone(log(), logLimits)));
    all.push_back(mirrored(alone(linear(), linearLimits)));
    all.push_back(logAndLinear());
    all.push_back(bipolar());
    all.push_back(mirrored(bipolar()));
    all.push_back(nested());
    return all;
}

class Random
{
public:
    double between(double low, double high)
    {
        return low + (high - low) * (double(m_random()) / 4294967296.0);
    }

    bool oneIn(unsigned count) { return m_random() % count == 0; }

private:
    std::mt19937 m_random{7};
};

// Rounding, of the value as well as of the position, in shares of the axis.
double positionTolerance(const Axis& leaf)
{
    double low = leaf.minValue(), high = leaf.maxValue();
    if (leaf.scaleMode() == Axis::Logarithmic) {
        low = std::log10(low);
        high = std::log10(high);
    }
    const double size = std::abs(low) + std::abs(high);
    return 64 * std::numeric_limits<double>::epsilon() * (1.0 + size / std::abs(high - low));
}

// Not so once a scroll beyond the bottom limit has turned a logarithmic axis round, or a scaling
// has dragged its grip to the start and so the range to the end of all numbers.
bool isOrdinary(const Specimen& specimen)
{
    return std::all_of(specimen.leaves.begin(), specimen.leaves.end(), [](const Leaf& leaf) {
        return leaf.axis->minValue() < leaf.axis->maxValue() && leaf.axis->maxValue() < 1e9;
    });
}

void checkRoundTrips(const Specimen& specimen, Random& random)
{
    if (!isOrdinary(specimen))
        return;
    for (const auto mode : {Axis::Linear, Axis::Logarithmic}) {
        const double position = random.between(0.001, 0.999);
        if (mode == Axis::Logarithmic && !specimen.takesLogarithms)
            continue;
        const double value = specimen.axis->inverseTransform(mode, position);
        const double again = specimen.axis->transform(mode, value);
        ASSERT_NEAR(again, position, positionTolerance(*specimen.leafAt(position).axis)) << mode;
    }
    const double end = positionTolerance(*specimen.leaves.back().axis);
    ASSERT_NEAR(specimen.axis->transform(Axis::Linear, specimen.axis->maxValue()), 1.0, end);
}

bool isInside(const Axis& axis, const Range& limits)
{
    constexpr double rounding = 1e-12;
    return axis.minValue() >= limits.first * (1.0 - rounding) &&
           axis.maxValue() <= limits.second * (1.0 + rounding);
}

// One drag from its begin to its end, as a host makes it.
void drag(const Specimen& specimen, Random& random)
{
    Axis& axis = *specimen.axis;
    const bool scales = random.oneIn(2), hasBase = !random.oneIn(4), hasLimits = !random.oneIn(4);
    const double at = random.between(0.0, 1.0);
    const Leaf& leaf = specimen.leafAt(at);
    // A step without limits leads out of them; half a decade and back is all that it may do.
    const double reach = hasLimits ? 0.6 : 0.05;
    const Range limits = hasLimits ? leaf.limits : Range{Lowest, Highest};
    const auto base = hasBase ? axis.scrollScaleState() : nullptr;
    const auto move = [&](double by) {
        const auto gesture = scales ? &Axis::scaleAxis : &Axis::scrollAxis;
        (axis.*gesture)(at, by, base, limits.first, limits.second, 1e-3);
    };
    SignalLog log(&axis);
    for (int i = 0; i < 3 && isOrdinary(specimen); ++i) {
        const std::unique_ptr<Axis> before(leaf.axis->clone());
        const double by = random.between(-reach, reach) * (scales ? at : 1.0);
        move(by);
        const QString heard = log.take();
        ASSERT_EQ(heard.isEmpty(), *before == *leaf.axis) << heard.toStdString();
        ASSERT_TRUE(heard.isEmpty() || heard.endsWith("axisChangedViaScalingOrScrolling()"));
        ASSERT_TRUE(!isInside(*before, limits) || isInside(*leaf.axis, limits));
        if (hasBase) {
            move(by);
            ASSERT_EQ(log.take(), "");
        }
        checkRoundTrips(specimen, random);
    }
}

} // namespace

TEST(AxisGestureLawsTest, HoldUnderRandomGesturesForEveryKindOfAxis)
{
    Random random;
    for (int run = 0; run < 200; ++run) {
        int number = 0;
        for (const Specimen& specimen : specimens()) {
            SCOPED_TRACE(testing::Message() << "specimen " << number++ << " in run " << run);
            for (int i = 0; i < 5 && !HasFatalFailure(); ++i)
                drag(specimen, random);
        }
    }
}
