#include "kestrane/plots/NeedlePlotAlgorithm.h"

#include "kestrane/axes/detail/AxisMap.h"
#include "kestrane/library/detail/FreshMemory.h"
#include "kestrane/plots/detail/Columns.h"
#include "kestrane/plots/detail/SampleSummary.h"

#include <QMutexLocker>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

// The samples of a segment, and where they lie. The map is AxisMap or AskedAxis.
template<typename Map>
struct Run
{
    Map xMap;
    Map yMap;
    double offset, scale;
    const double* samples;
    long long count;

    double positionOf(long long index) const
    {
        return xMap.positionOf(static_cast<double>(index) * scale + offset);
    }
};

template<typename Map>
void appendEach(backend::SampleVector& needles, const Run<Map>& run)
{
    constexpr long long atOnce = 512;
    double positions[atOnce];
    detail::preferLargePages(needles.data(), needles.capacity() * sizeof(double));
    for (long long begin = 0; begin < run.count; begin += atOnce) {
        const long long size = std::min(atOnce, run.count - begin);
        for (long long i = 0; i < size; ++i)
            positions[i] = run.yMap.positionOf(run.samples[begin + i]);
        needles.insert(needles.end(), positions, positions + size);
    }
}

// NaN is no peak yet, and no rival of one.
double higherOf(double peak, double sample)
{
    if (std::isnan(sample))
        return peak;
    return std::isnan(peak) ? sample : std::max(sample, peak);
}

// The first sample from one on that closes the column up to @p right; their number if none does.
long long endOfColumn(const Run<detail::AskedAxis>& run, long long from, double right, double& peak)
{
    for (; from < run.count; ++from) {
        const double position = run.positionOf(from);
        if (position > right || std::isnan(position))
            break;
        peak = higherOf(peak, run.samples[from]);
    }
    return from;
}

// Where positions ascend, it needs no look at each of them.
long long endOfColumn(const Run<detail::AxisMap>& run, long long from, double right, double& peak)
{
    const double guess = (run.xMap.valueAt(right) - run.offset) / run.scale;
    const long long end = detail::firstNotBefore(
        from, run.count, guess, [&](long long index) { return !(run.positionOf(index) > right); });
    const auto extremes =
        algo::detail::extremesOf(run.samples + from, static_cast<std::size_t>(end - from));
    if (!extremes.isEmpty())
        peak = higherOf(peak, extremes.max);
    return end;
}

template<typename Map>
void appendPeaks(backend::SampleVector& needles, const Run<Map>& run, double right,
                 double columnWidth)
{
    double peak = std::numeric_limits<double>::quiet_NaN();
    long long index = endOfColumn(run, 0, right, peak);
    while (index < run.count) {
        needles.push_back(run.yMap.positionOf(peak));
        // One column on, even if the sample lies farther ahead: a sum, and no multiple.
        right += columnWidth;
        peak = run.samples[index];
        index = endOfColumn(run, index + 1, right, peak);
    }
    needles.push_back(run.yMap.positionOf(peak));
}

template<typename Map>
void appendNeedles(NeedlePlotAlgorithm::NeedleResult& result, const Run<Map>& run,
                   double columnWidth)
{
    if (columnWidth >= (result.lastPosition - result.firstPosition) * run.scale)
        appendPeaks(result.values, run,
                    detail::leftEdgeOfColumnAt(result.firstPosition, columnWidth) + columnWidth,
                    columnWidth);
    else
        appendEach(result.values, run);
    // Unlike shrink_to_fit(), this throws where there is no memory.
    if (result.values.size() < result.values.capacity())
        backend::SampleVector(result.values).swap(result.values);
}

NeedlePlotAlgorithm::NeedleResult needlesOf(const backend::PlotSegment& segment, const Axis& xAxis,
                                            const Axis& yAxis, double columnWidth)
{
    const double offset = segment.xInfo.offset, scale = segment.xInfo.scale;
    const detail::AskedAxis askedX{xAxis, Axis::Linear}, askedY{yAxis, segment.yScaleMode};
    const double end = static_cast<double>(segment.count) * scale + offset;
    NeedlePlotAlgorithm::NeedleResult result(static_cast<int>(segment.count),
                                             askedX.positionOf(0.0 * scale + offset),
                                             askedX.positionOf(end));
    const long long size = segment.end - segment.begin;
    const double* const samples = size > 0 ? &*segment.begin : nullptr;
    const auto xMap = detail::AxisMap::of(xAxis, Axis::Linear);
    const auto yMap = detail::AxisMap::of(yAxis, segment.yScaleMode);
    if (xMap && yMap && xMap->ascends(offset, scale, static_cast<double>(size) * scale + offset))
        appendNeedles(result, Run<detail::AxisMap>{*xMap, *yMap, offset, scale, samples, size},
                      columnWidth);
    else
        appendNeedles(result, Run<detail::AskedAxis>{askedX, askedY, offset, scale, samples, size},
                      columnWidth);
    return result;
}

} // namespace

NeedlePlotAlgorithm::NeedleResult::NeedleResult(int capacity, double firstPosition_,
                                                double lastPosition_)
    : firstPosition(firstPosition_)
    , lastPosition(lastPosition_)
{
    if (capacity < 0)
        throw std::length_error("vector too long");
    values.reserve(static_cast<std::size_t>(capacity));
}

NeedlePlotAlgorithm::NeedlePlotAlgorithm() = default;

NeedlePlotAlgorithm::~NeedlePlotAlgorithm() = default;

void NeedlePlotAlgorithm::setSnapshot(backend::PlotSnapshot snapshot)
{
    const QMutexLocker locker(&m_mutex);
    m_snapshot = std::move(snapshot);
}

NeedlePlotAlgorithm::NeedleResult
NeedlePlotAlgorithm::createNeedles(const Axis* xAxis, const Axis* yAxis, double columnWidth)
{
    if (!xAxis || !yAxis || columnWidth == 0.0)
        return NeedleResult();

    const QMutexLocker locker(&m_mutex);
    for (const backend::PlotSegment& segment : m_snapshot.segments) {
        try {
            return needlesOf(segment, *xAxis, *yAxis, columnWidth);
        } catch (...) {
            // What there was of this segment is lost; the next one is tried.
        }
    }
    return NeedleResult();
}

} // namespace chart
} // namespace ui
} // namespace pelorin
