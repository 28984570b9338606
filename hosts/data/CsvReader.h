#ifndef HOSTS_DATA_CSVREADER_H
#define HOSTS_DATA_CSVREADER_H

#include "hosts/data/RecordingFile.h"

namespace hosts::data {

/// Reads the table in @p file as readRecording() tells.
/// @throws ReadError
std::vector<Series> readCsv(RecordingFile& file, const ReadOptions& options,
                            const Progress& progress);

} // namespace hosts::data

#endif
