#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/Ticks.h"

#include <gmock/gmock.h>

#include <cmath>

using namespace pelorin::ui::chart;
using namespace tests;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(LinearAxisTest, TicksStandOnWholeMultiplesOfTheScale)
{
    LinearAxis axis(5.0, -3.0, 0.0, false, 4, 5); // -3 to 17
    EXPECT_THAT(values(axis.majorTicks()), ElementsAre(15, 0, 5, 10));
    const Places minor = places(axis.minorTicks());
    ASSERT_EQ(minor.size(), 16u);
    EXPECT_EQ(minor.front(), Place(-3.0, 0.0)); // Its major place, -5, lies outside.
    EXPECT_EQ(minor.back().first, 16.0);
    EXPECT_TRUE(arePlain(axis.majorTicks()) && arePlain(axis.minorTicks()));
    EXPECT_EQ(ranks(axis.majorTicks()).front(), (3.0 / 4.0 + 1.0) * 500.0 + 1500.0);
    EXPECT_EQ(ranks(axis.minorTicks()).front(), (15.0 / 16.0 + 1.0) * 500.0);

    LinearAxis odd(2.0, 101.0, 0.0, false, 10, 2); // 101 to 121
    EXPECT_EQ(places(odd.majorTicks()).front().first, 102.0);
    EXPECT_EQ(places(odd.minorTicks()).front().first, 101.0);
    EXPECT_EQ(odd.majorTicks().size() + odd.minorTicks().size(), 20);
    EXPECT_EQ(places(LinearAxis(1.0, -2.5).majorTicks()).front().first, -2.0);

    const Places both = places(LinearAxis().majorTicks()); // One on each end.
    EXPECT_EQ(both.size(), 11u);
    EXPECT_EQ(both.front(), Place(0.0, 0.0));
    EXPECT_EQ(both.back(), Place(10.0, 1.0));
    EXPECT_THAT(LinearAxis().minorTicks(), IsEmpty());
}

TEST(LinearAxisTest, PlacesAreProductsOfTheirIndexAndEndsHaveNoTolerance)
{
    int outside = 0; // Ticks that rounding puts just outside the axis.
    for (int k = 0; k < 200; ++k) {
        LinearAxis axis(0.02, k / 100.0, 0.0, false, 7, 3);
        const double start = 0.02 * std::floor(axis.minValue() / 0.02);
        const double startPosition = axis.transform(Axis::Linear, start);
        Places major, minor;
        for (int i = 0; i <= 7; ++i) {
            const Place place(0.02 * i + start, i * (1.0 / 7) + startPosition);
            if (place.second >= 0.0 && place.second <= 1.0)
                major.push_back(place);
            else if (std::fabs(place.second - 0.5) < 0.5 + 1e-9)
                ++outside;
            for (int j = 1; j < 3; ++j) {
                const Place between(j * (0.02 / 3) + place.first, j * (1.0 / 7 / 3) + place.second);
                if (between.second >= 0.0 && between.second < 1.0)
                    minor.push_back(between);
            }
        }
        EXPECT_EQ(places(axis.majorTicks()), major) << k;
        EXPECT_EQ(places(axis.minorTicks()), minor) << k;
    }
    EXPECT_GT(outside, 0);
}

TEST(LinearAxisTest, TicksFollowTheVirtualOperations)
{
    struct Shifted : LinearAxis // Shows everything 100 higher, and half as far along.
    {
        double minValue() const override { return 100.0 + LinearAxis::minValue(); }
        double transform(ScaleMode mode, double value) const override
        {
            return LinearAxis::transform(mode, value - 100.0) + 0.5;
        }
    };
    const Places major = places(Shifted().majorTicks());
    EXPECT_EQ(major.front(), Place(100.0, 0.5));
    EXPECT_EQ(major.size(), 6u);
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
    EXPECT_THAT(values(axis.majorTicks()), ElementsAre(104, 100, 102, 103, 101));

    axis.setNumMinorDivisions(-1);
    EXPECT_EQ(axis.majorTicks().size(), 5);
    EXPECT_THAT(axis.minorTicks(), IsEmpty());
    axis.setNumMajorDivisions(-1);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
}

TEST(LinearAxisTest, NoTicksWithoutAUsableScale)
{
    LinearAxis axis(1.0, 1.0, 0.0, false, 4, 2);
    EXPECT_FALSE(axis.majorTicks().isEmpty());
    axis.setOffsetAndScale(1.0, 0.0);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
    axis.setOffsetAndScale(NaN, 1.0);
    EXPECT_THAT(axis.majorTicks(), IsEmpty());
    EXPECT_THAT(axis.minorTicks(), IsEmpty());
}
