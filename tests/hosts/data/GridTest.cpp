#include "hosts/data/Events.h"
#include "hosts/data/MatrixReader.h"
#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <limits>

namespace hosts::data {

namespace {

using namespace pelorin::backend;

std::string shown(const Grid& grid)
{
    QString text = QStringLiteral("%1x%2:").arg(grid.shape[0]).arg(grid.shape[1]);
    for (const double value : grid.values)
        text += QStringLiteral(" %1").arg(value);
    return text.toStdString();
}

TEST(MatrixReaderTest, ReadsRowsOfNumbersAndRefusesWhatIsNone)
{
    const struct
    {
        const char *bytes, *expected;
    } cases[] = {
        {"1,2,3\n4,5,6\n", "3x2: 1 2 3 4 5 6"},
        {"# c\na;b\n1,5;-2\n\n;nan\n", "2x2: 1.5 -2 nan nan"},
        {"7", "1x1: 7"},
        {"1,2\n3,4,5\n", "m.csv, line 2: the row has 3 cells, those before have 2"},
        {"1,2\n3\n", "m.csv, line 2: the row has 1 cells, those before have 2"},
        {"1,2\n3,4x\n", "m.csv, line 2: column 2: \"4x\" is not a number"},
        {",\n,\n", "m.csv: holds no numbers"},
        {"a,b\n", "m.csv: holds no numbers"},
        {"", "m.csv: is empty"},
        {"fLaC 1,2,3,4", "m.csv: is a sound, not a table of numbers"},
    };
    const Reading reading;
    for (const auto& c : cases) {
        const QString path = reading.write(QStringLiteral("m.csv"), c.bytes);
        try {
            EXPECT_EQ(shown(readMatrix(path)), c.expected);
        } catch (const ReadError& error) {
            EXPECT_EQ(reading.withoutDirectory(error), c.expected);
        }
    }
}

TEST(EventsTest, AreCountedInTheCellThatTheirPlaceIsIn)
{
    const double nan = std::nan("");
    const Events events = {{0, 1}, {0.999, 99}, {1, 100}, {2, 1000}, {2.1, 5},
                           {1, 0}, {-0.1, 5},   {nan, 5}, {1, nan},  {1, 0.99}};
    const Grid grid = countEvents(events, {0.0, 2.0, 2}, {1.0, 1000.0, 3, true});
    EXPECT_EQ(shown(grid), "2x3: 1 0 1 0 0 2");
    EXPECT_EQ(grid.metaInfo[0], MetaInfo(0.0, 1.0));
    EXPECT_EQ(grid.metaInfo[1], MetaInfo(0.0, 1.0, pelorin::ui::chart::Axis::Logarithmic));
    EXPECT_EQ(grid.edges(0), Grid::Ends(0.0, 2.0));
    EXPECT_EQ(grid.edges(1), Grid::Ends(1.0, 1000.0));
}

TEST(EventsTest, PairValuesOfTwoSeriesOrOfOneWithItsSlopes)
{
    const auto series = [](const std::vector<SampleVector>& runs) {
        std::vector<PlotSegment> segments;
        for (const SampleVector& run : runs)
            segments.emplace_back(boost::make_shared<SampleVector>(run), MetaInfo(3.0, 0.25));
        return Series{"v", PlotSnapshot(segments)};
    };
    const Series x = series({{1, 2, 4}, {5}});
    EXPECT_EQ(eventsOf(x, series({{6, 7, 8}, {9}})), (Events{{1, 6}, {2, 7}, {4, 8}, {5, 9}}));
    EXPECT_EQ(valuesAndSlopes(x), (Events{{1, 4}, {2, 8}}));
}

TEST(EventsTest, BinsTakeEquallyManyOfTheStepsInWhichValuesCome)
{
    std::vector<double> values;
    for (int i = 0; i < 200; ++i)
        values.push_back(-3.0 + (i * 7 % 160) * 0.3);
    const Bins bins = binsThatSuit(values, {-5.0, 50.0, 70});
    EXPECT_NEAR((bins.to - bins.from) / double(bins.count), 0.9, 1e-12);
    EXPECT_NEAR(std::remainder(-3.15 - bins.from, 0.3), 0.0, 1e-9); // Edges between the values.
    EXPECT_LE(bins.from, -5.0);
    EXPECT_GE(bins.to, 50.0);
    EXPECT_LT(bins.to - bins.from, 55.0 + 2 * 0.9);
    values.push_back(0.1234); // No multiple.
    const Bins others = binsThatSuit(values, {-5.0, 50.0, 70});
    EXPECT_TRUE(others.from == -5.0 && others.to == 50.0 && others.count == 70);
}

TEST(GridTest, TellsItsExtremesAndWhetherItCounts)
{
    Grid grid({}, {3, 1});
    grid.values = {std::nan(""), -2.0, 5.0};
    EXPECT_EQ(extremesAbove({grid}, -3.0), Grid::Ends(-2.0, 5.0));
    EXPECT_EQ(extremesAbove({grid}, 0.0), Grid::Ends(5.0, 5.0));
    EXPECT_FALSE(extremesAbove({grid}, 5.0));
    const double most = std::numeric_limits<unsigned int>::max();
    for (const double value : {std::nan(""), -2.0, 0.5, most + 1.0, 0.0, most}) {
        grid.values = {1.0, value, 2.0};
        EXPECT_EQ(areCounts({grid}), value == 0.0 || value == most) << value;
    }
}

} // namespace

} // namespace hosts::data
