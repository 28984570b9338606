#ifndef HOSTS_DATA_CSVPARSER_H
#define HOSTS_DATA_CSVPARSER_H

#include "hosts/data/CsvSink.h"

#include <QString>

#include <csv.h>

#include <cstddef>
#include <exception>
#include <string_view>

namespace hosts::data {

/// Cuts the bytes of a file into cells and rows, and knows the line it is at.
class CsvParser
{
public:
    /// @param path for messages
    /// @param firstLine the number of the line that comes first
    CsvParser(const QString& path, char separator, long long firstLine, CsvSink& sink);
    ~CsvParser();
    CsvParser(const CsvParser&) = delete;
    CsvParser& operator=(const CsvParser&) = delete;

    /// Takes the next bytes, cut anywhere.
    /// @throws ReadError for a NUL byte and for a cell of more than a mebibyte, and what the sink
    ///         throws
    void feed(std::string_view bytes);

    /// Ends the last row where the file does not end it.
    /// @throws ReadError for a quotation mark left open, and what the sink throws
    void finish();

private:
    static void takeCell(void* text, std::size_t size, void* self);
    static void takeRowEnd(int terminator, void* self);
    void feedPartOfLine(std::string_view bytes);
    void endLine();
    void parse(std::string_view bytes);

    const QString m_path;
    CsvSink& m_sink;
    csv_parser m_parser;
    std::exception_ptr m_failure;
    long long m_line;
    long long m_rowLine;
    std::size_t m_cellBytes = 0; ///< Read since the last cell or row ended.
    bool m_isRowOpen = false;    ///< Part of a row has been read, but not its end.
    bool m_hasRowEnded = false;  ///< In this line.
};

} // namespace hosts::data

#endif
