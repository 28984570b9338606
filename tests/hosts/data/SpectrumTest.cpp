#include "hosts/data/Spectrum.h"
#include "hosts/data/Slope.h"
#include "hosts/data/Spectrogram.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <functional>
#include <stdexcept>

namespace hosts::data {

namespace {

using namespace pelorin::backend;

// Samples at 5, 5.25, 5.5, ...; NaN is a gap.
Series seriesOf(int count, const std::function<double(double)>& value)
{
    std::vector<PlotSegment> segments;
    boost::shared_ptr<SampleVector> run;
    for (int i = 0; i <= count; ++i) {
        const double sample = i < count ? value(i) : std::nan("");
        if (std::isnan(sample) && run)
            segments.emplace_back(run, MetaInfo(5.0 + 0.25 * (i - double(run->size())), 0.25));
        if (std::isnan(sample))
            run.reset();
        else if (!run)
            run = boost::make_shared<SampleVector>();
        if (run)
            run->push_back(sample);
    }
    return {QStringLiteral("v"), PlotSnapshot(segments)};
}

double sine(double cyclesPerSample, double i)
{
    return std::sin(2.0 * std::acos(-1.0) * cyclesPerSample * i + 0.7);
}

TEST(SpectrumTest, ASineOnABinReadsItsAmplitudeThereAndHalfOfItBeside)
{
    const struct
    {
        int samples, length; ///< Of the run and of a stretch.
        int bin;
        double amplitude;
    } cases[] = {{64, 64, 7, 3.0},
                 {150, 150, 40, 1e-300},
                 {151, 150, 3, 2.5},
                 {14336, 13824, 2, 1e300},
                 {300000, 65536, 900, 0.25}};
    for (const auto& c : cases) {
        const Series spectrum = spectrumOf(seriesOf(c.samples, [&](double i) {
            return c.amplitude * (0.1 + sine(double(c.bin) / c.length, i));
        }));
        ASSERT_EQ(spectrum.snapshot.segments.size(), 1u);
        const PlotSegment& bins = spectrum.snapshot.segments[0];
        ASSERT_EQ(bins.count, c.length / 2) << c.samples;
        EXPECT_DOUBLE_EQ(bins.xInfo.offset, 4.0 / c.length);
        EXPECT_DOUBLE_EQ(bins.xInfo.scale, 4.0 / c.length);
        for (int bin = 1; bin <= c.length / 2; ++bin) {
            const int distance = std::abs(bin - c.bin);
            const double share = distance == 0 ? 1.0 : distance == 1 ? 0.5 : 0.0;
            ASSERT_NEAR(bins.begin[bin - 1] / c.amplitude, share, 1e-9) << c.samples << ' ' << bin;
        }
    }
}

TEST(SpectrumTest, HalfTheSamplingRateHasNoTwinAndAConstantNoSpectrum)
{
    const Series fastest =
        seriesOf(32, [](double i) { return std::fmod(i, 2.0) > 0.5 ? -3.0 : 3.0; });
    const Series constant = seriesOf(32, [](double) { return 8.5; });
    const PlotSegment bins = spectrumOf(fastest).snapshot.segments[0];
    EXPECT_NEAR(bins.begin[15], 3.0, 1e-12);
    const PlotSegment silence = spectrumOf(constant).snapshot.segments[0];
    EXPECT_EQ(std::count(silence.begin, silence.end, 0.0), 16);
}

TEST(SpectrumTest, IsThatOfTheLongestRunWhichNeedsFourSamples)
{
    const auto gapAt = [](double gap) {
        return [gap](double i) { return i == gap ? std::nan("") : sine(0.25, i); };
    };
    EXPECT_EQ(spectrumOf(seriesOf(25, gapAt(8))).snapshot.segments[0].count, 8);
    EXPECT_EQ(spectrumOf(seriesOf(4, gapAt(-1))).snapshot.segments[0].count, 2);
    for (const int samples : {0, 3, 7})
        EXPECT_THROW(spectrumOf(seriesOf(samples, gapAt(3))), std::runtime_error) << samples;
}

TEST(SpectrogramTest, TellsAmplitudesAroundTheMiddleOfEachStretchAndLeavesGapsOpen)
{
    // Bin 4, then bin 10, of stretches of 32; a gap, and a run that is too short.
    const std::vector<Grid> grids =
        spectrogramOf(seriesOf(120,
                               [](double i) {
                                   return i >= 96 && i != 110 ? sine(0.25, i)
                                          : i == 110 || i == 95
                                              ? std::nan("")
                                              : 3.0 * sine(i < 48 ? 0.125 : 0.3125, i);
                               }),
                      {33, 0.5});
    ASSERT_EQ(grids.size(), 1u);
    EXPECT_EQ(grids[0].metaInfo[0], MetaInfo(5.0 + 2.0, 4.0));
    EXPECT_EQ(grids[0].metaInfo[1], MetaInfo(0.0625, 0.125));
    ASSERT_EQ(grids[0].shape, (std::array<long long, 2>{4, 16}));
    const double expected[4][2] = {{3, 0}, {3, 0}, {-1, -1}, {0, 3}};
    for (int column : {0, 1, 3}) {
        EXPECT_NEAR(grids[0].at(column, 3), expected[column][0], 1e-9) << column;
        EXPECT_NEAR(grids[0].at(column, 9), expected[column][1], 1e-9) << column;
    }
}

TEST(SpectrogramTest, KeepsTheGreatestAmplitudesOfALongSeriesInFewColumns)
{
    const Series series = seriesOf(100000, [](double i) { return i == 60000 ? 1.0 : 0.0; });
    const Grid grid = spectrogramOf(series, {16, 0.75}).front();
    EXPECT_GT(grid.shape[0], 3000);
    EXPECT_LE(grid.shape[0], 4096);
    const auto loud =
        (long long)(((60000 * 0.25 + 5.0) - grid.metaInfo[0].offset) / grid.metaInfo[0].scale);
    EXPECT_GT(grid.at(loud, 3), 0.1);
    EXPECT_EQ(grid.at(loud - 2, 3), 0.0);
    EXPECT_EQ(spectrogramOf(series, {100000, 0.0}).front().shape[0], 1);
    EXPECT_THROW(spectrogramOf(series, {100001, 0.0}), std::runtime_error);
    EXPECT_THROW(spectrogramOf(seriesOf(3, [](double) { return 1.0; }), {}), std::runtime_error);
}

TEST(SlopeTest, StandsHalfWayBetweenTwoSamplesInARow)
{
    const double gap = std::nan("");
    const double samples[] = {1.0, 3.0, -2.0, gap, 7.0, gap, 0.5, 0.5};
    const Series slope =
        slopeOf(seriesOf(int(std::size(samples)), [&](double i) { return samples[int(i)]; }));
    const auto& segments = slope.snapshot.segments;
    ASSERT_EQ(segments.size(), 2u); // Not the sample that stands alone.
    EXPECT_EQ(segments[0].xInfo, MetaInfo(5.125, 0.25));
    EXPECT_EQ(SampleVector(segments[0].begin, segments[0].end), (SampleVector{8.0, -20.0}));
    EXPECT_EQ(segments[1].xInfo, MetaInfo(6.625, 0.25));
    EXPECT_EQ(SampleVector(segments[1].begin, segments[1].end), SampleVector{0.0});
    EXPECT_THROW(slopeOf(seriesOf(1, [](double) { return 1.0; })), std::runtime_error);
}

} // namespace

} // namespace hosts::data
