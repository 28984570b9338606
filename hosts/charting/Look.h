#ifndef HOSTS_CHARTING_LOOK_H
#define HOSTS_CHARTING_LOOK_H

#include <QColor>
#include <QFont>
#include <QVector>

namespace hosts::charting {

/// Colours, fonts and line widths of a chart. All lengths are in logical pixels, 96 to the inch.
struct Look
{
    static Look light();
    static Look dark();

    /// The colour of the curve of this index. The first eight can be told apart by colour-blind
    /// readers too; from the ninth on they come again in another lightness.
    QColor curveColor(int index) const;

    QFont textFont() const;
    QFont titleFont() const;

    QColor background;
    QColor plotBackground;
    QColor majorGrid;
    QColor minorGrid;
    QColor frame;
    QColor text;
    QColor faintText; ///< Tick labels, which are many and should not shout.
    QVector<QColor> curveColors;

    double gridWidth = 1.0;
    double curveWidth = 1.25;
    double symbolRadius = 2.6;
    double dotRadius = 1.2; ///< Of the dot for a sample that stands alone.
    double crossingRadius = 4.0;
    double crossingWidth = 2.0;
    double majorTickLength = 5.0;
    double minorTickLength = 3.0;
    int textSize = 12;
    int titleSize = 16;
};

} // namespace hosts::charting

#endif
