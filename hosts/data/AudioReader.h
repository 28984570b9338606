#ifndef HOSTS_DATA_AUDIOREADER_H
#define HOSTS_DATA_AUDIOREADER_H

#include "hosts/data/RecordingReader.h"

#include <QByteArray>

namespace hosts::data {

/// How many bytes at the beginning of a file tell whether it is a sound.
constexpr qint64 AudioMagicSize = 12;

/// Whether the file @p path, which begins with @p head, is a sound by these bytes or by the ending
/// of its name.
bool isAudio(const QString& path, const QByteArray& head);

/// Reads the sound in the file @p path as readRecording() tells. Of a sound that has been cut off,
/// what is there.
/// @throws ReadError
std::vector<Series> readAudio(const QString& path, const ReadOptions& options,
                              const Progress& progress);

} // namespace hosts::data

#endif
