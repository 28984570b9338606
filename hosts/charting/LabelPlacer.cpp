#include "hosts/charting/LabelPlacer.h"

#include <algorithm>

namespace hosts::charting {

LabelPlacer::LabelPlacer(const QRectF& bounds)
    : m_bounds(bounds)
{}

bool LabelPlacer::isFree(const QRectF& place, const QSizeF& gap) const
{
    if (!(place.width() > 0.0 && place.height() > 0.0) || !m_bounds.contains(place))
        return false;
    const QRectF widened = place.adjusted(-gap.width(), -gap.height(), gap.width(), gap.height());
    return std::none_of(m_taken.cbegin(), m_taken.cend(),
                        [&](const QRectF& taken) { return widened.intersects(taken); });
}

void LabelPlacer::take(const QRectF& place)
{
    m_taken.append(place);
}

} // namespace hosts::charting
