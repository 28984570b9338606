#include "hosts/data/CsvReader.h"

#include "hosts/data/CellNumber.h"
#include "hosts/data/ColumnChoice.h"
#include "hosts/data/SampleRuns.h"
#include "hosts/data/TimeGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hosts::data {

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// Takes the rows of values, chosen columns only.
class TableCollector : public CsvSink
{
public:
    TableCollector(const QString& path, const CsvHead& head, const ReadOptions& options);

    void cell(std::string_view text) override;
    void endRow(long long line) override;

    /// What has been collected.
    std::vector<Series> series() const;

private:
    struct Column
    {
        int index;
        double value = NotANumber; ///< In this row.
        SampleRuns runs;
        long long textCells = 0;
    };

    bool placeByTime(long long line);
    bool hasValue() const;
    [[noreturn]] void failWithoutTime(long long line) const;
    [[noreturn]] void failOffGrid(long long line, TimeGrid::Verdict verdict) const;
    QString inTimeColumn(const QString& problem) const;
    RowGrid grid() const;
    bool isWanted(const Column& column) const;

    const QString m_path;
    const CsvHead& m_head;
    const ReadOptions& m_options;
    const ColumnChoice m_choice;
    std::vector<Column> m_columns;
    std::vector<int> m_slots; ///< For each column of the table its place in m_columns, or -1.
    TimeGrid m_timeGrid;
    std::optional<double> m_firstTime;
    std::string m_timeCell; ///< In this row.
    std::size_t m_cell = 0;
    bool m_isAtNames;
};

std::vector<std::string> firstTimes(const CsvHead& head, const std::optional<int>& column)
{
    return column ? head.cells(*column) : std::vector<std::string>();
}

TableCollector::TableCollector(const QString& path, const CsvHead& head, const ReadOptions& options)
    : m_path(path)
    , m_head(head)
    , m_options(options)
    , m_choice(chooseColumns(path, head, options))
    , m_slots(static_cast<std::size_t>(head.names.size()), -1)
    , m_timeGrid(firstTimes(head, m_choice.time), head.decimalPoint)
    , m_isAtNames(head.hasNames)
{
    for (const int index : m_choice.values) {
        m_slots[static_cast<std::size_t>(index)] = static_cast<int>(m_columns.size());
        m_columns.push_back({index, NotANumber, {}, 0});
    }
}

void TableCollector::cell(std::string_view text)
{
    const std::size_t index = m_cell++;
    if (m_isAtNames || index >= m_slots.size())
        return;
    if (m_choice.time && index == static_cast<std::size_t>(*m_choice.time))
        m_timeCell = text;
    if (m_slots[index] < 0)
        return;
    Column& column = m_columns[static_cast<std::size_t>(m_slots[index])];
    column.value = cellNumber(text, m_head.decimalPoint);
    if (std::isnan(column.value) && isText(text, m_head.decimalPoint))
        ++column.textCells;
}

void TableCollector::endRow(long long line)
{
    m_cell = 0;
    if (m_isAtNames) {
        m_isAtNames = false;
        return;
    }
    const bool hasPlace = !m_choice.time || placeByTime(line);
    m_timeCell.clear();
    if (!hasPlace)
        return;
    for (Column& column : m_columns) {
        column.runs.put(column.value);
        column.value = NotANumber;
    }
}

/// @return false for a row with neither time nor values: the next time tells how long the gap is
bool TableCollector::placeByTime(long long line)
{
    if (m_options.step && (m_options.start || m_firstTime))
        return true;
    const double time = cellNumber(m_timeCell, m_head.decimalPoint);
    if (std::isnan(time)) {
        if (hasValue())
            failWithoutTime(line);
        return false;
    }
    if (!m_firstTime)
        m_firstTime = time;
    const TimeGrid::Verdict verdict =
        m_options.step ? TimeGrid::Regular : m_timeGrid.put(time, m_timeCell);
    if (verdict != TimeGrid::Regular)
        failOffGrid(line, verdict);
    return true;
}

bool TableCollector::hasValue() const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [](const Column& column) { return !std::isnan(column.value); });
}

void TableCollector::failWithoutTime(long long line) const
{
    const QString cell = QString::fromStdString(m_timeCell);
    const QString problem = isText(m_timeCell, m_head.decimalPoint)
                                ? QStringLiteral("time %1 is not a number").arg(quoted(cell))
                                : QStringLiteral("there are values, but no time");
    throw ReadError(m_path, line, inTimeColumn(problem));
}

void TableCollector::failOffGrid(long long line, TimeGrid::Verdict verdict) const
{
    const QString time = QString::fromStdString(m_timeCell).trimmed();
    const QString problem = verdict == TimeGrid::NotAscending
                                ? QStringLiteral("time %1 is not after the time before").arg(time)
                                : QStringLiteral("time %1 breaks the regular step of about %2")
                                      .arg(time)
                                      .arg(m_timeGrid.meanStep());
    throw ReadError(m_path, line, inTimeColumn(problem));
}

QString TableCollector::inTimeColumn(const QString& problem) const
{
    return QStringLiteral("column %1 (%2): %3; to place the rows at equal distances use --step, or "
                          "--time-column none")
        .arg(*m_choice.time + 1)
        .arg(quoted(m_head.names[*m_choice.time]), problem);
}

RowGrid TableCollector::grid() const
{
    RowGrid result = m_timeGrid.grid();
    if (!m_choice.time || m_options.step)
        result = {m_firstTime.value_or(0.0), m_options.step.value_or(1.0), {}};
    result.offset = m_options.start.value_or(result.offset);
    return result;
}

bool TableCollector::isWanted(const Column& column) const
{
    if (!m_choice.isAskedFor)
        return column.runs.count() > column.textCells;
    if (column.runs.isEmpty())
        throw ReadError(m_path, QStringLiteral("column %1 (%2) holds no numbers")
                                    .arg(column.index + 1)
                                    .arg(quoted(m_head.names[column.index])));
    return true;
}

std::vector<Series> TableCollector::series() const
{
    const RowGrid rows = grid();
    std::vector<Series> result;
    for (const Column& column : m_columns) {
        if (isWanted(column))
            result.push_back({m_head.names[column.index], column.runs.snapshot(rows)});
    }
    if (result.empty())
        throw ReadError(m_path, QStringLiteral("no column holds mainly numbers"));
    return result;
}

} // namespace

std::vector<Series> readCsv(RecordingFile& file, const ReadOptions& options,
                            const Progress& progress)
{
    const CsvHead head = file.tableHead();
    TableCollector collector(file.path(), head, options);
    file.readTable(head, collector, progress);
    return collector.series();
}

} // namespace hosts::data
