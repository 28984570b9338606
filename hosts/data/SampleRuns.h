#ifndef HOSTS_DATA_SAMPLERUNS_H
#define HOSTS_DATA_SAMPLERUNS_H

#include "hosts/data/RowGrid.h"

#include <kestrane/backend/PlotSnapshot.h>

#include <boost/make_shared.hpp>

#include <vector>

namespace hosts::data {

/// Collects the values of one column, row by row, and where its gaps are.
class SampleRuns
{
public:
    /// The value of the next row; NaN or infinity for a gap. Amortized O(1).
    void put(double value);

    bool isEmpty() const { return m_samples->empty(); }
    long long count() const { return static_cast<long long>(m_samples->size()); }

    /// One segment for each run of rows without a gap. They share one store of samples, which this
    /// object shares too: it takes no more values afterwards.
    pelorin::backend::PlotSnapshot snapshot(const RowGrid& grid) const;

private:
    struct Run
    {
        long long row;    ///< The first row.
        long long sample; ///< Its index in m_samples.
    };

    boost::shared_ptr<pelorin::backend::SampleVector> m_samples =
        boost::make_shared<pelorin::backend::SampleVector>();
    std::vector<Run> m_runs;
    long long m_row = 0;
    bool m_isInRun = false;
};

} // namespace hosts::data

#endif
