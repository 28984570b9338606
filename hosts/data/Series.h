#ifndef HOSTS_DATA_SERIES_H
#define HOSTS_DATA_SERIES_H

#include <kestrane/backend/PlotSnapshot.h>

#include <QString>

namespace hosts::data {

/// One measured quantity of a recording: a column of a table or a channel of a sound.
struct Series
{
    QString name;
    /// One segment for each run of samples without a gap. The abscissas are in seconds, or in the
    /// unit of the time column; abscissas and values are plain numbers (ScaleMode Linear).
    pelorin::backend::PlotSnapshot snapshot;
};

} // namespace hosts::data

#endif
