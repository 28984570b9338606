// The arithmetic against that of 100 digits, over random axes and curves; the bounds are those that
// the headers promise. Prints the largest errors as a table for docs/reliability.md.
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Dice.h"
#include "tests/support/Seeds.h"

#include <boost/multiprecision/cpp_dec_float.hpp>
#include <gtest/gtest.h>

#include <iostream>

using namespace pelorin::ui::chart;
using namespace tests;
using Exact = boost::multiprecision::cpp_dec_float_100;

namespace {

// The distance of the doubles around a number.
double ulp(double x)
{
    return std::nextafter(std::fabs(x), Infinity) - std::fabs(x);
}

double error(double actual, const Exact& expected, double unit)
{
    return abs(Exact(actual) - expected).convert_to<double>() / unit;
}

// From decades around 1.0, of either sign.
double wide(Dice& dice)
{
    const double size = std::pow(10.0, dice.between(-12.0, 12.0));
    return dice.upTo(1) ? size : -size;
}

struct Linear
{
    explicit Linear(Dice& dice)
        : axis{std::fabs(wide(dice)), wide(dice)}
        , full(Exact(axis.scale()) * axis.numMajorDivisions())
    {}

    // What the limits of the axis, as numbers, can tell of its values.
    double unit() const
    {
        return ulp(std::fmax(std::fabs(axis.offset()), full.convert_to<double>()));
    }

    LinearAxis axis;
    Exact full;
};

double linearTransform(Dice& dice)
{
    const Linear linear(dice);
    const double value = linear.axis.inverseTransform(Axis::Linear, dice.between(-1.0, 2.0));
    const Exact expected = (Exact(value) - linear.axis.offset()) / linear.full;
    if (expected == 0)
        return 0.0;
    return error(linear.axis.transform(Axis::Linear, value), expected,
                 ulp(expected.convert_to<double>()));
}

double linearInverse(Dice& dice)
{
    const Linear linear(dice);
    const double position = dice.between(0.0, 1.0);
    return error(linear.axis.inverseTransform(Axis::Linear, position),
                 position * linear.full + linear.axis.offset(), linear.unit());
}

double linearRoundTrip(Dice& dice)
{
    const Linear linear(dice);
    const double position = dice.between(0.0, 1.0);
    const double value = linear.axis.inverseTransform(Axis::Linear, position);
    const double full = linear.full.convert_to<double>();
    return error(linear.axis.transform(Axis::Linear, value), position, linear.unit() / full);
}

double linearTicks(Dice& dice)
{
    Linear linear(dice);
    double worst = 0.0;
    for (const auto& tick : linear.axis.majorTicks()) {
        const Exact number = round(Exact(tick.logicalPosition()) / linear.axis.scale());
        worst = std::fmax(
            worst, error(tick.logicalPosition(), number * linear.axis.scale(), linear.unit()));
    }
    return worst;
}

struct Logarithmic
{
    explicit Logarithmic(Dice& dice)
        : smallest(std::pow(10.0, dice.between(-12.0, 10.0)))
        , axis(smallest, smallest * std::pow(10.0, dice.between(0.5, 8.0)))
        , origin(log10(Exact(axis.smallest())))
        , decades(log10(Exact(axis.largest())) - origin)
    {}

    double smallest;
    LogAxis axis;
    Exact origin, decades;
};

// In ulp of the decades between the value and 1.0 as a share of the axis, at least one axis.
double logTransform(Dice& dice)
{
    const Logarithmic log(dice);
    const double value = log.axis.inverseTransform(Axis::Linear, dice.between(0.0, 1.0));
    const Exact expected = (log10(Exact(value)) - log.origin) / log.decades;
    const double far = (abs(log.origin) / log.decades).convert_to<double>();
    return error(log.axis.transform(Axis::Linear, value), expected, ulp(std::fmax(1.0, far)));
}

double logInverse(Dice& dice)
{
    const Logarithmic log(dice);
    const double position = dice.between(0.0, 1.0);
    const Exact expected = pow(Exact(10), position * log.decades + log.origin);
    return error(log.axis.inverseTransform(Axis::Linear, position), expected,
                 ulp(expected.convert_to<double>()));
}

double logTicks(Dice& dice)
{
    Logarithmic log(dice);
    double worst = 0.0;
    for (const auto& tick : log.axis.majorTicks() + log.axis.minorTicks()) {
        const Exact decade =
            pow(Exact(10), floor(log10(Exact(tick.logicalPosition() * 1.0000001))));
        const Exact expected = decade * round(Exact(tick.logicalPosition()) / decade);
        worst = std::fmax(
            worst, error(tick.logicalPosition(), expected, ulp(expected.convert_to<double>())));
    }
    return worst;
}

// The two passes in full, with the pivot itself; in ulp of the largest sample.
double spline(Dice& dice)
{
    std::vector<double> samples(40);
    for (double& sample : samples)
        sample = dice.between(-1.0, 1.0);
    const Exact K = 2 - sqrt(Exact(3));
    std::vector<Exact> y(samples.begin(), samples.end()), c(y.size(), 0);
    for (std::size_t i = 1; i + 1 < y.size(); ++i)
        c[i] = y[i - 1] - 2 * y[i] + y[i + 1] - c[i - 1] * K;
    for (std::size_t i = y.size() - 2; i > 0; --i)
        c[i] = (c[i] - c[i + 1]) * K;
    const double index = dice.between(0.0, 38.999);
    const auto i = std::size_t(index);
    const Exact t = Exact(index) - i, slope = y[i + 1] - y[i] - c[i + 1] - 2 * c[i];
    const Exact expected = (((c[i + 1] - c[i]) * t + 3 * c[i]) * t + slope) * t + y[i];
    const auto data = segment(samples);
    pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator> curve(data.begin, data.count);
    return error(curve[index], expected, 0x1p-53);
}

} // namespace

TEST(AccuracyTest, ErrorsStayWithinTheBoundsOfTheHeaders)
{
    const struct
    {
        const char* name;
        double (*largest)(Dice&);
        double bound;
        const char* unit;
    } rows[] = {
        // clang-format off
        {"linear axis, `transform`",        linearTransform, 4,   "position"},
        {"linear axis, `inverseTransform`", linearInverse,   4,   "larger of offset and range"},
        {"linear axis, round trip",         linearRoundTrip, 8,   "the same, as a share of the range"},
        {"linear axis, major ticks",        linearTicks,     4,   "larger of offset and range"},
        {"log axis, `transform`",           logTransform,    4,   "larger of 1 and the position of the value 1"},
        {"log axis, `inverseTransform`",    logInverse,      100, "value, 1e-12 to 1e18"},
        {"log axis, ticks",                 logTicks,        16, "value, 1e-12 to 1e18"},
        {"spline",                          spline,          16,  "largest sample"},
        // clang-format on
    };
    const int cases = qEnvironmentVariableIsSet("KESTRANE_CASES")
                          ? qEnvironmentVariableIntValue("KESTRANE_CASES")
                          : int(usualCases(200));
    std::cout << "| Operation | Largest error | Bound | In ulp of |\n|---|---|---|---|\n";
    for (const auto& row : rows) {
        Dice dice(0u);
        double largest = 0.0;
        for (int i = 0; i < cases; ++i)
            largest = std::fmax(largest, row.largest(dice));
        std::cout << "| " << row.name << " | " << largest << " | " << row.bound << " | " << row.unit
                  << " |\n";
        EXPECT_LE(largest, row.bound) << row.name;
    }
}
