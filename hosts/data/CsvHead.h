#ifndef HOSTS_DATA_CSVHEAD_H
#define HOSTS_DATA_CSVHEAD_H

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace hosts::data {

/// What the first lines of a table tell about the rest.
struct CsvHead
{
    using Row = std::vector<std::string>;

    char separator = ',';
    char decimalPoint = '.';
    bool hasNames = false; ///< The first row holds names, not values.
    QStringList names;     ///< One for each column, "column 2" where the file has none.
    std::vector<Row> rows; ///< The first rows of values.
    long long begin = 0;   ///< Where the table begins in the file, in bytes.
    long long line = 1;    ///< The line in which it begins.

    /// The cells of @p column in the first rows, empty where a row ends before it.
    std::vector<std::string> cells(int column) const;
};

/// Looks at @p bytes, the beginning of the file @p path.
/// @param isWholeFile false when the last line may be cut
/// @throws ReadError when this is no table or has no rows
CsvHead readCsvHead(const QString& path, std::string_view bytes, bool isWholeFile);

} // namespace hosts::data

#endif
