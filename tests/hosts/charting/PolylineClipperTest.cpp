#include "hosts/charting/PolylineClipper.h"
#include "hosts/charting/ColumnOrder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace hosts::charting {

namespace {

using Lines = QVector<QVector<QPointF>>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
const QRectF bounds(0.0, 0.0, 10.0, 10.0);

Lines rounded(Lines lines)
{
    for (QVector<QPointF>& line : lines) {
        for (QPointF& point : line)
            point = {std::round(point.x() * 1e6) / 1e6, std::round(point.y() * 1e6) / 1e6};
    }
    return lines;
}

TEST(PolylineClipperTest, KeepsWhatLiesInsideAndCutsAtTheBorder)
{
    const struct
    {
        QVector<QPointF> points;
        Lines pieces;
    } cases[] = {{{{1, 1}, {2, 5}, {9, 9}}, {{{1, 1}, {2, 5}, {9, 9}}}},
                 {{{-5, 5}, {15, 5}}, {{{0, 5}, {10, 5}}}},
                 {{{5, 5}, {5, 15}, {7, 15}, {7, 5}}, {{{5, 5}, {5, 10}}, {{7, 10}, {7, 5}}}},
                 {{{-1, -1}, {-1, 11}, {11, 11}}, {}},
                 {{{0, 0}, {10, 0}, {10, 10}}, {{{0, 0}, {10, 0}, {10, 10}}}},
                 {{{1, 1}, {nan, 2}, {3, infinity}, {4, 4}}, {{{1, 1}, {4, 4}}}},
                 {{{5, 0}, {5, 1e300}}, {{{5, 0}, {5, 10}}}},
                 {{{5, -1e308}, {5, 1e308}}, {{{5, 0}, {5, 10}}}},
                 {{{3, 3}}, {}},
                 {{}, {}}};
    for (const auto& c : cases)
        EXPECT_EQ(rounded(clipPolyline(c.points, bounds)), c.pieces);
}

TEST(PolylineClipperTest, NoPieceLeavesTheBounds)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> coordinate(-15.0, 25.0);
    QVector<QPointF> points(5000);
    for (QPointF& point : points)
        point = {coordinate(random), coordinate(random)};
    const Lines pieces = clipPolyline(points, bounds);
    EXPECT_GT(pieces.size(), 500);
    const QRectF widened = bounds.adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
    for (const QVector<QPointF>& piece : pieces) {
        ASSERT_GE(piece.size(), 2);
        for (const QPointF& point : piece)
            ASSERT_TRUE(widened.contains(point)) << point.x() << ' ' << point.y();
    }
}

TEST(ColumnOrderTest, AColumnEndsWhereTheNextOneBegins)
{
    const QVector<QPointF> rising = {{0, 1}, {0, 0}, {0, 2}, {1, 2}, {1, 1}, {1, 3}};
    const QVector<QPointF> falling = {{0, 3}, {0, 1}, {0, 4}, {1, 1}, {1, 0}, {1, 2}};
    EXPECT_EQ(inColumnOrder(rising), rising);
    EXPECT_EQ(inColumnOrder(falling),
              (QVector<QPointF>{{0, 3}, {0, 4}, {0, 1}, {1, 1}, {1, 0}, {1, 2}}));
    const QVector<QPointF> sparse = {{0, 3}, {1, 1}, {1, 4}, {2, 0}};
    EXPECT_EQ(inColumnOrder(sparse), sparse);
}

} // namespace

} // namespace hosts::charting
