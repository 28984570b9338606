#ifndef KESTRANE_COLORS_DETAIL_TRUNCATEDTOCOUNT_H
#define KESTRANE_COLORS_DETAIL_TRUNCATEDTOCOUNT_H

#include <cstddef>
#include <limits>

namespace pelorin {
namespace ui {
namespace detail {

/// Truncated towards zero; 0 for negative values and NaN, the largest count for what is beyond it.
inline std::size_t truncatedToCount(double value)
{
    if (!(value > 0.0))
        return 0;
    if (value >= 0x1p64)
        return std::numeric_limits<std::size_t>::max();
    return static_cast<std::size_t>(value);
}

} // namespace detail
} // namespace ui
} // namespace pelorin

#endif
