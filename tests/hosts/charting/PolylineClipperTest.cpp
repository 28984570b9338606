#include "hosts/charting/PolylineClipper.h"
#include "hosts/charting/ColumnOrder.h"

#include <gtest/gtest.h>

#include <random>

namespace hosts::charting {

namespace {

using Lines = QVector<QVector<QPointF>>;

const QRectF bounds(0.0, 0.0, 10.0, 10.0);

TEST(PolylineClipperTest, KeepsWhatLiesInsideAndCutsAtTheBorder)
{
    const std::pair<QVector<QPointF>, Lines> cases[] = {
        {{{1, 1}, {2, 5}, {9, 9}}, {{{1, 1}, {2, 5}, {9, 9}}}},
        {{{-5, 5}, {15, 5}}, {{{0, 5}, {10, 5}}}},
        {{{5, 5}, {5, 15}, {7, 15}, {7, 5}}, {{{5, 5}, {5, 10}}, {{7, 10}, {7, 5}}}},
        {{{-1, -1}, {-1, 11}, {11, 11}}, {}},
        {{{0, 0}, {10, 0}, {10, 10}}, {{{0, 0}, {10, 0}, {10, 10}}}},
        {{{1, 1}, {qQNaN(), 2}, {3, qQNaN()}, {4, 4}}, {{{1, 1}, {4, 4}}}},
        {{{3, 3}}, {}},
        {{}, {}}};
    for (const auto& [points, pieces] : cases)
        EXPECT_EQ(clipPolyline(points, bounds), pieces);
}

TEST(PolylineClipperTest, NoPieceLeavesTheBounds)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> coordinate(-15.0, 25.0);
    QVector<QPointF> points(5000);
    for (QPointF& point : points)
        point = {coordinate(random), coordinate(random)};
    points += QVector<QPointF>{{5, -1e308}, {5, 1e308}};
    const Lines pieces = clipPolyline(points, bounds);
    EXPECT_GT(pieces.size(), 500);
    const auto isWithin = [](double c) { return c >= -1e-9 && c <= 10.0 + 1e-9; }; // No NaN is.
    for (const QVector<QPointF>& piece : pieces) {
        ASSERT_GE(piece.size(), 2);
        for (const QPointF& point : piece)
            ASSERT_TRUE(isWithin(point.x()) && isWithin(point.y()))
                << point.x() << ' ' << point.y();
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
