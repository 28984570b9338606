#include "hosts/charting/Symbols.h"

namespace hosts::charting {

QVector<QPointF> uncrowdedSymbols(const QVector<QPointF>& symbols, double distance)
{
    const double least = distance * (1.0 - 1e-6); // Rounding must not thin out a regular row.
    QVector<QPointF> apart;
    for (int i = 0; i < symbols.size(); ++i) {
        const double x = symbols[i].x();
        const bool isNearPrevious = i > 0 && x - symbols[i - 1].x() < least;
        const bool isNearNext = i + 1 < symbols.size() && symbols[i + 1].x() - x < least;
        if (!isNearPrevious && !isNearNext)
            apart.append(symbols[i]);
    }
    return apart;
}

} // namespace hosts::charting
