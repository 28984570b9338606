#ifndef HOSTS_KESTRANE_CHART_OPTIONS_H
#define HOSTS_KESTRANE_CHART_OPTIONS_H

#include "hosts/charting/AxisDivision.h"
#include "hosts/data/ReadOptions.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <limits>
#include <optional>

namespace hosts::chart {

/// What the user wants of one axis.
struct AxisOptions
{
    /// The range as it was asked for on the command line, such as "--from 3 --to 4".
    QString rangeText() const;

    QString fromName; ///< What the command line calls the two limits.
    QString toName;
    QString caption;
    QString quantity;
    QString unit; ///< Written as it is behind each number.
    std::optional<double> from;
    std::optional<double> to;
    double reference = std::numeric_limits<double>::quiet_NaN();
};

/// The whole command line, checked as far as that can be done without the data.
struct Options
{
    /// Device pixels in a logical pixel.
    double deviceScale() const { return dpi / 96.0; }

    QStringList inputs;
    QString output;
    data::ReadOptions read;
    AxisOptions x;
    AxisOptions y;
    charting::TickPlaces ticks = charting::TickPlaces::Moving;
    QString title;
    QStringList legend; ///< Names in place of those of the data.
    bool showLegend = true;
    bool isDark = false;
    double symbolSpacing = 8.0; ///< In logical pixels.
    QSize size = {1000, 600};   ///< In logical pixels.
    double dpi = 96.0;
};

} // namespace hosts::chart

#endif
