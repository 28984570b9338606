#ifndef KESTRANE_SURFACES_DETAIL_CELLGEOMETRY_H
#define KESTRANE_SURFACES_DETAIL_CELLGEOMETRY_H

#include "kestrane/surfaces/GeometryCacheEntry.h"

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

using Geometry = GeometryBasedPlotAlgorithm::Geometry;

/// The axes of a request and the size of a pixel on each, in its axis space.
struct PixelGrid
{
    const QSharedPointer<const Axis>& xAxis;
    const QSharedPointer<const Axis>& yAxis;
    double xPixelSize;
    double yPixelSize;

    /// Whether there is something to draw on. A NaN pixel size passes, and comes out as NaN edges.
    bool isUsable() const { return xAxis && yAxis && xPixelSize != 0.0 && yPixelSize != 0.0; }
};

/// What GeometryBasedPlotAlgorithm::buildGeometryList() does for a dimension of @p limit samples.
void appendEdges(const backend::MetaInfo& metaInfo, long long limit, const Axis& axis,
                 double pixelSize, Geometry& first, QList<Geometry>& geometries);

/// Rebuilds @p entry unless it has cells already and was made from just this.
/// @return true if it was rebuilt
bool updateGeometry(GeometryCacheEntry& entry, const std::array<backend::MetaInfo, 2>& metaInfo,
                    const std::array<long long, 2>& shape, const PixelGrid& pixels);

/// Entry @p index of a cache, which grows as far as that.
template<typename Entry>
Entry& cacheEntry(QList<Entry>& cache, int index)
{
    while (cache.size() <= index)
        cache.append(Entry());
    return cache[index];
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
