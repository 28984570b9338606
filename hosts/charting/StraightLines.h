#ifndef HOSTS_CHARTING_STRAIGHTLINES_H
#define HOSTS_CHARTING_STRAIGHTLINES_H

#include <kestrane/axes/Axis.h>
#include <kestrane/backend/PlotSegment.h>
#include <kestrane/backend/PlotSnapshot.h>

#include <QSharedPointer>

namespace hosts::charting {

/// Joins samples by lines that are straight on an axis, where a plot would lay a spline.
///
/// A spline swings a little beyond its samples beside a steep flank, by a tenth of its height or
/// so. On a linear axis that is little to look at. On a logarithmic one a tenth of a million is
/// 100,000 beside samples of 1, or a curve that leaves the axis as it gets below zero.
///
/// A value that has no position, as it is not positive, counts as just below the axis: the line
/// falls out of the picture there.
class StraightLines : public pelorin::algo::Subsampler
{
public:
    StraightLines(const pelorin::backend::PlotSegment& segment,
                  const QSharedPointer<pelorin::ui::chart::Axis>& axis);

    /// The value at a fractional index from 0 up to, not including, count - 1. O(1).
    /// @throws utilities::InvalidIndexException outside that range and for NaN
    double operator[](const double& index) override;

    boost::shared_ptr<pelorin::algo::Subsampler> tail(long long start) override;

    /// @p snapshot as it is for a linear axis, else with straight lines. O(segments).
    static pelorin::backend::PlotSnapshot
    whereTheySuit(const pelorin::backend::PlotSnapshot& snapshot,
                  const QSharedPointer<pelorin::ui::chart::Axis>& axis);

private:
    double positionOf(long long sample) const;

    pelorin::backend::PlotSegment m_segment;
    QSharedPointer<pelorin::ui::chart::Axis> m_axis;
};

} // namespace hosts::charting

#endif
