#ifndef HOSTS_DATA_LIVERECORDING_H
#define HOSTS_DATA_LIVERECORDING_H

#include "hosts/data/Series.h"

#include <kestrane/backend/PlotSnapshot.h>

#include <QStringList>

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <mutex>
#include <vector>

namespace hosts::data {

/// Samples that are measured while others look at them. One thread appends, any thread may look; it
/// gets what there was at that moment, which never changes any more, and keeps nobody waiting for
/// longer than a few pointers take.
///
/// The samples of a column stand one behind the other in a block that is larger than they are. Who
/// looks shares the block and reads the part that was full then, beside which the next samples are
/// written. A block that is full gives way to one twice as large.
class LiveRecording
{
public:
    /// @param names one for each column
    /// @param start,step rows are at start, start + step, ... of x
    LiveRecording(QStringList names, double start, double step);

    /// Appends rows, each with a value for each column; NaN or infinity for a gap. Amortized O(1)
    /// for each value.
    /// @throws std::bad_alloc; rows up to then are there
    void append(const double* values, std::size_t rows);

    /// Appended so far.
    long long rows() const;

    /// What there is by now, one for each column, also for one that has no samples yet. O(gaps).
    std::vector<Series> series() const;

private:
    using Block = boost::shared_ptr<pelorin::backend::SampleVector>;

    struct Run
    {
        long long row;    // The first one.
        long long sample; // Its index in the block.
    };

    struct Column
    {
        Block block;
        long long count = 0;
        std::vector<Run> runs;
        bool isInRun = false; // Of the appending thread alone.
    };

    void growFor(std::size_t rows);
    void appendRow(const double* values);

    const QStringList m_names;
    const double m_start;
    const double m_step;
    mutable std::mutex m_mutex;
    long long m_rows = 0; // All below is written under the mutex, by one thread.
    std::vector<Column> m_columns;
};

} // namespace hosts::data

#endif
