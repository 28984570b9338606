#include "kestrane/plots/NeedlePlotAlgorithm.h"

#include "kestrane/plots/detail/Columns.h"

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

double positionOf(const Axis& xAxis, const backend::MetaInfo& x, long long index)
{
    return xAxis.transform(Axis::Linear, static_cast<double>(index) * x.scale + x.offset);
}

void appendEach(backend::SampleVector& needles, const backend::PlotSegment& segment,
                const Axis& yAxis)
{
    for (backend::SampleIterator sample = segment.begin; sample != segment.end; ++sample)
        needles.push_back(yAxis.transform(segment.yScaleMode, *sample));
}

// NaN is no peak yet, which no comparison holds against the sample, and no rival of one.
double higherOf(double peak, double sample)
{
    return std::isnan(sample) ? peak : std::max(sample, peak);
}

void appendPeaks(backend::SampleVector& needles, const backend::PlotSegment& segment,
                 const Axis& xAxis, const Axis& yAxis, double right, double columnWidth)
{
    double peak = std::numeric_limits<double>::quiet_NaN();
    long long index = 0;
    for (backend::SampleIterator sample = segment.begin; sample != segment.end; ++sample) {
        const double position = positionOf(xAxis, segment.xInfo, index++);
        if (position > right || std::isnan(position)) {
            needles.push_back(yAxis.transform(segment.yScaleMode, peak));
            // One column on, even if the sample lies farther ahead: a sum, and no multiple.
            right += columnWidth;
            peak = *sample;
        } else {
            peak = higherOf(peak, *sample);
        }
    }
    needles.push_back(yAxis.transform(segment.yScaleMode, peak));
}

NeedlePlotAlgorithm::NeedleResult needlesOf(const backend::PlotSegment& segment, const Axis& xAxis,
                                            const Axis& yAxis, double columnWidth)
{
    const double first = positionOf(xAxis, segment.xInfo, 0);
    const double last = positionOf(xAxis, segment.xInfo, segment.count);
    NeedlePlotAlgorithm::NeedleResult result(static_cast<int>(segment.count), first, last);
    if (columnWidth >= (last - first) * segment.xInfo.scale) {
        const double right = detail::leftEdgeOfColumnAt(first, columnWidth) + columnWidth;
        appendPeaks(result.values, segment, xAxis, yAxis, right, columnWidth);
    } else {
        appendEach(result.values, segment, yAxis);
    }
    result.values.shrink_to_fit();
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
