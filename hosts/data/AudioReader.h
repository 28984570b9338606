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

/// Reads the sound in the file @p path as readRecording() tells.
/// @throws ReadError, also for a sound with fewer samples than its header says, in so far as
///         libsndfile passes on what the header says; of a cut WAV it does not
std::vector<Series> readAudio(const QString& path, const ReadOptions& options,
                              const Progress& progress);

} // namespace hosts::data

#endif
