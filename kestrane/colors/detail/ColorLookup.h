#ifndef KESTRANE_COLORS_DETAIL_COLORLOOKUP_H
#define KESTRANE_COLORS_DETAIL_COLORLOOKUP_H

#include "kestrane/colors/ColorMap.h"

namespace pelorin {
namespace ui {
namespace detail {

/// What ColorMap::mapToColor() does, for loops over many counts. The map has to outlive it and to
/// stay as it is.
class ColorLookup
{
public:
    explicit ColorLookup(const ColorMap& map)
        : m_thresholds(map.m_sortedThresholds.constData())
        , m_colors(map.m_sortedColors.constData())
        , m_size(map.m_sortedThresholds.size())
        , m_unmatchedColor(map.m_unmatchedColor)
    {}

    const QColor& colorOf(std::size_t value) const
    {
        const int index = classOf(value);
        return index < 0 ? m_unmatchedColor : m_colors[index];
    }

    /// The last class that begins at or below a count, or -1. Without a branch in the search, since
    /// no processor can foresee the ways of counts.
    int classOf(std::size_t value) const
    {
        if (value == 0 || m_size == 0)
            return -1;
        const std::size_t* place = m_thresholds;
        for (int size = m_size; size > 1;) {
            const int half = size / 2;
            place = place[half] <= value ? place + half : place;
            size -= half;
        }
        return *place <= value ? static_cast<int>(place - m_thresholds) : -1;
    }

private:
    const std::size_t* const m_thresholds; // Ascending, each one once.
    const QColor* const m_colors;
    const int m_size;
    const QColor& m_unmatchedColor;
};

} // namespace detail
} // namespace ui
} // namespace pelorin

#endif
