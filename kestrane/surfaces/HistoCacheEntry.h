#ifndef KESTRANE_SURFACES_HISTOCACHEENTRY_H
#define KESTRANE_SURFACES_HISTOCACHEENTRY_H

#include "kestrane/backend/Samples.h"
#include "kestrane/surfaces/GeometryCacheEntry.h"

namespace pelorin {
namespace ui {
namespace chart {

/// The cells of one segment, with their edges in the form of a result, the first one included.
///
/// @code
/// HistoCacheEntry entry;
/// entry.xGeometries << GeometryCacheEntry::Geometry{0.25, 3};
/// entry.xEdges = {entry.firstX.position, entry.xGeometries[0].position};
/// entry.xEdges.back(); // = 0.25
/// @endcode
///
/// @ingroup surfaces
struct HistoCacheEntry : GeometryCacheEntry
{
    backend::SampleVector xEdges; ///< In axis space.
    backend::SampleVector yEdges; ///< In axis space.
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
