// What plots of curves, points and needles promise.
#include "kestrane/plots/Intersectable.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"

#include "tests/laws/Law.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

namespace {

using Samples = std::vector<double>;

Samples randomSamples(Dice& dice, int least = 1)
{
    Samples samples(std::size_t(least + dice.upTo(dice.upTo(3) ? 40 : 600)));
    for (double& sample : samples)
        sample = dice.between(-1.0, 1.0);
    return samples;
}

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

// Points in the order of time, with an x that goes to and fro now and then.
struct Walk
{
    explicit Walk(Dice& dice)
        : y(randomSamples(dice))
    {
        double place = 0.0;
        const bool isOrdered = dice.upTo(1);
        for (std::size_t i = 0; i < y.size(); ++i)
            x.push_back(place += dice.between(isOrdered ? 0.0 : -0.01, 0.02));
    }

    auto plot(double columnWidth, double spacing = 0.0) const
    {
        XYPlotAlgorithm algorithm;
        algorithm.setSnapshot(snapshot({segment(x)}), snapshot({segment(y)}));
        return algorithm.createSegments(linearAxis(), linearAxis(), columnWidth, spacing);
    }

    Samples x, y;
};

NeedlePlotAlgorithm::NeedleResult needlesOf(const Samples& samples, double length, double width)
{
    NeedlePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment(samples)}));
    return algorithm.createNeedles(linearAxis(length).data(), linearAxis().data(), width);
}

} // namespace

LAW(PlotLawsTest, ASplinePassesThroughItsSamples)
{
    const Samples samples = randomSamples(dice);
    const PlotSegment data = segment(samples);
    Spline spline(begin(data), data.count);
    for (std::size_t i = 0; i + 1 < samples.size(); ++i)
        EXPECT_EQ(spline[double(i)], samples[i]);
}

LAW(PlotLawsTest, ASplineForgetsWhatItWasAsked)
{
    const PlotSegment data = segment(randomSamples(dice, 2));
    Spline spline(begin(data), data.count), fresh(begin(data), data.count);
    const double end = double(data.count - 1);
    for (int i = 0; i < 3; ++i)
        spline[dice.between(0.0, end)];
    const double index = dice.between(0.0, end);
    EXPECT_EQ(spline[index], fresh[index]);
}

LAW(PlotLawsTest, ASplineTakesTheScaleOfItsSamples)
{
    const Samples samples = randomSamples(dice, 2);
    const double factor = dice.oneOf({-1.0, 2.0, 0.25, -1024.0});
    const PlotSegment data = segment(samples), scaled = segment(times(samples, factor));
    Spline spline(begin(data), data.count), large(begin(scaled), scaled.count);
    const double index = dice.between(0.0, double(data.count - 1));
    EXPECT_EQ(large[index], factor * spline[index]);
}

LAW(PlotLawsTest, ASplineThroughEqualSamplesIsStraight)
{
    const double value = dice.number();
    const PlotSegment data = segment(Samples(std::size_t(2 + dice.upTo(300)), value));
    Spline spline(begin(data), data.count);
    const double index = dice.between(0.0, double(data.count - 1));
    if (std::fabs(value) < 1e300) {
        EXPECT_EQ(spline[index], value);
    }
}

LAW(PlotLawsTest, APolylineStandsOnTheCentresOfColumns)
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

LAW(PlotLawsTest, AColumnHasThreePointsAtTheMost)
{
    const SampleRequest request(dice);
    for (const auto& line : request.plot({segment(request.samples)}).first) {
        for (int i = 3; i < line.size(); ++i)
            EXPECT_GT(line[i].x(), line[i - 3].x());
    }
}

LAW(PlotLawsTest, NoPeakIsLost)
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

LAW(PlotLawsTest, SegmentsAreDrawnAsIfAlone)
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

LAW(PlotLawsTest, ASecondRequestGivesTheSame)
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

LAW(PlotLawsTest, SamplesAndTheirAxisMayChangeScaleTogether)
{
    const SampleRequest request(dice);
    const double factor = dice.oneOf({-1.0, 2.0, 0.125, -4.0}); // Exact ones.
    const auto plain = request.plot({segment(request.samples)}, 2.0);
    const auto scaled = request.plot({segment(times(request.samples, factor))}, 2.0 * factor);
    expectSame(plain.first, scaled.first);
    expectSame(plain.second, scaled.second);
}

LAW(PlotLawsTest, AbscissasAndTheirAxisMayChangeScaleTogether)
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

