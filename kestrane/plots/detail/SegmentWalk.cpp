#include "kestrane/plots/detail/SegmentWalk.h"

#include <algorithm>
#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

namespace {

// Truncated towards zero; a quotient that no 64-bit number holds, NaN included, counts as none.
long long wholeSamples(double quotient)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    return quotient >= -limit && quotient < limit ? static_cast<long long>(quotient) : 0;
}

// Sparse enough for symbols: a sample step spans more than the spacing, as measured at the start
// of the axis in plain values, whatever form the samples are written in.
bool showsSymbols(const Axis& xAxis, const Thinning& thinning, double sampleStep)
{
    // Two statements, so that an axis is asked in one order whatever the compiler.
    const double end =
        xAxis.inverseTransform(Axis::Linear, thinning.columnWidth * thinning.symbolSpacing);
    const double start = xAxis.inverseTransform(Axis::Linear, 0.0);
    return sampleStep > end - start;
}

} // namespace

SegmentWalk::SegmentWalk(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                         const Thinning& thinning, Column& column, SegmentPlot& plot)
    : m_xAxis(xAxis)
    , m_yAxis(yAxis)
    , m_xMode(segment.xInfo.scaleMode)
    , m_yMode(segment.yScaleMode)
    , m_offset(segment.xInfo.offset)
    , m_scale(segment.xInfo.scale)
    , m_columnWidth(thinning.columnWidth)
    , m_curve(segment)
    , m_symbolsOn(showsSymbols(xAxis, thinning, segment.xInfo.scale))
    , m_column(column)
    , m_plot(plot)
    , m_cursor(segment.count > 0 ? &*segment.begin : nullptr)
    , m_remaining(segment.count)
{}

void SegmentWalk::run()
{
    if (m_remaining > 0)
        alignToFirstSample();
    while (m_remaining > 0 && m_column.left < 1.0) {
        if (!takeSample())
            return;
    }
    if (flushColumn())
        completeLonePoint();
}

// Jumps over what lies left of the visible range, however much it is.
void SegmentWalk::alignToFirstSample()
{
    m_column.left = leftEdgeOfColumnAt(m_xAxis.transform(m_xMode, m_offset), m_columnWidth);
    m_column.right = m_column.left + m_columnWidth;

    const long long skip =
        std::clamp(wholeSamples(fractionalIndexAt(m_column.left)), 0LL, m_remaining);
    m_index = skip;
    m_cursor += skip;
    m_remaining -= skip;
}

bool SegmentWalk::takeSample()
{
    const double position =
        m_xAxis.transform(m_xMode, static_cast<double>(m_index) * m_scale + m_offset);
    const double sample = *m_cursor;
    --m_remaining;
    ++m_index;
    ++m_cursor;

    if (std::isnan(position))
        return true;
    while (position >= m_column.right && m_column.left < 1.0) {
        if (!closeColumn())
            return false;
    }
    collect(position, m_yAxis.transform(m_yMode, sample));
    return true;
}

void SegmentWalk::collect(double position, double y)
{
    if (std::isnan(y))
        return;
    if (m_symbolsOn)
        m_plot.symbols.append(QPointF(position, y));
    if (position >= m_column.left)
        m_extremes.unite({y, y});
}

// The right edge is a sum, column by column, and not a multiple of the width: columns have to meet
// exactly, and this sum is what defines them.
bool SegmentWalk::closeColumn()
{
    if (!flushColumn())
        return false;
    m_extremes = {};
    m_column.left = m_column.right;
    m_column.right += m_columnWidth;
    return true;
}

// The curve is read at the column's left edge and drawn at its centre.
bool SegmentWalk::flushColumn()
{
    const double centre = m_columnWidth * 0.5 + m_column.left;
    const double index = fractionalIndexAt(m_column.left);
    if (!(index >= 0.0)) { // Before the first sample there is no curve.
        m_plot.appendExtremes(centre, m_extremes);
        return true;
    }
    const std::optional<double> value = m_curve.at(index);
    if (!value)
        return false;
    const double y = m_yAxis.transform(m_yMode, *value);
    if (!std::isnan(y))
        m_plot.appendExtremesBeside(centre, y, m_extremes);
    return true;
}

// A polyline needs two points: a lone one is joined by the next column's, or else by itself.
void SegmentWalk::completeLonePoint()
{
    if (m_plot.polyline.size() != 1)
        return;
    QPointF point = m_plot.polyline.first();
    const double index = fractionalIndexAt(m_column.right);
    if (index >= 0.0) {
        const std::optional<double> value = m_curve.at(index);
        if (!value)
            return;
        const double y = m_yAxis.transform(m_yMode, *value);
        if (!std::isnan(y))
            point = QPointF(m_columnWidth * 0.5 + m_column.right, y);
    }
    m_plot.polyline.append(point);
}

double SegmentWalk::fractionalIndexAt(double position) const
{
    return (m_xAxis.inverseTransform(m_xMode, position) - m_offset) / m_scale;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
