#include "kestrane/colors/AutoComputeColorMapBuilder.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace pelorin::ui;

TEST(AutoComputeColorMapBuilderTest, ThresholdsRiseFromOneByAConstantFactor)
{
    constexpr std::size_t Most = std::numeric_limits<std::size_t>::max();
    struct Row
    {
        std::size_t maximum;
        std::vector<std::size_t> thresholds;
    };
    const Row rows[] = {
        {1000, {1, 850}},
        {1000, {1, 9, 89}},
        {100, {1, 3, 9, 27}},
        {1000, {1, 3, 14, 57, 220}},
        {65535, {1, 3, 15, 60, 236, 925, 3625, 14212}},
        {3, {1, 1, 1, 1, 2}},
        {2, {1, 1, 1, 1, 1}},
        {1, {1, 0, 0}},
        {0, {1, 0, 0}},
        {1, {1, 0}},
        {1000, {1}},
        {0, {1}},
        {1000, {}},
    };
    for (const Row& row : rows) {
        QVector<QColor> colors;
        for (std::size_t i = 0; i < row.thresholds.size(); ++i)
            colors.append(QColor(int(i), 0, 0));
        const auto map = AutoComputeColorMapBuilder::buildAutoComputeMap(colors, row.maximum);
        std::vector<std::size_t> thresholds;
        for (int i = 0; i < map.numberOfClasses(); ++i)
            thresholds.push_back(map.thresholdAtIndex(i));
        EXPECT_EQ(thresholds, row.thresholds) << row.maximum;
        EXPECT_EQ(map.colors(), colors);
        EXPECT_EQ(map.mapToColor(0), QColor(Qt::transparent));
    }
    // Counts from 2^63 up are no negative numbers.
    const auto two = AutoComputeColorMapBuilder::buildAutoComputeMap({Qt::red, Qt::blue}, Most);
    EXPECT_DOUBLE_EQ(double(two.thresholdAtIndex(1)), 0.85 * 0x1p64);
}

TEST(AutoComputeColorMapBuilderTest, CountsFindTheLastOfEqualClassesAndOnlyColoursAreTakenOver)
{
    ColorMap source(Qt::yellow);
    source.build().appendEntry(Qt::red, 70).appendEntry(Qt::green, 0).appendEntry(Qt::blue, 5);
    const auto colorAt = [&source](std::size_t maximum, std::size_t value) {
        return AutoComputeColorMapBuilder::buildAutoComputeMap(source, maximum).mapToColor(value);
    };
    struct Row
    {
        std::size_t maximum, value;
        Qt::GlobalColor color;
    };
    const Row rows[] = {
        {1000, 0, Qt::transparent}, {1000, 8, Qt::red}, {1000, 9, Qt::green},
        {1000, 89, Qt::blue},       {4, 1, Qt::green},  {4, 2, Qt::blue},
        {2, 1, Qt::blue},           {0, 1, Qt::red},    {0, 500, Qt::red},
    };
    for (const Row& row : rows)
        EXPECT_EQ(colorAt(row.maximum, row.value), QColor(row.color)) << row.maximum;
}
