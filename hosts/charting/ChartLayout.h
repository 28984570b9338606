#ifndef HOSTS_CHARTING_CHARTLAYOUT_H
#define HOSTS_CHARTING_CHARTLAYOUT_H

#include "hosts/charting/Chart.h"
#include "hosts/charting/TextMeasure.h"

#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QVector>

namespace hosts::charting {

/// One line of text and the place that it fills.
struct PlacedText
{
    QString text;
    QRectF place;
};

/// A text of the legend with the place for a sample of its curve.
struct LegendEntry
{
    int curve = 0; ///< Negative for the entry that counts the curves which found no room.
    QRectF sample;
    PlacedText name;
};

/// Where everything of a chart goes, in logical pixels from the top left corner of the picture.
///
///     +------------------------------+
///     |     title                    |
///     |     -- legend   -- legend    |
///     |              cursor          |
///     |   1 +----------+-----------+ |
///     | y   |     plot o crossing  | |
///     |   0 +----------+-----------+ |
///     |     0          1           2 |
///     |              x               |
///     +------------------------------+
///
/// A colour bar stands at the right of the plot, with labels and caption at its own right.
///
/// Laws:
///  1. No text overlaps another or passes the edge of the picture; what has no room is shortened
///     or left out.
///  2. Where two tick labels of an axis are in each other's way, the one of higher rank stays.
struct ChartLayout
{
    /// @param size of the picture
    static ChartLayout of(const QSizeF& size, const ChartTexts& texts, const TextMeasure& measure);

    /// The horizontal coordinate of a place on the x axis.
    double xAt(double place) const { return plot.left() + place * plot.width(); }

    /// The vertical coordinate of a place on the y axis, which runs upwards.
    double yAt(double place) const { return plot.bottom() - place * plot.height(); }

    QPointF at(const QPointF& place) const { return {xAt(place.x()), yAt(place.y())}; }

    /// The whole device pixels that the plot fills.
    /// @param deviceScale device pixels in a logical pixel
    QRect plotPixels(double deviceScale) const;

    QSizeF size;
    QRectF plot;
    PlacedText title;
    PlacedText xCaption;
    PlacedText yCaption; ///< Reads upwards: its place is as wide as the text is high.
    QVector<LegendEntry> legend;
    QRectF colorBar;                ///< Empty for none.
    PlacedText colorCaption;        ///< Reads upwards too.
    QVector<PlacedText> cursors;    ///< Those that found room, above the plot.
    QVector<PlacedText> tickLabels; ///< An entry for each line of each label that found room.
    QVector<PlacedText> crossings;  ///< One for each of the chart, an empty one where is no room.
};

} // namespace hosts::charting

#endif
