#ifndef HOSTS_CHARTING_SHOWNAXIS_H
#define HOSTS_CHARTING_SHOWNAXIS_H

#include <kestrane/axes/Axis.h>

#include <QSharedPointer>

namespace hosts::charting {

/// An axis of any kind and the part of it that a chart shows: from position 0.0 on.
struct ShownAxis
{
    /// The value at the start of the plot.
    double from() const { return axis->minValue(); }

    /// The value at the end of the plot.
    double to() const { return axis->inverseTransform(pelorin::ui::chart::Axis::Linear, visible); }

    QSharedPointer<pelorin::ui::chart::Axis> axis;
    double visible = 1.0; ///< The axis position at the end of the plot.
};

} // namespace hosts::charting

#endif
