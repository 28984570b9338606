#ifndef HOSTS_CHARTING_LABELPLACER_H
#define HOSTS_CHARTING_LABELPLACER_H

#include <QRectF>
#include <QVector>

namespace hosts::charting {

/// Keeps texts apart. Whoever asks first gets the place, so ask in order of importance.
///
/// Laws:
///  1. No two rectangles that were granted overlap, nor come nearer to each other than the gap.
///  2. None of them passes the bounds.
class LabelPlacer
{
public:
    /// @param gap the least free width and the least free height between two places
    LabelPlacer(const QRectF& bounds, const QSizeF& gap);

    /// True if the place is free and now taken; false if it is not to be had.
    /// An empty rectangle, one with a NaN in it too, is never granted.
    bool take(const QRectF& place);

private:
    QRectF m_bounds;
    QSizeF m_gap;
    QVector<QRectF> m_taken;
};

} // namespace hosts::charting

#endif
