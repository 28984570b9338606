#include "kestrane/colors/ColorMap.h"
#include "kestrane/library/Kestrane.h"

#include "tests/support/Numbers.h"
#include "tests/support/QtVersions.h"

#include <QVariant>

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <type_traits>
#include <utility>
#include <vector>

using pelorin::ui::ColorMap;

static_assert(std::is_nothrow_move_constructible_v<ColorMap> &&
              std::is_nothrow_move_assignable_v<ColorMap>);
static_assert(!std::is_copy_constructible_v<ColorMap::Builder> &&
              !std::is_move_assignable_v<ColorMap::Builder>);

namespace {

using Thresholds = std::vector<std::size_t>;

constexpr std::size_t Most = std::numeric_limits<std::size_t>::max();

void append(ColorMap::Builder builder, const Thresholds& thresholds)
{
    for (std::size_t i = 0; i < thresholds.size(); ++i)
        builder.appendEntry(QColor(int(i), 0, 0), thresholds[i]);
}

// The class appended i-th has the colour QColor(i, 0, 0), what no class takes is green.
ColorMap mapOf(const Thresholds& thresholds)
{
    ColorMap map(Qt::green);
    append(map.build(), thresholds);
    return map;
}

Thresholds thresholds(const ColorMap& map)
{
    Thresholds result;
    for (int i = 0; i < map.numberOfClasses(); ++i) {
        EXPECT_EQ(map.colorAtIndex(i), map.colors().at(i));
        result.push_back(map.thresholdAtIndex(i));
    }
    return result;
}

// By the words alone: the last of the largest thresholds that are not above the value.
void expectAsScanned(const ColorMap& map)
{
    for (std::size_t value = Most - 2; value != 256; ++value) { // Around the end of all counts.
        QColor color = map.unmatchedColor();
        std::size_t largest = 0;
        bool isUnmatched = true;
        for (int i = 0; value > 0 && i < map.numberOfClasses(); ++i) {
            if (map.thresholdAtIndex(i) > value || map.thresholdAtIndex(i) < largest)
                continue;
            color = map.colorAtIndex(i);
            largest = map.thresholdAtIndex(i);
            isUnmatched = false;
        }
        EXPECT_EQ(map.isUnmatched(value), isUnmatched) << value;
        EXPECT_EQ(map.mapToColor(value), color) << value;
    }
}

} // namespace

TEST(ColorMapTest, MapsACountToTheClassThatTakesIt)
{
    std::mt19937_64 random(1);
    std::vector<Thresholds> lists = {{}, {Most}, {Most, 1}, {0}, {1, 10, 100}, {10, 1}, {5, 5}};
    while (lists.size() < 100) {
        lists.emplace_back(random() % 12);
        for (std::size_t& threshold : lists.back())
            threshold = random() % 30;
    }
    for (const Thresholds& list : lists) {
        EXPECT_EQ(thresholds(mapOf(list)), list);
        expectAsScanned(mapOf(list));
    }
    EXPECT_EQ(mapOf({1, 10, 100}).mapToColor(99), QColor(1, 0, 0));
    EXPECT_EQ(mapOf({5, 5}).mapToColor(5), QColor(1, 0, 0));
    EXPECT_EQ(ColorMap().mapToColor(1), QColor(Qt::transparent));
}

TEST(ColorMapTest, FindsNewClassesOnceTheirBuilderHasEnded)
{
    ColorMap map = mapOf({10});
    {
        // The temporary that is moved from ends here, without a rebuild.
        ColorMap::Builder named = map.appendEntry(Qt::red, 1).appendEntry(Qt::blue, 20);
        ColorMap::Builder last(std::move(named));
        named.appendEntry(Qt::gray, 7); // To no avail.
        last.appendEntry(Qt::black, 30).appendEntry(Qt::white, 40);
        EXPECT_EQ(thresholds(map), (Thresholds{10, 1, 20, 30, 40}));
        EXPECT_TRUE(map.isUnmatched(1));
        EXPECT_EQ(map.mapToColor(40), map.colorAtIndex(0));
    }
    map.build();
    expectAsScanned(map);
}

