#ifndef HOSTS_DATA_RECORDINGREADER_H
#define HOSTS_DATA_RECORDINGREADER_H

#include "hosts/data/ReadError.h"
#include "hosts/data/ReadOptions.h"
#include "hosts/data/Series.h"

#include <functional>
#include <vector>

namespace hosts::data {

/// Told now and then how much of a file has been read, 0 to 1, never less than before.
using Progress = std::function<void(double fraction)>;

/// Reads the recording in the file @p path.
///
/// Sounds are what libsndfile reads (WAV, FLAC, Ogg and others), known by their content or by the
/// ending of the name. Their abscissas are seconds, their values -1 to 1 of full scale. Of an
/// uncompressed sound that was cut off, what is there is read; a compressed one is an error.
///
/// All else is a table: cells separated by comma, semicolon or tab, whichever fits the first
/// lines; quoted with "" where needed; with or without a row of names at its head. Lines before
/// the table that begin with # are skipped. Decimals have a point, or a comma where the separator
/// is another.
///
/// Gaps: a cell that is empty, missing, not a number, NaN or infinite ends a segment; the next
/// number begins one at its own abscissa. A line without cells is a row of gaps. Where the time
/// column leaves out a whole number of steps, a segment ends as well.
///
/// Time columns have to be regular: each sample lies within one unit of the last decimal place
/// that the file writes, and nearer than half a step, to the abscissa that its segment gives it.
///
/// The first rows tell how many columns there are; cells beyond them are passed over.
///
/// Reads once from front to back, in memory of the size of the samples it returns.
///
/// @return the series in the order asked for, none of them without samples
/// @throws ReadError when the file cannot be read, does not hold what is asked for, or when
///         options contradict it; nothing is returned then
std::vector<Series> readRecording(const QString& path, const ReadOptions& options,
                                  const Progress& progress = {});

} // namespace hosts::data

#endif
