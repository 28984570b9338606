#include "tests/hosts/charting/ChartRun.h"

#include "hosts/charting/Look.h"

#include <QImage>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace hosts::charting {

namespace {

QStringList repeated(const QString& value, int times)
{
    return QVector<QString>(times, value).toList();
}

// The rows of a column of pixels in which there is the first curve: first and last, or -1.
std::pair<int, int> rowsOfCurve(const QImage& image, int x)
{
    const QColor curve = Look::light().curveColor(0);
    std::pair<int, int> rows = {-1, -1};
    for (int y = 0; y < image.height(); ++y) {
        const QColor color = image.pixelColor(x, y);
        if (std::abs(color.red() - curve.red()) + std::abs(color.blue() - curve.blue()) < 90) {
            rows.first = rows.first < 0 ? y : rows.first;
            rows.second = y;
        }
    }
    return rows;
}

TEST(KestraneChartTest, DrawsValuesAtTheirHeightAndLeavesGapsOpen)
{
    ChartRun chart;
    chart.writeColumn("in.csv", repeated("2", 400) + repeated("", 200) + repeated("8", 401));
    ASSERT_EQ(chart.run({"in.csv", "-o", "out.png", "--from", "0", "--to", "1000", "--bottom", "0",
                         "--top", "10", "--size", "600x400", "--dpi", "192"}),
              0)
        << chart.errors().toStdString();
    EXPECT_EQ(chart.errors(), QString());
    const QImage image(chart.path("out.png"));
    ASSERT_EQ(image.size(), QSize(1200, 800));
    EXPECT_EQ(image.dotsPerMeterX(), 7559);

    const auto low = rowsOfCurve(image, 300);
    const auto gap = rowsOfCurve(image, 630);
    const auto high = rowsOfCurve(image, 1000);
    EXPECT_EQ(gap.first, -1);
    EXPECT_LE(low.second - low.first, 4);
    // The plot from 0 to 10 takes most of the picture; 2 and 8 are six tenths of it apart.
    EXPECT_NEAR((low.first - high.first) / 0.6, 715.0, 65.0);
}

TEST(KestraneChartTest, ADenseSignalShowsItsWholeHeightInEveryColumn)
{
    ChartRun chart;
    chart.writeColumn("in.csv", QString("1 -1 -1 -1 -1 ").repeated(20000).split(' '));
    for (const char* const plot : {"line", "needles"}) {
        ASSERT_EQ(
            chart.run({"in.csv", "-o", "out.png", "--bottom", "-1", "--top", "1", "--plot", plot}),
            0);
        const QImage image(chart.path("out.png"));
        for (int x = 100; x < 900; ++x)
            ASSERT_GT(rowsOfCurve(image, x).second - rowsOfCurve(image, x).first, 500) << x;
    }
}

TEST(KestraneChartTest, DrawsTheSecondColumnOverTheFirstInTheOrderOfTheRows)
{
    ChartRun chart;
    chart.write("in.csv", "field,flux\n0,0\n10,0\n10,10\n0,10\n");
    const QStringList options = {"in.csv", "--plot",   "xy", "--from", "-10", "--to",
                                 "20",     "--bottom", "-5", "--top",  "15",  "-o"};
    ASSERT_EQ(chart.run(options + QStringList{"out.svg"}), 0);
    for (const char* const caption : {">field<", ">flux<"})
        EXPECT_TRUE(chart.read("out.svg").contains(caption)) << caption;
    ASSERT_EQ(chart.run(options + QStringList{"out.png"}), 0);
    const QImage image(chart.path("out.png"));
    const auto middle = rowsOfCurve(image, 520); // At 5, where there are the two horizontal lines.
    EXPECT_NEAR(middle.second - middle.first, 267, 4);
    EXPECT_LT(rowsOfCurve(image, 300).first, 0);
    EXPECT_LT(rowsOfCurve(image, 800).first, 0);
}

TEST(KestraneChartTest, NeedlesStandOnZeroAtTheirPlaces)
{
    ChartRun chart;
    chart.writeColumn("in.csv", {"", "8", "-4", "6"});
    ASSERT_EQ(chart.run({"in.csv", "-o", "out.png", "--plot", "needles", "--from", "0", "--to", "4",
                         "--bottom", "-10", "--top", "10", "--symbols", "1000"}),
              0);
    const QImage image(chart.path("out.png"));
    QVector<std::pair<int, int>> needles;
    QVector<int> columns;
    for (int x = 50; x < image.width(); ++x) {
        const auto rows = rowsOfCurve(image, x);
        if (rows.first < 0 || (!columns.isEmpty() && x - columns.last() < 3))
            continue;
        needles.append(rows);
        columns.append(x);
    }
    ASSERT_EQ(needles.size(), 3);
    EXPECT_NEAR(columns[1] - columns[0], columns[2] - columns[1], 1);
    const int zero = needles[0].second;
    const double unit = (zero - needles[0].first) / 8.0;
    EXPECT_NEAR(needles[1].first, zero, 2);
    EXPECT_NEAR(needles[1].second, zero + 4.0 * unit, 3.0);
    EXPECT_NEAR(needles[2].first, zero - 6.0 * unit, 3.0);
    EXPECT_NEAR(needles[2].second, zero, 1);
}

TEST(KestraneChartTest, ShowsSplinesBeyondTheirSamplesAndSamplesWithoutALine)
{
    const QStringList peak = {"0", "0", "0", "1", "1", "0", "0", "0"};
    const QStringList alone = repeated("", 500) + repeated("7", 1) + repeated("", 500);
    const struct
    {
        QStringList column, range;
        int width; ///< Of what is to be seen in the middle, in pixels.
    } cases[] = {{peak, {"--from", "0", "--to", "7"}, 80},
                 {peak, {"--from", "3.49", "--to", "3.51"}, 80},
                 {alone, {"--from", "1", "--to", "1000"}, 2}};
    ChartRun chart;
    for (const auto& c : cases) {
        chart.writeColumn("in.csv", c.column);
        ASSERT_EQ(chart.run(QStringList{"in.csv", "-o", "out.png"} + c.range), 0);
        const QImage image(chart.path("out.png"));
        int width = 0;
        for (int x = 450; x < 550; ++x)
            width += rowsOfCurve(image, x).first > 0 ? 1 : 0;
        EXPECT_GE(width, c.width) << c.range.join(' ').toStdString();
    }
}

TEST(KestraneChartTest, MarksTheSamplesWhenTheyAreFarEnoughApart)
{
    ChartRun chart;
    chart.writeColumn("in.csv", repeated("1", 300) + repeated("2", 300));
    const QRegularExpression symbol(QStringLiteral("<(circle|ellipse) "));
    const std::pair<QStringList, int> cases[] = {
        {{"--from", "100.5", "--to", "120.5"}, 20},
        {{"--from", "100.5", "--to", "120.5", "--symbols", "100"}, 0},
        {{"--from", "100.5", "--to", "500"}, 0},
        {{"--from", "1", "--to", "500", "--x-axis", "log"}, 18}}; // The next ones are nearer.
    for (const auto& [range, count] : cases) {
        ASSERT_EQ(chart.run(QStringList{"in.csv", "-o", "out.svg"} + range), 0);
        EXPECT_EQ(QString::fromUtf8(chart.read("out.svg")).count(symbol), count);
    }
}

TEST(KestraneChartTest, ShowsASpectrumOverFrequency)
{
    ChartRun chart;
    chart.writeColumn("in.csv", QString("1 -1 ").repeated(50).trimmed().split(' '));
    ASSERT_EQ(chart.run({"in.csv", "-o", "out.svg", "--show", "spectrum", "--x-quantity", "time",
                         "--step", "0.001"}),
              0);
    EXPECT_TRUE(chart.read("out.svg").contains(">500 Hz<"));
}

TEST(KestraneChartTest, ACursorTellsItsPlaceAndTheValuesOfAllCurvesThere)
{
    ChartRun chart;
    chart.write("in.csv", "time,a,b\n1,10,-4.3\n2,20,-5.3\n3,30,\n4,40,-7.3\n5,50,-8.3\n");
    const struct
    {
        const char* options;
        QStringList there, notThere;
    } cases[] = {
        {"--cursor 1.7 --cursor 5", {">1.7 s<", ">17 mV<", ">5 s<", ">50 mV<", ">-8.3 mV<"}, {}},
        {"--cursor 1", {">10 mV<", ">-4.3 mV<"}, {">12 mV<"}},
        {"--cursor 3", {">30 mV<"}, {">-5.3 mV<", ">-7.3 mV<"}},
        {"--cursor 2.5 --top 22", {}, {">25 mV<"}},
        {"--cursor 2.5 --x-axis fixed --x-relative 5", {">-2.5 s<", ">25 mV<"}, {}},
        {"--cursor 2.5 --x-axis log", {">2.5 s<", ">25 mV<"}, {}},
        {"--cursor -1.5 --start -3 --x-axis bipolar", {">-1.5 s<", ">25 mV<"}, {}},
        {"--cursor 1.5 --y-axis log", {">14.14 mV<"}, {}},
    };
    for (const auto& c : cases) {
        ASSERT_EQ(chart.run(QString(c.options).split(' ') + QStringList{"in.csv", "-o", "out.svg",
                                                                        "--x-quantity", "time",
                                                                        "--y-unit", "mV"}),
                  0)
            << c.options;
        const QString svg = QString::fromUtf8(chart.read("out.svg"));
        for (const QString& text : c.there)
            EXPECT_TRUE(svg.contains(text)) << c.options << text.toStdString();
        for (const QString& text : c.notThere)
            EXPECT_FALSE(svg.contains(text)) << c.options << text.toStdString();
    }
}

TEST(KestraneChartTest, WritesVectorFormatsThatOthersCanRead)
{
    ChartRun chart;
    chart.write("in.csv", "time,first,second\n0,1,4\n0.5,2,5\n1,3,6\n");
    const QStringList texts = {"--title",  "Ä < & > B", "--y-caption",  "Höhe\nhere",
                               "--legend", "one",       "--x-quantity", "time"};
    ASSERT_EQ(chart.run(QStringList{"in.csv", "-o", "out.svg"} + texts), 0);
    const QSvgRenderer svg(chart.path("out.svg"));
    ASSERT_TRUE(svg.isValid());
    EXPECT_EQ(svg.viewBox(), QRect(0, 0, 1000, 600));
    const QString source = QString::fromUtf8(chart.read("out.svg"));
    for (const char* const text : {">Ä &lt; &amp; &gt; B<", ">Höhe here<", ">one<", ">second<"})
        EXPECT_TRUE(source.contains(QString::fromUtf8(text))) << text;

    ASSERT_EQ(chart.run(QStringList{"in.csv", "-o", "out.pdf", "--size", "800x400"} + texts), 0);
    const QByteArray pdf = chart.read("out.pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 600.000000 300.000000]"))
        << pdf.mid(pdf.indexOf("/MediaBox"), 60).toStdString();
}

