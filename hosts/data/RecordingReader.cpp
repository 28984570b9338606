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

// A step near the end of all numbers leads out of them.
void checkAbscissas(const QString& path, const std::vector<Series>& all)
{
    for (const Series& series : all) {
        const auto& last = series.snapshot.segments.back();
        if (!std::isfinite(double(last.count - 1) * last.xInfo.scale + last.xInfo.offset))
            throw ReadError(path, QStringLiteral("x gets too large for a number"));
    }
}

} // namespace

std::vector<Series> readRecording(const QString& path, const ReadOptions& options,
                                  const Progress& progress)
{
    checkOptions(path, options);
    RecordingFile file(path);
    const Progress report = progress ? progress : [](double) {};
    std::vector<Series> all =
        file.isSound() ? readAudio(path, options, report) : readCsv(file, options, report);
    checkAbscissas(path, all);
    return all;
}

} // namespace hosts::data
