#ifndef TESTS_SUPPORT_TICKS_H
#define TESTS_SUPPORT_TICKS_H

#include "kestrane/axes/Axis.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tests {

using Place = std::pair<double, double>; // Logical and axis position.
using Places = std::vector<Place>;
using Ticks = QVector<pelorin::ui::chart::Axis::Tick>;

/// In the order of the list, which is that of the ranks.
inline std::vector<double> values(const Ticks& ticks)
{
    std::vector<double> result;
    for (const auto& tick : ticks)
        result.push_back(tick.logicalPosition());
    return result;
}

inline std::vector<double> ranks(const Ticks& ticks)
{
    std::vector<double> result;
    for (const auto& tick : ticks)
        result.push_back(tick.rank());
    return result;
}

/// In ascending order.
inline Places places(const Ticks& ticks)
{
    Places result;
    for (const auto& tick : ticks)
        result.emplace_back(tick.logicalPosition(), tick.axisPosition());
    std::sort(result.begin(), result.end());
    return result;
}

/// What the builders of this library make: valid, visible, without further values.
inline bool arePlain(const Ticks& ticks)
{
    return std::all_of(ticks.begin(), ticks.end(), [](const auto& tick) {
        return tick.isValid() && !tick.isInvisible() && tick.secondaryLogicalPositions().isEmpty();
    });
}

} // namespace tests

#endif
