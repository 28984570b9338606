#ifndef KESTRANE_SURFACES_HISTOGRAM2DPLOTALGORITHM_H
#define KESTRANE_SURFACES_HISTOGRAM2DPLOTALGORITHM_H

#include "kestrane/backend/Samples.h"
#include "kestrane/colors/ColorMap.h"
#include "kestrane/library/Export.h"
#include "kestrane/surfaces/GeometryBasedPlotAlgorithm.h"
#include "kestrane/surfaces/HistoCacheEntry.h"

#include <QColor>
#include <QList>
#include <QSharedPointer>
#include <QVector>

#include <tbb/scalable_allocator.h>

#include <array>
#include <vector>

namespace pelorin {
namespace ui {
namespace chart {

/// Turns two-dimensional data into coloured rectangles, in axis space.
///
/// Cells are laid over the grid of each segment, one for each pixel that samples fall into. The
/// value of a cell is its largest sample, never a sum: a cell of many samples shows its strongest
/// one. Negative samples and NaN count as 0.
///
/// The data of doubles are drawn; only where there are none, those of whole numbers.
///
/// Threads: any, several at a time. No lock is held while samples are read, so that setSnapshot(),
/// setCountMode() and clearGeometryCache() don't wait for a request; they take effect on the next
/// one. Axes and colour map are the caller's to keep still during a request.
///
/// @code
/// const auto counts = boost::make_shared<unsigned int[]>(4); // 2 x 2, row by row: 0 0 0 7
/// counts[3] = 7;
/// const backend::MultiDimensionalPlotSegment<unsigned int, 2> grid(
///     counts, {backend::MetaInfo(0.0, 5.0), backend::MetaInfo(0.0, 5.0)}, {2, 2});
/// Histogram2DPlotAlgorithm plot;
/// plot.setSnapshot(backend::MultiDimensionalPlotSnapshot<unsigned int, 2>({grid}));
/// ui::ColorMap map(Qt::white);
/// map.build().appendEntry(Qt::red, 5);
/// auto x = QSharedPointer<LinearAxis>::create(1.0), y = QSharedPointer<LinearAxis>::create(1.0);
/// const auto cells = plot.makeColorArrays(x, y, map, 0.01, 0.01).at(0);
/// cells.colors[0].name().toStdString(); // = #ffffff
/// cells.colors[3].name().toStdString(); // = #ff0000
/// cells.maxCount;                       // = 7
/// @endcode
///
/// @image html spectrogram.png
/// @ingroup surfaces
class KESTRANE_EXPORT Histogram2DPlotAlgorithm : public GeometryBasedPlotAlgorithm
{
public:
    /// What is written for each cell beside its colour. Other values write nothing.
    enum CountMode : int {
        NoCounts = 0,
        LinearCounts = 1,      ///< The value of the cell.
        LogarithmicCounts = 2, ///< Its decimal logarithm, negative infinity for 0.
    };

    /// The cells of one segment, nx times ny of them.
    struct HistoSegment
    {
        backend::SampleVector xEdges; ///< nx + 1, in x axis space and in order of the indices.
        backend::SampleVector yEdges; ///< ny + 1, likewise.
        /// Of cell (x, y) at y * nx + x.
        std::vector<QColor, tbb::scalable_allocator<QColor>> colors;
        backend::SampleVector counts; ///< In the order of the colours, or empty; see CountMode.
        double maxCount = 0.0;        ///< The largest value of a cell, in every mode; at least 0.0.
    };

    Histogram2DPlotAlgorithm();
    virtual ~Histogram2DPlotAlgorithm();

    /// What there is to draw of the data, segment by segment in their order.
    ///
    /// Laws:
    ///  1. Edges depend on grid, axes and pixel sizes only, and are reused while these are equal.
    ///  2. Each sample of a cell is read once, and a class looked up once for each cell.
    ///
    /// O(samples) a segment, and O(shape) calls of Axis::transform() when it has no cells yet or
    /// none that fit. An axis changed in place goes unnoticed: see clearGeometryCache().
    ///
    /// @param colorMap asked for the whole part of each value; what is too large for it counts as
    ///        the largest std::size_t
    /// @param xPixelSize size of a pixel in x axis space, 1.0 / pixels as a rule
    /// @param yPixelSize size of a pixel in y axis space
    /// @param geometryChanged if given, receives whether any cells were made anew. With it, a call
    ///        without data also empties the cache and reports true.
    /// @return one entry a segment; its colours are empty where the grid has no cells in a
    ///         dimension. Nothing, with @p geometryChanged true, for a null axis or a pixel size
    ///         of 0.0.
    /// @throws std::bad_alloc and std::length_error where memory or a vector ends, and what a
    ///         host's axis throws; the data stay, and the cache stays sound
    QVector<HistoSegment> makeColorArrays(const QSharedPointer<const Axis>& xAxis,
                                          const QSharedPointer<const Axis>& yAxis,
                                          const ColorMap& colorMap, double xPixelSize,
                                          double yPixelSize, bool* geometryChanged = nullptr);

    /// Forgets all cells and lets go of the axes that they were made with.
    void clearGeometryCache();

    /// NoCounts at first.
    CountMode countMode() const;

    /// Takes effect with the next request.
    void setCountMode(CountMode mode);

private:
    struct Request; // The arguments of a call.

    template<typename T>
    QVector<HistoSegment>
    computeColorArrays(const backend::MultiDimensionalPlotSnapshot<T, 2>& snapshot,
                       const Request& request);

    GeometryCacheEntry updateCache(int index, const std::array<backend::MetaInfo, 2>& metaInfo,
                                   const std::array<long long, 2>& shape, const Request& request,
                                   HistoSegment& out);

    QList<HistoCacheEntry> m_geometryCache; // Entry n belongs to segment n of either snapshot.
    CountMode m_countMode = NoCounts;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
