// What splines, plots of samples and their crossings promise.
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/laws/Law.h"
#include "tests/laws/RandomSamples.h"
#include "tests/support/Builders.h"

#include <algorithm>
#include <cmath>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

namespace {

Samples times(Samples samples, double factor)
{
    for (double& sample : samples)
        sample *= factor;
    return samples;
}

// A request for a plot of samples, on axes of which one part shows.
struct SampleRequest
{
    explicit SampleRequest(Dice& dice)
        : samples(randomSamples(dice))
        , length(double(samples.size()) * dice.between(0.2, 1.5))
        , from(dice.between(-0.2, 0.5) * length)
        , columns(1 + dice.upTo(200))
        , spacing(dice.between(0.0, 3.0))
    {}

    auto plot(const std::vector<PlotSegment>& segments, double height = 2.0) const
    {
        SamplePlotAlgorithm algorithm;
        algorithm.setSnapshot(PlotSnapshot(segments));
        return algorithm.createSegments(x(), linearAxis(height), 1.0 / columns, spacing);
    }

    QSharedPointer<const Axis> x() const { return linearAxis(length, from); }
    double positionOf(std::size_t index) const
    {
        return x()->transform(Axis::Linear, double(index));
    }
    double heightOf(std::size_t index) const
    {
        return linearAxis(2.0)->transform(Axis::Linear, samples[index]);
    }

    Samples samples;
    double length, from;
    int columns;
    double spacing;
};

void expectSame(const QVector<QVector<QPointF>>& a, const QVector<QVector<QPointF>>& b)
{
    EXPECT_TRUE(same(exact(a), exact(b)));
}

pelorin::backend::SampleIterator begin(const PlotSegment& segment)
{
    return segment.begin;
}

} // namespace

LAW(CurveLawsTest, ASplinePassesThroughItsSamples)
{
    const Samples samples = randomSamples(dice);
    const PlotSegment data = segment(samples);
    Spline spline(begin(data), data.count);
    for (std::size_t i = 0; i + 1 < samples.size(); ++i)
        EXPECT_EQ(spline[double(i)], samples[i]);
}

LAW(CurveLawsTest, ASplineForgetsWhatItWasAsked)
{
    const PlotSegment data = segment(randomSamples(dice, 2));
    Spline spline(begin(data), data.count), fresh(begin(data), data.count);
    const double end = double(data.count - 1);
    for (int i = 0; i < 3; ++i)
        spline[dice.between(0.0, end)];
    const double index = dice.between(0.0, end);
    EXPECT_EQ(spline[index], fresh[index]);
}

LAW(CurveLawsTest, ASplineTakesTheScaleOfItsSamples)
{
    const Samples samples = randomSamples(dice, 2);
    const double factor = dice.oneOf({-1.0, 2.0, 0.25, -1024.0});
    const PlotSegment data = segment(samples), scaled = segment(times(samples, factor));
    Spline spline(begin(data), data.count), large(begin(scaled), scaled.count);
    const double index = dice.between(0.0, double(data.count - 1));
    EXPECT_EQ(large[index], factor * spline[index]);
}

LAW(CurveLawsTest, ASplineThroughEqualSamplesIsStraight)
{
    const double value = dice.number();
    const PlotSegment data = segment(Samples(std::size_t(2 + dice.upTo(300)), value));
    Spline spline(begin(data), data.count);
    const double index = dice.between(0.0, double(data.count - 1));
    if (std::fabs(value) < 1e300) {
        EXPECT_EQ(spline[index], value);
    }
}

LAW(CurveLawsTest, ASplineThroughALineIsTheLine)
{
    const double start = dice.upTo(2000) - 1000, step = dice.upTo(200) - 100;
    Samples samples;
    for (int i = 2 + dice.upTo(600); i > 0; --i)
        samples.push_back(start + step * double(samples.size())); // Whole numbers: exact.
    const PlotSegment data = segment(samples);
    Spline spline(begin(data), data.count);
    const double index = dice.between(0.0, double(data.count - 1)), whole = std::floor(index);
    EXPECT_EQ(spline[index], step * (index - whole) + samples[std::size_t(whole)]);
}

// Where no sample is larger than 1.0, a sixth of the second derivative is 2.0 at the most: the
// largest second difference, 4.0, over the excess of the diagonal of its equations, 4.0 - 2.0. The
// slope at a sample is that three times and the difference to the next sample, 8.0.
LAW(CurveLawsTest, ASplineHasNoJumps)
{
    const Samples samples = randomSamples(dice, 2);
    const PlotSegment data = segment(samples);
    Spline spline(begin(data), data.count);
    constexpr double step = 1.0 / 65536.0;
    for (std::size_t i = 1; i < samples.size(); ++i)
        EXPECT_NEAR(spline[double(i) - step], samples[i], 8.001 * step) << i;
}

LAW(CurveLawsTest, APolylineStandsOnTheCentresOfColumns)
{
    const SampleRequest request(dice);
    const double width = 1.0 / request.columns;
    for (const auto& line : request.plot({segment(request.samples)}).first) {
        EXPECT_GE(line.size(), 2);
        for (int i = 0; i < line.size(); ++i) {
            const double column = line[i].x() / width - 0.5;
            EXPECT_NEAR(column, std::round(column), 1e-9);
            EXPECT_GE(column, -1e-9);
            EXPECT_LE(column, request.columns + 1.0 + 1e-9);
            EXPECT_TRUE(i == 0 || line[i].x() >= line[i - 1].x());
        }
    }
}

