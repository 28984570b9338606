#ifndef HOSTS_KESTRANE_CHART_NEEDLEPLOT_H
#define HOSTS_KESTRANE_CHART_NEEDLEPLOT_H

#include "hosts/kestrane-chart/LinePlot.h"

namespace hosts::chart {

/// Each sample as a needle that stands on 0, or on the end of the y axis that is nearest to it.
class NeedlePlot : public LinePlot
{
public:
    using LinePlot::LinePlot;

    charting::ShownAxis yAxis(const charting::AxisView& x) const override;
    QVector<charting::Curve> curves(const charting::AxisView& x, const charting::AxisView& y,
                                    double plotWidth) const override;
    QVector<charting::Crossing> crossings(const charting::AxisView& x,
                                          const charting::AxisView& y) const override;
};

} // namespace hosts::chart

#endif
