#ifndef HOSTS_KESTRANE_CHART_DRAWING_H
#define HOSTS_KESTRANE_CHART_DRAWING_H

#include "hosts/charting/Chart.h"
#include "hosts/charting/ChartLayout.h"
#include "hosts/charting/Look.h"
#include "hosts/kestrane-chart/Recordings.h"

class QPainter;

namespace hosts::chart {

class Plot;

/// What the labels of an axis write: a unit that is to be written as it is, is a quantity of its
/// own whose unit takes no prefix.
QString quantityOf(const AxisOptions& axis);

/// A chart of some recordings, with its look and its layout: all that painting needs.
struct Drawing
{
    /// @throws UsageError if there are more names than curves
    /// @throws WorkError if there is nothing to draw in the range that @p options ask for
    static Drawing of(const Recordings& recordings, const Options& options);

    /// Of a plot on axes as they are by now.
    static Drawing of(const Plot& plot, const charting::ShownAxis& xAxis,
                      const charting::ShownAxis& yAxis, const Options& options);

    /// @param painter, deviceScale as charting::ChartPainter takes them
    void paint(QPainter& painter, double deviceScale) const;

    charting::Look look;
    charting::Chart chart;
    charting::ChartLayout layout;
};

} // namespace hosts::chart

#endif