TEST(ColorMapTest, ScalesAllThresholdsButTheFirstOfTheList)
{
    constexpr std::size_t Half = std::size_t(1) << 63;
    constexpr std::size_t MostAsDouble = Most - 2047;
    struct Row
    {
        Thresholds list;
        double factor;
        Thresholds scaled;
    };
    // clang-format off
    const Row rows[] = {
        {{1, 10, 100},              2.5,      {1, 25, 250}},
        {{1, 10, 100},              0.05,     {1, 0, 5}},
        {{100, 10, 1, 11},          0.99,     {100, 9, 0, 10}},
        {{1, 2, 3},                 0.5,      {1, 1, 1}},
        {{1, Half + 2048, Half},    1.0,      {1, Half + 2048, Half}},
        {{1, MostAsDouble, Most},   1.0,      {1, MostAsDouble, Most}},
        {{1, (1ull << 53) + 1},     1.0,      {1, 1ull << 53}},
        {{Most, Half, Half - 1024}, 2.0,      {Most, Most, MostAsDouble}},
        {{7, 3, 0},                 tests::Infinity, {7, Most, 0}},
        {{7, 3, 0},                 tests::NaN,      {7, 0, 0}},
        {{7, 3, 0},                 -2.0,     {7, 0, 0}},
        {{},                        2.0,      {}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const ColorMap map = mapOf(row.list);
        const ColorMap scaled(map, row.factor);
        EXPECT_EQ(thresholds(scaled), row.scaled) << row.factor;
        EXPECT_EQ(thresholds(map), row.list) << row.factor;
        EXPECT_EQ(scaled.colors(), map.colors());
        EXPECT_EQ(scaled.unmatchedColor(), QColor(Qt::green));
        expectAsScanned(scaled);
    }
}

TEST(ColorMapTest, KeepsTheUnmatchedColourWhenMovedFromAndSharesNothingThatChanges)
{
    ColorMap first = mapOf({1, 10});
    ColorMap second(std::move(first));
    ColorMap third(Qt::yellow);
    third.appendEntry(Qt::blue, 3);
    ColorMap fourth(third);
    EXPECT_EQ(&(third = std::move(second)), &third);
    for (ColorMap* map : {&first, &second}) {
        EXPECT_TRUE(thresholds(*map).empty() && map->colors().isEmpty());
        EXPECT_EQ(map->mapToColor(10), QColor(Qt::green));
    }
    EXPECT_EQ(thresholds(fourth), (Thresholds{3}));
    expectAsScanned(fourth);
    EXPECT_EQ(&(fourth = third), &fourth);
    fourth.appendEntry(Qt::red, 5);
    first.appendEntry(Qt::red, 5);
    for (ColorMap* map : {&first, &third, &fourth}) {
        EXPECT_EQ(map->unmatchedColor(), QColor(Qt::green));
        expectAsScanned(*map);
    }
    EXPECT_EQ(thresholds(first), (Thresholds{5}));
    EXPECT_EQ(thresholds(third), (Thresholds{1, 10}));
    EXPECT_EQ(thresholds(fourth), (Thresholds{1, 10, 5}));
}

TEST(ColorMapTest, TravelsInAVariant)
{
    Kestrane::initialize();
    const int id = tests::metaTypeId("pelorin::ui::ColorMap");
    EXPECT_EQ(tests::variantOf(id, nullptr).value<ColorMap>().unmatchedColor(),
              QColor(Qt::transparent));
    const ColorMap map = mapOf({1, 10});
    EXPECT_EQ(tests::variantOf(id, &map).value<ColorMap>().mapToColor(10), QColor(1, 0, 0));
    Kestrane::deinitialize();
}
