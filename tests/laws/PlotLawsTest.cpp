// What plots of points and needles promise, and the list of who hears of their changes.
#include "kestrane/plots/Intersectable.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"

#include "tests/laws/Law.h"
#include "tests/laws/RandomSamples.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

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

NeedlePlotAlgorithm::NeedleResult needlesOf(const Samples& samples, double length, double width,
                                            double scale = 1.0)
{
    NeedlePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment(samples, 0.0, scale)}));
    return algorithm.createNeedles(linearAxis(length).data(), linearAxis().data(), width);
}

} // namespace

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

LAW(PlotLawsTest, APointOfALineIsOneGivenWithinAColumnBehindAnother)
{
    const Walk walk(dice);
    const double width = dice.between(0.001, 0.1);
    if (walk.x.size() < 2) // A lone point becomes a stroke.
        return;
    const auto lines = walk.plot(width).first;
    std::size_t k = 0; // Columns come in the order of the points that they begin at.
    double column = NaN;
    for (const QPointF& point : lines.at(0)) {
        if (point.x() != column) {
            while (k < walk.x.size() && walk.x[k] != point.x())
                ++k;
            column = point.x();
            ASSERT_LT(k, walk.x.size());
            EXPECT_EQ(point.y(), walk.y[k]);
        }
        std::size_t other = k;
        while (other < walk.x.size() && std::fabs(walk.x[other] - column) < width &&
               walk.y[other] != point.y())
            ++other;
        EXPECT_TRUE(other < walk.x.size() && walk.y[other] == point.y()) << column;
    }
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

LAW(PlotLawsTest, AThinnedNeedleIsTheLargestSampleOfItsColumn)
{
    const Samples samples = randomSamples(dice);
    const double size = double(samples.size());
    // A column has room for a sample at least: no sample may close more than one.
    const double width = dice.between(std::min(1.0 / size, 1.0), 1.0);
    const double scale = width * dice.between(0.01, 1.0); // No larger, or each has its needle.
    const auto needles = needlesOf(samples, size * scale, width, scale);
    ASSERT_NEAR(double(needles.values.size()), (size - 1.0) / size / width, 1.0 + 1e-9);
    for (std::size_t i = 0; i < needles.values.size(); ++i) {
        const double left = double(i) * width, right = left + width;
        bool isSample = false;
        for (std::size_t k = 0; k < samples.size(); ++k) {
            const double position = double(k) / size;
            isSample |= samples[k] == needles.values[i] && position > left - 1e-9 &&
                        position < right + 1e-9;
            if (position > left + 1e-9 && position < right - 1e-9) {
                EXPECT_GE(needles.values[i], samples[k]);
            }
        }
        EXPECT_TRUE(isSample) << i;
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
