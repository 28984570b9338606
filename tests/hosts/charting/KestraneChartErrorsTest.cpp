#include "tests/hosts/charting/ChartRun.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace hosts::charting {

namespace {

struct Case
{
    const char* arguments;
    int exitCode;
    const char* error; ///< What the line contains.
};

class KestraneChartErrorsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        chart.write("in.csv", "time,a,b,flat\n0,1,4,7\n1,2,5,7\n2,3,,7\n3,4,,7\n4,5,5,7\n");
        chart.write("empty.csv", QByteArray());
        chart.write("rubbish.csv", QByteArray("\x00\x01\xff\xfe", 4).repeated(100));
        chart.write("text.csv", "a,b\nx,y\nz,w\n");
        chart.write("far.csv", "a\n1.7e308\n-1.7e308\n");
        chart.write("one.csv", "a\n1\n");
        chart.write("ragged.csv", "1,2,3\n4,5\n");
        chart.write("words.csv", "1,2,3\n4,5,x\n");
        chart.write("out.png", "before");
        QDir(chart.path(".")).mkdir("folder");
        QDir(chart.path(".")).mkdir("folder.png");
        ASSERT_EQ(mkfifo(QFile::encodeName(chart.path("pipe")).constData(), 0600), 0);
        files = QDir(chart.path(".")).entryList(QDir::AllEntries | QDir::System);
    }

    void expectRefused(const Case& c)
    {
        const QStringList arguments = QString::fromUtf8(c.arguments).split(QLatin1Char(' '));
        EXPECT_EQ(chart.run(arguments), c.exitCode) << c.arguments;
        const QString line = chart.errors();
        EXPECT_EQ(line.count(QLatin1Char('\n')), 1) << line.toStdString();
        EXPECT_TRUE(line.startsWith(QLatin1String("kestrane-chart: ")) &&
                    line.contains(QString::fromUtf8(c.error)))
            << line.toStdString();
        EXPECT_EQ(chart.output(), QString()) << c.arguments;
        EXPECT_EQ(QDir(chart.path(".")).entryList(QDir::AllEntries | QDir::System), files)
            << c.arguments;
        EXPECT_EQ(chart.read("out.png"), QByteArray("before")) << c.arguments;
    }

    ChartRun chart;
    QStringList files;
};

