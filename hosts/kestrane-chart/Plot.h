#ifndef HOSTS_KESTRANE_CHART_PLOT_H
#define HOSTS_KESTRANE_CHART_PLOT_H

#include "hosts/charting/Chart.h"
#include "hosts/data/Series.h"
#include "hosts/kestrane-chart/Options.h"
#include "hosts/kestrane-chart/Recordings.h"

#include <QImage>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace hosts::chart {

/// What becomes of data in a chart: axes that suit them, and curves or a surface.
class Plot
{
public:
    /// The plot that @p options ask for; they have to outlive it.
    /// @throws WorkError if there is nothing to draw, or not what that plot needs
    static std::unique_ptr<Plot> of(const Recordings& recordings, const Options& options);

    virtual ~Plot() = default;

    /// Takes what there is by now of the same series.
    virtual void setSeries(const std::vector<data::Series>& series) { m_series = series; }

    /// An axis for x, that covers the data in what the options leave open.
    /// @throws WorkError if the options do not fit the data
    virtual charting::ShownAxis xAxis() const = 0;

    /// An axis for y, that covers what is to be seen on @p x.
    virtual charting::ShownAxis yAxis(const charting::AxisView& x) const = 0;

    /// @param plotWidth in logical pixels
    virtual QVector<charting::Curve>
    curves(const charting::AxisView& x, const charting::AxisView& y, double plotWidth) const = 0;

    /// Where the cursors that the options ask for cross the curves; none in a plot without them.
    virtual QVector<charting::Crossing> crossings(const charting::AxisView& x,
                                                  const charting::AxisView& y) const;

    /// What the colours of a surface mean; empty in a plot without one.
    virtual charting::ColorBar colorBar() const { return {}; }

    /// What fills the plot, of that size; null in a plot of curves.
    virtual QImage surface(const charting::AxisView&, const charting::AxisView&,
                           const QSize& /*pixels*/) const
    {
        return {};
    }

    /// The name of each curve.
    virtual QStringList names() const;

    /// What the axes are, as far as the data tell.
    virtual QString xCaption() const { return {}; }
    virtual QString yCaption() const { return {}; }

    /// The numbers of divisions to come near to.
    int wantedXDivisions() const;
    int wantedYDivisions() const;

protected:
    Plot(const std::vector<data::Series>& series, const Options& options);

    const std::vector<data::Series>& series() const { return m_series; }
    const Options& options() const { return m_options; }

    /// The width of a device pixel on the axis.
    double columnWidth(const charting::AxisView& x, double plotWidth) const;

    /// The least distance of two symbols, in columns.
    double symbolSpacing() const;

private:
    std::vector<data::Series> m_series;
    const Options& m_options;
};

} // namespace hosts::chart

#endif
