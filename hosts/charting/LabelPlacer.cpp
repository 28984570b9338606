#include "hosts/charting/LabelPlacer.h"

#include <algorithm>

namespace hosts::charting {

LabelPlacer::LabelPlacer(const QRectF& bounds, const QSizeF& gap)
    : m_bounds(bounds)
    , m_gap(gap)
{}

bool LabelPlacer::take(const QRectF& place)
{
    if (!(place.width() > 0.0 && place.height() > 0.0) || !m_bounds.contains(place))
        return false;
    const QRectF widened =
        place.adjusted(-m_gap.width(), -m_gap.height(), m_gap.width(), m_gap.height());
    const bool isFree = std::none_of(m_taken.cbegin(), m_taken.cend(), [&](const QRectF& taken) {
        return widened.intersects(taken);
    });
    if (isFree)
        m_taken.append(place);
    return isFree;
}

} // namespace hosts::charting
