#ifndef HOSTS_KESTRANE_CHART_PLACEDSAMPLES_H
#define HOSTS_KESTRANE_CHART_PLACEDSAMPLES_H

#include <kestrane/axes/Axis.h>
#include <kestrane/backend/PlotSnapshot.h>

#include <QSharedPointer>

namespace hosts::chart {

/// What a plot algorithm is to draw and on which axis, so that the spline between samples looks
/// as it does on a linear axis.
///
/// A spline swings a little beyond its samples beside a steep flank, by a tenth of its height or
/// so. On a linear axis that is little to look at. Spread by a logarithm, a tenth of a million is
/// 100,000 beside samples of 1, or on a LogAxis, minus infinity. So on a logarithmic axis the
/// spline is laid through the positions of the samples instead of their values.
struct PlacedSamples
{
    /// On a linear axis the snapshot and the axis as they are; else positions on @p yAxis, to be
    /// drawn on an axis from 0.0 to 1.0. A value that has no position on it, as it is not positive,
    /// stands just below the axis: the line falls out of the picture there. O(samples).
    static PlacedSamples of(const pelorin::backend::PlotSnapshot& snapshot,
                            const QSharedPointer<pelorin::ui::chart::Axis>& yAxis);

    pelorin::backend::PlotSnapshot snapshot;
    QSharedPointer<const pelorin::ui::chart::Axis> yAxis;
};

} // namespace hosts::chart

#endif
