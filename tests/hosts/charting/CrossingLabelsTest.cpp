#include "hosts/charting/CrossingLabels.h"

#include "hosts/charting/AxisDivision.h"
#include "hosts/charting/FontMeasure.h"
#include "hosts/charting/PolylineClipper.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <random>

namespace hosts::charting {

namespace {

const Look look = Look::light();

Chart emptyChart()
{
    const AxisView axis(AxisDivision::of(0.0, 1.0, 4, TickPlaces::Fixed).shown(), QString());
    return {{}, axis, axis, {}, {}};
}

QVector<QRectF> placesOf(const Chart& chart, const ChartLayout& layout)
{
    QVector<QRectF> places;
    for (const PlacedText& label : placeCrossings(chart, layout, FontMeasure(look))) {
        const double dx = label.text.isEmpty() ? 0.0 : crossingPadding.width();
        const double dy = label.text.isEmpty() ? 0.0 : crossingPadding.height();
        places.append(label.place.adjusted(-dx, -dy, dx, dy));
    }
    return places;
}

TEST(CrossingLabelsTest, NeitherOverlapEachOtherNorAMarkNorPassTheEdgeOfThePlot)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 100; ++i) {
        Chart chart = emptyChart();
        for (int n = 0; n < 1 + i % 40; ++n)
            chart.crossings.append({n % 3, {share(random), share(random)}, "-1.234 mV"});
        const ChartLayout layout = ChartLayout::of(QSizeF(160 + 10 * i, 120 + 5 * (i % 7)),
                                                   chart.texts, FontMeasure(look));
        const QVector<QRectF> places = placesOf(chart, layout);
        ASSERT_EQ(places.size(), chart.crossings.size());
        EXPECT_FALSE(places[0].isEmpty() && chart.crossings.size() < 4) << i;
        for (int j = 0; j < places.size(); ++j) {
            EXPECT_TRUE(places[j].isEmpty() || layout.plot.contains(places[j]));
            for (int k = 0; k < places.size(); ++k) {
                EXPECT_FALSE(j != k && places[j].intersects(places[k]));
                const QPointF mark(crossingRadius, crossingRadius);
                const QPointF centre = layout.at(chart.crossings[k].place);
                EXPECT_FALSE(places[j].intersects(QRectF(centre - mark, centre + mark)));
            }
        }
    }
}

TEST(CrossingLabelsTest, StandClearOfTheCurveWhereThatIsPossibleNearBy)
{
    const struct
    {
        double fromY, toY;
    } lines[] = {{0.5, 0.5}, {0.4, 0.6}, {0.0, 1.0}, {0.7, 0.3}};
    for (const auto& line : lines) {
        Chart chart = emptyChart();
        const double end = chart.x.visible();
        chart.curves.append(Curve{{{{0.0, line.fromY * end}, {end, line.toY * end}}}, {}, {}});
        chart.crossings = {{0, {0.5, 0.5}, "0.5 mV"}};
        chart.texts.cursors = {{0.5, false, {"7"}}};
        const ChartLayout layout =
            ChartLayout::of(QSizeF(600, 400), chart.texts, FontMeasure(look));
        const QRectF place = placesOf(chart, layout).first();
        EXPECT_TRUE(clipPolyline({layout.at({0.0, line.fromY}), layout.at({1.0, line.toY})}, place)
                        .isEmpty());
        EXPECT_LT(QLineF(place.center(), layout.plot.center()).length(), 80.0);
    }
}

} // namespace

} // namespace hosts::charting