LAW(PlotLawsTest, SymbolsStandAtTheSamples)
{
    const SampleRequest request(dice);
    std::size_t index = 0;
    for (const auto& symbols : request.plot({segment(request.samples)}).second) {
        for (const QPointF& symbol : symbols) {
            while (index < request.samples.size() && request.positionOf(index) != symbol.x())
                ++index;
            ASSERT_LT(index, request.samples.size());
            EXPECT_EQ(symbol.y(), linearAxis(2.0)->transform(Axis::Linear, request.samples[index]));
        }
    }
}

LAW(PlotLawsTest, ACrossingIsWhereTheSplineIs)
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

LAW(PlotLawsTest, PointsKeepTheirOrderAndTheirEnds)
{
    const Walk walk(dice);
    const double width = dice.between(0.0, 0.1);
    const auto lines = walk.plot(width).first;
    if (width == 0.0)
        return;
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0].first().y(), walk.y.front());
    EXPECT_EQ(lines[0].last().y(), walk.y.back());
}

LAW(PlotLawsTest, NoPointLiesBeyondThoseGivenAndNoPeakIsLost)
{
    const Walk walk(dice);
    const auto lines = walk.plot(dice.between(0.001, 0.1)).first;
    const auto [low, high] = std::minmax_element(walk.y.begin(), walk.y.end());
    double min = Infinity, max = -Infinity;
    for (const QPointF& point : lines.at(0)) {
        min = std::min(min, point.y());
        max = std::max(max, point.y());
    }
    EXPECT_EQ(min, *low);
    EXPECT_EQ(max, *high);
}

LAW(PlotLawsTest, ANaNSplitsALine)
{
    Walk walk(dice);
    const std::size_t size = walk.x.size(), place = std::size_t(dice.upTo(int(size) - 1));
    walk.y[place] = NaN;
    const auto lines = walk.plot(dice.between(0.001, 0.1)).first;
    ASSERT_EQ(lines.size(), (place > 0 ? 1 : 0) + (place + 1 < size ? 1 : 0));
    if (place > 0) {
        EXPECT_EQ(lines.first().last().y(), walk.y[place - 1]);
    }
    if (place + 1 < size) {
        EXPECT_EQ(lines.last().first().y(), walk.y[place + 1]);
    }
}

LAW(PlotLawsTest, NeedlesOfEachSampleAreTheSamples)
{
    const Samples samples = randomSamples(dice);
    const auto needles = needlesOf(samples, double(samples.size()), NaN);
    ASSERT_EQ(needles.values.size(), samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i)
        EXPECT_EQ(needles.values[i], linearAxis()->transform(Axis::Linear, samples[i]));
    EXPECT_EQ(needles.firstPosition, 0.0);
}

LAW(PlotLawsTest, ThinnedNeedlesAreTheLargestOfNeighbours)
{
    const Samples samples = randomSamples(dice);
    const double length = double(samples.size());
    const auto needles = needlesOf(samples, length, dice.between(0.001, 0.5));
    ASSERT_LE(needles.values.size(), samples.size());
    ASSERT_FALSE(needles.values.empty());
    EXPECT_EQ(*std::max_element(needles.values.begin(), needles.values.end()),
              *std::max_element(samples.begin(), samples.end()));
    std::size_t next = 0; // Each needle is a sample, in their order.
    for (const double needle : needles.values) {
        const auto found = std::find(samples.begin() + long(next), samples.end(), needle);
        ASSERT_NE(found, samples.end());
        next = std::size_t(found - samples.begin()) + 1;
    }
}

namespace {

struct Plot : Intersectable
{
    QList<Intersection> doIntersect(const Axis*, const Axis*, double) const override { return {}; }
    using Intersectable::fireUpdates;
};

} // namespace

LAW(PlotLawsTest, EachNotifyeeIsCalledOncePerChangeWhileItIsRegistered)
{
    Plot plot;
    struct Notifyee
    {
        int calls = 0, expected = 0;
        std::vector<pelorin::utilities::Registration> registration;
    };
    std::vector<Notifyee> notifyees(std::size_t(1 + dice.upTo(4)));
    for (int i = dice.upTo(30); i >= 0; --i) {
        Notifyee& one = notifyees[std::size_t(dice.upTo(int(notifyees.size()) - 1))];
        if (dice.upTo(1)) {
            plot.fireUpdates();
            for (Notifyee& notifyee : notifyees)
                notifyee.expected += int(notifyee.registration.size());
        } else if (one.registration.empty()) {
            one.registration.push_back(
                plot.notifyees().add([&one](const Intersectable*) { ++one.calls; }));
        } else {
            one.registration.clear();
        }
    }
    for (const Notifyee& notifyee : notifyees)
        EXPECT_EQ(notifyee.calls, notifyee.expected);
}
