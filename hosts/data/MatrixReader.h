#ifndef HOSTS_DATA_MATRIXREADER_H
#define HOSTS_DATA_MATRIXREADER_H

#include "hosts/data/Grid.h"
#include "hosts/data/RecordingReader.h"

#include <QString>

namespace hosts::data {

/// Reads the table in the file @p path as cells: its columns are those of x, its rows those of y,
/// the first row lowest. Cell (0, 0) begins at 0 in x and y, and each is 1 wide and high.
///
/// Formats as in readRecording(). A row of names at the head is passed over, as are lines without
/// cells. A cell that says there is no number is a NaN.
///
/// @throws ReadError when the file cannot be read or is a sound, when rows differ in length, a cell
///         holds other text, or there is no number at all
Grid readMatrix(const QString& path, const Progress& progress = {});

} // namespace hosts::data

#endif
