#ifndef HOSTS_KESTRANE_CHART_COLUMNPLOT_H
#define HOSTS_KESTRANE_CHART_COLUMNPLOT_H

#include "hosts/kestrane-chart/SurfacePlot.h"

namespace hosts::chart {

/// A stick for each column of values, in colours that tell how its sum grows from the top down.
class ColumnPlot : public SurfacePlot
{
public:
    ColumnPlot(const Recordings& recordings, const Options& options);

    charting::ColorBar colorBar() const override;
    QImage surface(const charting::AxisView& x, const charting::AxisView& y,
                   const QSize& pixels) const override;

private:
    data::Grid reference(const charting::AxisView& x, const charting::AxisView& y) const;

    double m_largest; ///< The largest sum of a column.
};

} // namespace hosts::chart

#endif
