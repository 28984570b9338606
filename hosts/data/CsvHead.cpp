#include "hosts/data/CsvHead.h"

#include "hosts/data/CellNumber.h"
#include "hosts/data/CsvParser.h"
#include "hosts/data/ReadError.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace hosts::data {

namespace {

constexpr std::size_t RowsLookedAt = 100;

class RowCollector : public CsvSink
{
public:
    void cell(std::string_view text) override { m_row.emplace_back(text); }

    void endRow(long long) override
    {
        if (!m_row.empty() && rows.size() <= RowsLookedAt)
            rows.push_back(m_row);
        m_row.clear();
    }

    std::vector<CsvHead::Row> rows;

private:
    CsvHead::Row m_row;
};

std::string_view takeLine(std::string_view& bytes)
{
    const std::size_t newline = bytes.find('\n');
    const std::size_t size = newline == bytes.npos ? bytes.size() : newline + 1;
    const std::string_view line = bytes.substr(0, size);
    bytes.remove_prefix(size);
    return line;
}

bool isCommentOrBlank(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(" \t\r\n");
    return first == line.npos || line[first] == '#';
}

void skipToTable(std::string_view& bytes, CsvHead& head)
{
    const std::size_t size = bytes.size();
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (bytes.substr(0, byteOrderMark.size()) == byteOrderMark)
        bytes.remove_prefix(byteOrderMark.size());
    std::string_view rest = bytes;
    while (!rest.empty() && isCommentOrBlank(takeLine(rest))) {
        bytes = rest;
        ++head.line;
    }
    head.begin = static_cast<long long>(size - bytes.size());
}

long long countOutsideQuotes(std::string_view line, char separator)
{
    bool isQuoted = false;
    long long count = 0;
    for (const char c : line) {
        isQuoted = isQuoted != (c == '"');
        count += !isQuoted && c == separator ? 1 : 0;
    }
    return count;
}

/// The number of lines that agree on how often, other than never, they hold @p separator.
long long agreement(std::string_view bytes, char separator)
{
    std::map<long long, long long> linesByCount;
    for (std::size_t line = 0; line < RowsLookedAt && !bytes.empty(); ++line)
        ++linesByCount[countOutsideQuotes(takeLine(bytes), separator)];
    linesByCount.erase(0);
    long long most = 0;
    for (const auto& [count, lines] : linesByCount)
        most = std::max(most, lines);
    return most;
}

// The comma comes last: as a decimal comma it may be as frequent as the separator.
char findSeparator(std::string_view bytes)
{
    char best = ',';
    long long mostLines = 0;
    for (const char separator : {'\t', ';', ','}) {
        const long long lines = agreement(bytes, separator);
        if (lines > mostLines) {
            best = separator;
            mostLines = lines;
        }
    }
    return best;
}

char findDecimalPoint(const std::vector<CsvHead::Row>& rows, char separator)
{
    if (separator == ',')
        return '.';
    for (const CsvHead::Row& row : rows) {
        for (const std::string& cell : row) {
            if (std::isnan(cellNumber(cell, '.')) && !std::isnan(cellNumber(cell, ',')))
                return ',';
        }
    }
    return '.';
}

/// Whether the text that heads @p column of @p rows is a name: there are numbers below it.
bool isNameOfNumbers(const std::vector<CsvHead::Row>& rows, std::size_t column, char point)
{
    return isText(rows[0][column], point) &&
           std::any_of(rows.begin() + 1, rows.end(), [&](const CsvHead::Row& row) {
               return column < row.size() && !std::isnan(cellNumber(row[column], point));
           });
}

bool isRowOfNames(const std::vector<CsvHead::Row>& rows, char point)
{
    bool hasText = false;
    bool hasNumber = false;
    for (std::size_t column = 0; column < rows[0].size(); ++column) {
        if (isNameOfNumbers(rows, column, point))
            return true;
        hasText = hasText || isText(rows[0][column], point);
        hasNumber = hasNumber || !std::isnan(cellNumber(rows[0][column], point));
    }
    return hasText && !hasNumber;
}

QStringList columnNames(const CsvHead::Row& names, const std::vector<CsvHead::Row>& rows)
{
    std::size_t count = names.size();
    for (const CsvHead::Row& row : rows)
        count = std::max(count, row.size());
    QStringList result;
    for (std::size_t column = 0; column < count; ++column) {
        const QString name =
            column < names.size() ? QString::fromStdString(names[column]).trimmed() : QString();
        result += name.isEmpty() ? QStringLiteral("column %1").arg(column + 1) : name;
    }
    return result;
}

} // namespace

std::vector<std::string> CsvHead::cells(int column) const
{
    const auto index = static_cast<std::size_t>(column);
    std::vector<std::string> result;
    for (const Row& row : rows)
        result.push_back(index < row.size() ? row[index] : std::string());
    return result;
}

CsvHead readCsvHead(const QString& path, std::string_view bytes, bool isWholeFile)
{
    CsvHead head;
    skipToTable(bytes, head);
    head.separator = findSeparator(bytes);
    RowCollector collector;
    CsvParser parser(path, head.separator, head.line, collector);
    parser.feed(bytes);
    if (isWholeFile)
        parser.finish();
    else if (collector.rows.empty())
        throw ReadError(path, head.line,
                        QStringLiteral("the first row is longer than %1 KiB; is a quotation mark "
                                       "left open in it?")
                            .arg(bytes.size() / 1024));
    head.rows = std::move(collector.rows);
    if (head.rows.empty())
        throw ReadError(path, QStringLiteral("holds no table, only blank lines and comments"));
    head.decimalPoint = findDecimalPoint(head.rows, head.separator);
    head.hasNames = isRowOfNames(head.rows, head.decimalPoint);
    const CsvHead::Row names = head.hasNames ? head.rows.front() : CsvHead::Row();
    if (head.hasNames)
        head.rows.erase(head.rows.begin());
    head.names = columnNames(names, head.rows);
    return head;
}

} // namespace hosts::data
