#include "kestrane/surfaces/detail/CellGeometry.h"

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

namespace {

struct Dimension
{
    const backend::MetaInfo& metaInfo;
    const Axis& axis;
    double pixelSize;

    double positionOf(long long index) const
    {
        return axis.transform(metaInfo.scaleMode,
                              static_cast<double>(index) * metaInfo.scale + metaInfo.offset);
    }

    double snapped(double position) const { return std::floor(position / pixelSize) * pixelSize; }
};

// The edges behind the first. Each is a sum, pixel by pixel from the last sample that had a cell
// for itself, while samples lie on multiples of the pixel size: the tenth of a pixel between inside
// and outside is far more than the two can come to differ by.
QList<Geometry> edgesBehind(const Geometry& first, const Dimension& dimension, long long limit)
{
    QList<Geometry> edges;
    double edge = first.position + dimension.pixelSize;
    long long pending = 1; // Samples in the open cell.
    // The last pass reads no sample: the end of the last one closes the last cell.
    for (long long i = first.index + 1; i <= limit; ++i) {
        const double position = dimension.positionOf(i);
        const double pixel = dimension.snapped(position);
        if (!std::isnan(position) && edge - pixel > dimension.pixelSize * 0.1) {
            ++pending;
            continue;
        }
        if (pending > 1) {
            edges.append({edge, i});
            pending = 1;
        } else if (!std::isnan(position)) {
            edges.append({pixel, i});
            edge = pixel;
        }
        edge += dimension.pixelSize;
    }
    return edges;
}

bool isValid(const GeometryCacheEntry& entry, const std::array<backend::MetaInfo, 2>& metaInfo,
             const std::array<long long, 2>& shape, const PixelGrid& pixels)
{
    return !entry.xGeometries.isEmpty() && !entry.yGeometries.isEmpty() &&
           entry.xPixelSize == pixels.xPixelSize && entry.yPixelSize == pixels.yPixelSize &&
           !(*entry.xAxis != *pixels.xAxis) && !(*entry.yAxis != *pixels.yAxis) &&
           entry.shape == shape && entry.metaInfo == metaInfo;
}

} // namespace

void appendEdges(const backend::MetaInfo& metaInfo, long long limit, const Axis& axis,
                 double pixelSize, Geometry& first, QList<Geometry>& geometries)
{
    const Dimension dimension{metaInfo, axis, pixelSize};
    long long begin = 0;
    double position = dimension.positionOf(begin);
    while (std::isnan(position) && ++begin < limit)
        position = dimension.positionOf(begin);
    if (std::isnan(position))
        return;
    first = {dimension.snapped(position), begin};
    if (begin + 1 < limit) // A list of its own, since a part of one would pass for the whole.
        geometries += edgesBehind(first, dimension, limit);
}

bool updateGeometry(GeometryCacheEntry& entry, const std::array<backend::MetaInfo, 2>& metaInfo,
                    const std::array<long long, 2>& shape, const PixelGrid& pixels)
{
    if (isValid(entry, metaInfo, shape, pixels))
        return false;
    entry.metaInfo = metaInfo;
    entry.shape = shape;
    entry.xPixelSize = pixels.xPixelSize;
    entry.yPixelSize = pixels.yPixelSize;
    entry.xGeometries.clear();
    entry.yGeometries.clear();
    entry.xAxis = pixels.xAxis;
    entry.yAxis = pixels.yAxis;
    appendEdges(metaInfo[0], shape[0], *entry.xAxis, entry.xPixelSize, entry.firstX,
                entry.xGeometries);
    appendEdges(metaInfo[1], shape[1], *entry.yAxis, entry.yPixelSize, entry.firstY,
                entry.yGeometries);
    return true;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
