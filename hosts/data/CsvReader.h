#ifndef HOSTS_DATA_CSVREADER_H
#define HOSTS_DATA_CSVREADER_H

#include "hosts/data/RecordingReader.h"

#include <QFile>

namespace hosts::data {

/// Reads the table in @p file, open at its beginning, as readRecording() tells.
/// @throws ReadError
std::vector<Series> readCsv(QFile& file, const ReadOptions& options, const Progress& progress);

} // namespace hosts::data

#endif
