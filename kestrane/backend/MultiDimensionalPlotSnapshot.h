#ifndef KESTRANE_BACKEND_MULTIDIMENSIONALPLOTSNAPSHOT_H
#define KESTRANE_BACKEND_MULTIDIMENSIONALPLOTSNAPSHOT_H

#include "kestrane/backend/MultiDimensionalPlotSegment.h"
#include "kestrane/backend/OmbrelExport.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace pelorin {
namespace backend {

/// An ordered set of grids: what a surface plot shows at one moment. An immutable value that is
/// replaced as a whole. Copies share segments and samples, and are O(1).
///
/// Threads: copies may be made, read and destroyed on different threads at the same time.
///
/// @code
/// const auto counts = boost::make_shared<unsigned int[]>(6);
/// const backend::MultiDimensionalPlotSegment<unsigned int, 2> grid(
///     counts, {backend::MetaInfo(), backend::MetaInfo()}, {3, 2});
/// const backend::MultiDimensionalPlotSnapshot<unsigned int, 2> snapshot({grid});
/// snapshot.end() - snapshot.begin(); // = 1
/// @endcode
///
/// @ingroup backend
template<typename T, std::size_t Dimensions>
class MultiDimensionalPlotSnapshot
{
public:
    using Segment = MultiDimensionalPlotSegment<T, Dimensions>;

    /// A snapshot without segments.
    MultiDimensionalPlotSnapshot();
    explicit MultiDimensionalPlotSnapshot(std::vector<Segment> segments);
    MultiDimensionalPlotSnapshot(const MultiDimensionalPlotSnapshot& other);
    MultiDimensionalPlotSnapshot& operator=(const MultiDimensionalPlotSnapshot& other);
    ~MultiDimensionalPlotSnapshot();

    /// True for a snapshot without segments.
    bool empty() const;

    /// The segments in plot order, contiguous up to end(). Valid while this snapshot or a copy
    /// lives and isn't assigned to.
    const Segment* begin() const { return m_begin; }
    const Segment* end() const { return m_end; }

private:
    const Segment* m_begin = nullptr;
    const Segment* m_end = nullptr;
    boost::shared_ptr<const std::vector<Segment>> m_segments; // Null for none.
};

extern template class OMBREL_EXPORT MultiDimensionalPlotSnapshot<double, 2>;
extern template class OMBREL_EXPORT MultiDimensionalPlotSnapshot<unsigned int, 2>;

} // namespace backend
} // namespace pelorin

#endif