LAW(CurveLawsTest, AColumnHasThreePointsAtTheMost)
{
    const SampleRequest request(dice);
    for (const auto& line : request.plot({segment(request.samples)}).first) {
        for (int i = 3; i < line.size(); ++i)
            EXPECT_GT(line[i].x(), line[i - 3].x());
    }
}

LAW(CurveLawsTest, NoPeakIsLost)
{
    const SampleRequest request(dice);
    const auto lines = request.plot({segment(request.samples)}).first;
    if (lines.isEmpty())
        return;
    const auto [low, high] =
        std::minmax_element(lines[0].begin(), lines[0].end(),
                            [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
    const double width = 1.0 / request.columns;
    const double lastColumn = request.positionOf(request.samples.size() - 1) - width;
    for (std::size_t i = 0; i < request.samples.size(); ++i) {
        const double position = request.positionOf(i), y = request.samples[i] / 2.0;
        if (position >= 0.0 && position < std::min(1.0, lastColumn)) {
            EXPECT_LE(low->y(), y + 1e-12);
            EXPECT_GE(high->y(), y - 1e-12);
        }
    }
}

LAW(CurveLawsTest, AColumnShowsItsOwnSamplesOnly)
{
    const SampleRequest request(dice);
    const double width = 1.0 / request.columns;
    for (const auto& line : request.plot({segment(request.samples)}).first) {
        for (int i = 1; i < line.size(); ++i) {
            // The first of a column is the curve's, and the sample behind the last one is its too.
            if (line[i].x() != line[i - 1].x() || line[i].x() > 1.0)
                continue;
            bool isFound = false;
            for (std::size_t k = 0; k < request.samples.size() && !isFound; ++k)
                isFound = std::fabs(request.positionOf(k) - line[i].x()) < 0.5 * width + 1e-9 &&
                          line[i].y() == request.heightOf(k);
            EXPECT_TRUE(isFound) << line[i].x() << ' ' << line[i].y();
        }
    }
}

LAW(CurveLawsTest, SegmentsAreDrawnAsIfAlone)
{
    const SampleRequest request(dice);
    const PlotSegment one = segment(request.samples);
    const double offset = dice.between(0.0, 50.0);
    const PlotSegment other = segment(randomSamples(dice), offset);
    const auto first = request.plot({one}), second = request.plot({other}),
               both = request.plot({one, other});
    expectSame(both.first, first.first + second.first);
    expectSame(both.second, first.second + second.second);
}

LAW(CurveLawsTest, ASecondRequestGivesTheSame)
{
    const SampleRequest request(dice);
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment(request.samples)}));
    const auto plot = [&] {
        return algorithm.createSegments(request.x(), linearAxis(), 1.0 / request.columns, 1.0);
    };
    const auto first = plot(), second = plot();
    expectSame(first.first, second.first);
    expectSame(first.second, second.second);
}

LAW(CurveLawsTest, SamplesAndTheirAxisMayChangeScaleTogether)
{
    const SampleRequest request(dice);
    const double factor = dice.oneOf({-1.0, 2.0, 0.125, -4.0}); // Exact ones.
    const auto plain = request.plot({segment(request.samples)}, 2.0);
    const auto scaled = request.plot({segment(times(request.samples, factor))}, 2.0 * factor);
    expectSame(plain.first, scaled.first);
    expectSame(plain.second, scaled.second);
}

LAW(CurveLawsTest, AbscissasAndTheirAxisMayChangeScaleTogether)
{
    const SampleRequest request(dice);
    const double factor = dice.oneOf({2.0, 0.125, 1024.0});
    const auto plot = [&](double scale) {
        SamplePlotAlgorithm algorithm;
        algorithm.setSnapshot(snapshot({segment(request.samples, 0.0, scale)}));
        const auto x = linearAxis(request.length * scale, request.from * scale);
        return algorithm.createSegments(x, linearAxis(), 1.0 / request.columns, request.spacing);
    };
    expectSame(plot(1.0).first, plot(factor).first);
    expectSame(plot(1.0).second, plot(factor).second);
}

LAW(CurveLawsTest, EachSampleInSightHasItsSymbolOrNoneHas)
{
    const SampleRequest request(dice);
    const auto symbols = request.plot({segment(request.samples)}).second.value(0);
    int found = 0;
    for (std::size_t k = 0; k < request.samples.size(); ++k) {
        const QPointF place(request.positionOf(k), request.heightOf(k));
        const bool isMarked = std::any_of(symbols.begin(), symbols.end(), [&](const QPointF& one) {
            return one.x() == place.x() && one.y() == place.y();
        });
        const bool isInSight = place.x() >= 0.0 && place.x() < 1.0 - 1.0 / request.columns;
        EXPECT_TRUE(isMarked || !isInSight || symbols.isEmpty()) << k;
        found += isMarked;
    }
    EXPECT_EQ(found, symbols.size());
}

LAW(CurveLawsTest, ACrossingIsWhereTheSplineIs)
{
    const SampleRequest request(dice);
    const PlotSegment data = segment(request.samples);
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({data}));
    const double position = dice.between(-0.2, 1.2);
    const auto y = linearAxis(2.0);
    const auto found = algorithm.doIntersect(request.x().data(), y.data(), position);
    const double index = request.x()->inverseTransform(Axis::Linear, position);
    Spline spline(begin(data), data.count);
    ASSERT_EQ(found.size(), spline.covers(index) ? 1 : 0);
    for (const Intersection& crossing : found) {
        EXPECT_EQ(crossing.value, spline[index]);
        EXPECT_EQ(crossing.position, y->transform(Axis::Linear, crossing.value));
    }
}
