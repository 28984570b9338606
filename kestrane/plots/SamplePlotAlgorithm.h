#ifndef KESTRANE_PLOTS_SAMPLEPLOTALGORITHM_H
#define KESTRANE_PLOTS_SAMPLEPLOTALGORITHM_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/PlotSnapshot.h"
#include "kestrane/library/Export.h"
#include "kestrane/plots/Intersection.h"
#include "kestrane/plots/PointsBasedPlotHelper.h"

#include <QList>
#include <QMutex>
#include <QPointF>
#include <QSharedPointer>
#include <QVector>

#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

/// Turns regularly spaced samples into polylines and symbols, in axis space.
///
/// The x axis is walked column by column. Each column gets a point of a spline through the samples,
/// which keeps the curve smooth where samples are sparser than columns; a column that holds samples
/// also gets their minimum and maximum, which keeps its full height however many there are:
///
///     samples        .    . .:. .:.::..        .         .
///     columns    |   |   |   |   |   |   |   |   |   |   |
///     points       s   s  smM smM smM  s   s   s   s   s       s spline, m minimum, M maximum
///
/// There is no switch between the two and no threshold. A NaN sample adds no point of its own; what
/// it does to the spline empties the curve of its segment. Gaps in the data are boundaries between
/// segments.
///
/// Threads: any, one at a time; a call waits for the one before it. The axes are the caller's to
/// keep still during a request.
///
/// @code
/// SamplePlotAlgorithm plot;
/// plot.setSnapshot(backend::PlotSnapshot({backend::PlotSegment(
///     boost::make_shared<backend::SampleVector>(backend::SampleVector{0.0, 2.0, 4.0}))}));
/// auto x = QSharedPointer<LinearAxis>::create(1.0), y = QSharedPointer<LinearAxis>::create(1.0);
/// const auto [lines, symbols] = plot.createSegments(x, y, 1.0 / 800, 8.0);
/// lines.size();       // = 1
/// symbols[0].size();  // = 3
/// symbols[0][2].x();  // = 0.2
/// @endcode
///
/// @image html zoom.png
/// @ingroup plots
class KESTRANE_EXPORT SamplePlotAlgorithm : public PointsBasedPlotHelper
{
public:
    SamplePlotAlgorithm();
    virtual ~SamplePlotAlgorithm();

    /// Replaces the data. Splines that its segments hold already are used as they are.
    void setSnapshot(backend::PlotSnapshot snapshot);

    /// What there is to draw of the data, in axis space: x on @p xAxis, y on @p yAxis. On an axis
    /// and data that ascend, points of polylines lie from 0.0 to less than 1.0 and two and a half
    /// columns, symbols up to a sample step outside the axis on either side; y lies anywhere.
    ///
    /// Laws:
    ///  1. A polyline has at most three points a column, all at the column's centre.
    ///  2. The same snapshot, axes and arguments give the same result; splines are built once.
    ///
    /// O(visible samples + columns) a segment, and once O(samples) for its spline. Of the samples
    /// left and right of the visible range only the nearest ones are visited.
    ///
    /// @param columnWidth width of a column in x axis space, 1.0 / pixels as a rule. Zero, a
    ///        negative one and one so small that 1.0 + columnWidth is 1.0 give nothing.
    /// @param symbolSpacing least distance of two samples, in columns, for which each sample gets
    ///        a symbol
    /// @return first the polylines, at most one a segment, in order of the segments, each of two
    ///         points or more; second the lists of symbol points, likewise, each of one point or
    ///         more. Both are empty for a null axis. Whatever a subsampler of the snapshot throws
    ///         ends its own segment only.
    std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>
    createSegments(const QSharedPointer<const Axis>& xAxis, const QSharedPointer<const Axis>& yAxis,
                   double columnWidth, double symbolSpacing);

    /// Where the plot crosses the vertical line at @p position, in axis space of @p xAxis: the
    /// spline at that place, from the first sample of a segment up to, not including, the last.
    ///
    /// O(segments), and once O(samples) a segment for its spline.
    ///
    /// @return at most one crossing a segment, in order of the segments, with its place on
    ///         @p yAxis. A segment that the line misses has none, nor has one whose value or
    ///         place isn't finite. Empty for a null axis and for a NaN position.
    /// @throws what a subsampler of the snapshot or an axis throws, and nothing of its own
    QList<Intersection> doIntersect(const Axis* xAxis, const Axis* yAxis, double position) const;

private:
    mutable QMutex m_mutex; // Guards m_snapshot, the subsamplers in it included.
    backend::PlotSnapshot m_snapshot;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
