#ifndef HOSTS_CHARTING_LABELPLACER_H
#define HOSTS_CHARTING_LABELPLACER_H

#include <QRectF>
#include <QVector>

namespace hosts::charting {

/// Keeps texts apart. Whoever asks first gets the place, so ask in order of importance.
///
/// Laws:
///  1. A place is free if it comes no nearer to those taken before than the gap that it is to have.
///  2. None of them passes the bounds.
class LabelPlacer
{
public:
    explicit LabelPlacer(const QRectF& bounds);

    /// Whether @p place is within the bounds and free, also so much around it.
    /// An empty rectangle, one with a NaN in it too, never is.
    bool isFree(const QRectF& place, const QSizeF& gap) const;

    /// Takes a place that is free.
    void take(const QRectF& place);

private:
    QRectF m_bounds;
    QVector<QRectF> m_taken;
};

} // namespace hosts::charting

#endif
