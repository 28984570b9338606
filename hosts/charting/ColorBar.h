#ifndef HOSTS_CHARTING_COLORBAR_H
#define HOSTS_CHARTING_COLORBAR_H

#include "hosts/charting/TickMark.h"

#include <QColor>
#include <QString>
#include <QVector>

namespace hosts::charting {

/// What colours in a plot mean: fields of equal height, the lowest values at the bottom.
struct ColorBar
{
    bool isEmpty() const { return colors.isEmpty(); }

    QVector<QColor> colors;
    QVector<TickMark> marks; ///< Values with one line each, the most important first.
    QString caption;
};

} // namespace hosts::charting

#endif
