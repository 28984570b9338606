#include "kestrane/axes/LinearAxis.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::LinearAxis;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Place = std::pair<double, double>; // Logical and axis position.

std::vector<Place> places(const QVector<Axis::Tick>& ticks)
{
    std::vector<Place> result;
    for (const Axis::Tick& tick : ticks)
        result.emplace_back(tick.logicalPosition(), tick.axisPosition());
    std::sort(result.begin(), result.end());
    return result;
}

std::vector<double> values(const QVector<Axis::Tick>& ticks)
{
    std::vector<double> result;
    for (const Place& place : places(ticks))
        result.push_back(place.first);
    return result;
}

} // namespace

TEST(LinearAxisTest, BothEndsOfADefaultAxisHaveAMajorTick)
{
    LinearAxis axis;
    const std::vector<Place> major = places(axis.majorTicks());
    ASSERT_EQ(major.size(), 11u);
    EXPECT_EQ(major.front(), Place(0.0, 0.0));
    EXPECT_EQ(major.back(), Place(10.0, 1.0));
    EXPECT_THAT(axis.minorTicks(), IsEmpty());
}

TEST(LinearAxisTest, TicksStandOnWholeMultiplesOfTheScale)
{
    LinearAxis axis(5.0, -3.0, 0.0, false, 4, 5); // -3 to 17
    EXPECT_THAT(values(axis.majorTicks()), ElementsAre(0, 5, 10, 15));
    for (const Place& place : places(axis.majorTicks()))
        EXPECT_NEAR(place.second, (place.first + 3.0) / 20.0, 4e-16);
    const std::vector<Place> minor = places(axis.minorTicks());
    ASSERT_EQ(minor.size(), 16u);
    EXPECT_EQ(minor.front(), Place(-3.0, 0.0)); // Its major place, -5, lies outside.
    EXPECT_EQ(minor.back().first, 16.0);

    LinearAxis odd(2.0, 101.0, 0.0, false, 10, 2); // 101 to 121
    EXPECT_THAT(values(odd.majorTicks()),
                ElementsAre(102, 104, 106, 108, 110, 112, 114, 116, 118, 120));
    EXPECT_THAT(values(odd.minorTicks()),
                ElementsAre(101, 103, 105, 107, 109, 111, 113, 115, 117, 119));

    EXPECT_EQ(values(LinearAxis(1.0, -2.5).majorTicks()).front(), -2.0);
}

TEST(LinearAxisTest, ScrollingSlidesTicksAndKeepsTheirValues)
{
    LinearAxis axis(5.0, -3.0, 0.0, false, 4, 5);
    const std::vector<Place> before = places(axis.majorTicks());
    axis.scrollAxis(0.0, 0.1);
    const std::vector<Place> after = places(axis.majorTicks());
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_EQ(after[i].first, before[i].first);
        EXPECT_NEAR(after[i].second, before[i].second - 0.1, 4e-16);
    }
}

TEST(LinearAxisTest, ZeroDivisionsKeepTheOldTicksUntilThereAreDivisionsAgain)
{
    LinearAxis axis(1.0, 0.0, 0.0, false, 4, 2);
    const auto major = values(axis.majorTicks());
    axis.setNumMajorDivisions(0);
    EXPECT_EQ(values(axis.majorTicks()), major);
    axis.setNumMajorDivisions(4);
    axis.setNumMinorDivisions(0);
    axis.setOffset(100.0);
    EXPECT_EQ(values(axis.majorTicks()), major);
    axis.setNumMinorDivisions(2);
    EXPECT_THAT(values(axis.majorTicks()), ElementsAre(100, 101, 102, 103, 104));

    axis.setNumMajorDivisions(-1);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
}

TEST(LinearAxisTest, NoTicksWithoutAUsableScale)
{
    LinearAxis axis(1.0, 1.0, 0.0, false, 4, 2);
    ASSERT_FALSE(axis.majorTicks().isEmpty());
    axis.setOffsetAndScale(1.0, 0.0);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
    axis.setOffsetAndScale(std::numeric_limits<double>::quiet_NaN(), 1.0);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
    EXPECT_THAT(axis.minorTicks(), IsEmpty());
}

TEST(LinearAxisTest, CloneIsALinearAxis)
{
    LinearAxis axis(5.0, -3.0, 0.25, true, 4, 5);
    const std::unique_ptr<LinearAxis> clone(axis.clone());
    EXPECT_TRUE(*clone == axis);
    EXPECT_EQ(places(clone->minorTicks()), places(axis.minorTicks()));
}
