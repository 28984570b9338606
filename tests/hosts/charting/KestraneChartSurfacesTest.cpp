#include "tests/hosts/charting/ChartRun.h"

#include "hosts/charting/ColorScheme.h"
#include "hosts/charting/Look.h"

#include <QImage>
#include <QMap>

#include <gtest/gtest.h>

#include <cmath>

namespace hosts::charting {

namespace {

class KestraneChartSurfacesTest : public testing::Test
{
protected:
    QImage draw(const char* arguments)
    {
        EXPECT_EQ(chart.run(QString::fromUtf8(arguments).split(' ') + QStringList{"-o", "out.png"}),
                  0)
            << arguments << ": " << chart.errors().toStdString();
        return QImage(chart.path("out.png"));
    }

    ChartRun chart;
    const ColorScheme dusk = ColorScheme::named(QStringLiteral("dusk"));
};

// How many pixels have which colour, in a part of the picture.
QMap<QRgb, int> colorsIn(const QImage& image, const QRect& area)
{
    QMap<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    return counts;
}

TEST_F(KestraneChartSurfacesTest, CellsHaveTheColoursOfTheirClassesWithoutSeams)
{
    chart.write("in.csv", "1,2,3,2\n3,1,2,1\n1,1,3,3\n2,3,2,3\n3,2,1,0\n");
    for (const char* const dpi : {"96", "100", "144", "192", "250"}) {
        const QImage image = draw(
            qPrintable(QStringLiteral("in.csv --plot histogram --thresholds 1,2,3 --dpi ") + dpi));
        const double scale = QString(dpi).toDouble() / 96.0;
        const QRect inside(int(60 * scale), int(20 * scale), int(850 * scale), int(535 * scale));
        const auto counts = colorsIn(image, inside);
        for (const QColor& color : dusk.colors(3))
            EXPECT_GT(counts.value(color.rgb()), 5e4 * scale * scale) << dpi;
        const QColor ground = Look::light().plotBackground;
        EXPECT_GT(counts.value(ground.rgb()), 1000) << dpi;
        // Beside these there are the lines of the grid behind the cell that has no colour.
        for (auto color = counts.begin(); color != counts.end(); ++color) {
            EXPECT_TRUE(dusk.colors(3).contains(QColor(color.key())) || qGray(color.key()) > 220)
                << dpi << ' ' << QColor(color.key()).name().toStdString();
        }
    }
}

TEST_F(KestraneChartSurfacesTest, EventsAreCountedWhereTheyAre)
{
    QByteArray events = "u,v\n";
    for (int i = 0; i < 1000; ++i)
        events += i % 10 == 0 ? "9,1\n" : "1,9\n";
    chart.write("in.csv", events + "5,5\n");
    const QImage image = draw("in.csv --plot histogram --bins 5x5 --from 0 --to 10 --bottom 0 "
                              "--top 10 --thresholds 1,100,900");
    const QVector<QColor> colors = dusk.colors(3);
    EXPECT_EQ(image.pixelColor(120, 60), colors[2]);
    EXPECT_EQ(image.pixelColor(480, 300), colors[0]);
    EXPECT_EQ(image.pixelColor(840, 500), colors[1]);
    const auto all = colorsIn(image, {120, 60, 740, 480});
    EXPECT_NEAR(all[colors[0].rgb()], 164 * 108, 2500); // One cell of 25.
}

TEST_F(KestraneChartSurfacesTest, ASpectrogramIsBrightestWhereTheToneIs)
{
    QStringList samples;
    for (int i = 0; i < 4000; ++i)
        samples.append(QString::number(std::sin(i * (i < 2000 ? 0.25 : 2.0))));
    chart.writeColumn("in.csv", samples);
    for (const bool isLog : {false, true}) {
        const QImage image =
            draw(isLog ? "in.csv --plot spectrogram --step 0.001 --window 200 --y-axis log"
                       : "in.csv --plot spectrogram --step 0.001 --window 200");
        const auto brightest = [&](int x) {
            int best = 50;
            for (int y = 50; y < 540; ++y)
                best = qGray(image.pixel(x, y)) > qGray(image.pixel(x, best)) ? y : best;
            return best;
        };
        // 2.5 to 502.5 from the bottom at 565 to the top at 12; tones at 39.8 and 318.3.
        const auto row = [&](double f) {
            const double share = isLog ? std::log(f / 2.5) / std::log(201.0) : (f - 2.5) / 500.0;
            return 565 - 553 * share;
        };
        EXPECT_NEAR(brightest(250), row(39.8), isLog ? 20 : 9);
        EXPECT_NEAR(brightest(700), row(318.3), 9);
    }
}

TEST_F(KestraneChartSurfacesTest, ColumnsReachTheColourOfTheLargestSumWhereverItStands)
{
    chart.write("in.csv", "5,1,0\n0,1,0\n2,1,0\n");
    const QColor last = dusk.at(0.65);
    const QImage image = draw("in.csv --plot columns --size 600x300");
    const auto sticks = colorsIn(image, {30, 12, 480, 240});
    EXPECT_GT(sticks.value(last.rgb()), 100);
    chart.write("in.csv", "1,0,5\n1,0,0\n1,0,2\n");
    EXPECT_EQ(colorsIn(draw("in.csv --plot columns --size 600x300"), {30, 12, 480, 240}), sticks);
}

TEST_F(KestraneChartSurfacesTest, DrawsOddDataWithoutComplaint)
{
    const char* const tables[] = {"7,7,7\n",          "1e300,-1e300,0\n1,2,3\n", "1e-310,2,3\n",
                                  "nan,1,2\n,,\n3,,", "-1,-2,-3\n-4,-5,-6\n",    "0,0,4294967295\n",
                                  "0,1e15,1e15\n"};
    for (const char* const table : tables) {
        chart.write("in.csv", table);
        for (const char* const plot : {"histogram", "columns"}) {
            for (const char* const kind : {"linear", "fixed", "log", "bipolar"}) {
                const int status = chart.run({"in.csv", "-o", "out.png", "--plot", plot, "--x-axis",
                                              kind, "--size", "160x120"});
                const bool isRefused = plot == QString("columns") && table[0] == '-';
                EXPECT_EQ(status, isRefused ? 1 : 0)
                    << table << plot << ' ' << kind << chart.errors().toStdString();
            }
        }
    }
}

} // namespace

} // namespace hosts::charting
