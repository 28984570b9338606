#ifndef HOSTS_KESTRANE_CHART_LINEPLOT_H
#define HOSTS_KESTRANE_CHART_LINEPLOT_H

#include "hosts/kestrane-chart/Extent.h"
#include "hosts/kestrane-chart/Plot.h"

#include <optional>

namespace hosts::chart {

/// Each series as a curve over x.
class LinePlot : public Plot
{
public:
    LinePlot(const std::vector<data::Series>& series, const Options& options);

    charting::ShownAxis xAxis() const override;
    charting::ShownAxis yAxis(const charting::AxisView& x) const override;
    QVector<charting::Curve> curves(const charting::AxisView& x, const charting::AxisView& y,
                                    double plotWidth) const override;
    QVector<charting::Crossing> crossings(const charting::AxisView& x,
                                          const charting::AxisView& y) const override;

protected:
    /// What @p measure tells of the values that are to be seen on @p x.
    /// @throws WorkError if there are no values at all
    std::optional<Extent> valuesInSight(const charting::AxisView& x, Extent::Measure measure) const;
};

} // namespace hosts::chart

#endif
