#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/backend/InvalidIndexException.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

using pelorin::algo::Subsampler;
using pelorin::backend::SampleIterator;
using pelorin::utilities::InvalidIndexException;
using Spline = pelorin::algo::SplineAlgorithm<SampleIterator>;
using tests::Infinity;
using tests::NaN;

namespace {

Spline spline(const std::vector<double>& samples)
{
    const auto segment = tests::segment(samples);
    return Spline(segment.begin, segment.count); // Keeps the samples of the segment alive.
}

QString messageOf(Spline& curve, double index)
{
    try {
        curve[index];
    } catch (const InvalidIndexException& exception) {
        return exception.message();
    }
    return QString();
}

std::vector<double> randomWalk(int count)
{
    std::mt19937 random(7);
    std::normal_distribution<double> step;
    std::vector<double> samples(std::size_t(count), 0.0);
    for (std::size_t i = 1; i < samples.size(); ++i)
        samples[i] = samples[i - 1] + step(random);
    return samples;
}

} // namespace

TEST(SplineAlgorithmTest, TwoSamplesGiveALineAndThreeACurve)
{
    Spline line = spline({1.0, 3.0});
    EXPECT_EQ(line[0.5], 2.0);
    EXPECT_EQ(line[0.0], 1.0);

    // The curvature at the middle is K times the second difference -2, whatever its neighbours.
    const double curvature = -2.0 * 0.267949192431123;
    Spline curve = spline({0.0, 1.0, 0.0});
    const double atHalf = ((curvature * 0.5 + 0.0) * 0.5 + (1.0 - curvature)) * 0.5;
    EXPECT_EQ(curve[0.5], atHalf);
    EXPECT_NEAR(curve[0.5], 0.7009618943233, 5e-14);
    EXPECT_NEAR(curve[1.5], 0.7009618943233, 5e-14);
    EXPECT_EQ(curve[1.0], 1.0);
}

TEST(SplineAlgorithmTest, PassesThroughEverySampleExactly)
{
    const std::vector<double> samples = randomWalk(1000);
    Spline curve = spline(samples);
    for (std::size_t i = 0; i + 1 < samples.size(); ++i)
        EXPECT_EQ(curve[double(i)], samples[i]);
}

TEST(SplineAlgorithmTest, TheAnswerDependsOnTheIndexAlone)
{
    const std::vector<double> samples = randomWalk(50);
    Spline rising = spline(samples);
    Spline falling = spline(samples);
    std::vector<double> upwards;
    for (int i = 0; i < 480; ++i)
        upwards.push_back(rising[i * 0.1]);
    for (int i = 479; i >= 0; --i)
        EXPECT_EQ(falling[i * 0.1], upwards[std::size_t(i)]);
    EXPECT_EQ(rising[3 * 0.1], upwards[3]);
}

TEST(SplineAlgorithmTest, OutsideItsRangeItRaisesAndStaysAsItIs)
{
    Spline curve = spline({0, 1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(messageOf(curve, 8.0), "SplineAlgorithm::operator[] (given index: 8, legal values "
                                     "are between 8 and 0)");
    EXPECT_EQ(messageOf(curve, -0.5), "SplineAlgorithm::operator[] (given index: -0.5, legal "
                                      "values are between 8 and 0)");
    EXPECT_EQ(messageOf(curve, NaN), "SplineAlgorithm::operator[] (given index: nan, legal values "
                                     "are between 8 and 0)");
    for (const double index : {3e9, -3e9, 4294967296.0, Infinity, -Infinity, 1e300}) {
        EXPECT_THROW(curve[index], InvalidIndexException) << index;
        EXPECT_FALSE(curve.covers(index)) << index;
    }
    EXPECT_NEAR(curve[std::nextafter(8.0, 0.0)], 8.0, 1e-14);
    EXPECT_TRUE(curve.covers(std::nextafter(8.0, 0.0)) && curve.covers(-0.0));

    for (const std::vector<double>& few : {std::vector<double>{}, std::vector<double>{1.0}}) {
        Spline none = spline(few);
        EXPECT_THROW(none[0.0], InvalidIndexException) << few.size();
        EXPECT_FALSE(none.covers(0.0));
    }
    EXPECT_THROW(Spline(tests::segment({1.0}).begin, 1LL << 32), std::length_error);
}

TEST(SplineAlgorithmTest, WhatIsNotFiniteSpreadsOverThreeOrMoreSamples)
{
    const std::vector<std::vector<double>> spoilt{
        {0, 1, NaN, 3, 4, 5}, {0, 1, 2, 3, Infinity}, {1e308, -1e308, 1e308, 0}};
    for (const auto& samples : spoilt) {
        Spline curve = spline(samples);
        for (double index = 0.0; index < double(samples.size()) - 1.0; index += 0.25)
            EXPECT_TRUE(std::isnan(curve[index])) << index;
    }
    Spline line = spline({NaN, 1.0});
    EXPECT_TRUE(std::isnan(line[0.5]));
}

TEST(SplineAlgorithmTest, ATailIsASplineOfItsOwnOverTheRest)
{
    const std::vector<double> samples = randomWalk(40);
    Spline whole = spline(samples);
    const boost::shared_ptr<Subsampler> tail = whole.tail(10);
    Spline rest = spline(std::vector<double>(samples.begin() + 10, samples.end()));
    for (double index = 0.0; index < 29.0; index += 0.125)
        EXPECT_EQ((*tail)[index], rest[index]);
    EXPECT_NE((*tail)[0.5], whole[10.5]);
    EXPECT_THROW((*tail)[29.0], InvalidIndexException);
    EXPECT_THROW((*whole.tail(40))[0.0], InvalidIndexException);
}
