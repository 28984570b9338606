#ifndef HOSTS_KESTRANE_CHART_LINEPLOT_H
#define HOSTS_KESTRANE_CHART_LINEPLOT_H

#include "hosts/kestrane-chart/Extent.h"
#include "hosts/kestrane-chart/Plot.h"
#include "hosts/kestrane-chart/SampledCurve.h"

#include <memory>
#include <optional>
#include <vector>

namespace hosts::chart {

/// Each series as a curve over x.
class LinePlot : public Plot
{
public:
    LinePlot(const std::vector<data::Series>& series, const Options& options);

    void setSeries(const std::vector<data::Series>& series) override;
    charting::ShownAxis xAxis() const override;
    charting::ShownAxis yAxis(const charting::AxisView& x) const override;
    QVector<charting::Curve> curves(const charting::AxisView& x, const charting::AxisView& y,
                                    double plotWidth) const override;
    QVector<charting::Crossing> crossings(const charting::AxisView& x,
                                          const charting::AxisView& y) const override;

    /// One for each series.
    const std::vector<std::shared_ptr<SampledCurve>>& sampledCurves() const { return m_curves; }

protected:
    /// What @p measure tells of the values that are to be seen on @p x.
    /// @throws WorkError if there are no values at all
    std::optional<Extent> valuesInSight(const charting::AxisView& x, Extent::Measure measure) const;

private:
    std::vector<std::shared_ptr<SampledCurve>> m_curves;
};

} // namespace hosts::chart

#endif
