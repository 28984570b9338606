#include "hosts/data/CsvParser.h"

#include "hosts/data/ReadError.h"

#include <new>

namespace hosts::data {

namespace {

constexpr std::size_t LongestCell = std::size_t(1) << 20;
constexpr std::size_t CellGrowth = LongestCell / 16;

bool isBlank(std::string_view bytes)
{
    return bytes.find_first_not_of(" \t\r\n") == bytes.npos;
}

} // namespace

CsvParser::CsvParser(const QString& path, char separator, long long firstLine, CsvSink& sink)
    : m_path(path)
    , m_sink(sink)
    , m_line(firstLine)
    , m_rowLine(firstLine)
{
    if (csv_init(&m_parser, 0) != 0)
        throw std::bad_alloc();
    csv_set_blk_size(&m_parser, CellGrowth);
    csv_set_delim(&m_parser, static_cast<unsigned char>(separator));
}

CsvParser::~CsvParser()
{
    csv_free(&m_parser);
}

void CsvParser::feed(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t newline = bytes.find('\n');
        const bool isWholeLine = newline != bytes.npos;
        const std::size_t size = isWholeLine ? newline + 1 : bytes.size();
        feedPartOfLine(bytes.substr(0, size));
        if (isWholeLine)
            endLine();
        bytes.remove_prefix(size);
    }
}

void CsvParser::feedPartOfLine(std::string_view bytes)
{
    if (bytes.find('\0') != bytes.npos)
        throw ReadError(m_path, m_line,
                        QStringLiteral("a NUL byte; this is neither text nor a known sound file"));
    if (!m_isRowOpen && !isBlank(bytes)) {
        m_isRowOpen = true;
        m_rowLine = m_line;
    }
    m_cellBytes += bytes.size();
    parse(bytes);
    if (m_cellBytes > LongestCell)
        throw ReadError(m_path, m_rowLine,
                        QStringLiteral("a cell is longer than 1 MiB; is a quotation mark left open "
                                       "in this row?"));
}

void CsvParser::endLine()
{
    // libcsv does not tell of blank lines.
    if (!m_isRowOpen && !m_hasRowEnded)
        m_sink.endRow(m_line);
    m_hasRowEnded = false;
    ++m_line;
}

void CsvParser::parse(std::string_view bytes)
{
    if (csv_parse(&m_parser, bytes.data(), bytes.size(), takeCell, takeRowEnd, this) !=
        bytes.size())
        throw ReadError(m_path, m_line, QString::fromUtf8(csv_strerror(csv_error(&m_parser))));
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void CsvParser::finish()
{
    // Strict from here on only: within the table libcsv shall bear with stray quotation marks.
    csv_set_opts(&m_parser, CSV_STRICT | CSV_STRICT_FINI);
    if (csv_fini(&m_parser, takeCell, takeRowEnd, this) != 0)
        throw ReadError(m_path, m_rowLine,
                        QStringLiteral("a quotation mark opened in this row is never closed"));
    if (m_failure)
        std::rethrow_exception(m_failure);
}

// Exceptions may not pass through libcsv, which is C: they wait for the end of the line.
void CsvParser::takeCell(void* text, std::size_t size, void* self)
{
    auto& parser = *static_cast<CsvParser*>(self);
    parser.m_cellBytes = 0;
    if (parser.m_failure)
        return;
    try {
        parser.m_sink.cell({static_cast<const char*>(text), size});
    } catch (...) {
        parser.m_failure = std::current_exception();
    }
}

void CsvParser::takeRowEnd(int, void* self)
{
    auto& parser = *static_cast<CsvParser*>(self);
    parser.m_isRowOpen = false;
    parser.m_hasRowEnded = true;
    parser.m_cellBytes = 0;
    if (parser.m_failure)
        return;
    try {
        parser.m_sink.endRow(parser.m_rowLine);
    } catch (...) {
        parser.m_failure = std::current_exception();
    }
}

} // namespace hosts::data