TEST_F(KestraneChartErrorsTest, AreSaidInOneLineAndLeaveAllFilesAsTheyWere)
{
    const Case cases[] = {
        {"in.csv", 2, "--output is required"},
        {"-o out.png", 2, "INPUT is required"},
        {"in.csv -o out.png --bogus", 2, "--bogus"},
        {"in.csv -o out.gif", 2, "out.gif: the name must end in .png, .svg or .pdf"},
        {"in.csv -o out.png --size 100x100", 2, "--size 100x100: give WIDTHxHEIGHT"},
        {"in.csv -o out.png --size 99999x99999", 2, "is too large"},
        {"in.csv -o out.png --dpi 0", 2, "--dpi 0"},
        {"in.csv -o out.png --dpi nan", 2, "--dpi: not a finite number"},
        {"in.csv -o out.png --from 3 --to 1", 2, "--from 3 --to 1: the range is empty"},
        {"in.csv -o out.png --to  ", 2, "--to: the number is missing"},
        {"in.csv -o out.png --to 1e999", 2, "--to: not a finite number"},
        {"in.csv -o out.png --bottom 1 --top 1", 2, "--bottom 1 --top 1: the range is empty"},
        {"in.csv -o out.png --from 1 --to 1.0000000000001", 2, "too narrow"},
        {"in.csv -o out.png --step 0", 2, "--step: must be greater than 0"},
        {"in.csv -o out.png --symbols -1", 2, "--symbols"},
        {"in.csv -o out.png --y-axis lg", 2, "--y-axis: lg not in"},
        {"in.csv -o out.png --x-joint 1", 2, "--x-joint: only a bipolar axis"},
        {"in.csv -o out.png --y-axis log --y-joint 1", 2, "--y-joint: only a bipolar axis"},
        {"in.csv -o out.png --y-axis log --y-relative 1", 2, "--y-relative: there are no"},
        {"in.csv -o out.png --y-axis log --bottom 0", 2, "--bottom 0: a log axis shows only"},
        {"in.csv -o out.png --y-axis log --bottom 3.1 --top 3.9", 2, "too narrow or too wide"},
        {"in.csv -o out.png --y-axis log --bottom 5 --top 1", 2, "the range is empty"},
        {"in.csv -o out.png --y-axis bipolar --y-joint 0", 2, "--y-joint 0: the joint must be"},
        {"in.csv -o out.png --y-axis bipolar --bottom -3 --top 5", 2, "as far below 0 as above"},
        {"in.csv -o out.png --y-axis bipolar --bottom 3", 2, "as far below 0 as above"},
        {"in.csv -o out.png --y-axis bipolar --y-joint 5 --top 5", 2, "must lie beyond the joint"},
        {"in.csv -o out.png --cursor abc", 2, "--cursor = abc"},
        {"in.csv -o out.png --cursor nan", 2, "--cursor: not a finite number"},
        {"in.csv -o out.png --cursor 1 --plot needles", 2, "--cursor: only lines have crossings"},
        {"in.csv -o out.png --plot pie", 2, "--plot: pie not in"},
        {"in.csv -o out.png --channel 0", 2, "--channel 0"},
        {"in.csv -o out.png --x-quantity tme", 2, "unknown quantity 'tme'; there are"},
        {"in.csv -o out.png --x-unit s --x-quantity time", 2, "--x-quantity excludes --x-unit"},
        {"in.csv -o out.png --legend 1 --legend 2 --legend 3 --legend 4", 2,
         "4 names, but only 3 to draw"},
        {"out.png -o out.png", 2, "out.png: would be overwritten by the picture"},
        {"in.csv -o ./folder/../a\nb\x01.gif", 2, "a?b?.gif: the name must end"},
        {"none.csv -o out.png", 1, "none.csv: there is no such file"},
        {"folder -o out.png", 1, "folder: is a directory, not a file"},
        {"pipe -o out.png", 1, "pipe: is a device or a pipe, not a regular file"},
        {"empty.csv -o out.png", 1, "empty.csv: is empty"},
        {"rubbish.csv -o out.png", 1, "rubbish.csv, line 1: a NUL byte"},
        {"text.csv -o out.png", 1, "text.csv: no column holds mainly numbers"},
        {"in.csv none.csv -o out.png", 1, "none.csv: "},
        {"in.csv -o out.png --column c", 1, "in.csv: "},
        {"in.csv -o out.png --from 100 --to 200", 1,
         "--from 100 --to 200: the data go from 0 to 4"},
        {"in.csv -o out.png --bottom 50", 1, "--bottom 50: the data go from 1 to 7"},
        {"in.csv -o out.png --column b --from 1.5 --to 3.5", 1,
         "--from 1.5 --to 3.5: a gap in the data"},
        {"in.csv -o out.png --x-axis log --from 9", 1, "--from 9: the data go from 1 to 4"},
        {"in.csv -o out.png --x-axis log --start -1.5 --to 0.4", 1, "the data go from 0.5 to 2.5"},
        {"in.csv -o out.png --x-axis log --start -9", 1, "no sample has an x above 0"},
        {"in.csv -o out.png --y-axis log --bottom 50", 1, "--bottom 50: the data go from 1 to 7"},
        {"in.csv -o out.png --y-axis bipolar --y-joint 50", 1, "--y-joint 50: the data go from"},
        {"in.csv -o out.png --start 5 --x-axis bipolar --to 4", 1, "--to 4: the data go from 5"},
        {"in.csv -o out.png --show slope --y-axis log --column flat", 1, "no value is above 0"},
        {"in.csv -o out.png --show spectrum --column b", 1, "b: a spectrum needs four samples"},
        {"in.csv -o out.png --cursor 2 --cursor 9", 1,
         "--cursor 9: out of sight; x goes from 0 to"},
        {"in.csv -o out.png --x-axis log --cursor 0", 1, "--cursor 0: out of sight"},
        {"in.csv -o out.png --plot xy --column a", 1,
         "--plot xy: takes two columns or more, not 1"},
        {"in.csv -o out.png --plot xy --column a --column b --from 50", 1,
         "--from 50: the data go from 1 to 5"},
        {"in.csv -o out.png --plot needles --bottom 50", 1, "--bottom 50: the data go from 0 to 7"},
        {"far.csv -o out.png", 1, "too far apart to draw"},
        {"in.csv -o out.png --colors dusk", 2, "--colors: only for --plot histogram"},
        {"in.csv -o out.png --plot histogram --colors mud", 2, "--colors: mud not in"},
        {"in.csv -o out.png --plot histogram --thresholds 1,5,5", 2, "1,5,5: they must ascend"},
        {"in.csv -o out.png --plot histogram --thresholds 1,,5", 2, "give numbers with commas"},
        {"in.csv -o out.png --plot histogram --thresholds nan", 2, "give numbers with commas"},
        {"in.csv -o out.png --plot histogram --thresholds 1 --classes 3", 2, "leave nothing for"},
        {"in.csv -o out.png --plot histogram --classes 1", 2, "--classes 1: must be from 2"},
        {"in.csv -o out.png --plot histogram --bins 5x", 2, "--bins 5x: give N or NxM"},
        {"in.csv -o out.png --plot columns --thresholds 1", 2, "columns: has one even scale"},
        {"in.csv -o out.png --plot columns --cursor 1", 2, "--cursor: only lines"},
        {"in.csv -o out.png --plot histogram --legend a", 2, "but only 0 to draw"},
        {"in.csv -o out.png --plot histogram --row-step 0", 2, "--row-step: must be greater"},
        {"in.csv -o out.png --plot spectrogram --window 3", 2, "--window 3: must be from 4"},
        {"in.csv -o out.png --plot spectrogram --overlap 100", 2, "--overlap: must be from 0"},
        {"in.csv -o out.png --plot spectrogram --show spectrum", 2, "shows spectra already"},
        {"in.csv -o out.png --plot histogram --to 0", 1, "--to 0: the data go from 0 to 4"},
        {"far.csv -o out.png --plot histogram", 1, "too far for an axis for x"},
        {"one.csv -o out.png --plot histogram", 1, "there are no values to draw"},
        {"ragged.csv -o out.png --plot histogram", 1, "ragged.csv, line 2: the row has 2 cells"},
        {"words.csv -o out.png --plot columns", 1, "line 2: column 3: \"x\" is not a number"},
        {"in.csv -o out.png --plot histogram --bins 5", 1, "need one or two columns or a table"},
        {"in.csv -o out.png --plot histogram --column a --column b --from 9", 1, "the data go"},
        {"in.csv -o out.png --plot spectrogram", 1, "shows one column or channel, not 3"},
        {"in.csv -o out.png --plot spectrogram --column b", 1, "b: a spectrogram needs 4 samples"},
        {"in.csv -o out.png --plot spectrogram --column flat", 1, "nothing changes in the data"},
        {"in.csv -o folder.png", 1, "folder.png: is there and is no file"},
        {"in.csv -o none/out.png", 1, "none: there is no such folder"},
        {"in.csv -o /proc/out.png", 1, "/proc/out.png: cannot be written: "},
    };
    for (const Case& c : cases)
        expectRefused(c);
}

TEST_F(KestraneChartErrorsTest, ADiskThatGetsFullKeepsTheOldPicture)
{
    const QString limited = "ulimit -f 8; trap '' XFSZ; exec " KESTRANE_CHART " in.csv -o out.png";
    EXPECT_EQ(chart.run({"-c", limited}, "/bin/sh"), 1);
    EXPECT_TRUE(chart.errors().contains("out.png: cannot be written: "))
        << chart.errors().toStdString();
    EXPECT_EQ(chart.read("out.png"), QByteArray("before"));
    EXPECT_EQ(QDir(chart.path(".")).entryList(QDir::AllEntries | QDir::System), files);
}

} // namespace

} // namespace hosts::charting
