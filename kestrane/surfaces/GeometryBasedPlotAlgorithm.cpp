#include "kestrane/surfaces/GeometryBasedPlotAlgorithm.h"

#include "kestrane/surfaces/detail/CellGeometry.h"

#include <QMutexLocker>

#include <utility>

namespace pelorin {
namespace ui {
namespace chart {

GeometryBasedPlotAlgorithm::GeometryBasedPlotAlgorithm() = default;

GeometryBasedPlotAlgorithm::~GeometryBasedPlotAlgorithm() = default;

void GeometryBasedPlotAlgorithm::setSnapshot(
    backend::MultiDimensionalPlotSnapshot<unsigned int, 2> snapshot)
{
    // Exchanged, so that the old samples are freed with the parameter, after the unlock.
    const QMutexLocker locker(&m_mutex);
    std::swap(m_intSnapshot, snapshot);
}

void GeometryBasedPlotAlgorithm::setSnapshot(
    backend::MultiDimensionalPlotSnapshot<double, 2> snapshot)
{
    const QMutexLocker locker(&m_mutex);
    std::swap(m_snapshot, snapshot);
}

const backend::MultiDimensionalPlotSnapshot<double, 2>& GeometryBasedPlotAlgorithm::snapshot() const
{
    const QMutexLocker locker(&m_mutex); // Waits for an assignment to end.
    return m_snapshot;
}

const backend::MultiDimensionalPlotSnapshot<unsigned int, 2>&
GeometryBasedPlotAlgorithm::intSnapshot() const
{
    const QMutexLocker locker(&m_mutex);
    return m_intSnapshot;
}

template<class Segment>
void GeometryBasedPlotAlgorithm::buildGeometryList(const Segment& segment,
                                                   QList<Geometry>& geometries, Geometry& first,
                                                   const Axis* axis, double pixelSize,
                                                   std::size_t dimension)
{
    detail::appendEdges(segment.metaInfo[dimension], segment.shape[dimension], *axis, pixelSize,
                        first, geometries);
}

template void GeometryBasedPlotAlgorithm::buildGeometryList(
    const backend::MultiDimensionalPlotSegment<double, 2>&, QList<Geometry>&, Geometry&,
    const Axis*, double, std::size_t);
template void GeometryBasedPlotAlgorithm::buildGeometryList(
    const backend::MultiDimensionalPlotSegment<unsigned int, 2>&, QList<Geometry>&, Geometry&,
    const Axis*, double, std::size_t);

} // namespace chart
} // namespace ui
} // namespace pelorin
