#include "hosts/data/SampleRuns.h"

#include <cmath>

namespace hosts::data {

using namespace pelorin::backend;

void SampleRuns::put(double value)
{
    const bool isGap = !std::isfinite(value);
    if (!isGap) {
        if (!m_isInRun)
            m_runs.push_back({m_row, count()});
        m_samples->push_back(value);
    }
    m_isInRun = !isGap;
    ++m_row;
}

PlotSnapshot SampleRuns::snapshot(const RowGrid& grid) const
{
    std::vector<PlotSegment> segments;
    for (std::size_t i = 0; i < m_runs.size(); ++i) {
        const Run& run = m_runs[i];
        const long long sampleEnd = i + 1 < m_runs.size() ? m_runs[i + 1].sample : count();
        const long long rowEnd = run.row + (sampleEnd - run.sample);
        for (long long row = run.row; row < rowEnd;) {
            const long long next = grid.runEnd(row, rowEnd);
            const SampleIterator begin(m_samples->begin() + (run.sample + (row - run.row)),
                                       m_samples);
            segments.emplace_back(begin, begin + (next - row), grid.segmentInfo(row));
            row = next;
        }
    }
    return PlotSnapshot(std::move(segments));
}

} // namespace hosts::data
