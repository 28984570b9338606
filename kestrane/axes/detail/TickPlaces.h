#ifndef KESTRANE_AXES_DETAIL_TICKPLACES_H
#define KESTRANE_AXES_DETAIL_TICKPLACES_H

#include "kestrane/axes/Axis.h"

#include <QVarLengthArray>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// The ticks of an axis as it places them, in ascending order of position.
class TickPlaces
{
public:
    void append(double logicalPosition, double axisPosition)
    {
        m_places.append({logicalPosition, axisPosition});
    }

    /// The ticks there, ranked and sorted as Axis::updateRanking() does it.
    QVector<Axis::Tick> ranked(bool isMajor) const;

private:
    struct Place
    {
        double logical, axis;
    };
    QVarLengthArray<Place, 64> m_places;
};

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
