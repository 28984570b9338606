#include "hosts/charting/AxisDivision.h"
#include "hosts/charting/AxisView.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace hosts::charting {

namespace {

QVector<double> majorPlaces(const AxisDivision& division)
{
    QVector<double> places;
    for (const TickMark& mark : AxisView(division.shown(), QString()).marks()) {
        if (mark.major)
            places.append(mark.place);
    }
    std::sort(places.begin(), places.end());
    return places;
}

TEST(AxisDivisionTest, RoundStepsAreOneTwoOrFiveTimesAPowerOfTen)
{
    const struct
    {
        double from, to;
        int wanted;
        double step;
        int minor, ticks;
    } cases[] = {{0.0, 300.0, 10, 50.0, 5, 7},    {0.0, 10.0, 10, 1.0, 5, 11},
                 {0.0, 11.0, 10, 2.0, 4, 6},      {0.3, 1.1, 8, 0.1, 5, 9},
                 {-0.3, 0.3, 6, 0.1, 5, 7},       {1.2, 3.33, 10, 0.5, 5, 4},
                 {1958.0, 2002.0, 10, 5.0, 5, 9}, {-1.5e9, 0.0, 3, 5e8, 5, 4},
                 {0.0, 3e-9, 10, 5e-10, 5, 7},    {0.7, 0.9, 10, 0.02, 4, 11},
                 {99.95, 100.05, 4, 0.05, 5, 3}};
    for (const auto& c : cases) {
        const AxisDivision division = AxisDivision::of(c.from, c.to, c.wanted, TickPlaces::Moving);
        EXPECT_EQ(division.step, c.step) << c.from << " to " << c.to;
        EXPECT_EQ(division.minor, c.minor) << c.from << " to " << c.to;
        EXPECT_EQ(majorPlaces(division).size(), c.ticks) << c.from << " to " << c.to;
    }
}

TEST(AxisDivisionTest, AnyRangeIsShownExactlyWithATickOnEveryMultipleOfTheStep)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> whole(-5000, 5000);
    for (int i = 0; i < 3000; ++i) {
        const double unit = std::pow(10.0, i % 22 - 12);
        const double from = whole(random) * unit;
        const double to = from + (1 + std::abs(whole(random))) * unit;
        const AxisDivision division = AxisDivision::of(from, to, 10, TickPlaces::Moving);
        const AxisView view(division.shown(), QString());
        ASSERT_NEAR(view.from(), from, 1e-8 * division.step);
        ASSERT_NEAR(view.to(), to, 1e-8 * division.step);
        ASSERT_LE(division.visible, 1.0);
        const double first = std::ceil(from / division.step - 1e-6);
        const double last = std::floor(to / division.step + 1e-6);
        const QVector<double> places = majorPlaces(division);
        ASSERT_EQ(places.size(), int(last - first) + 1) << from << " to " << to;
        ASSERT_NEAR(places.first() * (to - from) + from, first * division.step,
                    1e-7 * division.step);
    }
}

TEST(AxisDivisionTest, FixedPlacesDivideTheRangeEvenly)
{
    const struct
    {
        double from, to;
        int wanted;
        double step;
        int ticks;
    } cases[] = {{1.0, 8.3, 4, 1.825, 5}, // No round step.
                 {10.19, 10.99, 10, 0.1, 9},
                 {-5.0, 5.0, 9, 2.0, 6},
                 {0.0, 1e-299, 2, 5e-300, 3}};
    for (const auto& c : cases) {
        const AxisDivision division = AxisDivision::of(c.from, c.to, c.wanted, TickPlaces::Fixed);
        EXPECT_NEAR(division.step, c.step, 1e-12 * c.step);
        EXPECT_DOUBLE_EQ(AxisView(division.shown(), QString()).to(), c.to);
        const QVector<double> places = majorPlaces(division);
        ASSERT_EQ(places.size(), c.ticks) << c.from << " to " << c.to;
        for (int i = 0; i < c.ticks; ++i)
            EXPECT_NEAR(places[i], double(i) / (c.ticks - 1), 1e-12);
    }
}

TEST(AxisDivisionTest, OnlyRangesWithAnExtentInDigitsAreUsable)
{
    const std::pair<double, double> bad[] = {
        {1.0, 1.0},          {2.0, 1.0},         {0.0, std::nan("")}, {0.0, HUGE_VAL},
        {-1.7e308, 1.7e308}, {1e15, 1e15 + 1.0}, {0.0, 1e-310}};
    for (const auto& [from, to] : bad)
        EXPECT_FALSE(AxisDivision::isUsableRange(from, to)) << from << " to " << to;
    EXPECT_TRUE(AxisDivision::isUsableRange(-1e-9, 1e-9));
}

} // namespace

} // namespace hosts::charting
