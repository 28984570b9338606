#include "hosts/charting/SurfaceImage.h"

#include <gtest/gtest.h>

namespace hosts::charting {

namespace {

using pelorin::ui::chart::Histogram2DPlotAlgorithm;
using pelorin::ui::chart::NeedlePlot2DAlgorithm;

// A letter for each pixel, its red in hexadecimal; a dot for none.
std::string shown(const SurfaceImage& surface)
{
    std::string text;
    for (int y = 0; y < surface.image().height(); ++y) {
        for (int x = 0; x < surface.image().width(); ++x) {
            const QRgb pixel = surface.image().pixel(x, y);
            text += qAlpha(pixel) == 0 ? '.' : "0123456789abcdef"[qRed(pixel) % 16];
        }
        text += '/';
    }
    return text;
}

TEST(SurfaceImageTest, CellsFillTheirPixelsFromTheBottomUpAndEndAtTheEdges)
{
    Histogram2DPlotAlgorithm::HistoSegment cells;
    cells.xEdges = {-0.25, 0.125, 0.25, 0.75};
    cells.yEdges = {0.2, 0.4, 7.0};
    for (const int red : {1, 2, 3, 4, 5, 6})
        cells.colors.emplace_back(red, 0, 0);
    cells.colors[1] = Qt::transparent;
    SurfaceImage surface(QSize(8, 5), 0.125, 0.2);
    surface.paint(SurfaceImage::Segments{cells});
    EXPECT_EQ(shown(surface), "456666../456666../456666../1.3333../......../");
}

TEST(SurfaceImageTest, SticksTakeTheColourOfThePointAbove)
{
    const auto point = [](double x, double y, int red) {
        return NeedlePlot2DAlgorithm::ColoredPoint{x, y, QColor(red, 0, 0)};
    };
    const SurfaceImage::Needles needles = {
        {point(0.23, 0.8, 1), point(0.23, 0.4, 2), point(0.23, 0.0, 2)},
        {},
        {point(0.68, 2.0, 3), point(0.68, 0.0, 3)},
        {point(-5.0, 0.8, 4), point(-5.0, 0.0, 4)}};
    SurfaceImage wide(QSize(10, 5), 0.1, 0.2);
    wide.paint(needles, 9);
    EXPECT_EQ(shown(wide), "......33../.11...33../.11...33../.22...33../.22...33../");
    SurfaceImage narrow(QSize(10, 5), 0.1, 0.2);
    narrow.paint(needles, 1);
    EXPECT_EQ(shown(narrow).substr(0, 22), "......3.../..1...3.../");
}

} // namespace

} // namespace hosts::charting
