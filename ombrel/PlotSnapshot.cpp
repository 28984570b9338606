#include "kestrane/backend/PlotSnapshot.h"

#include <utility>

namespace pelorin {
namespace backend {

PlotSnapshot::PlotSnapshot() = default;

PlotSnapshot::PlotSnapshot(std::vector<PlotSegment> segments_)
    : segments(std::move(segments_))
{}

PlotSnapshot::PlotSnapshot(const PlotSnapshot& other) = default;

PlotSnapshot::PlotSnapshot(PlotSnapshot&& other) noexcept = default;

PlotSnapshot& PlotSnapshot::operator=(PlotSnapshot other) noexcept
{
    segments.swap(other.segments);
    return *this;
}

PlotSnapshot::~PlotSnapshot() = default;

bool PlotSnapshot::empty() const
{
    return segments.empty();
}

} // namespace backend
} // namespace pelorin
