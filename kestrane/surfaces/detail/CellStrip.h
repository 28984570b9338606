#ifndef KESTRANE_SURFACES_DETAIL_CELLSTRIP_H
#define KESTRANE_SURFACES_DETAIL_CELLSTRIP_H

#include "kestrane/surfaces/detail/LargestSample.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The values of cells that lie side by side, where samples lie nearer to each other in memory: the
/// largest sample of each, at least 0. Samples of NaN don't count. Each sample is read once.
///
///     rows of samples     s s s | s s | s s s     in the order of the memory
///                         s s s | s s | s s s
///     line                l l l | l l | l l l     the largest one of each column
///     cells                 c      c      c       the largest one of each cell
template<typename T>
class CellStrip
{
public:
    /// @param edges ascending indices, where each cell begins and the last one ends
    explicit CellStrip(std::vector<long long> edges)
        : m_begin(edges.front())
        , m_narrowest(edges.back() - m_begin)
    {
        for (std::size_t k = 1; k < edges.size(); ++k) {
            const long long width = edges[k] - edges[k - 1];
            m_narrowest = std::min(m_narrowest, width);
            m_widest = std::max(m_widest, width);
        }
        for (long long& edge : edges)
            edge -= m_begin;
        m_edges = std::move(edges);
        m_line.resize(static_cast<std::size_t>(m_edges.back()));
    }

    /// Writes the values of all cells, @p stride places apart.
    /// @param position of a sample at index 0 along the strip
    /// @param height of the strip in samples, at least 1
    void writeCells(backend::GridPosition<T> position, long long height, double* values,
                    std::size_t stride)
    {
        const std::size_t along = position.denserDimension();
        std::array<long long, 2> size{height, height};
        size[along] = m_edges.back();
        position.move(along, m_begin);
        auto put = raiseZeros<T>;
        position.visitRows(size, [&](const T* samples, long long count, long long step) {
            put(m_line.data(), samples, count, step);
            put = raise<T>;
        });
        const std::size_t count = m_edges.size() - 1;
        if (m_widest == 1) { // Nothing to compare: the whole line at a step.
            for (std::size_t k = 0; k < count; ++k)
                values[k * stride] = static_cast<double>(m_line[k]);
            return;
        }
        const T* const line = m_line.data();
        for (std::size_t k = 0; k < count; ++k)
            values[k * stride] =
                static_cast<double>(largestOf(line + m_edges[k], line + m_edges[k + 1]));
    }

private:
    // From both ends at a time, so that it takes as many steps for most cells.
    T largestOf(const T* begin, const T* end) const
    {
        T largest = std::max(*begin, *(end - 1));
        if (m_widest <= 2)
            return largest;
        const long long reach = std::min(m_narrowest, (m_widest + 1) / 2);
        for (long long k = 1; k < reach; ++k)
            largest = std::max(largest, std::max(begin[k], end[-1 - k]));
        for (begin += reach, end -= reach; begin < end; ++begin)
            largest = std::max(largest, *begin);
        return largest;
    }

    const long long m_begin;
    long long m_narrowest; // Cell, in samples.
    long long m_widest = 0;
    std::vector<long long> m_edges; // Counted from m_begin.
    std::vector<T> m_line;
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
