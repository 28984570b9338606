#include "hosts/data/LiveRecording.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace hosts::data {

using namespace pelorin::backend;

namespace {

constexpr std::size_t firstBlock = 4096;
constexpr std::size_t rowsAtATime = 1024; // While others wait.

} // namespace

LiveRecording::LiveRecording(QStringList names, double start, double step)
    : m_names(std::move(names))
    , m_start(start)
    , m_step(step)
    , m_columns(static_cast<std::size_t>(m_names.size()))
{
    for (Column& column : m_columns)
        column.block = boost::make_shared<SampleVector>(firstBlock);
}

void LiveRecording::append(const double* values, std::size_t rows)
{
    for (std::size_t row = 0; row < rows; row += rowsAtATime) {
        const std::size_t end = std::min(rows, row + rowsAtATime);
        growFor(end - row);
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (std::size_t k = row; k < end; ++k)
            appendRow(values + k * m_columns.size());
    }
}

// Ahead of the lock, since it takes as long as all samples take to copy.
void LiveRecording::growFor(std::size_t rows)
{
    for (Column& column : m_columns) {
        const auto used = static_cast<std::size_t>(column.count);
        if (used + rows <= column.block->size())
            continue;
        const Block larger = boost::make_shared<SampleVector>(2 * (used + rows));
        std::copy_n(column.block->begin(), used, larger->begin());
        const std::lock_guard<std::mutex> lock(m_mutex);
        column.block = larger;
    }
}

void LiveRecording::appendRow(const double* values)
{
    for (Column& column : m_columns) {
        const double value = *values++;
        const bool isGap = !std::isfinite(value);
        if (!isGap) {
            if (!column.isInRun)
                column.runs.push_back({m_rows, column.count});
            (*column.block)[static_cast<std::size_t>(column.count++)] = value;
        }
        column.isInRun = !isGap;
    }
    ++m_rows;
}

long long LiveRecording::rows() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_rows;
}

std::vector<Series> LiveRecording::series() const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const std::vector<Column> columns = m_columns;
    lock.unlock();
    std::vector<Series> result;
    for (std::size_t k = 0; k < columns.size(); ++k) {
        const Column& column = columns[k];
        std::vector<PlotSegment> segments;
        for (std::size_t i = 0; i < column.runs.size(); ++i) {
            const Run& run = column.runs[i];
            const long long end =
                i + 1 < column.runs.size() ? column.runs[i + 1].sample : column.count;
            const SampleIterator begin(column.block->begin() + run.sample, column.block);
            segments.emplace_back(
                begin, begin + (end - run.sample),
                MetaInfo(m_start + m_step * static_cast<double>(run.row), m_step));
        }
        result.push_back({m_names[static_cast<int>(k)], PlotSnapshot(std::move(segments))});
    }
    return result;
}

} // namespace hosts::data
