#include "kestrane/plots/PointsBasedPlotHelper.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using pelorin::algo::MinMaxAverageAlgorithm;
using pelorin::ui::chart::PointsBasedPlotHelper;

TEST(PointsBasedPlotHelperTest, AColumnBecomesFirstMinimumMaximumLastWithoutRepeats)
{
    struct Row
    {
        std::vector<double> values;
        std::vector<double> points;
    };
    const double justAboveTwo = 2.0 + 4.5e-16;
    const Row rows[] = {
        {{}, {}},
        {{7}, {7}},
        {{5, 5, 5}, {5}},
        {{1, 2}, {1, 2}},
        {{2, 1}, {2, 1, 2, 1}},
        {{3, 1, 2}, {3, 1, 3, 2}},
        {{2, 1, 3}, {2, 1, 3}},
        {{1, 3, 2}, {1, 3, 2}},
        {{2, justAboveTwo}, {2, justAboveTwo}}, // No tolerance.
    };

    PointsBasedPlotHelper helper;
    for (const Row& row : rows) {
        MinMaxAverageAlgorithm minMax;
        for (const double value : row.values)
            minMax.put(value);
        QVector<QPointF> points{QPointF(9.0, 9.0)};
        helper.flushMinMax(0.25, minMax, points);

        ASSERT_EQ(std::size_t(points.size()), row.points.size() + 1);
        for (std::size_t i = 0; i < row.points.size(); ++i) {
            EXPECT_EQ(points.at(int(i) + 1).x(), 0.25);
            EXPECT_EQ(points.at(int(i) + 1).y(), row.points[i]);
        }
        EXPECT_EQ(minMax.count(), 0u);
    }
}

TEST(PointsBasedPlotHelperTest, ValuesOfTheColumnBeforeAreForgotten)
{
    PointsBasedPlotHelper helper;
    MinMaxAverageAlgorithm minMax;
    QVector<QPointF> points;
    minMax.put(-100.0);
    minMax.put(100.0);
    helper.flushMinMax(0.0, minMax, points);
    points.clear();
    minMax.put(1.0);
    minMax.put(2.0);
    helper.flushMinMax(0.1, minMax, points);
    EXPECT_EQ(points, QVector<QPointF>({QPointF(0.1, 1.0), QPointF(0.1, 2.0)}));
}
