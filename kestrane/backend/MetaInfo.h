#ifndef KESTRANE_BACKEND_METAINFO_H
#define KESTRANE_BACKEND_METAINFO_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/OmbrelExport.h"

namespace pelorin {
namespace backend {

/// One dimension of a regular grid: index k has the value k * scale + offset, worked out in this
/// order from the index and never summed up from step to step.
///
/// @code
/// const backend::MetaInfo seconds(4.0, 0.5);                     // 4, 4.5, 5 and so on
/// const backend::MetaInfo hertz(1.0, 0.5, Axis::Logarithmic);    // 10, 31.6, 100 and so on
/// seconds == hertz; // = 0
/// @endcode
///
/// @ingroup backend
struct OMBREL_EXPORT MetaInfo
{
    /// The grid 0, 1, 2, ... of plain values.
    MetaInfo() = default;

    MetaInfo(double offset, double scale,
             ui::chart::Axis::ScaleMode scaleMode = ui::chart::Axis::Linear);

    /// Compares the three fields, the doubles exactly.
    bool operator==(const MetaInfo& other) const;

    double offset = 0.0; ///< The value of index 0.
    double scale = 1.0;  ///< The step from one index to the next; not 0.
    /// The form in which the values are written, handed unchanged to the axis.
    ui::chart::Axis::ScaleMode scaleMode = ui::chart::Axis::Linear;
};

} // namespace backend
} // namespace pelorin

#endif
