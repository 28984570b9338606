// Which ticks axes have, before and after gestures, and what their labels say.
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/TickFormatter.h"

#include "tests/laws/Law.h"
#include "tests/laws/Specimen.h"
#include "tests/support/Labels.h"
#include "tests/support/Numbers.h"
#include "tests/support/Ticks.h"

#include <cmath>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// No nearer to an end than rounding may carry a tick.
bool isWellInside(const Axis& axis, double value)
{
    const double position = axis.transform(Axis::Linear, value);
    return position > 1e-9 && position < 1.0 - 1e-9;
}

bool contain(const Ticks& ticks, double value, double tolerance)
{
    return std::any_of(ticks.begin(), ticks.end(), [=](const Axis::Tick& tick) {
        return std::fabs(tick.logicalPosition() - value) <= tolerance;
    });
}

// Within the limits of what is gripped, so that it stays on numbers.
void moveAbout(const Specimen& specimen, Dice& dice)
{
    for (int i = dice.upTo(3); i > 0; --i) {
        const auto gesture = dice.upTo(1) ? &Axis::scaleAxis : &Axis::scrollAxis;
        const double at = dice.between(0.01, 0.99), by = dice.between(-0.05, 0.05);
        const auto [low, high] = specimen.leafAt(at).limits;
        (*specimen.axis.*gesture)(at, by, nullptr, low, high, 1e-3);
    }
}

} // namespace

LAW(TickLawsTest, ALinearAxisHasTheMultiplesOfItsScaleForTicks)
{
    const double scale = std::pow(10.0, dice.between(-3.0, 3.0));
    const double offset = scale * dice.between(-50.0, 50.0);
    const int major = 1 + dice.upTo(12), minor = 1 + dice.upTo(5);
    LinearAxis axis(scale, offset, 0.0, false, major, minor);
    const double step = axis.scale() / minor, rounding = 1e-12 * axis.scale();
    const Ticks majors = axis.majorTicks(), minors = axis.minorTicks();
    EXPECT_GE(majors.size(), major);
    EXPECT_LE(majors.size(), major + 1);
    const double first = std::floor(axis.minValue() / axis.scale()) * minor;
    for (int k = 0; k <= (major + 1) * minor; ++k) {
        const double value = (first + k) * step;
        if (isWellInside(axis, value)) {
            EXPECT_TRUE(contain(k % minor == 0 ? majors : minors, value, rounding)) << value;
        }
    }
    for (const Axis::Tick& tick : majors + minors) {
        EXPECT_GE(tick.axisPosition(), 0.0);
        EXPECT_LE(tick.axisPosition(), 1.0);
    }
}

LAW(TickLawsTest, ALogarithmicAxisHasAllNumbersOfOneDigitForTicks)
{
    const double smallest = std::pow(10.0, dice.between(-12.0, 10.0));
    const double largest = smallest * std::pow(10.0, dice.between(0.1, 6.0));
    LogAxis axis(smallest, largest);
    const Ticks majors = axis.majorTicks(), minors = axis.minorTicks();
    const double first = std::floor(std::log10(axis.smallest()));
    int inside = 0;
    for (double decade = first; decade <= std::log10(axis.largest()); ++decade) {
        for (int digit = 1; digit < 10; ++digit) {
            const double value = digit * std::pow(10.0, decade);
            if (isWellInside(axis, value)) {
                EXPECT_TRUE(contain(digit == 1 ? majors : minors, value, 1e-13 * value)) << value;
                ++inside;
            }
        }
    }
    EXPECT_LE(majors.size() + minors.size(), inside + 2 + 2); // At the ends, and beyond them.
}

LAW(TickLawsTest, AMovedAxisHasTheTicksOfOneThatWasMadeThere)
{
    const Specimen specimen = Specimen::any(dice);
    Axis& axis = *specimen.axis;
    axis.majorTicks();
    moveAbout(specimen, dice);
    const std::unique_ptr<Axis> made(axis.clone());
    EXPECT_EQ(axis.minorTicks(), made->minorTicks());
    EXPECT_EQ(axis.majorTicks(), made->majorTicks());
    EXPECT_EQ(places(axis.majorTicks()), places(made->majorTicks()));
}

LAW(TickLawsTest, ALabelReadsAsTheValuesOfItsTick)
{
    const Specimen specimen = Specimen::any(dice);
    TickFormatter formatter;
    formatter.setLocale(QLocale::c());
    formatter.setSignificantDigits(15);
    formatter.setQuantity(dice.upTo(1) ? "voltage" : "");
    const double reference = dice.upTo(1) ? dice.between(-100.0, 100.0) : NaN;
    const double zero = std::isnan(reference) ? 0.0 : reference;
    for (const Axis::Tick& tick : specimen.axis->majorTicks()) {
        QList<double> values = tick.secondaryLogicalPositions();
        values.prepend(tick.logicalPosition());
        const QList<QString> lines = formatter.formatTick(tick, reference);
        ASSERT_EQ(lines.size(), values.size());
        for (int i = 0; i < lines.size(); ++i) {
            const double expected = values[i] - zero;
            EXPECT_NEAR(readLabel(lines[i], QLocale::c()), expected, 1e-14 * std::fabs(expected))
                << lines[i].toStdString();
        }
    }
}
