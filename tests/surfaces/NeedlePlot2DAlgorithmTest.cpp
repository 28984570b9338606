#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

struct Point
{
    double x, y, ratio;
};

using Needles = std::vector<std::vector<Point>>;

const QColor start(20, 200, 30, 40), end(220, 100, 30, 240);

class NeedlePlot2DAlgorithmTest : public testing::Test
{
protected:
    QVector<QVector<NeedlePlot2DAlgorithm::ColoredPoint>> ask()
    {
        return plot.makeNeedles(axis, axis, start, end, 1.0, 1.0);
    }

    void expectNeedles(const Needles& expected)
    {
        const auto needles = ask();
        ASSERT_EQ(std::size_t(needles.size()), expected.size());
        for (std::size_t n = 0; n < expected.size(); ++n) {
            const auto& needle = needles[int(n)];
            ASSERT_EQ(std::size_t(needle.size()), expected[n].size());
            for (std::size_t k = 0; k < expected[n].size(); ++k) {
                const Point& point = expected[n][k];
                EXPECT_EQ(needle[int(k)].x, point.x);
                EXPECT_EQ(needle[int(k)].y, point.y);
                EXPECT_EQ(needle[int(k)].color, colorAt(point.ratio)) << n << ", " << k;
            }
        }
    }

    static QColor colorAt(double ratio)
    {
        const auto mixed = [ratio](double from, double to) { return ratio * (to - from) + from; };
        QColor color =
            QColor::fromRgbF(mixed(start.redF(), end.redF()), mixed(start.greenF(), end.greenF()),
                             mixed(start.blueF(), end.blueF()));
        color.setAlphaF(mixed(start.alphaF(), end.alphaF()));
        return color;
    }

    // Columns of equal height, each from the bottom up, one cell for each sample.
    static Grid<double> columns(const std::vector<Doubles>& columns)
    {
        Doubles samples;
        for (const Doubles& column : columns)
            samples.insert(samples.end(), column.begin(), column.end());
        const auto height = static_cast<long long>(columns[0].size());
        return Grid<double>(memory(samples), {}, {static_cast<long long>(columns.size()), height},
                            {height, 1});
    }

    NeedlePlot2DAlgorithm plot;
    QSharedPointer<const Axis> axis = linearAxis();
};

} // namespace

TEST_F(NeedlePlot2DAlgorithmTest, APointMarksACellInWhichTheColumnGrows)
{
    plot.setSnapshot(Grids<double>({columns({{5, 0, 2}, {0, 0, 0}})}));
    expectNeedles({{{.5, 2.5, 2 / 7.}, {.5, .5, 1}, {.5, 0, 1}}, {}});
    plot.setSnapshot(Grids<double>({columns({{NaN, -1, -Infinity}, {5, 0, 2}})}));
    expectNeedles({{}, {{1.5, 2.5, 2 / 7.}, {1.5, .5, 1}, {1.5, 0, 1}}});
}

TEST_F(NeedlePlot2DAlgorithmTest, ColoursAreThoseOfTheLargestSumSoFar)
{
    plot.setSnapshot(Grids<double>({columns({{1, 2}, {7, 0}}), columns({{0, 3}, {0, 0}})}));
    for (int call = 0; call < 2; ++call)
        expectNeedles({{{.5, 1.5, 2 / 3.}, {.5, .5, 1}, {.5, 0, 1}},
                       {{1.5, .5, 1}, {1.5, 0, 1}},
                       {{.5, 1.5, 3 / 7.}, {.5, 0, 3 / 7.}},
                       {}});
}

TEST_F(NeedlePlot2DAlgorithmTest, SumsCountAsWholeNumbersForColours)
{
    plot.setSnapshot(Grids<double>({columns({{.3, .25}, {.2, 2.5}, {1e30, 1e19}, {9, Infinity}})}));
    expectNeedles({{{.5, 1.5, 0}, {.5, .5, 0}, {.5, 0, 0}},
                   {{1.5, 1.5, 2 / 2.7}, {1.5, .5, 2 / 2.7}, {1.5, 0, 2 / 2.7}},
                   {{2.5, 1.5, 1e19 / (1e19 + 1e30)},
                    {2.5, .5, 0x1p64 / (1e19 + 1e30)},
                    {2.5, 0, 0x1p64 / (1e19 + 1e30)}},
                   {{3.5, 1.5, 0}, {3.5, 0, 0}}});
}

TEST_F(NeedlePlot2DAlgorithmTest, SamplesMayLieApartInMemory)
{
    constexpr long long width = 9, height = 25; // Cells of three and four samples.
    Doubles dense(width * height), spread(2 * dense.size(), 1e9);
    for (std::size_t k = 0; k < dense.size(); ++k)
        spread[2 * k] = dense[k] = double(k * 7919 % 101);
    const std::array<MetaInfo, 2> metaInfo{MetaInfo(0.0, 0.3), MetaInfo(0.0, 0.3)};
    const Indices shape{width, height};
    plot.setSnapshot(Grids<double>({Grid<double>(memory(dense), metaInfo, shape, {height, 1})}));
    const auto expected = ask();
    plot.setSnapshot(
        Grids<double>({Grid<double>(memory(spread), metaInfo, shape, {2 * height, 2})}));
    const auto actual = ask();
    ASSERT_EQ(actual.size(), 2);
    for (int n = 0; n < 2; ++n) {
        ASSERT_EQ(actual[n].size(), expected[n].size());
        for (int k = 0; k < actual[n].size(); ++k) {
            EXPECT_EQ(actual[n][k].y, expected[n][k].y);
            EXPECT_EQ(actual[n][k].color, expected[n][k].color);
        }
    }
}

TEST_F(NeedlePlot2DAlgorithmTest, WithoutCellsOrPixelsThereAreNoNeedles)
{
    plot.setSnapshot(Grids<unsigned>({grid<unsigned>({2, 2}, {1, 2, 3, 4})}));
    expectNeedles({});
    plot.setSnapshot(Grids<double>({columns({{1}, {2}})}));
    expectNeedles({}); // One sample in y makes no cell.

    plot.setSnapshot(Grids<double>({columns({{1, 2}})}));
    EXPECT_TRUE(plot.makeNeedles(nullptr, axis, start, end, 1, 1).isEmpty());
    EXPECT_TRUE(plot.makeNeedles(axis, nullptr, start, end, 1, 1).isEmpty());
    EXPECT_TRUE(plot.makeNeedles(axis, axis, start, end, 0, 1).isEmpty());
    EXPECT_TRUE(plot.makeNeedles(axis, axis, start, end, 1, 0).isEmpty());
}

TEST_F(NeedlePlot2DAlgorithmTest, CellsKeepTheAxesThatTheyWereMadeWith)
{
    plot.setSnapshot(Grids<double>({columns({{1, 2}, {3, 4}})}));
    ask();
    const QWeakPointer<const Axis> first = axis;
    axis.reset(axis->clone());
    ask();
    EXPECT_TRUE(first);
    plot.clearGeometryCache();
    EXPECT_FALSE(first);
}
