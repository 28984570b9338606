#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

#include <limits>

namespace hosts::data {

namespace {

TEST(CsvReaderTest, ReadsWhatSpreadsheetsAndInstrumentsWrite)
{
    // clang-format off
    const char* const tables[][2] = {
        // separators and decimals
        {"a,b\n1,2\n3,4\n",                  "a 0:1[1 3] | b 0:1[2 4]"},
        {"a\tb\n1\t2\n3\t4\n",               "a 0:1[1 3] | b 0:1[2 4]"},
        {"a;b\n1,5;2\n3,5;4\n",              "a 0:1[1.5 3.5] | b 0:1[2 4]"},
        {"1;2,25\n7;-4,5e1\n",               "column 1 0:1[1 7] | column 2 0:1[2.25 -45]"},
        // line ends, byte order mark, comments, no end of the last line
        {"\xEF\xBB\xBF# by hand\r\n\r\n#\r\nv\r\n1\r\n2", "v 0:1[1 2]"},
        {"v\r1\r2",                          "v 0:1[1 2]"},
        // quotation marks
        {"\"a, \"\"b\"\"\"\n\"1\"\n\" 2 \"\n", "a, \"b\" 0:1[1 2]"},
        {"v,note\n1,\"two\nlines\"\n2,\"\n\n\"\n", "v 0:1[1 2]"},
        // names
        {"5\n6\n",                           "column 1 0:1[5 6]"},
        {"4,,6\n5,,7\n",                     "column 1 0:1[4 5] | column 3 0:1[6 7]"},
        {"t,1,2\n0,3,4\n",                   "1 0:1[3] | 2 0:1[4]"},
        // numbers in all shapes
        {"v\n+1\n 2 \n.5\n1e3\n-0x1\n",      "v 0:1[1 2 0.5 1000]"},
        // gaps, which end a segment; the next number begins one at its own place
        {"v\n1\n\n3\n",                   "v 0:1[1] 2:1[3]"},
        {"v\n1\nNaN\nNA\n-\nbroken\n6\n", "v 0:1[1] 5:1[6]"},
        {"v\n1\ninf\n-Infinity\n1e999\n5\n", "v 0:1[1] 4:1[5]"},
        {"v\n\n\n1\n2\n\n\n",             "v 2:1[1 2]"},
        {"a,b\n3,5\n2\n1,7\n",            "a 0:1[3 2 1] | b 0:1[5] 2:1[7]"},
        {"a,b\n1,5,9\n2,6,9\n",           "a 0:1[1 2] | b 0:1[5 6] | column 3 0:1[9 9]"},
        {"s,mV\nx,1\n,2\n,3\n",           "mV 0:1[1 2 3]"},
    };
    // clang-format on
    const Reading reading;
    for (const auto& [bytes, series] : tables)
        EXPECT_EQ(reading.read(bytes), series) << bytes;
}

TEST(CsvReaderTest, TakesTheColumnsAskedForInTheirOrder)
{
    const QByteArray table = "Alpha,alpha,Beta,2\n1,2,3,4\n";
    const struct
    {
        QStringList columns;
        const char* series;
    } cases[] = {
        // clang-format off
        {{"Beta"},               "Beta 0:1[3]"},
        {{"bETA"},               "Beta 0:1[3]"},
        {{"alpha"},              "alpha 0:1[2]"},
        {{"3", "1", "3"},        "Beta 0:1[3] | Alpha 0:1[1]"},
        {{"2"},                  "2 0:1[4]"},
        {{"ALPHA"},              "file: 2 columns are called \"ALPHA\"; give the number of one"},
        {{"5"},                  "file: no column \"5\"; there are 4: \"Alpha\", \"alpha\", "
                                 "\"Beta\", \"2\""},
        // clang-format on
    };
    const Reading reading;
    for (const auto& c : cases)
        EXPECT_EQ(reading.read(table, {c.columns, "", {}, {}}), c.series);
}

TEST(CsvReaderTest, StartAndStepPlaceTheRows)
{
    const QByteArray plain = "v\n1\n2\n\n4\n";
    const QByteArray timed = "t,v\n10,1\n20,2\n30,3\n50,5\n";
    const QByteArray irregular = "t,v\n10,1\n11,2\n,\n17,3\n";
    const struct
    {
        QByteArray table;
        std::optional<double> start, step;
        const char* series;
    } cases[] = {
        // clang-format off
        {plain,     5.0, 0.25, "v 5:0.25[1 2] 5.75:0.25[4]"},
        {plain,     5.0, {},   "v 5:1[1 2] 8:1[4]"},
        {timed,     {},  {},   "v 10:10[1 2 3] 50:10[5]"},
        {timed,     0.0, {},   "v 0:10[1 2 3] 40:10[5]"},
        {timed,     {},  2.0,  "v 10:2[1 2 3 5]"},
        {irregular, {},  2.0,  "v 10:2[1 2] 16:2[3]"},
        {plain,     {},  0.0,  "file: the step has to be a positive, finite number"},
        {plain,     {},  1e308, "file: x gets too large for a number"},
        {plain, std::numeric_limits<double>::infinity(), {},
                               "file: the start has to be a finite number"},
        // clang-format on
    };
    const Reading reading;
    for (const auto& c : cases)
        EXPECT_EQ(reading.read(c.table, {{}, "", c.start, c.step}), c.series);
}

TEST(CsvReaderTest, RowsAndCellsMayLieAcrossTheBordersOfTheChunksReadAtOnce)
{
    QByteArray table = "v,note\r\n";
    constexpr int rows = 60000;
    for (int row = 0; row < rows; ++row)
        table += QByteArray::number(row) + ",\"a\r\n\"\r\n";
    const Reading reading;
    std::vector<double> fractions;
    const auto series = readRecording(reading.write("long", table), {{}, "none", {}, {}},
                                      [&](double fraction) { fractions.push_back(fraction); });
    ASSERT_EQ(series.size(), 1u);
    ASSERT_EQ(series[0].snapshot.segments.size(), 1u);
    const auto& segment = series[0].snapshot.segments[0];
    ASSERT_EQ(segment.count, rows);
    for (int row = 0; row < rows; ++row)
        ASSERT_EQ(segment.begin[row], row);
    EXPECT_GT(fractions.size(), 1u);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
    EXPECT_EQ(fractions.back(), 1.0);
}

} // namespace

} // namespace hosts::data
