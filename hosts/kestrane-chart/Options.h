#ifndef HOSTS_KESTRANE_CHART_OPTIONS_H
#define HOSTS_KESTRANE_CHART_OPTIONS_H

#include "hosts/data/ReadOptions.h"
#include "hosts/kestrane-chart/AxisOptions.h"
#include "hosts/kestrane-chart/SurfaceOptions.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace hosts::chart {

/// What is to be drawn of a recording.
enum class Show { Values, Slope, Spectrum };

/// As what it is to be drawn.
enum class Draw { Lines, XY, Needles, Histogram, Spectrogram, Columns };

/// The whole command line, checked as far as that can be done without the data.
struct Options
{
    /// Device pixels in a logical pixel.
    double deviceScale() const { return dpi / 96.0; }

    QStringList inputs;
    QString output;
    data::ReadOptions read;
    Show show = Show::Values;
    Draw draw = Draw::Lines;
    SurfaceOptions surface;
    AxisOptions x;
    AxisOptions y;
    QString title;
    QStringList legend; ///< Names in place of those of the data.
    bool showLegend = true;
    QVector<double> cursors; ///< Values of x.
    bool isDark = false;
    double symbolSpacing = 8.0; ///< In logical pixels.
    QSize size = {1000, 600};   ///< In logical pixels.
    double dpi = 96.0;
};

} // namespace hosts::chart

#endif
