#include "hosts/charting/FontMeasure.h"

namespace hosts::charting {

FontMeasure::FontMeasure(const Look& look)
    : m_text(look.textFont())
    , m_title(look.titleFont())
{}

double FontMeasure::width(const QString& text, Style style) const
{
    return metrics(style).horizontalAdvance(text);
}

double FontMeasure::height(Style style) const
{
    return metrics(style).height();
}

QString FontMeasure::elided(const QString& text, Style style, double width) const
{
    return metrics(style).elidedText(text, Qt::ElideRight, width);
}

double FontMeasure::ascent(Style style) const
{
    return metrics(style).ascent();
}

const QFontMetricsF& FontMeasure::metrics(Style style) const
{
    return style == Style::Title ? m_title : m_text;
}

} // namespace hosts::charting
