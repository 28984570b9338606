#include "hosts/charting/ChartLayout.h"

#include <gtest/gtest.h>

#include <random>

namespace hosts::charting {

namespace {

// Every character is as wide as every other.
class Typewriter : public TextMeasure
{
public:
    double width(const QString& text, Style) const override { return 7.0 * text.size(); }
    double height(Style style) const override { return style == Style::Title ? 19.0 : 14.0; }
    QString elided(const QString& text, Style, double width) const override
    {
        return text.left(std::max(0, int(width / 7.0)));
    }
};

const Typewriter typewriter;

TickMark mark(double place, const QString& label, bool major = true)
{
    return {place, major, label.isEmpty() ? QStringList() : QStringList{label}};
}

void expectApartAndInside(const ChartLayout& layout)
{
    const QRectF picture(QPointF(0.0, 0.0), layout.size);
    QVector<QRectF> places = {layout.title.place, layout.xCaption.place, layout.yCaption.place,
                              layout.colorBar, layout.colorCaption.place};
    for (const LegendEntry& entry : layout.legend)
        places.append(entry.name.place);
    for (const PlacedText& text : layout.tickLabels + layout.cursors)
        places.append(text.place);
    for (int i = 0; i < places.size(); ++i) {
        EXPECT_TRUE(places[i].isEmpty() || picture.contains(places[i])) << i;
        EXPECT_FALSE(places[i].intersects(layout.plot)) << i;
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(places[i].intersects(places[j])) << i << " and " << j;
    }
}

std::string labels(const ChartLayout& layout)
{
    QStringList texts;
    for (const PlacedText& label : layout.tickLabels)
        texts.append(label.text);
    return texts.join(QLatin1Char('|')).toStdString();
}

TEST(ChartLayoutTest, TextsNeverOverlapNorPassTheEdge)
{
    std::mt19937 random(4);
    const auto upTo = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    for (int i = 0; i < 300; ++i) {
        ChartTexts texts;
        texts.title = QString(upTo(200), QLatin1Char('t'));
        texts.xCaption = QString(upTo(120), QLatin1Char('x'));
        texts.yCaption = QString(upTo(120), QLatin1Char('y'));
        for (int n = upTo(40); n > 0; --n)
            texts.legend.append(QString(1 + upTo(50), QLatin1Char('l')));
        for (int n = upTo(20); n >= 0; --n) {
            texts.xMarks.append(mark(upTo(20) / 20.0, QString(upTo(12), QLatin1Char('1'))));
            texts.yMarks.append(mark(upTo(20) / 20.0, QString(upTo(12), QLatin1Char('2'))));
            texts.colorBar.marks.append(mark(upTo(20) / 20.0, QString(upTo(12), QLatin1Char('3'))));
        }
        for (int n = upTo(9); n > 0; --n)
            texts.cursors.append(mark(upTo(20) / 20.0, QString(1 + upTo(12), QLatin1Char('c'))));
        texts.colorBar.colors.resize(upTo(1));
        texts.colorBar.caption = QString(upTo(120), QLatin1Char('c'));
        expectApartAndInside(
            ChartLayout::of(QSizeF(300 + upTo(900), 220 + upTo(600)), texts, typewriter));
    }
}

TEST(ChartLayoutTest, TheLabelOfHigherRankStays)
{
    ChartTexts texts;
    // Every eighth of 21 labels, then those that are left, and so on; each needs the room of four.
    for (int i = 0; i <= 20; ++i) {
        const int index = (i * 8) % 21;
        texts.xMarks.append(mark(index / 20.0, QStringLiteral("number %1").arg(index, 3)));
    }
    const ChartLayout layout = ChartLayout::of(QSizeF(600, 400), texts, typewriter);
    expectApartAndInside(layout);
    EXPECT_EQ(labels(layout), "number   0|number   8|number  16|number   4|number  12|number  20");
}

TEST(ChartLayoutTest, LabelsOfMinorTicksAreCalmWhereMajorOnesSuffice)
{
    ChartTexts texts;
    texts.yMarks = {mark(0.0, QStringLiteral("1")), mark(0.4, QStringLiteral("10")),
                    mark(0.2, QStringLiteral("3"), false), mark(0.25, QStringLiteral("4"), false),
                    mark(0.36, QStringLiteral("8"), false)};
    const QSizeF size(300, 400);
    EXPECT_EQ(labels(ChartLayout::of(size, texts, typewriter)), "1|10|3");
    texts.yMarks.removeAt(1);
    EXPECT_EQ(labels(ChartLayout::of(size, texts, typewriter)), "1|3|4|8");
}

TEST(ChartLayoutTest, TheLegendCountsTheNamesThatHaveNoRoom)
{
    ChartTexts texts;
    for (int i = 0; i < 40; ++i)
        texts.legend.append(QStringLiteral("channel %1").arg(i));
    const ChartLayout layout = ChartLayout::of(QSizeF(500, 300), texts, typewriter);
    const LegendEntry last = layout.legend.last();
    EXPECT_EQ(last.curve, -1);
    EXPECT_EQ(last.name.text, QStringLiteral("and %1 more").arg(40 - (layout.legend.size() - 1)));
    EXPECT_GT(layout.plot.height(), 150.0);
    texts.legend = texts.legend.mid(0, 3);
    EXPECT_EQ(ChartLayout::of(QSizeF(500, 300), texts, typewriter).legend.last().curve, 2);
}

TEST(ChartLayoutTest, CursorsHaveTheirValuesAboveTheirLinesInAsManyRowsAsTheyNeed)
{
    ChartTexts texts;
    for (const double place : {0.0, 1.0, 0.5, 0.51, 0.52})
        texts.cursors.append(mark(place, QStringLiteral("12345 ms")));
    const ChartLayout layout = ChartLayout::of(QSizeF(500, 300), texts, typewriter);
    expectApartAndInside(layout);
    ASSERT_EQ(layout.cursors.size(), 5);
    for (int i = 0; i < 5; ++i) {
        const QRectF& place = layout.cursors[i].place;
        const double x = layout.xAt(texts.cursors[i].place);
        EXPECT_TRUE(place.left() <= x && x <= place.right()) << i;
        EXPECT_NEAR(layout.plot.top() - place.bottom(), i < 3 ? 5.0 : i * 14.0 - 37.0, 14.01) << i;
    }
    EXPECT_EQ(layout.cursors[2].place.center().x(), layout.xAt(0.5));
}

} // namespace

} // namespace hosts::charting
