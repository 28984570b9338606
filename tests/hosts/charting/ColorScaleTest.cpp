#include "hosts/charting/ColorScale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace hosts::charting {

namespace {

// L* of CIELAB.
double lightness(const QColor& color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const double y = 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
                     0.0722 * linear(color.blueF());
    return 116.0 * std::cbrt(y) - 16.0;
}

TEST(ColorSchemeTest, LightnessTellsTheOrderOfTheValues)
{
    for (const QString& name : ColorScheme::names()) {
        const ColorScheme scheme = ColorScheme::named(name);
        for (int i = 1; i <= 200; ++i) {
            const double rise =
                lightness(scheme.at(i / 200.0)) - lightness(scheme.at((i - 1) / 200.0));
            EXPECT_GT(scheme.isDiverging() && i > 100 ? -rise : rise, 0.05)
                << name.toStdString() << ' ' << i;
        }
    }
}

std::string labels(const ColorBar& bar)
{
    QVector<TickMark> marks = bar.marks;
    std::sort(marks.begin(), marks.end(),
              [](const TickMark& a, const TickMark& b) { return a.place < b.place; });
    QStringList texts = {QString::number(bar.colors.size()) + QLatin1Char(':')};
    for (const TickMark& mark : marks)
        texts += mark.label;
    return texts.join(QLatin1Char(' ')).toStdString();
}

TEST(ColorScaleTest, TheBarShowsTheClassesThatHaveValues)
{
    const ColorScheme dusk = ColorScheme::named(QStringLiteral("dusk"));
    const ColorScheme poles = ColorScheme::named(QStringLiteral("poles"));
    const struct
    {
        ColorScale scale;
        const char* bar;
        int labels = 9;
    } cases[] = {
        {ColorScale::logarithmic(dusk, {1, 1000, true}, 5), "5: 1 3 14 57 220"},
        {ColorScale::logarithmic(dusk, {1, 3, true}, 5), "2: 1 2"},
        {ColorScale::logarithmic(dusk, {1, 1, true}, 5), "1: 1"},
        {ColorScale::logarithmic(dusk, {0.002, 2, false}, 5), "5: 0.002 0.006 0.028 0.114 0.44"},
        {ColorScale::logarithmic(dusk, {1e-300, 2e6, false}, 2), "2: 2 1.7e+06"},
        {ColorScale::linear(dusk, {1, 3, true}, 40), "3: 1 2 3"},
        {ColorScale::linear(dusk, {5, 95, true}, 12), "10: 1 10 20 30 40 50 60 70 80 90", 12},
        {ColorScale::linear(dusk, {-80, -3.5, false}, 40), "39: -80 -70 -60 -50 -40 -30 -20 -10"},
        {ColorScale::linear(poles, {-0.3, 0.72, false}, 6), "8: -0.8 -0.6 -0.4 -0.2 0 0.2 0.4 0.6"},
        {ColorScale::linear(dusk, {7.5, 7.5, false}, 5), "1: 0"},
        {ColorScale::given(dusk, {1, 9, true}, {0, 2.5, 1e300}), "3: 0 2.5 1e+300"},
        {ColorScale::given(dusk, {1, 9, false}, {-3.25}), "1: -3.25"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(labels(c.scale.bar(c.labels)), c.bar);
}

TEST(ColorScaleTest, AValueIsInTheClassOfTheGreatestThresholdThatItReaches)
{
    std::mt19937 random(6);
    for (int round = 0; round < 300; ++round) {
        std::normal_distribution<double> values(0.0, std::pow(10.0, round % 13 - 6));
        QVector<double> thresholds;
        for (int i = 0; i <= round % 7; ++i)
            thresholds.append(values(random));
        std::sort(thresholds.begin(), thresholds.end());
        const bool areCounts = thresholds.first() >= 0.0;
        const auto scale = ColorScale::given(ColorScheme::named(QStringLiteral("lagoon")),
                                             {0.0, 1.0, areCounts}, thresholds);
        const QVector<QColor> colors = scale.bar(9).colors;
        QVector<double> probes = thresholds;
        for (int i = 0; i < 20; ++i)
            probes.append(values(random));
        for (double value : probes) {
            value = areCounts ? std::ceil(std::abs(value)) : value;
            const auto above = std::upper_bound(thresholds.begin(), thresholds.end(), value);
            const auto index = int(above - thresholds.begin()) - 1;
            const double count = std::max(scale.countOf(value), 0.0);
            const QColor color = scale.map().mapToColor(std::size_t(count));
            if (areCounts && (value == 0.0 || colors.size() < thresholds.size()))
                continue;
            EXPECT_EQ(color, index < 0 ? QColor(Qt::transparent) : colors[index]) << value;
        }
    }
}

} // namespace

} // namespace hosts::charting
