#ifndef HOSTS_CHARTING_TICKMARK_H
#define HOSTS_CHARTING_TICKMARK_H

#include <QStringList>

namespace hosts::charting {

/// A tick as a chart shows it.
struct TickMark
{
    double place = 0.0; ///< 0.0 at the start of the plot, 1.0 at its end.
    bool major = false;
    QStringList label; ///< Its lines; empty for a tick without a label.
};

} // namespace hosts::charting

#endif
