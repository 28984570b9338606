#ifndef HOSTS_DATA_CSVSINK_H
#define HOSTS_DATA_CSVSINK_H

#include <string_view>

namespace hosts::data {

/// Takes a table cell by cell.
class CsvSink
{
public:
    virtual ~CsvSink() = default;

    /// The next cell of the row, without its quotation marks; @p text lives during the call.
    virtual void cell(std::string_view text) = 0;

    /// Ends the row; a line without cells is a row too.
    /// @param line where the row began
    virtual void endRow(long long line) = 0;
};

} // namespace hosts::data

#endif
