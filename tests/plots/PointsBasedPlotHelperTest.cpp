#include "kestrane/plots/PointsBasedPlotHelper.h"

#include <gtest/gtest.h>

#include <vector>

TEST(PointsBasedPlotHelperTest, AColumnBecomesFirstMinimumMaximumLastWithoutRepeats)
{
    struct Row
    {
        std::vector<double> values, points;
    };
    const double above = 2.0 + 4.5e-16; // The next number: there is no tolerance.
    const Row rows[] = {
        {{-100, 100}, {-100, 100}}, // Forgotten by the columns behind it.
        {{}, {}},
        {{7}, {7}},
        {{5, 5, 5}, {5}},
        {{1, 2}, {1, 2}},
        {{2, 1}, {2, 1, 2, 1}},
        {{3, 1, 2}, {3, 1, 3, 2}},
        {{2, 1, 3}, {2, 1, 3}},
        {{1, 3, 2}, {1, 3, 2}},
        {{above, 2, above}, {above, 2, above}},
        {{2, above, 2}, {2, above, 2}},
    };
    const pelorin::ui::chart::PointsBasedPlotHelper original;
    auto helper = original;
    helper = original;
    pelorin::algo::MinMaxAverageAlgorithm minMax;
    for (const Row& row : rows) {
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
