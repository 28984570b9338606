#include "hosts/data/InStep.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;

namespace {

constexpr double tolerance = 1e-3; // In steps; a whole segment may be off by that much.

[[noreturn]] void fail(const Series& first, const Series& second, const char* problem)
{
    throw std::runtime_error((first.name + QStringLiteral(" and ") + second.name).toStdString() +
                             problem);
}

/// Where segments lie on the grid of the first of them, as whole numbers.
class Grid
{
public:
    explicit Grid(const MetaInfo& info)
        : m_info(info)
    {}

    double rowOf(const PlotSegment& segment) const
    {
        return std::round((segment.xInfo.offset - m_info.offset) / m_info.scale);
    }

    double endOf(const PlotSegment& segment) const
    {
        return rowOf(segment) + double(segment.count);
    }

    bool holds(const PlotSegment& segment) const
    {
        const double row = (segment.xInfo.offset - m_info.offset) / m_info.scale;
        const double stretch = (segment.xInfo.scale / m_info.scale - 1.0) * double(segment.count);
        return std::abs(row - std::round(row)) < tolerance && std::abs(stretch) < tolerance;
    }

    PlotSegment cut(const PlotSegment& segment, double begin, double end) const
    {
        const auto from = std::ptrdiff_t(begin - rowOf(segment));
        const auto to = std::ptrdiff_t(end - rowOf(segment));
        return PlotSegment(segment.begin + from, segment.begin + to,
                           MetaInfo(begin * m_info.scale + m_info.offset, m_info.scale),
                           segment.yScaleMode);
    }

private:
    MetaInfo m_info;
};

} // namespace

std::pair<Series, Series> inStep(const Series& first, const Series& second)
{
    const auto& a = first.snapshot.segments;
    const auto& b = second.snapshot.segments;
    std::vector<PlotSegment> cutA, cutB;
    for (std::size_t i = 0, j = 0; i < a.size() && j < b.size();) {
        const Grid grid(a.front().xInfo);
        if (!grid.holds(a[i]) || !grid.holds(b[j]))
            fail(first, second, " are not sampled in step");
        const double begin = std::max(grid.rowOf(a[i]), grid.rowOf(b[j]));
        const double end = std::min(grid.endOf(a[i]), grid.endOf(b[j]));
        if (begin < end) {
            cutA.push_back(grid.cut(a[i], begin, end));
            cutB.push_back(grid.cut(b[j], begin, end));
        }
        grid.endOf(a[i]) <= grid.endOf(b[j]) ? ++i : ++j;
    }
    if (cutA.empty())
        fail(first, second, " have no samples at the same places");
    return {{first.name, PlotSnapshot(std::move(cutA))},
            {second.name, PlotSnapshot(std::move(cutB))}};
}

} // namespace hosts::data
