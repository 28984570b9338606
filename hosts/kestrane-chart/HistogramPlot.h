#ifndef HOSTS_KESTRANE_CHART_HISTOGRAMPLOT_H
#define HOSTS_KESTRANE_CHART_HISTOGRAMPLOT_H

#include "hosts/charting/ColorScale.h"
#include "hosts/kestrane-chart/SurfacePlot.h"

namespace hosts::chart {

/// Cells in the colours of their values.
class HistogramPlot : public SurfacePlot
{
public:
    HistogramPlot(const Recordings& recordings, const Options& options);

    charting::ColorBar colorBar() const override;
    QImage surface(const charting::AxisView& x, const charting::AxisView& y,
                   const QSize& pixels) const override;

private:
    charting::ColorScale m_scale;
};

} // namespace hosts::chart

#endif
