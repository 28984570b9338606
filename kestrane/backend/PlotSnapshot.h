#ifndef KESTRANE_BACKEND_PLOTSNAPSHOT_H
#define KESTRANE_BACKEND_PLOTSNAPSHOT_H

#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/PlotSegment.h"

#include <vector>

namespace pelorin {
namespace backend {

/// An ordered set of segments: what a plot shows at one moment. A value; copies share samples.
class OMBREL_EXPORT PlotSnapshot
{
public:
    PlotSnapshot();
    explicit PlotSnapshot(std::vector<PlotSegment> segments);
    PlotSnapshot(const PlotSnapshot& other);
    PlotSnapshot(PlotSnapshot&& other) noexcept;
    PlotSnapshot& operator=(PlotSnapshot other) noexcept;
    ~PlotSnapshot();

    /// True for a snapshot without segments.
    bool empty() const;

    std::vector<PlotSegment> segments; ///< In plot order.
};

} // namespace backend
} // namespace pelorin

#endif
