#include "kestrane/backend/MetaInfo.h"

namespace pelorin {
namespace backend {

MetaInfo::MetaInfo(double offset_, double scale_, ui::chart::Axis::ScaleMode scaleMode_)
    : offset(offset_)
    , scale(scale_)
    , scaleMode(scaleMode_)
{}

bool MetaInfo::operator==(const MetaInfo& other) const
{
    return offset == other.offset && scale == other.scale && scaleMode == other.scaleMode;
}

} // namespace backend
} // namespace pelorin
