#include "kestrane/axes/detail/AxisMap.h"

#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"

#include <typeinfo>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

std::optional<AxisMap> AxisMap::of(const Axis& axis, Axis::ScaleMode mode)
{
    const std::type_info& type = typeid(axis);
    if (type == typeid(LogAxis))
        return static_cast<const LogAxis&>(axis).mapOf(mode);
    const bool isLinear = type == typeid(LinearAxis) || type == typeid(FixedPositionLinearAxis);
    if (isLinear && mode == Axis::Linear)
        return static_cast<const FixedPositionLinearAxis&>(axis).linearMap();
    return std::nullopt;
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
