#ifndef KESTRANE_BACKEND_PLOTSNAPSHOT_H
#define KESTRANE_BACKEND_PLOTSNAPSHOT_H

#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/PlotSegment.h"

#include <vector>

namespace pelorin {
namespace backend {

/// An ordered set of segments: what a plot shows at one moment. A value; copies share samples.
///
/// @code
/// auto samples = boost::make_shared<backend::SampleVector>(10, 0.5);
/// const backend::PlotSnapshot snapshot({backend::PlotSegment(samples,
/// backend::MetaInfo(0.0, 1.0)),
///                                       backend::PlotSegment(samples,
///                                       backend::MetaInfo(20.0, 1.0))});
/// snapshot.segments.size(); // = 2
/// @endcode
///
/// @ingroup backend
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
