#ifndef HOSTS_KESTRANE_CHART_SAMPLEDCURVE_H
#define HOSTS_KESTRANE_CHART_SAMPLEDCURVE_H

#include "hosts/charting/Chart.h"

#include <kestrane/backend/PlotSnapshot.h>
#include <kestrane/plots/Intersectable.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

namespace hosts::chart {

/// A series as a curve over x. What the plot algorithm finds out about the samples is kept from one
/// picture to the next.
class SampledCurve : public pelorin::ui::chart::Intersectable
{
public:
    explicit SampledCurve(const pelorin::backend::PlotSnapshot& snapshot);

    /// Takes other data and tells the notifyees.
    void setSnapshot(const pelorin::backend::PlotSnapshot& snapshot);

    /// Tells the notifyees that an axis has moved.
    void axisMoved() const { fireUpdates(); }

    /// What is to be drawn in columns of a width, with symbols at least so many columns apart.
    charting::Curve curve(const charting::AxisView& x, const charting::AxisView& y,
                          double columnWidth, double symbolSpacing);

    /// The crossings with the vertical line at a value of x, those before the last sample and at
    /// it.
    QList<pelorin::ui::chart::Intersection> crossings(const charting::AxisView& x,
                                                      const charting::AxisView& y, double position);

    /// As the curve was last drawn: joined by straight lines on a logarithmic y axis.
    QList<pelorin::ui::chart::Intersection> doIntersect(const pelorin::ui::chart::Axis* xAxis,
                                                        const pelorin::ui::chart::Axis* yAxis,
                                                        double position) const override;

private:
    void joinFor(const charting::AxisView& y);

    pelorin::backend::PlotSnapshot m_snapshot;
    pelorin::ui::chart::SamplePlotAlgorithm m_algorithm;
    QSharedPointer<pelorin::ui::chart::Axis> m_straightOn; ///< Null for a spline.
};

} // namespace hosts::chart

#endif
