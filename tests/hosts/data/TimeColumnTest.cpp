#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

namespace hosts::data {

namespace {

struct Case
{
    const char *bytes, *timeColumn, *series;
};

TEST(TimeColumnTest, GivesOffsetAndScaleAndTellsOfMissingStretches)
{
    // clang-format off
    const Case cases[] = {
        // found by its name, by its regular numbers, by the option
        {"Time (s),v\n2,1\n2.5,2\n",              "",     "v 2:0.5[1 2]"},
        {"year,v\n1700,5\n1701,6\n1702,7\n",      "",     "v 1700:1[5 6 7]"},
        {"v,year\n5,1700\n6,1710\n",              "YEAR", "v 1700:10[5 6]"},
        {"x,v\n0,5\n1,6\n3,7\n",                  "",     "x 0:1[0 1 3] | v 0:1[5 6 7]"},
        {"time,v\n0,5\n1,6\n2,7\n",               "none", "time 0:1[0 1 2] | v 0:1[5 6 7]"},
        {"T,v\n0,5\n1,6\n",                        "",     "T 0:1[0 1] | v 0:1[5 6]"},
        {"time\n0\n1\n2\n",                       "",     "time 0:1[0 1 2]"},
        {"time,v\n4,5\n",                         "",     "v 4:1[5]"},
        // stretches that are missing
        {"t,v\n0,1\n1,2\n5,3\n6,4\n",             "",     "v 0:1[1 2] 5:1[3 4]"},
        {"t,v\n0,1\n7,2\n8,3\n9,4\n",             "",     "v 0:1[1] 7:1[2 3 4]"},
        {"t,v\n0,1\n1,\n2,3\n4,5\n",              "",     "v 0:1[1] 2:1[3] 4:1[5]"},
        // rows without time and values: units, blank lines
        {"t,v\ns,mV\n0,1\n\n1,2\n,\n2,3\n",       "",     "v 0:1[1 2 3]"},
        // places come by multiplication, the scale from both ends
        {"t,v\n0,1\n.1,2\n.2,3\n.3,4\n,\n.7,5\n", "",     "v 0:0.1[1 2 3 4] 0.7:0.1[5]"},
        {"t,v\n0,1\n.33,2\n.67,3\n1,4\n",         "",     "v 0:0.3333333333[1 2 3 4]"},
    };
    // clang-format on
    const Reading reading;
    for (const Case& c : cases)
        EXPECT_EQ(reading.read(c.bytes, {{}, c.timeColumn, {}, {}}), c.series) << c.bytes;
}

TEST(TimeColumnTest, RefusesTimesThatAreNotRegular)
{
    const std::string hint =
        "; to place the rows at equal distances use --step, or --time-column none";
    // clang-format off
    const Case cases[] = {
        {"t,v\n0,1\n1,2\n2.5,3\n", "",
         "file, line 4: column 1 (\"t\"): time 2.5 breaks the regular step of about 1"},
        {"t,v\n0,1\n1.0,2\n2.0,3\n3.4,4\n4.4,5\n", "",
         "file, line 5: column 1 (\"t\"): time 3.4 breaks the regular step of about 1"},
        {"# c\nv,t\n5,1\n6,1\n", "t",
         "file, line 4: column 2 (\"t\"): time 1 is not after the time before"},
        {"t,v\n3,1\n2,2\n", "",
         "file, line 3: column 1 (\"t\"): time 2 is not after the time before"},
        {"t,v\n0,1\n,2\n", "", "file, line 3: column 1 (\"t\"): there are values, but no time"},
        {"v,t\n0,1\n2\n", "t", "file, line 3: column 2 (\"t\"): there are values, but no time"},
        {"time,v\n2001-02-03,1\n", "",
         "file, line 2: column 1 (\"time\"): time \"2001-02-03\" is not a number"},
        {"t,v\n-1e308,1\n1e308,2\n", "",
         "file, line 3: column 1 (\"t\"): time 1e308 breaks the regular step of about 1"},
    };
    // clang-format on
    const Reading reading;
    for (const Case& c : cases)
        EXPECT_EQ(reading.read(c.bytes, {{}, c.timeColumn, {}, {}}), c.series + hint) << c.bytes;
}

TEST(TimeColumnTest, RoundedTimesAreRegularWithinTheirRoundingUnit)
{
    // How programs write times, and the most by which a sample may lie off the time in the file.
    // clang-format off
    const struct
    {
        const char* format;
        double first, step, bound;
    } formats[] = {
        {"%.3f",  0.0,          1.0 / 360.0,   1e-3},
        {"%.3f",  1.7e9,        1.0 / 360.0,   1e-3},
        {"%.2f",  -3.0,         1.0 / 44.1,    1e-2},
        {"%g",    0.0,          1.0 / 360.0,   1e-4},
        {"%.4e",  0.0,          1.0 / 64.0,    1e-2},
        {"%.17g", 0.0,          1.0 / 44100.0, 1e-15},
        {"%.0f",  20.0,         7.0 / 3.0,     1.0},
    };
    // clang-format on
    const Reading reading;
    for (const auto& f : formats) {
        QByteArray table = "t,v\n";
        std::vector<double> times;
        for (int row = 0; row < 20000; ++row) {
            char cell[40];
            std::snprintf(cell, sizeof cell, f.format, f.first + row * f.step);
            times.push_back(std::atof(cell));
            table += QByteArray(cell) + ',' + QByteArray::number(row) + '\n';
        }
        const auto series = readRecording(reading.write("rounded", table), {});
        ASSERT_EQ(series.at(0).snapshot.segments.size(), 1u) << f.format;
        const auto& info = series[0].snapshot.segments[0].xInfo;
        for (std::size_t row = 0; row < times.size(); ++row)
            ASSERT_LE(std::abs(static_cast<double>(row) * info.scale + info.offset - times[row]),
                      f.bound)
                << f.format << " row " << row;
    }
}

} // namespace

} // namespace hosts::data
