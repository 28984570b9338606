#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/backend/InvalidIndexException.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tests;
using pelorin::utilities::InvalidIndexException;
using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

namespace {

Spline spline(const std::vector<double>& samples)
{
    const auto data = segment(samples);
    return Spline(data.begin, data.count); // Keeps the samples of the segment alive.
}

std::vector<double> randomWalk(std::size_t count)
{
    std::mt19937 random(7);
    std::normal_distribution<double> step;
    std::vector<double> samples(count);
    for (std::size_t i = 1; i < samples.size(); ++i)
        samples[i] = samples[i - 1] + step(random);
    return samples;
}

} // namespace

TEST(SplineAlgorithmTest, TwoSamplesGiveALineAndThreeACurve)
{
    EXPECT_EQ(spline({1.0, 3.0})[0.5], 2.0);
    EXPECT_NEAR(spline({0.0, 1.0, 0.0})[0.5], 0.7009618943233, 5e-14);
    EXPECT_NEAR(spline({0.0, 1.0, 0.0})[1.5], 0.7009618943233, 5e-14);
}

TEST(SplineAlgorithmTest, PassesThroughEverySampleAndAnswersTheSameInAnyOrder)
{
    const std::vector<double> samples = randomWalk(500);
    Spline rising = spline(samples);
    Spline falling = spline(samples);
    std::vector<double> upwards;
    for (std::size_t i = 0; i < 4 * 499; ++i) {
        upwards.push_back(rising[double(i) / 4]);
        EXPECT_TRUE(i % 4 != 0 || upwards[i] == samples[i / 4]) << i;
    }
    for (std::size_t i = upwards.size(); i-- > 0;)
        EXPECT_EQ(falling[double(i) / 4], upwards[i]);
    EXPECT_EQ(rising[0.75], upwards[3]);
}

TEST(SplineAlgorithmTest, OutsideItsRangeItRaisesAndStaysAsItIs)
{
    Spline curve = spline({0, 1, 2, 3, 4, 5, 6, 7, 8});
    const std::pair<double, const char*> told[] = {{8.0, "8"}, {-0.5, "-0.5"}, {NaN, "nan"}};
    for (const auto& [index, text] : told) {
        try {
            curve[index];
            ADD_FAILURE() << index;
        } catch (const InvalidIndexException& exception) {
            EXPECT_EQ(exception.message(),
                      QString("SplineAlgorithm::operator[] (given index: %1, legal values are "
                              "between 8 and 0)")
                          .arg(text));
        }
    }
    for (const double index : {3e9, -3e9, 0x1p31, 0x1p32, 0x1p32 + 0.5, 1.5 - 0x1p32, 0x1p63,
                               Infinity, -Infinity, 1e300}) {
        EXPECT_THROW(curve[index], InvalidIndexException) << index;
        EXPECT_FALSE(curve.covers(index)) << index;
    }
    EXPECT_NEAR(curve[std::nextafter(8.0, 0.0)], 8.0, 1e-14);
    EXPECT_TRUE(curve.covers(std::nextafter(8.0, 0.0)) && curve.covers(-0.0));

    for (const std::vector<double>& few : {std::vector<double>{}, std::vector<double>{1.0}}) {
        EXPECT_THROW(spline(few)[0.0], InvalidIndexException) << few.size();
        EXPECT_FALSE(spline(few).covers(0.0));
    }
    EXPECT_THROW(Spline(segment({1.0}).begin, 1LL << 32), std::length_error);
}

TEST(SplineAlgorithmTest, WhatIsNotFiniteSpreadsOverThreeOrMoreSamples)
{
    std::vector<double> nearTheEnd;
    for (int i = 0; i < 522; ++i)
        nearTheEnd.push_back(i == 520 ? NaN : std::sin(i));
    const std::vector<std::vector<double>> spoilt{{NaN, 1},
                                                  {0, 1, NaN, 3, 4, 5},
                                                  {0, 1, 2, 3, Infinity},
                                                  {1e308, -1e308, 1e308, 0},
                                                  nearTheEnd};
    for (const auto& samples : spoilt) {
        for (double index = 0.0; index < double(samples.size()) - 1.0; index += 0.25)
            EXPECT_TRUE(std::isnan(spline(samples)[index])) << index;
    }
}

TEST(SplineAlgorithmTest, ATailIsASplineOfItsOwnOverTheRest)
{
    const std::vector<double> samples = randomWalk(40);
    Spline whole = spline(samples);
    Spline other = spline({1.0});
    other = whole;
    Spline moved = std::move(other);
    EXPECT_EQ(moved[20.5], whole[20.5]);
    const auto tail = whole.tail(10);
    Spline rest = spline(std::vector<double>(samples.begin() + 10, samples.end()));
    for (double index = 0.0; index < 29.0; index += 0.125)
        EXPECT_EQ((*tail)[index], rest[index]);
    EXPECT_THROW((*tail)[29.0], InvalidIndexException);
    EXPECT_THROW((*whole.tail(40))[0.0], InvalidIndexException);
}
