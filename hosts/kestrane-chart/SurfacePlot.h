#ifndef HOSTS_KESTRANE_CHART_SURFACEPLOT_H
#define HOSTS_KESTRANE_CHART_SURFACEPLOT_H

#include "hosts/data/Grid.h"
#include "hosts/kestrane-chart/Plot.h"
#include "hosts/kestrane-chart/SurfaceData.h"

namespace hosts::chart {

/// Values over x and y in colours.
class SurfacePlot : public Plot
{
public:
    SurfacePlot(const Recordings& recordings, const Options& options);

    charting::ShownAxis xAxis() const override { return m_data.x; }
    charting::ShownAxis yAxis(const charting::AxisView&) const override { return m_data.y; }
    QVector<charting::Curve> curves(const charting::AxisView&, const charting::AxisView&,
                                    double) const override
    {
        return {};
    }
    QStringList names() const override { return {}; }
    QString xCaption() const override { return m_data.xName; }
    QString yCaption() const override { return m_data.yName; }

protected:
    const SurfaceData& data() const { return m_data; }

    /// The size of a pixel on the axes of a plot.
    static double pixelSize(const charting::AxisView& axis, int pixels);

    /// How many labels a colour bar has room for.
    int wantedColorLabels() const;

private:
    SurfaceData m_data;
};

} // namespace hosts::chart

#endif
