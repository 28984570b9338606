#ifndef HOSTS_DATA_COLUMNCHOICE_H
#define HOSTS_DATA_COLUMNCHOICE_H

#include "hosts/data/CsvHead.h"
#include "hosts/data/ReadOptions.h"

#include <optional>
#include <vector>

namespace hosts::data {

/// Which columns of a table to read, by their index from 0.
struct ColumnChoice
{
    std::optional<int> time;
    std::vector<int> values; ///< In the order asked for, each once.
    bool isAskedFor = false; ///< False when all columns are to be tried.
};

/// The columns that @p options mean.
/// @throws ReadError when there is no such column or a name fits several
ColumnChoice chooseColumns(const QString& path, const CsvHead& head, const ReadOptions& options);

} // namespace hosts::data

#endif
