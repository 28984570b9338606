// The sample plot against its plain rules, bit for bit, over data and axes of every kind.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"

#include "tests/plots/PlainSamplePlot.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

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

// A host's axis, with holes or with an end at which it throws.
class ForeignAxis : public LinearAxis
{
public:
    ForeignAxis(double scale, double offset, double anchor, bool throws)
        : LinearAxis(scale, offset, anchor)
        , m_throws(throws)
    {}

    double transform(ScaleMode mode, double value) const override
    {
        const double position = LinearAxis::transform(mode, value);
        if (m_throws && position > 0.8)
            throw std::runtime_error("beyond this axis");
        return std::fmod(value, 3.0) == 1.0 ? NaN : position;
    }

private:
    bool m_throws;
};

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {}

    int upTo(int last) { return int(m_random() % std::uint32_t(last + 1)); }
    double between(double low, double high)
    {
        return low + (high - low) * (double(m_random()) / 4294967296.0);
    }
    double oneOf(const std::vector<double>& values)
    {
        return values[std::size_t(upTo(int(values.size()) - 1))];
    }

private:
    std::mt19937 m_random;
};

std::vector<double> samples(Dice& dice)
{
    const std::vector<double> odd{NaN, Infinity, -Infinity, 1e308, -1e308, 0.0};
    const int oddOnes = dice.upTo(9) == 0 ? 3 : 0;
    const double spread = dice.oneOf({1.0, 1.0, 0.0, 1e-12, 1e-13});
    std::vector<double> result(std::size_t(dice.oneOf({0, 1, 2, 3, 5, 9, 40, 150})));
    for (double& sample : result)
        sample = dice.upTo(9) < oddOnes ? dice.oneOf(odd) : 0.5 + spread * dice.between(-1.0, 1.0);
    return result;
}

PlotSnapshot snapshot(Dice& dice)
{
    std::vector<PlotSegment> segments;
    for (int i = dice.upTo(3); i >= 0; --i) {
        const auto form = [&] { return dice.upTo(4) ? Axis::Linear : Axis::Logarithmic; };
        const double offset = dice.upTo(14) ? dice.oneOf({0.0, 0.25, -3.0, dice.between(-9.0, 9.0)})
                                            : dice.oneOf({NaN, Infinity, 1e300, -1e300});
        const double step = dice.upTo(14)
                                ? dice.oneOf({1.0, 0.25, 4.0, 0.1, dice.between(0.01, 2.0), -0.7})
                                : dice.oneOf({NaN, Infinity, 1e300, 1e-320});
        segments.push_back(segment(samples(dice), offset, step, form(), form()));
        // One without samples shows at which column the segment before it has stopped.
        if (segments.back().count == 0 || dice.upTo(5) == 0)
            segments.back().setSubsampler(boost::make_shared<ForeignCurve>(dice.upTo(30)));
    }
    return PlotSnapshot(segments);
}

Axis* simpleAxis(Dice& dice)
{
    if (dice.upTo(4) == 0)
        return new LogAxis(dice.oneOf({0.01, 0.25, 1.0, 5.0, 0.0, -1.0}),
                           dice.oneOf({1.0, 3.0, 100.0, 1e4, NaN}));
    const double scale = dice.upTo(9) ? dice.oneOf({0.1, 0.8, 1.0, dice.between(0.01, 3.0)})
                                      : dice.oneOf({-0.5, 0.0, 1e-300});
    const double offset = dice.oneOf({0.0, 0.0, 0.25, dice.between(-2.0, 5.0)});
    const double anchor = dice.oneOf({0.0, 0.0, 0.5});
    if (dice.upTo(7) == 0)
        return new ForeignAxis(scale, offset, anchor, dice.upTo(1) == 0);
    if (dice.upTo(3) == 0)
        return new FixedPositionLinearAxis(scale, offset, anchor, dice.upTo(1) == 0);
    return new LinearAxis(scale, offset, anchor);
}

// Of any kind, with mirrors and aggregates down to a depth.
Axis* anyAxis(Dice& dice, int depth)
{
    const int kind = depth > 0 ? dice.upTo(7) : 7;
    if (kind > 1)
        return simpleAxis(dice);
    Axis* const first = anyAxis(dice, depth - 1);
    auto* const mirror = new MirroredAxis(first);
    first->setParent(mirror);
    if (kind == 0)
        return mirror;
    auto* const aggregate = new AggregateAxis;
    Axis* const second = dice.upTo(1) ? first : anyAxis(dice, depth - 1);
    aggregate->addAxis(mirror, 0.0, 0.5).addAxis(second, 0.5, 1.0);
    mirror->setParent(aggregate);
    if (second != first)
        second->setParent(aggregate);
    return aggregate;
}

QSharedPointer<const Axis> axis(Dice& dice)
{
    return QSharedPointer<const Axis>(anyAxis(dice, 2));
}

void expectSame(const std::vector<Points>& actual, const std::vector<Points>& expected)
{
    const auto same = [](double a, double b) { // Which zero an extreme keeps is left open.
        return a == b || (std::isnan(a) && std::isnan(b));
    };
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        ASSERT_EQ(actual[i].size(), expected[i].size());
        for (std::size_t k = 0; k < actual[i].size(); ++k)
            ASSERT_TRUE(same(actual[i][k].first, expected[i][k].first) &&
                        same(actual[i][k].second, expected[i][k].second));
    }
}

} // namespace

TEST(SamplePlotDifferentialTest, AgreesWithThePlainRulesBitForBit)
{
    int polylines = 0, symbols = 0;
    std::set<std::pair<std::string, std::string>> kinds;
    for (unsigned seed = 0; seed < 4000 && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        Dice dice(seed);
        const auto xAxis = axis(dice), yAxis = axis(dice);
        const double width = dice.upTo(19)
                                 ? dice.oneOf({0.125, 0.1, 0.3, 0.01, dice.between(0.02, 0.5)})
                                 : dice.oneOf({NaN, Infinity, 2.0});
        const double spacing = dice.oneOf({0.5, 1.0, 8.0, -1.0, NaN});
        Dice same = dice;
        SamplePlotAlgorithm plot;
        plot.setSnapshot(snapshot(dice));
        const auto actual = plot.createSegments(xAxis, yAxis, width, spacing);
        const auto expected = plainSamplePlot(snapshot(same), *xAxis, *yAxis, width, spacing);
        expectSame(exact(actual.first), expected.first);
        expectSame(exact(actual.second), expected.second);
        kinds.emplace(xAxis->metaObject()->className(), yAxis->metaObject()->className());
        polylines += actual.first.size();
        symbols += actual.second.size();
    }
    EXPECT_GT(polylines, 2000);
    EXPECT_GT(symbols, 2000);
    EXPECT_EQ(kinds.size(), 16u); // Every pair of linear, logarithmic, mirrored and aggregate.
}
