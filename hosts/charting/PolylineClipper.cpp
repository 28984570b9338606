#include "hosts/charting/PolylineClipper.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace hosts::charting {

namespace {

// The part of a line inside, as shares of its length.
struct Share
{
    double from = 0.0;
    double to = 1.0;
};

// Liang and Barsky, "A new concept and method for line clipping", 1984: each border cuts the line
// p + t * d at t = distance / d, from below where the line comes in and from above where it leaves.
bool cut(double delta, double distanceToLow, double distanceToHigh, Share& share)
{
    if (delta == 0.0)
        return distanceToLow <= 0.0 && distanceToHigh >= 0.0;
    double enter = distanceToLow / delta;
    double leave = distanceToHigh / delta;
    if (enter > leave)
        std::swap(enter, leave);
    share.from = std::max(share.from, enter);
    share.to = std::min(share.to, leave);
    return share.from <= share.to;
}

std::optional<Share> shareInside(const QPointF& a, const QPointF& b, const QRectF& bounds)
{
    Share share;
    if (cut(b.x() - a.x(), bounds.left() - a.x(), bounds.right() - a.x(), share) &&
        cut(b.y() - a.y(), bounds.top() - a.y(), bounds.bottom() - a.y(), share))
        return share;
    return std::nullopt;
}

// Beyond this a coordinate is far outside any picture, and differences could overflow.
QPointF tamed(const QPointF& point)
{
    constexpr double limit = 1e9;
    return {std::clamp(point.x(), -limit, limit), std::clamp(point.y(), -limit, limit)};
}

void appendLine(QVector<QVector<QPointF>>& pieces, bool joined, const QPointF& a, const QPointF& b)
{
    if (!joined || pieces.isEmpty())
        pieces.append({a});
    pieces.last().append(b);
}

} // namespace

QVector<QVector<QPointF>> clipPolyline(const QVector<QPointF>& points, const QRectF& bounds)
{
    QVector<QVector<QPointF>> pieces;
    std::optional<QPointF> previous;
    bool previousInside = false;
    for (const QPointF& raw : points) {
        if (std::isnan(raw.x()) || std::isnan(raw.y()))
            continue;
        const QPointF point = tamed(raw);
        const std::optional<Share> share =
            previous ? shareInside(*previous, point, bounds) : std::nullopt;
        if (share) {
            const QPointF delta = point - *previous;
            const QPointF end = share->to < 1.0 ? *previous + share->to * delta : point;
            appendLine(pieces, previousInside && share->from == 0.0,
                       *previous + share->from * delta, end);
        }
        previousInside = share && share->to == 1.0;
        previous = point;
    }
    return pieces;
}

} // namespace hosts::charting
