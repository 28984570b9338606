#include "hosts/charting/ChartPainter.h"
#include "hosts/charting/AxisDivision.h"

#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace hosts::charting {

namespace {

Chart chartOf(const QVector<QVector<QPointF>>& polylines, int divisions = 4)
{
    const AxisView axis(AxisDivision::of(0.0, 1.0, divisions, TickPlaces::Moving).shown(),
                        QString());
    ChartTexts texts;
    texts.xMarks = axis.marks();
    texts.yMarks = axis.marks();
    Curve curve;
    curve.polylines = polylines;
    return {texts, axis, axis, QVector<Curve>(1, curve), {}};
}

struct Picture
{
    Picture(const Chart& chart, double scale)
        : look(Look::light())
        , layout(ChartLayout::of(QSizeF(400, 300), chart.texts, FontMeasure(look)))
        , image(int(400 * scale), int(300 * scale), QImage::Format_RGB32)
    {
        QPainter painter(&image);
        painter.scale(scale, scale);
        ChartPainter(painter, look, scale).paint(chart, layout);
    }

    // Curves are the one thing here that is not nearly grey.
    bool hasCurve(const QRectF& area) const
    {
        for (int y = int(area.top()); y < int(area.bottom()); ++y) {
            for (int x = int(area.left()); x < int(area.right()); ++x) {
                if (image.pixelColor(x, y).hsvSaturation() > 80)
                    return true;
            }
        }
        return false;
    }

    Look look;
    ChartLayout layout;
    QImage image;
};

TEST(ChartPainterTest, ACurveIsDrawnWhereItsPointsLieAndNowhereElse)
{
    const AxisView axis(AxisDivision::of(0.0, 1.0, 4, TickPlaces::Moving).shown(), QString());
    const double half = 0.5 * axis.visible();
    const Picture picture(chartOf({{{-1.0, half}, {half, half}, {half, qQNaN()}, {half, -7.0}}}),
                          1.0);
    const QRectF& plot = picture.layout.plot;
    const QPointF centre = plot.center();
    EXPECT_TRUE(picture.hasCurve({centre - QPointF(80, 3), QSizeF(70, 6)}));
    EXPECT_TRUE(picture.hasCurve({centre + QPointF(-3, 20), QSizeF(6, 20)}));
    EXPECT_FALSE(picture.hasCurve({centre + QPointF(5, -60), QSizeF(80, 120)}));
    EXPECT_FALSE(picture.hasCurve({0, 0, plot.left() - 2, 300}));
    EXPECT_FALSE(picture.hasCurve({0, plot.bottom() + 2, 400, 300 - plot.bottom() - 2}));
}

TEST(ChartPainterTest, GridLinesCoverWholePixelsAtEveryScale)
{
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        const Picture picture(chartOf({}), scale);
        const QRectF& plot = picture.layout.plot;
        // Just above a horizontal line of the grid, a row crosses the vertical ones only.
        const int y = int((plot.center().y() - 4.0) * scale);
        int lines = 0;
        for (int x = int(plot.left() * scale) + 4; x < int(plot.right() * scale) - 4; ++x) {
            const QColor color = picture.image.pixelColor(x, y);
            ASSERT_TRUE(color == picture.look.plotBackground || color == picture.look.majorGrid ||
                        color == picture.look.minorGrid)
                << "scale " << scale << ", column " << x << ": " << color.name().toStdString();
            lines += color == picture.look.plotBackground ? 0 : 1;
        }
        const int thickness = std::max(1, int(scale));
        EXPECT_EQ(lines, (1 + 2 * 4) * thickness) << scale;
    }
}

} // namespace

} // namespace hosts::charting
