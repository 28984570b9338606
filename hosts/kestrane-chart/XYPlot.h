#ifndef HOSTS_KESTRANE_CHART_XYPLOT_H
#define HOSTS_KESTRANE_CHART_XYPLOT_H

#include "hosts/kestrane-chart/Plot.h"

namespace hosts::chart {

/// Each series but the first over the first, in the order in which they were measured.
class XYPlot : public Plot
{
public:
    /// @throws WorkError if there are not two of them at least
    /// @throws std::runtime_error if they are not sampled in step
    XYPlot(const std::vector<data::Series>& series, const Options& options);

    charting::ShownAxis xAxis() const override;
    charting::ShownAxis yAxis(const charting::AxisView& x) const override;
    QVector<charting::Curve> curves(const charting::AxisView& x, const charting::AxisView& y,
                                    double plotWidth) const override;
    QStringList names() const override;
    QString xCaption() const override;
    QString yCaption() const override;
};

} // namespace hosts::chart

#endif
