#ifndef KESTRANE_PLOTS_DETAIL_SEGMENTCURVE_H
#define KESTRANE_PLOTS_DETAIL_SEGMENTCURVE_H

#include "kestrane/backend/PlotSegment.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include <optional>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The curve between the samples of a segment: its subsampler, which is made a spline on first use
/// and kept in the segment.
class SegmentCurve
{
public:
    explicit SegmentCurve(const backend::PlotSegment& segment);

    /// The value at a fractional sample index, or nothing outside the range of our own spline: the
    /// end of the data is too ordinary for an exception. What a foreign subsampler throws passes
    /// through.
    std::optional<double> at(double index) const;

    /// The value at a fractional sample index, or whatever the subsampler throws.
    double operator[](double index) const;

    using Spline = algo::SplineAlgorithm<backend::SampleIterator>;

    /// Our own spline if it is that and no subclass, which may answer where the spline doesn't;
    /// else null.
    Spline* ownSpline() const { return m_ownSpline; }

private:
    boost::shared_ptr<algo::Subsampler> m_subsampler;
    Spline* m_ownSpline;
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
