#include "hosts/data/RecordingReader.h"

#include "hosts/data/AudioReader.h"
#include "hosts/data/CsvReader.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>

namespace hosts::data {

namespace {

void checkOptions(const QString& path, const ReadOptions& options)
{
    if (options.start && !std::isfinite(*options.start))
        throw ReadError(path, QStringLiteral("the start has to be a finite number"));
    if (options.step && !(std::isfinite(*options.step) && *options.step > 0.0))
        throw ReadError(path, QStringLiteral("the step has to be a positive, finite number"));
}

void checkFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw ReadError(path, QStringLiteral("there is no such file"));
    if (info.isDir())
        throw ReadError(path, QStringLiteral("is a directory, not a file"));
    if (!info.isFile())
        throw ReadError(path, QStringLiteral("is a device or a pipe, not a regular file"));
    if (info.size() == 0)
        throw ReadError(path, QStringLiteral("is empty"));
}

} // namespace

std::vector<Series> readRecording(const QString& path, const ReadOptions& options,
                                  const Progress& progress)
{
    checkOptions(path, options);
    checkFile(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ReadError(path, file.errorString());
    const Progress report = progress ? progress : [](double) {};
    return isAudio(path, file.peek(AudioMagicSize)) ? readAudio(path, options, report)
                                                    : readCsv(file, options, report);
}

} // namespace hosts::data
