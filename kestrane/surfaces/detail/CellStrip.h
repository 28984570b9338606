#ifndef KESTRANE_SURFACES_DETAIL_CELLSTRIP_H
#define KESTRANE_SURFACES_DETAIL_CELLSTRIP_H

#include "kestrane/surfaces/detail/LargestSample.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>
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
        : m_edges(std::move(edges))
    {
        long long narrowest = m_edges.back();
        long long widest = 0;
        for (std::size_t k = 0; k + 1 < m_edges.size(); ++k) {
            const long long width = m_edges[k + 1] - m_edges[k];
            narrowest = std::min(narrowest, width);
            widest = std::max(widest, width);
        }
        m_reach = std::min(narrowest, (widest + 1) / 2);
    }

    /// Writes the values of @p count cells from the cell @p first on, @p stride places apart.
    /// @param position of a sample at index 0 along the strip
    /// @param height of the strip in samples
    void writeCells(backend::GridPosition<T> position, long long height, std::size_t first,
                    std::size_t count, double* values, std::size_t stride)
    {
        const std::size_t along = position.denserDimension();
        const long long begin = m_edges[first];
        const long long width = m_edges[first + count] - begin;
        std::array<long long, 2> size{height, height};
        size[along] = width;
        position.move(along, begin);
        m_line.assign(static_cast<std::size_t>(width), 0);
        position.visitRows(size, [this](const T* samples, long long length, long long step) {
            raise(m_line.data(), samples, length, step);
        });
        if (m_reach == 1) // As a constant, since a loop costs more than one step of it.
            cutLine(std::integral_constant<long long, 1>(), first, count, values, stride);
        else
            cutLine(m_reach, first, count, values, stride);
    }

private:
    template<typename Reach>
    void cutLine(Reach reach, std::size_t first, std::size_t count, double* values,
                 std::size_t stride) const
    {
        const T* const line = m_line.data() - m_edges[first];
        for (std::size_t k = first; k < first + count; ++k, values += stride)
            *values =
                static_cast<double>(largestOf(line + m_edges[k], line + m_edges[k + 1], reach));
    }

    // From both ends, so that cells at most twice as wide as the narrowest take as many steps each.
    template<typename Reach>
    static T largestOf(const T* begin, const T* end, Reach reach)
    {
        T largest = 0;
        for (long long k = 0; k < reach; ++k)
            largest = std::max(largest, std::max(*begin++, *--end));
        while (begin < end)
            largest = std::max(largest, *begin++);
        return largest;
    }

    std::vector<long long> m_edges;
    long long m_reach;
    std::vector<T> m_line;
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
