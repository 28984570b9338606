#include "kestrane/plots/Intersection.h"

namespace pelorin {
namespace ui {
namespace chart {

Intersection::Intersection(double position_, double value_)
    : position(position_)
    , value(value_)
{}

} // namespace chart
} // namespace ui
} // namespace pelorin
