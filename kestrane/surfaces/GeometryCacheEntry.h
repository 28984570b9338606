#ifndef KESTRANE_SURFACES_GEOMETRYCACHEENTRY_H
#define KESTRANE_SURFACES_GEOMETRYCACHEENTRY_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/MetaInfo.h"
#include "kestrane/surfaces/GeometryBasedPlotAlgorithm.h"

#include <QList>
#include <QSharedPointer>

#include <array>

namespace pelorin {
namespace ui {
namespace chart {

/// The cells of one segment, with all that they were made from. It keeps the very axes of its last
/// rebuild alive and doesn't copy them: one that is changed in place afterwards goes unnoticed.
///
/// @code
/// GeometryCacheEntry entry;
/// entry.firstX = {0.0, 0};
/// entry.xGeometries << GeometryCacheEntry::Geometry{0.25, 3}; // Samples 0, 1 and 2.
/// entry.xGeometries << GeometryCacheEntry::Geometry{0.5, 5};
/// entry.xGeometries[1].index - entry.xGeometries[0].index; // = 2
/// @endcode
///
/// @ingroup surfaces
struct GeometryCacheEntry
{
    using Geometry = GeometryBasedPlotAlgorithm::Geometry;

    Geometry firstX{0.0, 0};
    Geometry firstY{0.0, 0};
    QList<Geometry> xGeometries;
    QList<Geometry> yGeometries;
    QSharedPointer<const Axis> xAxis;
    QSharedPointer<const Axis> yAxis;
    std::array<backend::MetaInfo, 2> metaInfo;
    std::array<long long, 2> shape{0, 0};
    double xPixelSize = 0.0; ///< In axis space of the x axis.
    double yPixelSize = 0.0; ///< In axis space of the y axis.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
