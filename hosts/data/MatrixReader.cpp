#include "hosts/data/MatrixReader.h"

#include "hosts/data/CellNumber.h"
#include "hosts/data/RecordingFile.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace hosts::data {

namespace {

/// Takes the rows of numbers.
class MatrixCollector : public CsvSink
{
public:
    MatrixCollector(const QString& path, const CsvHead& head)
        : m_path(path)
        , m_head(head)
        , m_isAtNames(head.hasNames)
    {}

    void cell(std::string_view text) override
    {
        ++m_cells;
        if (m_isAtNames)
            return;
        m_values.push_back(cellNumber(text, m_head.decimalPoint));
        if (m_problem.isEmpty() && std::isnan(m_values.back()) &&
            isText(text, m_head.decimalPoint)) {
            const QString cell = quoted(QString::fromUtf8(text.data(), int(text.size())));
            m_problem = QStringLiteral("column %1: %2 is not a number").arg(m_cells).arg(cell);
        }
    }

    void endRow(long long line) override
    {
        if (m_cells == 0)
            return;
        if (!m_problem.isEmpty())
            throw ReadError(m_path, line, m_problem);
        if (!m_isAtNames && m_rows > 0 && m_cells != m_columns)
            throw ReadError(m_path, line,
                            QStringLiteral("the row has %1 cells, those before have %2")
                                .arg(m_cells)
                                .arg(m_columns));
        m_rows += m_isAtNames ? 0 : 1;
        m_columns = m_cells;
        m_cells = 0;
        m_isAtNames = false;
    }

    Grid grid() const
    {
        if (std::all_of(m_values.begin(), m_values.end(), [](double v) { return std::isnan(v); }))
            throw ReadError(m_path, QStringLiteral("holds no numbers"));
        Grid grid({}, {0, 0});
        grid.shape = {m_columns, m_rows};
        grid.values = m_values;
        return grid;
    }

private:
    const QString m_path;
    const CsvHead& m_head;
    std::vector<double> m_values;
    long long m_rows = 0;
    long long m_columns = 0;
    long long m_cells = 0; ///< In this row.
    QString m_problem;
    bool m_isAtNames;
};

} // namespace

Grid readMatrix(const QString& path, const Progress& progress)
{
    RecordingFile file(path);
    if (file.isSound())
        throw ReadError(path, QStringLiteral("is a sound, not a table of numbers"));
    const CsvHead head = file.tableHead();
    MatrixCollector collector(path, head);
    file.readTable(
        head, collector, progress ? progress : [](double) {});
    return collector.grid();
}

} // namespace hosts::data
