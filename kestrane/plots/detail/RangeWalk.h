#ifndef KESTRANE_PLOTS_DETAIL_RANGEWALK_H
#define KESTRANE_PLOTS_DETAIL_RANGEWALK_H

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/plots/detail/SegmentWalk.h"

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The walk of SegmentWalk in steps of a column instead of a sample, with the same result bit for
/// bit. On axes that are known in plain numbers, positions ascend with the samples, so that
///
///  - the samples of a column are a range of indices. The index at its end is guessed by way of the
///    inverse, and mended by the very comparison that closes a column of the plain walk;
///  - the extremes of their positions are the positions of their extremes, which a summary of the
///    segment has at hand. Only the last bits of a logarithm need not ascend; there the samples
///    next to an extreme have a say.
///
/// The curve is asked for many columns at a time.
class RangeWalk : public SegmentWalk
{
public:
    /// Whether the walk over a segment can be made in this way.
    static bool serves(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                       const Thinning& thinning);

    RangeWalk(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
              const Thinning& thinning, Column& column, SegmentPlot& plot);

    void run();

private:
    // The columns to come, from the present one on.
    struct Ahead
    {
        static constexpr int capacity = 60;
        double index[capacity + 1]; // Fractional, at the left edge.
        double curve[capacity];     // Void where the spline has no value.
        int size = 0;
        int endOfCurve = 0; // Of the columns whose left edge the spline covers.
        int next = 0;
    };

    void reserve();
    bool takeColumn();
    bool closeColumn();
    void lookAhead();
    void collectUpTo(long long end);
    void moveTo(long long index);
    Extremes positionsOf(long long begin, long long end) const;
    Extremes logarithmsOf(long long begin, long long end, const Extremes& values) const;

    double positionOfSample(long long index) const;
    double fractionalIndexAt(double position) const;
    long long firstAtOrBeyond(double position, double guess) const;

    const AxisMap m_xMap;
    const AxisMap m_yMap;
    SegmentCurve::Spline& m_spline;
    const double* const m_samples;
    const long long m_count;
    double m_position = 0.0; // Of sample m_index.
    Ahead m_ahead;
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
