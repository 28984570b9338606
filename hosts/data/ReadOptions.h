#ifndef HOSTS_DATA_READOPTIONS_H
#define HOSTS_DATA_READOPTIONS_H

#include <QStringList>

#include <optional>

namespace hosts::data {

/// What to take from a recording, and where its samples lie.
struct ReadOptions
{
    /// Tables: names or 1-based numbers of columns; sounds: 1-based numbers of channels. A name
    /// goes before a number, its exact spelling before any other case. Empty: all channels, or all
    /// columns, but the time column, in which numbers outnumber other text.
    QStringList columns;

    /// Name or 1-based number of the column with the abscissas, or "none". Empty: the first column
    /// if there are others and it is called like a time, or if it holds regularly ascending
    /// numbers at the beginning of the file; else none. Without a time column the abscissa is the
    /// index of the row.
    QString timeColumn;

    /// The abscissa of the first row; goes before what the recording says. Finite.
    std::optional<double> start;

    /// The distance of the abscissas, positive and finite; goes before what the recording says.
    /// With it, only the first cell of a time column counts, so that it may be irregular.
    std::optional<double> step;
};

} // namespace hosts::data

#endif
