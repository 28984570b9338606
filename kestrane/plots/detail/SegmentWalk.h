#ifndef KESTRANE_PLOTS_DETAIL_SEGMENTWALK_H
#define KESTRANE_PLOTS_DETAIL_SEGMENTWALK_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/PlotSegment.h"
#include "kestrane/plots/detail/Columns.h"
#include "kestrane/plots/detail/SegmentCurve.h"
#include "kestrane/plots/detail/SegmentPlot.h"

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// One pass over the visible samples of a segment, column by column. It reaches the axes through
/// their virtual operations alone and so serves any axis.
class SegmentWalk
{
public:
    /// @param column where the walk over the previous segment stopped; this walk moves it on
    /// @param plot receives the result piece by piece, so that what there is survives an exception
    SegmentWalk(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                const Thinning& thinning, Column& column, SegmentPlot& plot);

    /// Throws what a foreign subsampler or axis throws.
    void run();

protected:
    // Those that return a bool return false where the curve ends, and the walk with it.
    void alignToFirstSample();
    bool takeSample();
    void collect(double position, double y);
    bool closeColumn();
    bool flushColumn();
    void completeLonePoint();

    double fractionalIndexAt(double position) const;
    const Axis& m_xAxis;
    const Axis& m_yAxis;
    const Axis::ScaleMode m_xMode;
    const Axis::ScaleMode m_yMode;
    const double m_offset;
    const double m_scale;
    const double m_columnWidth;
    const SegmentCurve m_curve;
    const bool m_symbolsOn;
    Column& m_column;
    SegmentPlot& m_plot;

    const double* m_cursor;
    long long m_index = 0;
    long long m_remaining;
    Extremes m_extremes; // Of the y positions in the present column.
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
