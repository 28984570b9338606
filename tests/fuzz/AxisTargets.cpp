#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/LogAxis.h"

#include "tests/fuzz/Target.h"
#include "tests/support/Builders.h"
#include "tests/support/Ticks.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

void change(FixedPositionLinearAxis& axis, Dice& dice)
{
    const auto base = dice.upTo(1) ? axis.scrollScaleState() : nullptr;
    const double a = dice.number(), b = dice.number(), low = dice.number(), high = dice.number();
    const std::function<void()> changes[] = {
        [&] { axis.setAnchor(a); },
        [&] { axis.setOffsetAndScale(a, b); },
        [&] { axis.setOffsetIsAdded(a > 0.0); },
        [&] { axis.setNumMajorDivisions(int(axis.numMajorDivisions() * 7 % 41) - 3); },
        [&] { axis.scrollAxis(a, b, base, low, high, low); },
        [&] { axis.scaleAxis(a, b, base, low, high, low); },
    };
    changes[dice.upTo(5)]();
}

void expectRanked(const Ticks& ticks)
{
    for (int i = 0; i < ticks.size(); ++i)
        EXPECT_TRUE(ticks[i].isValid() && (i == 0 || ticks[i - 1].rank() > ticks[i].rank())) << i;
}

} // namespace

FUZZ_TARGET(LinearAxis)
{
    const double scale = dice.number(), offset = dice.number(), anchor = dice.number();
    const int minor = dice.upTo(12) - 1;
    const bool isFixed = dice.upTo(1);
    const std::unique_ptr<FixedPositionLinearAxis> axis(
        isFixed ? new FixedPositionLinearAxis(scale, offset, anchor, false, 10, minor)
                : new LinearAxis(scale, offset, anchor, false, 10, minor));
    for (int i = 0; i < 6; ++i) {
        change(*axis, dice);
        const double added = axis->offsetIsAdded() ? axis->offset() : -axis->offset();
        const double range = axis->numMajorDivisions() * axis->scale();
        const double low = -axis->anchor() * range - added, x = dice.number();
        EXPECT_TRUE(same(axis->minValue(), low));
        EXPECT_TRUE(same(axis->maxValue(), low + range));
        EXPECT_TRUE(same(axis->transform(Axis::Linear, x),
                         std::isnan(x) ? x : (x + added) * (1.0 / range) + axis->anchor()));
        EXPECT_TRUE(same(axis->inverseTransform(Axis::Linear, x),
                         std::isnan(x) ? x : (x - axis->anchor()) * range - added));
        expectRanked(axis->majorTicks());
        expectRanked(axis->minorTicks());
        for (const auto& tick : axis->majorTicks() + axis->minorTicks())
            EXPECT_TRUE(isFixed || (tick.axisPosition() >= 0.0 && tick.axisPosition() <= 1.0));
    }
}

FUZZ_TARGET(LogAxis)
{
    LogAxis axis{dice.number(), dice.number()};
    for (int i = 0; i < 6; ++i) {
        const double a = dice.number(), b = dice.number(), x = dice.number();
        const auto base = dice.upTo(1) ? axis.scrollScaleState() : nullptr;
        const std::function<void()> changes[] = {
            [&] { axis.setSmallest(a); },
            [&] { axis.setLargest(a); },
            [&] { axis.scrollAxis(0.5, a, base, b, x); },
            [&] { axis.scaleAxis(a, b, base, 0.0, x); },
        };
        changes[dice.upTo(3)]();
        EXPECT_TRUE(same(axis.transform(Axis::Linear, x),
                         x <= 0.0 ? -Infinity : axis.transform(Axis::Logarithmic, std::log10(x))));
        expectRanked(axis.majorTicks());
        expectRanked(axis.minorTicks());
        for (const auto& tick : axis.minorTicks())
            EXPECT_GE(tick.axisPosition(), 0.0);
        const double decades = std::log10(axis.largest() / axis.smallest());
        if (axis.smallest() > 0.0 && decades > 0.01 && decades < 600.0 && x > 0.0 && x < 1.0) {
            const double value = axis.inverseTransform(Axis::Logarithmic, x);
            EXPECT_NEAR(axis.transform(Axis::Logarithmic, value), x, 1e-10);
        }
    }
}

