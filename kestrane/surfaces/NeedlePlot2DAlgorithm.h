#ifndef KESTRANE_SURFACES_NEEDLEPLOT2DALGORITHM_H
#define KESTRANE_SURFACES_NEEDLEPLOT2DALGORITHM_H

#include "kestrane/library/Export.h"
#include "kestrane/surfaces/GeometryBasedPlotAlgorithm.h"
#include "kestrane/surfaces/GeometryCacheEntry.h"

#include <QColor>
#include <QList>
#include <QSharedPointer>
#include <QVector>

namespace pelorin {
namespace ui {
namespace chart {

/// Turns two-dimensional data into a row of vertical needles, in axis space: one for each column of
/// cells, with the colour of each point saying how much the column holds from the top down to it.
///
/// Cells and their values are those of Histogram2DPlotAlgorithm: the largest sample, at least 0.
/// Only the data of doubles are drawn.
///
/// Threads: any, one at a time; a call waits for the one before it, and so does setSnapshot(). The
/// axes are the caller's to keep still during a request.
///
/// @code
/// const auto values = boost::make_shared<double[]>(4); // 2 x 2, row by row.
/// values[2] = 7.0;
/// const backend::MultiDimensionalPlotSegment<double, 2> grid(
///     values, {backend::MetaInfo(0.0, 5.0), backend::MetaInfo(0.0, 5.0)}, {2, 2});
/// NeedlePlot2DAlgorithm plot;
/// plot.setSnapshot(backend::MultiDimensionalPlotSnapshot<double, 2>({grid}));
/// auto x = QSharedPointer<LinearAxis>::create(1.0), y = QSharedPointer<LinearAxis>::create(1.0);
/// plot.makeNeedles(x, y, Qt::blue, Qt::red, 0.01, 0.01).size(); // = 2
/// @endcode
///
/// @image html columns.png
/// @ingroup surfaces
class KESTRANE_EXPORT NeedlePlot2DAlgorithm : public GeometryBasedPlotAlgorithm
{
public:
    struct ColoredPoint
    {
        double x = 0.0; ///< In x axis space.
        double y = 0.0; ///< In y axis space.
        QColor color;
    };

    NeedlePlot2DAlgorithm();
    virtual ~NeedlePlot2DAlgorithm();

    /// The needles of all segments, one after the other.
    ///
    /// A needle has a point in the middle of each cell in which the sum of its column grows, from
    /// the top cell down, and last its foot at y = 0.0, in the colour of the point before. So it
    /// has no points at all or at least two.
    ///
    /// The colour of a point lies between @p startColor for a sum of 0 and @p endColor for the
    /// largest sum so far, in this column and all those before it; sums count as whole numbers, and
    /// the largest std::size_t stands for all beyond it. Colours aren't revised when a later column
    /// holds more.
    ///
    /// O(samples), and O(shape) calls of Axis::transform() a segment that has no cells yet or none
    /// that fit. An axis changed in place goes unnoticed: see clearGeometryCache().
    ///
    /// @param xPixelSize size of a pixel in x axis space, 1.0 / pixels as a rule
    /// @param yPixelSize size of a pixel in y axis space
    /// @return one needle for each x cell of a segment that has y cells. Nothing for a null axis
    ///         or a pixel size of 0.0.
    /// @throws std::bad_alloc, and what a host's axis throws; the data stay, and the cache stays
    ///         sound
    QVector<QVector<ColoredPoint>> makeNeedles(const QSharedPointer<const Axis>& xAxis,
                                               const QSharedPointer<const Axis>& yAxis,
                                               const QColor& startColor, const QColor& endColor,
                                               double xPixelSize, double yPixelSize);

    /// Forgets all cells and lets go of the axes that they were made with.
    void clearGeometryCache();

private:
    QList<GeometryCacheEntry> m_geometryCache; // Entry n belongs to segment n.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
