#ifndef HOSTS_CHARTING_FONTMEASURE_H
#define HOSTS_CHARTING_FONTMEASURE_H

#include "hosts/charting/Look.h"
#include "hosts/charting/TextMeasure.h"

#include <QFontMetricsF>

namespace hosts::charting {

/// Measures in the fonts of a look.
class FontMeasure : public TextMeasure
{
public:
    explicit FontMeasure(const Look& look);

    double width(const QString& text, Style style) const override;
    double height(Style style) const override;
    QString elided(const QString& text, Style style, double width) const override;

    /// From the top of a line down to its base line.
    double ascent(Style style) const;

private:
    const QFontMetricsF& metrics(Style style) const;

    QFontMetricsF m_text;
    QFontMetricsF m_title;
};

} // namespace hosts::charting

#endif
