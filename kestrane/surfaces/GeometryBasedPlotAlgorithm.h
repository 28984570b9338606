#ifndef KESTRANE_SURFACES_GEOMETRYBASEDPLOTALGORITHM_H
#define KESTRANE_SURFACES_GEOMETRYBASEDPLOTALGORITHM_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/MultiDimensionalPlotSnapshot.h"
#include "kestrane/library/Export.h"

#include <QList>
#include <QMutex>

#include <cstddef>

namespace pelorin {
namespace ui {
namespace chart {

/// What the plots of two-dimensional data share: the data last handed over, their lock, and the
/// way in which a dimension of a grid is cut into cells on the pixels of an axis.
///
/// Cells depend on the grid, the axes and the pixel sizes, never on samples, so that they outlive
/// new data on the same grid.
///
/// Threads: setSnapshot() may be called on any thread while another asks for something to draw.
///
/// A plot of its own that wants only the cells:
///
/// @code
/// struct Columns : GeometryBasedPlotAlgorithm
/// {
///     int count(const Axis& x, double pixelSize)
///     {
///         QList<Geometry> edges;
///         Geometry first{0.0, 0};
///         buildGeometryList(*snapshot().begin(), edges, first, &x, pixelSize, 0);
///         return edges.size(); // One behind each cell.
///     }
/// } plot;
/// const backend::MetaInfo x(0.0, 0.01), y(0.0, 1.0);
/// const backend::MultiDimensionalPlotSegment<double, 2> grid(boost::make_shared<double[]>(1000),
///                                                            {x, y}, {1000, 1});
/// plot.setSnapshot(backend::MultiDimensionalPlotSnapshot<double, 2>({grid}));
/// plot.count(LinearAxis(1.0), 0.01); // = 100
/// @endcode
///
/// @ingroup surfaces
class KESTRANE_EXPORT GeometryBasedPlotAlgorithm
{
public:
    /// One edge of a cell. A dimension has a first edge and a list of those behind it:
    ///
    ///     edge      first       [0]         [1]         [2]
    ///     cell        |    0     |     1     |     2     |
    ///     samples     first.index ... [0].index ... [1].index ...
    ///
    /// Cell k has the samples from the index of the edge on its left up to, not including, the
    /// index of the edge on its right; indices rise strictly.
    struct Geometry
    {
        double position; ///< In axis space, on the pixel grid of the dimension.
        long long index; ///< Where the samples right of this edge begin.
    };

protected:
    virtual ~GeometryBasedPlotAlgorithm();

public:
    /// Replaces the data of whole numbers; those of doubles stay.
    virtual void setSnapshot(backend::MultiDimensionalPlotSnapshot<unsigned int, 2> snapshot);

    /// Replaces the data of doubles; those of whole numbers stay.
    virtual void setSnapshot(backend::MultiDimensionalPlotSnapshot<double, 2> snapshot);

    /// The data last set. The reference isn't guarded: a caller that reads through it has to hold
    /// off setSnapshot() on other threads.
    const backend::MultiDimensionalPlotSnapshot<double, 2>& snapshot() const;
    const backend::MultiDimensionalPlotSnapshot<unsigned int, 2>& intSnapshot() const;

protected:
    GeometryBasedPlotAlgorithm();

    /// Cuts a dimension of @p segment into cells. Samples that fall into one pixel share a cell;
    /// the cell of a sample that has a pixel for itself reaches to the pixel of the next one, so
    /// that a grid with fewer samples than pixels leaves no gaps.
    ///
    /// Positions are expected to rise. Samples that come at the end without filling a cell are in
    /// none, and so there are no cells where positions fall. Fewer than two samples make no cell.
    /// A sample without a position (NaN) counts with its neighbours; leading ones are left out.
    ///
    /// O(shape) calls of Axis::transform(). The sample memory isn't read.
    ///
    /// @param geometries receives the edges behind the first; nothing if an exception is thrown
    /// @param first stays as it is when no sample has a position
    /// @param axis not null
    /// @param pixelSize in axis space, not 0
    /// @param dimension 0 for x, 1 for y
    /// @throws std::bad_alloc, and what a host's axis throws
    template<class Segment>
    void buildGeometryList(const Segment& segment, QList<Geometry>& geometries, Geometry& first,
                           const Axis* axis, double pixelSize, std::size_t dimension);

    mutable QMutex m_mutex; // Guards what follows, and the fields of subclasses.
    backend::MultiDimensionalPlotSnapshot<double, 2> m_snapshot;
    backend::MultiDimensionalPlotSnapshot<unsigned int, 2> m_intSnapshot;
};

extern template KESTRANE_EXPORT void GeometryBasedPlotAlgorithm::buildGeometryList(
    const backend::MultiDimensionalPlotSegment<double, 2>&, QList<Geometry>&, Geometry&,
    const Axis*, double, std::size_t);
extern template KESTRANE_EXPORT void GeometryBasedPlotAlgorithm::buildGeometryList(
    const backend::MultiDimensionalPlotSegment<unsigned int, 2>&, QList<Geometry>&, Geometry&,
    const Axis*, double, std::size_t);

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
