#include "hosts/data/RecordingReader.h"

#include "hosts/data/AudioReader.h"
#include "hosts/data/CsvReader.h"

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

} // namespace

std::vector<Series> readRecording(const QString& path, const ReadOptions& options,
                                  const Progress& progress)
{
    checkOptions(path, options);
    RecordingFile file(path);
    const Progress report = progress ? progress : [](double) {};
    return file.isSound() ? readAudio(path, options, report) : readCsv(file, options, report);
}

} // namespace hosts::data
