#include "kestrane/plots/detail/RangeWalk.h"

#include "kestrane/plots/detail/GrowingList.h"

#include <algorithm>
#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

namespace {

// Numbers that differ by more than this share of them have logarithms in their order, whatever
// mathematical library computes them.
constexpr double beside = 1e-12;

} // namespace

bool RangeWalk::serves(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                       const Thinning& thinning)
{
    const backend::MetaInfo& x = segment.xInfo;
    const auto xMap = AxisMap::of(xAxis, x.scaleMode);
    const auto yMap = AxisMap::of(yAxis, segment.yScaleMode);
    if (!xMap || !yMap || segment.count <= 0 || !yMap->isOrderly())
        return false;
    const double end = static_cast<double>(segment.count) * x.scale + x.offset;
    const double lastVisible = xMap->valueAt(1.0 + 2.0 * thinning.columnWidth);
    return xMap->ascends(x.offset, x.scale, std::min(end, lastVisible)) &&
           SegmentCurve(segment).ownSpline();
}

RangeWalk::RangeWalk(const backend::PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                     const Thinning& thinning, Column& column, SegmentPlot& plot)
    : SegmentWalk(segment, xAxis, yAxis, thinning, column, plot)
    , m_xMap(*AxisMap::of(xAxis, segment.xInfo.scaleMode))
    , m_yMap(*AxisMap::of(yAxis, segment.yScaleMode))
    , m_spline(*m_curve.ownSpline())
    , m_samples(&*segment.begin)
    , m_count(segment.count)
{}

void RangeWalk::run()
{
    alignToFirstSample();
    moveTo(m_index);
    reserve();
    while (m_index < m_count && m_column.left < 1.0) {
        if (!takeColumn())
            return;
    }
    if (flushColumn())
        completeLonePoint();
}

// A column has one point of the curve, and two more if it holds samples.
void RangeWalk::reserve()
{
    constexpr double mostColumns = 4096.0;
    const double end = std::min(1.0, positionOfSample(m_count));
    const double columns = (end - m_column.left) / m_columnWidth;
    if (columns > 0.0) {
        const auto count = static_cast<int>(std::min(columns, mostColumns)) + 2;
        const long long withSamples = std::min<long long>(m_count - m_index, count);
        m_plot.polyline.reserve(count + 2 * static_cast<int>(withSamples));
    }
}

// All samples of a column, and then the first one behind it, which closes it.
bool RangeWalk::takeColumn()
{
    if (m_ahead.next == m_ahead.size)
        lookAhead();
    if (!(m_position >= m_column.right))
        collectUpTo(firstAtOrBeyond(m_column.right, m_ahead.index[m_ahead.next + 1]));
    if (m_index == m_count)
        return true;
    if (!closeColumn())
        return false;
    // The sample that has closed the last column is still taken.
    if (!(m_column.left < 1.0))
        collectUpTo(m_index + 1);
    return true;
}

bool RangeWalk::closeColumn()
{
    const double centre = m_columnWidth * 0.5 + m_column.left;
    const double index = m_ahead.index[m_ahead.next];
    if (!(index >= 0.0)) {
        m_plot.appendExtremes(centre, m_extremes);
    } else {
        if (m_ahead.next >= m_ahead.endOfCurve)
            return false;
        const double y = m_yMap.positionOf(m_ahead.curve[m_ahead.next]);
        if (!std::isnan(y))
            m_plot.appendExtremesBeside(centre, y, m_extremes);
    }
    m_extremes = {};
    m_column.left = m_column.right;
    m_column.right += m_columnWidth;
    ++m_ahead.next;
    return true;
}

void RangeWalk::lookAhead()
{
    double left[Ahead::capacity + 1];
    int size = 0;
    left[0] = m_column.left;
    left[1] = m_column.right;
    for (double right = m_column.right; ++size < Ahead::capacity && left[size] < 1.0;)
        left[size + 1] = right += m_columnWidth;
    for (int k = 0; k <= size; ++k)
        m_ahead.index[k] = fractionalIndexAt(left[k]);
    m_ahead.next = 0;
    m_ahead.size = size;

    const double lastIndex = static_cast<double>(m_count - 1); // Where the spline ends.
    const double* const begin = m_ahead.index;
    const double* const end = begin + size;
    const double* const first = std::find_if(begin, end, [](double index) { return index >= 0.0; });
    const double* const last =
        std::find_if(first, end, [=](double index) { return !(index < lastIndex); });
    m_ahead.endOfCurve = static_cast<int>(last - begin);
    m_spline.evaluate(first, static_cast<std::size_t>(last - first),
                      m_ahead.curve + (first - begin));
}

void RangeWalk::collectUpTo(long long end)
{
    if (m_symbolsOn) {
        makeRoom(m_plot.symbols, static_cast<int>(end - m_index),
                 static_cast<double>(std::max(m_index, 1LL)), static_cast<double>(m_count));
        for (long long i = m_index; i < end; ++i) {
            const double y = m_yMap.positionOf(m_samples[i]);
            if (!std::isnan(y))
                m_plot.symbols.append(QPointF(positionOfSample(i), y));
        }
    }
    // Rounding may leave the first sample a little before the first column.
    while (m_index < end && !(m_position >= m_column.left))
        moveTo(m_index + 1);
    m_extremes.unite(positionsOf(m_index, end));
    moveTo(end);
}

void RangeWalk::moveTo(long long index)
{
    m_index = index;
    m_position = index < m_count ? positionOfSample(index) : 0.0;
}

Extremes RangeWalk::positionsOf(long long begin, long long end) const
{
    if (begin == end)
        return {};
    const Extremes values =
        m_spline.m_summary->over(static_cast<std::size_t>(begin), static_cast<std::size_t>(end));
    if (values.isEmpty())
        return {};
    if (m_yMap.isLogarithmic)
        return logarithmsOf(begin, end, values);
    const double low = m_yMap.positionOf(values.min), high = m_yMap.positionOf(values.max);
    return m_yMap.factor > 0.0 ? Extremes{low, high} : Extremes{high, low};
}

Extremes RangeWalk::logarithmsOf(long long begin, long long end, const Extremes& values) const
{
    Extremes positions;
    const auto unite = [&](double value) {
        const double position = m_yMap.positionOf(value);
        positions.unite({position, position});
    };
    unite(values.min);
    unite(values.max);
    algo::detail::SampleSummary& summary = *m_spline.m_summary;
    const auto first = static_cast<std::size_t>(begin), last = static_cast<std::size_t>(end);
    if (summary.standApart(first, last, values, beside))
        return positions;
    for (std::size_t i = summary.firstBeside(first, last, values, beside); i < last;
         i = summary.firstBeside(i + 1, last, values, beside))
        unite(summary[i]);
    return positions;
}

double RangeWalk::positionOfSample(long long index) const
{
    return m_xMap.positionOf(static_cast<double>(index) * m_scale + m_offset);
}

double RangeWalk::fractionalIndexAt(double position) const
{
    return (m_xMap.valueAt(position) - m_offset) / m_scale;
}

// The first sample from m_index on whose position is not less than @p position; their number if
// there is none.
long long RangeWalk::firstAtOrBeyond(double position, double guess) const
{
    return firstNotBefore(m_index, m_count, std::ceil(guess),
                          [&](long long index) { return !(positionOfSample(index) >= position); });
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
