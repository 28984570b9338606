#ifndef HOSTS_CHARTING_TEXTMEASURE_H
#define HOSTS_CHARTING_TEXTMEASURE_H

#include <QSizeF>
#include <QString>

namespace hosts::charting {

/// The size of one line of text, in logical pixels. Keeps the layout free of fonts.
class TextMeasure
{
public:
    enum class Style { Text, Title };

    virtual ~TextMeasure() = default;

    virtual double width(const QString& text, Style style) const = 0;

    /// The same for all texts of a style.
    virtual double height(Style style) const = 0;

    /// @p text, shortened at its end if it is wider than @p width.
    virtual QString elided(const QString& text, Style style, double width) const = 0;
};

} // namespace hosts::charting

#endif
