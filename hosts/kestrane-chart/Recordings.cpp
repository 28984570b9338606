#include "hosts/kestrane-chart/Recordings.h"

#include "hosts/data/MatrixReader.h"
#include "hosts/data/RecordingFile.h"
#include "hosts/data/RecordingReader.h"
#include "hosts/data/Slope.h"
#include "hosts/data/Spectrum.h"
#include "hosts/kestrane-chart/ProgressBar.h"

#include <QFileInfo>

#include <iterator>
#include <utility>

namespace hosts::chart {

using data::Series;
using pelorin::backend::MetaInfo;

namespace {

std::vector<Series> readOne(const QString& path, const data::ReadOptions& options)
{
    ProgressBar bar(path);
    return data::readRecording(path, options, [&](double fraction) { bar.show(fraction); });
}

std::vector<Series> readAll(const Options& options)
{
    std::vector<Series> all;
    for (const QString& path : options.inputs) {
        std::vector<Series> some = readOne(path, options.read);
        // Recordings of one kind name their columns alike.
        if (options.inputs.size() > 1) {
            for (Series& series : some) {
                const QString file = QFileInfo(path).completeBaseName();
                if (!series.name.startsWith(file))
                    series.name = file + QStringLiteral(": ") + series.name;
            }
        }
        std::move(some.begin(), some.end(), std::back_inserter(all));
    }
    return all;
}

Series shown(const Series& series, Show show)
{
    switch (show) {
    case Show::Slope:
        return data::slopeOf(series);
    case Show::Spectrum:
        return data::spectrumOf(series);
    case Show::Values:
        break;
    }
    return series;
}

bool mayBeMatrix(const Options& options, bool isSound)
{
    return (options.draw == Draw::Histogram || options.draw == Draw::Columns) && !isSound &&
           options.inputs.size() == 1 && options.read.columns.isEmpty() &&
           options.show == Show::Values && !options.surface.bins;
}

std::optional<data::Grid> readMatrix(const Options& options)
{
    const QString path = options.inputs.first();
    ProgressBar bar(path);
    data::Grid matrix = data::readMatrix(path, [&](double fraction) { bar.show(fraction); });
    if (matrix.shape[0] <= 2)
        return std::nullopt;
    matrix.metaInfo = {MetaInfo(options.read.start.value_or(0.0), options.read.step.value_or(1.0)),
                       MetaInfo(options.surface.rowStart, options.surface.rowStep)};
    return matrix;
}

} // namespace

Recordings Recordings::read(const Options& options)
{
    Recordings result;
    result.isSound = data::RecordingFile(options.inputs.first()).isSound();
    if (mayBeMatrix(options, result.isSound))
        result.matrix = readMatrix(options);
    if (result.matrix)
        return result;
    result.series = readAll(options);
    for (Series& series : result.series)
        series = shown(series, options.show);
    return result;
}

} // namespace hosts::chart
