#include "hosts/charting/ChartLayout.h"

#include "hosts/charting/LabelPlacer.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace hosts::charting {

namespace {

using Style = TextMeasure::Style;

constexpr double tickLabelDistance = 9.0; // From the plot.
constexpr double edge = 12.0;             // Free space along the edge of the picture.
constexpr double spacing = 8.0;           // Between blocks of text.
constexpr double breathing = 2.0;         // The least that a tick label keeps from the edge.
const QSizeF minorLabelGap(2.5, 1.75);    // In heights of a text; so many labels need some calm.
constexpr double sampleWidth = 18.0;
constexpr double sampleDistance = 6.0;
constexpr double entryDistance = 18.0;
constexpr double mostLegendWidth = 260.0;
constexpr double mostLegendShare = 0.25; // Of the picture's height.
constexpr double smallestPlot = 10.0;
constexpr double colorBarDistance = 14.0; // From the plot.
constexpr double colorBarWidth = 14.0;
constexpr double colorLabelDistance = 6.0; // From the bar.
constexpr double mostColorShare = 0.3;     // Of the picture's width.
constexpr double cursorDistance = 5.0;     // From the plot.
constexpr double mostCursorShare = 0.25;   // Of the picture's height.

// Whether they tell how values are spread: two at different places do.
bool haveMajorsAScale(const QVector<TickMark>& marks)
{
    return std::any_of(marks.cbegin(), marks.cend(), [&](const TickMark& mark) {
        return mark.major && std::abs(mark.place - marks.first().place) > 1e-6;
    });
}

class LayoutWork
{
public:
    LayoutWork(const QSizeF& size, const TextMeasure& measure)
        : m_measure(measure)
    {
        m_layout.size = size;
    }

    ChartLayout work(const ChartTexts& texts)
    {
        placePlot(texts);
        placeHeadings(texts);
        placeColorBar(texts.colorBar);
        placeTickLabels(texts);
        return m_layout;
    }

private:
    // The top left corner of a label of some size for a tick at some place.
    using Corner = std::function<QPointF(double place, const QSizeF& size)>;

    void placePlot(const ChartTexts& texts);
    void placeLegend(const QStringList& names, double top, double left, double right);
    void endLegend(int names, double left, double right);
    double placeCursors(const QVector<TickMark>& cursors, double left, double right);
    void placeHeadings(const ChartTexts& texts);
    void placeTickLabels(const ChartTexts& texts);
    void placeLabelsOf(const QVector<TickMark>& marks, Qt::Alignment alignment, LabelPlacer& placer,
                       const Corner& corner);
    void appendLines(const QStringList& lines, const QRectF& place, Qt::Alignment alignment);
    QRectF picture() const;
    QSizeF labelSize(const QStringList& lines) const;
    double leftMargin(const ChartTexts& texts) const;
    double rightMargin(const ChartTexts& texts, double left) const;
    double colorBarMargin(const ColorBar& bar) const;
    void placeColorBar(const ColorBar& bar);
    double overhang(const QVector<TickMark>& marks, double room,
                    const std::function<double(double)>& distance) const;
    double bottomMargin(const ChartTexts& texts) const;
    double legendHeight() const;

