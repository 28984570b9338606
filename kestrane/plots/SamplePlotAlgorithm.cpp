#include "kestrane/plots/SamplePlotAlgorithm.h"

#include "kestrane/plots/detail/RangeWalk.h"
#include "kestrane/plots/detail/SegmentCurve.h"
#include "kestrane/plots/detail/SegmentWalk.h"

#include <QMutexLocker>

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

void appendIntersection(QList<Intersection>& list, const backend::PlotSegment& segment,
                        const Axis& xAxis, const Axis& yAxis, double position)
{
    const double x = xAxis.inverseTransform(segment.xInfo.scaleMode, position);
    const detail::SegmentCurve curve(segment);
    const double index = (x - segment.xInfo.offset) / segment.xInfo.scale;
    if (!(index >= 0.0 && static_cast<double>(segment.count - 1) > index))
        return;
    const double value = curve[index];
    const double y = yAxis.transform(segment.yScaleMode, value);
    if (std::isfinite(y) && std::isfinite(value))
        list.append(Intersection(y, value));
}

} // namespace

SamplePlotAlgorithm::SamplePlotAlgorithm() = default;

SamplePlotAlgorithm::~SamplePlotAlgorithm() = default;

void SamplePlotAlgorithm::setSnapshot(backend::PlotSnapshot snapshot)
{
    const QMutexLocker locker(&m_mutex);
    m_snapshot = std::move(snapshot);
}

std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>
SamplePlotAlgorithm::createSegments(const QSharedPointer<const Axis>& xAxis,
                                    const QSharedPointer<const Axis>& yAxis, double columnWidth,
                                    double symbolSpacing)
{
    std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>> result;
    // Columns that run backwards or stand still would never reach the end of the axis.
    if (!xAxis || !yAxis || columnWidth < 0.0 || 1.0 + columnWidth == 1.0)
        return result;

    const QMutexLocker locker(&m_mutex);
    detail::Column column{0.0, columnWidth};
    for (const backend::PlotSegment& segment : m_snapshot.segments) {
        detail::SegmentPlot plot;
        try {
            const detail::Thinning thinning{columnWidth, symbolSpacing};
            if (detail::RangeWalk::serves(segment, *xAxis, *yAxis, thinning))
                detail::RangeWalk(segment, *xAxis, *yAxis, thinning, column, plot).run();
            else
                detail::SegmentWalk(segment, *xAxis, *yAxis, thinning, column, plot).run();
        } catch (...) {
            // Ends this segment only: what has been collected of it is drawn.
        }
        if (plot.polyline.size() >= 2)
            result.first.append(std::move(plot.polyline));
        if (!plot.symbols.isEmpty())
            result.second.append(std::move(plot.symbols));
    }
    return result;
}

QList<Intersection> SamplePlotAlgorithm::doIntersect(const Axis* xAxis, const Axis* yAxis,
                                                     double position) const
{
    QList<Intersection> result;
    const QMutexLocker locker(&m_mutex);
    if (!xAxis || !yAxis || m_snapshot.empty())
        return result;
    for (const backend::PlotSegment& segment : m_snapshot.segments)
        appendIntersection(result, segment, *xAxis, *yAxis, position);
    return result;
}

} // namespace chart
} // namespace ui
} // namespace pelorin
