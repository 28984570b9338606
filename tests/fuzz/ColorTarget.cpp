#include "kestrane/colors/AutoComputeColorMapBuilder.h"

#include "tests/fuzz/Target.h"

#include <gtest/gtest.h>

using namespace pelorin::ui;
using namespace tests;

namespace {

constexpr std::size_t Most = ~std::size_t(0);

std::size_t count(Dice& dice)
{
    const auto any = std::size_t(std::fmin(std::fabs(dice.number()) * 0x1p32, 0x1p63));
    const std::size_t around[] = {0, Most, std::size_t(1) << 53, any};
    const std::size_t middle = around[dice.upTo(3)];
    return middle + std::size_t(dice.upTo(8)) - 4;
}

// By a search from class to class.
void expectAsScanned(const ColorMap& map, std::size_t value)
{
    int found = -1;
    for (int i = 0; i < map.numberOfClasses() && value > 0; ++i) {
        const std::size_t threshold = map.thresholdAtIndex(i);
        if (threshold <= value && (found < 0 || threshold >= map.thresholdAtIndex(found)))
            found = i;
    }
    EXPECT_EQ(map.isUnmatched(value), found < 0) << value;
    EXPECT_EQ(map.mapToColor(value), found < 0 ? map.unmatchedColor() : map.colorAtIndex(found));
}

} // namespace

FUZZ_TARGET(ColorMap)
{
    ColorMap map(Qt::green);
    {
        auto builder = map.build();
        for (int i = dice.upTo(dice.upTo(7) ? 12 : 200); i > 0; --i)
            builder.appendEntry(QColor(i % 256, i / 256, 0), count(dice));
    }
    const double factor = dice.number();
    const ColorMap scaled(map, factor);
    for (int i = 0; i < map.numberOfClasses(); ++i) {
        const double product = double(map.thresholdAtIndex(i)) * factor;
        const std::size_t whole = product >= 0x1p64 ? Most
                                  : product > 0.0   ? std::size_t(product)
                                                    : 0;
        EXPECT_EQ(scaled.thresholdAtIndex(i), i == 0 ? map.thresholdAtIndex(0) : whole);
    }
    const std::size_t maximum = count(dice);
    const ColorMap computed = AutoComputeColorMapBuilder::buildAutoComputeMap(map, maximum);
    EXPECT_EQ(computed.colors(), map.colors());
    for (int i = 0; i < computed.numberOfClasses() && maximum > 1; ++i)
        EXPECT_GE(computed.thresholdAtIndex(i), i == 0 ? 1 : computed.thresholdAtIndex(i - 1));
    for (const ColorMap* const one : {&std::as_const(map), &scaled, &computed}) {
        for (int i = 0; i < 20; ++i)
            expectAsScanned(*one, count(dice));
        for (int i = 0; i < one->numberOfClasses(); ++i)
            expectAsScanned(*one, one->thresholdAtIndex(i) - std::size_t(dice.upTo(1)));
    }
}