    const TextMeasure& m_measure;
    ChartLayout m_layout;
};

QSizeF LayoutWork::labelSize(const QStringList& lines) const
{
    double width = 0.0;
    for (const QString& line : lines)
        width = std::max(width, m_measure.width(line, Style::Text));
    return {width, double(lines.size()) * m_measure.height(Style::Text)};
}

// Between the left edge and the plot stand the caption and the labels of y, and half of a label of
// x.
double LayoutWork::leftMargin(const ChartTexts& texts) const
{
    double widest = 0.0;
    for (const TickMark& mark : texts.yMarks)
        widest = std::max(widest, labelSize(mark.label).width());
    const double caption = texts.yCaption.isEmpty() ? 0.0 : m_measure.height(Style::Text) + spacing;
    const double labels = std::min(widest, 0.4 * m_layout.size.width());
    const double room = m_layout.size.width() - edge;
    return std::max(edge + caption + labels + tickLabelDistance,
                    overhang(texts.xMarks, room, [](double place) { return place; }));
}

double LayoutWork::rightMargin(const ChartTexts& texts, double left) const
{
    const double room = m_layout.size.width() - left;
    return std::max({edge, overhang(texts.xMarks, room, [](double place) { return 1.0 - place; }),
                     colorBarMargin(texts.colorBar)});
}

double LayoutWork::colorBarMargin(const ColorBar& bar) const
{
    if (bar.isEmpty())
        return 0.0;
    double widest = 0.0;
    for (const TickMark& mark : bar.marks)
        widest = std::max(widest, labelSize(mark.label).width());
    const double caption = bar.caption.isEmpty() ? 0.0 : m_measure.height(Style::Text) + spacing;
    const double full =
        colorBarDistance + colorBarWidth + colorLabelDistance + widest + caption + edge;
    return std::min(full, mostColorShare * m_layout.size.width());
}

// The caption is at the edge of the picture, as that of y is.
void LayoutWork::placeColorBar(const ColorBar& bar)
{
    if (bar.isEmpty())
        return;
    const QRectF& plot = m_layout.plot;
    m_layout.colorBar =
        QRectF(plot.right() + colorBarDistance, plot.top(), colorBarWidth, plot.height());
    const double height = m_measure.height(Style::Text);
    const double left = m_layout.size.width() - edge - height;
    if (left < m_layout.colorBar.right() + colorLabelDistance)
        return;
    m_layout.colorCaption.text = m_measure.elided(bar.caption, Style::Text, plot.height());
    const double width = m_measure.width(m_layout.colorCaption.text, Style::Text);
    m_layout.colorCaption.place = QRectF(left, plot.center().y() - width / 2.0, height, width);
}

// The margin that labels centred on their places need at one end of the x axis. One in the distance
// d of that end, as a share of the axis, ends in front of the edge of the picture if
//     margin + d * (room - margin) >= half its width.
double LayoutWork::overhang(const QVector<TickMark>& marks, double room,
                            const std::function<double(double)>& distance) const
{
    double margin = 0.0;
    for (const TickMark& mark : marks) {
        const double half = labelSize(mark.label).width() / 2.0 + edge / 2.0;
        const double d = distance(mark.place);
        if (!mark.label.isEmpty() && d < 0.5)
            margin = std::max(margin, (half - d * room) / (1.0 - d));
    }
    return std::min(margin, 0.25 * m_layout.size.width());
}

double LayoutWork::bottomMargin(const ChartTexts& texts) const
{
    double highest = 0.0;
    for (const TickMark& mark : texts.xMarks)
        highest = std::max(highest, labelSize(mark.label).height());
    const double caption =
        texts.xCaption.isEmpty() ? 0.0 : m_measure.height(Style::Text) + spacing / 2.0;
    return tickLabelDistance + highest + caption + spacing;
}

double LayoutWork::legendHeight() const
{
    return m_layout.legend.isEmpty() ? 0.0
                                     : m_layout.legend.last().name.place.bottom() -
                                           m_layout.legend.first().name.place.top();
}

void LayoutWork::placePlot(const ChartTexts& texts)
{
    const double left = leftMargin(texts);
    const double right = m_layout.size.width() - rightMargin(texts, left);
    const double title = texts.title.isEmpty() ? 0.0 : m_measure.height(Style::Title) + spacing;
    placeLegend(texts.legend, edge + title, left, right);
    const double legend = m_layout.legend.isEmpty() ? 0.0 : legendHeight() + spacing;
    const double cursors = placeCursors(texts.cursors, left, right);
    const double top = edge + title + legend + cursors;
    for (PlacedText& cursor : m_layout.cursors)
        cursor.place.translate(0.0, top);
    const double bottom = m_layout.size.height() - bottomMargin(texts);
    m_layout.plot = QRectF(left, top, std::max(right - left, smallestPlot),
                           std::max(bottom - top, smallestPlot));
}

void LayoutWork::placeLegend(const QStringList& names, double top, double left, double right)
{
    const double height = m_measure.height(Style::Text);
    const double rowHeight = height + spacing / 2.0;
    const int mostRows = std::max(1, int(mostLegendShare * m_layout.size.height() / rowHeight));
    const double widest = std::min(mostLegendWidth, right - left - sampleWidth - sampleDistance);
    double x = left;
    int row = 0;
    for (int i = 0; i < names.size(); ++i) {
        const QString name = m_measure.elided(names[i], Style::Text, widest);
        const double textWidth = m_measure.width(name, Style::Text);
        if (x > left && x + sampleWidth + sampleDistance + textWidth > right) {
            x = left;
            if (++row == mostRows) {
                endLegend(int(names.size()), left, right);
                return;
            }
        }
        const double y = top + row * rowHeight;
        const double textLeft = x + sampleWidth + sampleDistance;
        m_layout.legend.append(
            {i, QRectF(x, y, sampleWidth, height), {name, QRectF(textLeft, y, textWidth, height)}});
        x = textLeft + textWidth + entryDistance;
    }
}

void LayoutWork::endLegend(int names, double left, double right)
{
    const double y = m_layout.legend.last().name.place.top();
    QString text;
    double x = left;
    double width = 0.0;
    for (;;) {
        text = QStringLiteral("and %1 more").arg(names - m_layout.legend.size());
        width = m_measure.width(text, Style::Text);
        const bool isRowEmpty =
            m_layout.legend.isEmpty() || m_layout.legend.last().name.place.top() < y;
        x = isRowEmpty ? left : m_layout.legend.last().name.place.right() + entryDistance;
        if (isRowEmpty || x + width <= right)
            break;
        m_layout.legend.removeLast();
    }
    m_layout.legend.append(
        {-1, QRectF(), {text, QRectF(x, y, width, m_measure.height(Style::Text))}});
}

// Above their lines, best in the middle or else to one side, in as few rows as will do; for the
// time being from a plot whose top is at 0.
// @return the height that the rows take
double LayoutWork::placeCursors(const QVector<TickMark>& cursors, double left, double right)
{
    const double height = m_measure.height(Style::Text);
    const int mostRows = std::max(1, int(mostCursorShare * m_layout.size.height() / height));
    LabelPlacer placer(QRectF(QPointF(left - tickLabelDistance, -1e9), picture().bottomRight()));
    int rows = 0;
    for (const TickMark& cursor : cursors) {
        const double width = labelSize(cursor.label).width();
        const double x = left + cursor.place * (right - left);
        const auto place = [&](int i) { // Three in each row.
            constexpr double shares[] = {0.5, 0.0, 1.0};
            return QRectF(x - shares[i % 3] * width, -cursorDistance - (i / 3 + 1) * height, width,
                          height);
        };
        int i = 0;
        while (i < 3 * mostRows && !placer.isFree(place(i), QSizeF(spacing, 0.0)))
            ++i;
        if (i == 3 * mostRows)
            continue;
        placer.take(place(i));
        m_layout.cursors.append({cursor.label.first(), place(i)});
        rows = std::max(rows, i / 3 + 1);
    }
    return rows * height;
}

void LayoutWork::placeHeadings(const ChartTexts& texts)
{
    const double height = m_measure.height(Style::Text);
    const double titleWidth = m_layout.size.width() - m_layout.plot.left() - edge;
    m_layout.title.text = m_measure.elided(texts.title, Style::Title, titleWidth);
    m_layout.title.place =
        QRectF(m_layout.plot.left(), edge, m_measure.width(m_layout.title.text, Style::Title),
               m_measure.height(Style::Title));

    m_layout.xCaption.text = m_measure.elided(texts.xCaption, Style::Text, m_layout.plot.width());
    const double xWidth = m_measure.width(m_layout.xCaption.text, Style::Text);
    m_layout.xCaption.place = QRectF(m_layout.plot.center().x() - xWidth / 2.0,
                                     m_layout.size.height() - spacing - height, xWidth, height);

    m_layout.yCaption.text = m_measure.elided(texts.yCaption, Style::Text, m_layout.plot.height());
    const double yWidth = m_measure.width(m_layout.yCaption.text, Style::Text);
    m_layout.yCaption.place =
        QRectF(edge, m_layout.plot.center().y() - yWidth / 2.0, height, yWidth);
}

void LayoutWork::placeTickLabels(const ChartTexts& texts)
{
    LabelPlacer placer(picture());
    placer.take(m_layout.title.place);
    placer.take(m_layout.xCaption.place);
    placer.take(m_layout.yCaption.place);
    placer.take(m_layout.colorCaption.place);
    for (const LegendEntry& entry : std::as_const(m_layout.legend))
        placer.take(entry.name.place);
    for (const PlacedText& cursor : std::as_const(m_layout.cursors))
        placer.take(cursor.place);
    placeLabelsOf(texts.xMarks, Qt::AlignHCenter, placer, [&](double place, const QSizeF& size) {
        return QPointF(m_layout.xAt(place) - size.width() / 2.0,
                       m_layout.plot.bottom() + tickLabelDistance);
    });
    placeLabelsOf(texts.yMarks, Qt::AlignRight, placer, [&](double place, const QSizeF& size) {
        return QPointF(m_layout.plot.left() - tickLabelDistance - size.width(),
                       m_layout.yAt(place) - size.height() / 2.0);
    });
    if (texts.colorBar.isEmpty())
        return;
    placeLabelsOf(texts.colorBar.marks, Qt::AlignLeft, placer,
                  [&](double place, const QSizeF& size) {
                      return QPointF(m_layout.colorBar.right() + colorLabelDistance,
                                     m_layout.yAt(place) - size.height() / 2.0);
                  });
}

// From all other texts a label keeps apart just so; from those of its axis further if it is that of
// a minor tick and can be done without.
void LayoutWork::placeLabelsOf(const QVector<TickMark>& marks, Qt::Alignment alignment,
                               LabelPlacer& placer, const Corner& corner)
{
    const double height = m_measure.height(Style::Text);
    const QSizeF gap(spacing, 0.0);
    const QSizeF minorGap = haveMajorsAScale(marks) ? minorLabelGap * height : gap;
    LabelPlacer ofAxis(picture());
    for (const TickMark& mark : marks) {
        const QSizeF size = labelSize(mark.label);
        const QRectF place(corner(mark.place, size), size);
        if (!placer.isFree(place, gap) || !ofAxis.isFree(place, mark.major ? gap : minorGap))
            continue;
        placer.take(place);
        ofAxis.take(place);
        appendLines(mark.label, place, alignment);
    }
}

void LayoutWork::appendLines(const QStringList& lines, const QRectF& place, Qt::Alignment alignment)
{
    const double height = m_measure.height(Style::Text);
    double y = place.top();
    for (const QString& line : lines) {
        const double free = place.width() - m_measure.width(line, Style::Text);
        const double shift = alignment == Qt::AlignLeft    ? 0.0
                             : alignment == Qt::AlignRight ? free
                                                           : free / 2.0;
        m_layout.tickLabels.append(
            {line, QRectF(place.left() + shift, y, place.width() - free, height)});
        y += height;
    }
}

// Where texts may be.
QRectF LayoutWork::picture() const
{
    return QRectF(QPointF(0.0, 0.0), m_layout.size)
        .adjusted(breathing, breathing, -breathing, -breathing);
}

} // namespace

ChartLayout ChartLayout::of(const QSizeF& size, const ChartTexts& texts, const TextMeasure& measure)
{
    return LayoutWork(size, measure).work(texts);
}

QRect ChartLayout::plotPixels(double deviceScale) const
{
    const auto pixel = [deviceScale](double length) {
        return int(std::lround(length * deviceScale));
    };
    const QPoint corner(pixel(plot.left()), pixel(plot.top()));
    return {corner, QSize(pixel(plot.right()) - corner.x(), pixel(plot.bottom()) - corner.y())};
}

} // namespace hosts::charting
