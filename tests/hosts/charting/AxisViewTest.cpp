#include "hosts/charting/AxisView.h"
#include "hosts/charting/AxisDivision.h"
#include "hosts/charting/BipolarAxis.h"
#include "hosts/charting/LogRange.h"

#include <kestrane/backend/Singleton.h>
#include <kestrane/backend/TranslationManager.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace hosts::charting {

namespace {

// The labels from left to right.
std::string labels(const ShownAxis& shown, const char* quantity, double reference = std::nan(""))
{
    using namespace pelorin::utilities;
    Singleton<TranslationManager>::instance().setLocale(QStringLiteral("C"));
    QVector<TickMark> marks = AxisView(shown, QLatin1String(quantity), reference).marks();
    std::sort(marks.begin(), marks.end(),
              [](const TickMark& a, const TickMark& b) { return a.place < b.place; });
    QStringList lines;
    for (const TickMark& mark : marks)
        if (!mark.label.isEmpty())
            lines += mark.label.join(QLatin1Char('/'));
    return lines.join(QLatin1Char('|')).toStdString();
}

TEST(AxisViewTest, LabelsOfAnAxisShareAPrefixAndHaveTheDigitsThatTheirStepNeeds)
{
    const struct
    {
        double from, to;
        int wanted;
        const char *quantity, *labels;
        double reference = std::nan("");
    } cases[] = {
        {0.0, 1.0, 4, "voltage", "0 V|0.5 V|1 V"},
        {0.0, 0.02, 4, "voltage", "0 mV|5 mV|10 mV|15 mV|20 mV"},
        {0.0, 4000.0, 4, "frequency", "0 kHz|1 kHz|2 kHz|3 kHz|4 kHz"},
        {0.0, 4000.0, 4, "time", "0 s|1000 s|2000 s|3000 s|4000 s"},
        {120.001, 120.003, 2, "time", "120.001 s|120.002 s|120.003 s"},
        {-0.3, 0.1, 4, "", "-0.3|-0.2|-0.1|0|0.1"},
        {1960.0, 1980.0, 2, "", "1960|1970|1980"},
        {0.0, 3e6, 3, "", "0|1×10⁶|2×10⁶|3×10⁶"},
        {1e9, 1e9 + 1e-3, 3, "", "1000000000|1000000000.0005|1000000000.001"},
        {10.2, 10.8, 6, "time", "-400 ms|-300 ms|-200 ms|-100 ms|0 ms|+100 ms|+200 ms", 10.6},
    };
    for (const auto& c : cases) {
        const AxisDivision division = AxisDivision::of(c.from, c.to, c.wanted, TickPlaces::Moving);
        EXPECT_EQ(labels(division.shown(), c.quantity, c.reference), c.labels);
    }
}

TEST(AxisViewTest, DecadesHaveOneDigitEachAPrefixOfItsOwnAndNoTickBeyondTheLimits)
{
    const struct
    {
        double from, to;
        const char *quantity, *labels;
    } cases[] = {
        {0.5, 30.0, "", "0.5|0.6|0.7|0.8|0.9|1|2|3|4|5|6|7|8|9|10|20|30"},
        {0.002, 0.005, "", "0.002|0.003|0.004|0.005"},
        {3.0, 8.5, "", "3|4|5|6|7|8"},
        {6e-7, 1e-6, "", "6×10⁻⁷|7×10⁻⁷|8×10⁻⁷|9×10⁻⁷|1×10⁻⁶"},
        {5e5, 2e6, "", "5×10⁵|6×10⁵|7×10⁵|8×10⁵|9×10⁵|1×10⁶|2×10⁶"},
        {700.0, 3000.0, "frequency", "700 Hz|800 Hz|900 Hz|1 kHz|2 kHz|3 kHz"},
        {700.0, 3000.0, "time", "700 s|800 s|900 s|1000 s|2000 s|3000 s"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(labels(LogRange{c.from, c.to}.shown(), c.quantity), c.labels);
}

TEST(AxisViewTest, TheJointOfABipolarAxisHasTwoLinesAndAsManyDigitsAsItsValue)
{
    const auto bipolar = [](double joint, double outer) {
        return ShownAxis{QSharedPointer<BipolarAxis>::create(joint, outer)};
    };
    EXPECT_EQ(labels(bipolar(0.25, 0.4), "voltage"),
              "-400 mV|-300 mV|250 mV/-250 mV|300 mV|400 mV");
    const std::string decade = labels(bipolar(1.0, 2.0), ""); // Those of 1 and -1 come after it.
    EXPECT_NE(decade.find("|1/-1|"), std::string::npos) << decade;
}

TEST(AxisViewTest, AValueHasTheDigitsThatTellItApartAndTheUnitOfTheLabels)
{
    using namespace pelorin::utilities;
    Singleton<TranslationManager>::instance().setLocale(QStringLiteral("C"));
    const auto linear = AxisDivision::of(0.0, 0.01, 5, TickPlaces::Moving).shown();
    const struct
    {
        ShownAxis axis;
        double value;
        const char* text;
        double share = 1e-3, reference = std::nan("");
    } cases[] = {
        {linear, 0.00123456, "1.235 mV"},
        {linear, 0.00123456, "1.23456 mV", 1e-6},
        {linear, 0.005, "5 mV"},
        {linear, 1e-12, "0 mV"},
        {linear, 0.0043219, "-0.678 mV", 1e-3, 0.005},
        {LogRange{0.001, 1.0}.shown(), 0.0034567, "3.457 mV"},
        {{QSharedPointer<BipolarAxis>::create(0.001, 1.0)}, -0.25, "-250 mV"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(AxisView(c.axis, "voltage", c.reference).textOf(c.value, c.share).toStdString(),
                  c.text);
}

} // namespace

} // namespace hosts::charting