TEST(KestraneChartTest, DrawsOddDataWithoutComplaint)
{
    ChartRun chart;
    const QStringList columns[] = {{"5", "5", "5"},
                                   {"0"},
                                   {"1e300", "-1e300"},
                                   {"1e-300", "-1e-300"},
                                   {"1e15", "1000000000000001"},
                                   {"3", "", "nan", "inf", "4"}};
    for (const QStringList& column : columns) {
        chart.writeColumn("in.csv", column);
        for (const char* const kind : {"linear", "fixed", "log", "bipolar"}) {
            const bool isRefused = column == QStringList("0") && kind == QString("log");
            EXPECT_EQ(chart.run({"in.csv", "-o", "out.png", "--y-axis", kind}), isRefused ? 1 : 0)
                << column.join(' ').toStdString() << ": " << chart.errors().toStdString();
            EXPECT_EQ(QImage(chart.path("out.png")).size(), QSize(1000, 600));
        }
    }
}

TEST(KestraneChartTest, DrawsValuesAtTheHeightOfTheirLogarithmAndALineOutThroughTheBottom)
{
    ChartRun chart;
    chart.writeColumn("in.csv", repeated("100", 300) + repeated("0", 300) + repeated("-10", 300));
    constexpr double top = 24.0; // Of the plot, in pixels at 192 dpi.
    constexpr double height = 1114.0;
    const struct
    {
        const char *kind, *lowest;
        double places[3]; ///< In the middle of each third, as shares of the height; NaN for none.
        bool reachesBottom;
    } cases[] = {{"log", "--bottom", {1 / 3.0, qQNaN(), qQNaN()}, true},
                 {"bipolar", "--y-joint", {1 / 6.0, 0.5, 4 / 6.0}, false}};
    for (const auto& c : cases) {
        ASSERT_EQ(chart.run({"in.csv", "-o", "out.png", "--dpi", "192", "--y-axis", c.kind, "--top",
                             "1000", c.lowest, "1"}),
                  0);
        const QImage image(chart.path("out.png"));
        int lowest = 0;
        for (int x = 200; x < 1900; ++x)
            lowest = std::max(lowest, rowsOfCurve(image, x).second);
        EXPECT_EQ(lowest > top + height - 6.0, c.reachesBottom) << c.kind << ' ' << lowest;
        for (int i = 0; i < 3; ++i) {
            const int row = rowsOfCurve(image, 400 + 600 * i).first;
            const double expected = top + c.places[i] * height;
            EXPECT_NEAR(row, std::isnan(expected) ? -1.0 : expected, 5.0) << c.kind << ' ' << i;
        }
    }
}

} // namespace

} // namespace hosts::charting