FUZZ_TARGET(AutoScaler)
{
    const double scale = dice.number(), offset = dice.number(), bottom = dice.number(),
                 top = dice.number(), targetTop = dice.number(), targetBottom = dice.number(),
                 minimum = dice.number(), floor = dice.number();
    const int divisions = dice.upTo(20) - 1;
    const bool isAdded = dice.upTo(1), force = dice.upTo(1);
    const auto suggested =
        LinearPlotAutoScaler::suggest(scale, offset, bottom, top, divisions, targetTop,
                                      targetBottom, minimum, floor, isAdded, force);
    const bool isPlaced =
        !(bottom < targetBottom) && !(top > targetTop) && !(top - bottom < minimum);
    const bool isUnknown =
        std::isnan(bottom) || std::isnan(top) || std::isnan(scale) || std::isnan(offset);
    if (isUnknown || (isPlaced && !force)) {
        EXPECT_TRUE(same(suggested.scale, scale) && same(suggested.offset, offset));
        return;
    }
    const double size = std::fabs(scale) + std::fabs(suggested.scale) + std::fabs(offset) +
                        std::fabs(bottom) + std::fabs(top) + std::fabs(targetBottom) +
                        std::fabs(targetTop) + std::fabs(floor);
    if (!(size < 1e6 && suggested.scale > 1e-200))
        return;
    if (suggested.scale != scale) {
        const double unit = std::pow(10.0, std::floor(std::log10(suggested.scale * 1.0000001)));
        EXPECT_NEAR(suggested.scale / unit, std::round(suggested.scale / unit), 1e-9);
    }
    // The middle of the data lies in the middle of the band, if that has its own at the axis's.
    const double extent = floor > top - bottom ? floor : top - bottom, sign = isAdded ? -1.0 : 1.0;
    const double shift = bottom + extent / 2 - (targetTop + targetBottom) / 2;
    EXPECT_NEAR(suggested.offset - offset,
                divisions * (sign * shift * scale + (scale - suggested.scale) / 2),
                1e-12 * 20 * (1.0 + size) * (1.0 + size));
}

namespace {

struct Ranker : LinearAxis
{
    using Axis::updateRanking;
};

// The weights of the ticks between two, each round half of the one before.
void weigh(std::vector<double>& weights, std::size_t first, std::size_t last, double weight)
{
    const std::size_t middle = first + (last - first) / 2;
    if (middle == first)
        return;
    weights[middle] = weight;
    weigh(weights, first, middle, weight / 2);
    weigh(weights, middle, last, weight / 2);
}

} // namespace

FUZZ_TARGET(Ranking)
{
    const std::size_t count = std::size_t(dice.upTo(dice.upTo(9) ? 40 : 5000));
    const bool isMajor = dice.upTo(1);
    std::vector<double> ranks(count, 500.0);
    if (count > 0)
        weigh(ranks, 0, count - 1, 250.0);
    Ticks ticks;
    for (std::size_t i = 0; i < count; ++i) {
        const double own = dice.upTo(4) ? 0.0 : dice.number();
        ticks.append(Axis::Tick(double(i), dice.number(), own, {}, false));
        ranks[i] = own != 0.0 ? own : ranks[i] * (1.0 + double(i) / double(count));
        ranks[i] += isMajor ? 1500.0 : 0.0;
    }
    Ranker().updateRanking(ticks, isMajor);
    ASSERT_EQ(std::size_t(ticks.size()), count);
    std::vector<bool> met(count, false);
    for (int i = 0; i < ticks.size(); ++i) {
        const auto number = std::size_t(ticks[i].logicalPosition());
        ASSERT_TRUE(same(ticks[i].rank(), ranks[number])) << number;
        EXPECT_TRUE(i == 0 || ticks[i - 1].rank() >= ticks[i].rank() ||
                    std::isnan(ticks[i].rank()));
        EXPECT_FALSE(met[number]);
        met[number] = true;
    }
}
