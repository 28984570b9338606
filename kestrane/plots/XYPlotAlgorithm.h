#ifndef KESTRANE_PLOTS_XYPLOTALGORITHM_H
#define KESTRANE_PLOTS_XYPLOTALGORITHM_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/PlotSnapshot.h"
#include "kestrane/library/Export.h"
#include "kestrane/plots/PointsBasedPlotHelper.h"

#include <QMutex>
#include <QPointF>
#include <QSharedPointer>
#include <QVector>

#include <atomic>
#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

/// Plots one measured series over another: polylines and symbols, in axis space.
///
/// Two snapshots run in step, segment by segment and sample by sample, one with the x and one with
/// the y of each point; where one of the two ends, the other is cut. Points may lie in any order
/// and at any distance. A column starts at the first point that doesn't fit into the one before,
/// and takes in every point that follows less than its width to the left or right of that one:
///
///     points      a  b      c      d e
///     columns     [a---)    [c---) [d---)     b falls to a, e to d
///
/// A column is drawn at the place of its first point, by flushMinMax(). A point with a NaN position
/// is left out and splits the line.
///
/// Of a segment only its samples and their form, PlotSegment::yScaleMode, count, for x as for y.
///
/// Threads: any, one at a time; a call waits for the one before it. The axes are the caller's to
/// keep still during a request.
///
/// @code
/// const auto values = [](std::initializer_list<double> list) {
///     return backend::PlotSnapshot(
///         {backend::PlotSegment(boost::make_shared<backend::SampleVector>(list))});
/// };
/// XYPlotAlgorithm plot;
/// plot.setSnapshot(values({1.0, 5.0, 3.0}), values({2.0, 2.0, 8.0}));
/// auto x = QSharedPointer<LinearAxis>::create(1.0), y = QSharedPointer<LinearAxis>::create(1.0);
/// const auto lines = plot.createSegments(x, y, 1.0 / 800, 8.0).first;
/// lines[0].size();   // = 3
/// lines[0][2].y();   // = 0.8
/// @endcode
///
/// @image html portrait.png
/// @ingroup plots
class KESTRANE_EXPORT XYPlotAlgorithm : public PointsBasedPlotHelper
{
public:
    XYPlotAlgorithm();
    virtual ~XYPlotAlgorithm();

    /// Replaces the data, both series at once: a request never sees the x of one call with the y
    /// of another.
    void setSnapshot(backend::PlotSnapshot x, backend::PlotSnapshot y);

    /// What there is to draw of the data, in axis space: x on @p xAxis, y on @p yAxis. Nothing is
    /// clipped: both lie anywhere.
    ///
    /// Symbols mark every point of a pair of segments, or those up to a NaN. The first point less
    /// than the spacing to the right of the one before it, or left of that one, takes back the
    /// symbols since the last NaN and ends the symbols of its pair.
    ///
    /// The position -1.0 stands for no column: one that would start exactly there starts at the
    /// next point with an x instead, if there is one, and is drawn there as a whole.
    ///
    /// O(samples).
    ///
    /// @param columnWidth width of a column in x axis space, 1.0 / pixels as a rule. Zero and less
    ///        give nothing; NaN gives a single column between two NaN points, and every symbol.
    /// @param symbolSpacing least distance of two symbols, in columns
    /// @return first the polylines, each of two points or more: a lone point gets a second one a
    ///         column to its right. Second the lists of symbol points, each of one point or more.
    ///         Both are empty for a null axis. Without an axis, data or a width there is no wait
    ///         for another request.
    /// @throws what an axis throws, and std::bad_alloc
    std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>>
    createSegments(const QSharedPointer<const Axis>& xAxis, const QSharedPointer<const Axis>& yAxis,
                   double columnWidth, double symbolSpacing);

private:
    QMutex m_mutex; // Guards both snapshots.
    backend::PlotSnapshot m_xSnapshot;
    backend::PlotSnapshot m_ySnapshot;
    std::atomic<bool> m_empty{true}; // One of the two is; read without the mutex.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
