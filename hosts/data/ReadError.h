#ifndef HOSTS_DATA_READERROR_H
#define HOSTS_DATA_READERROR_H

#include <QString>

#include <stdexcept>

namespace hosts::data {

/// Why a recording could not be read. what() is one line of UTF-8 without control characters, such
/// as `ecg.csv, line 17: time "x" is not a number`.
class ReadError : public std::runtime_error
{
public:
    ReadError(const QString& path, const QString& problem);

    /// @param line counted from 1, as a text editor does
    ReadError(const QString& path, long long line, const QString& problem);
};

/// @p text made fit for a message: in quotation marks, shortened when long.
QString quoted(const QString& text);

} // namespace hosts::data

#endif
