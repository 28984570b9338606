// The sample plot against its plain rules, bit for bit, over data and axes of every kind.
#include "kestrane/plots/SamplePlotAlgorithm.h"

#include "tests/plots/PlainSamplePlot.h"
#include "tests/plots/RandomAxis.h"
#include "tests/support/Comparisons.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <iterator>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// A backend's curve: through NaN now and then, and at its end something that is no exception.
class ForeignCurve : public pelorin::algo::Subsampler
{
public:
    explicit ForeignCurve(int answers)
        : m_answers(answers)
    {}

    double operator[](const double& index) override
    {
        if (m_answers-- == 0)
            throw 42;
        return m_answers % 5 == 3 ? NaN : std::sin(index);
    }

    boost::shared_ptr<Subsampler> tail(long long) override { return {}; }

private:
    int m_answers;
};

// Shapes of data, the later ones hard for whoever wants the curve without all of its samples.
const std::function<double(double)> shapes[] = {
    [](double) { return 0.0; },
    [](double i) { return 0.01 * i; },
    [](double i) { return 1e-6 * i * i; },
    [](double i) { return std::fmod(i, 2.0); },
    [](double i) { return std::fmod(i, 97.0) == 5.0 ? 1e200 : std::sin(0.05 * i); },
    [](double i) { return 4.9e-324 * std::fmod(i, 7.0); },
    [](double i) { return i < 300.0 ? std::sin(i) : 0.0; },
    [](double i) { return std::floor(0.01 * i); },
    [](double i) { return 1e308 * std::sin(i); },
    [](double i) { return i == 300.0 ? NaN : std::sin(i); },
    [](double i) { return i == 300.0 ? -Infinity : std::sin(i); },
};

std::vector<double> samples(Dice& dice)
{
    const std::initializer_list<double> odd{NaN, Infinity, -Infinity, 1e308, -1e308, 0.0};
    const int oddOnes = dice.upTo(9) == 0 ? 3 : 0;
    const double spread = dice.oneOf({1.0, 1.0, 0.0, 1e-12, 1e-13});
    const int shape = dice.upTo(3 * int(std::size(shapes)));
    std::vector<double> result(std::size_t(dice.oneOf({0, 1, 2, 3, 5, 9, 40, 150, 600, 4000})));
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (shape < int(std::size(shapes)))
            result[i] = shapes[shape](double(i));
        else if (dice.upTo(9) < oddOnes)
            result[i] = dice.oneOf(odd);
        else
            result[i] = 0.5 + spread * dice.between(-1.0, 1.0);
    }
    return result;
}

PlotSnapshot randomSnapshot(Dice& dice)
{
    std::vector<PlotSegment> segments;
    for (int i = dice.upTo(3); i >= 0; --i) {
        const auto form = [&] { return dice.upTo(4) ? Axis::Linear : Axis::Logarithmic; };
        const double offset = dice.upTo(14) ? dice.oneOf({0.0, 0.25, -3.0, dice.between(-9.0, 9.0)})
                                            : dice.oneOf({NaN, Infinity, 1e300, -1e300});
        const double step =
            dice.upTo(14) ? dice.oneOf({1.0, 0.25, 4.0, 0.1, 0.003, dice.between(0.01, 2.0), -0.7})
                          : dice.oneOf({NaN, Infinity, 1e300, 1e-320});
        const auto xMode = form(), yMode = form();
        segments.push_back(segment(samples(dice), offset, step, xMode, yMode));
        // One without samples shows at which column the segment before it has stopped.
        if (segments.back().count == 0 || dice.upTo(5) == 0)
            segments.back().setSubsampler(boost::make_shared<ForeignCurve>(dice.upTo(30)));
    }
    return PlotSnapshot(segments);
}

} // namespace

void tests::compareSamplePlots(Dice& dice, Seen& seen)
{
    const auto xAxis = randomAxis(dice), yAxis = randomAxis(dice);
    const double width = dice.upTo(19)
                             ? dice.oneOf({0.125, 0.1, 0.3, 0.01, 0.002, dice.between(0.02, 0.5)})
                             : dice.oneOf({NaN, Infinity, 2.0});
    const double spacing = dice.oneOf({0.5, 1.0, 8.0, -1.0, NaN});
    Dice again = dice;
    SamplePlotAlgorithm plot;
    plot.setSnapshot(randomSnapshot(dice));
    const auto actual = plot.createSegments(xAxis, yAxis, width, spacing);
    const auto expected = plainSamplePlot(randomSnapshot(again), *xAxis, *yAxis, width, spacing);
    ASSERT_TRUE(same(exact(actual.first), expected.first));
    ASSERT_TRUE(same(exact(actual.second), expected.second));
    seen.add(*xAxis, *yAxis);
    seen.of["polylines"] += expected.first.size();
    seen.of["symbols"] += expected.second.size();
}
