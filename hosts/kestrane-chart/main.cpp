#include "hosts/charting/ChartPainter.h"
#include "hosts/data/RecordingReader.h"
#include "hosts/data/Slope.h"
#include "hosts/data/Spectrum.h"
#include "hosts/kestrane-chart/CommandLine.h"
#include "hosts/kestrane-chart/Drawing.h"
#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/ProgressBar.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <kestrane/library/Kestrane.h>

#include <QFileInfo>
#include <QGuiApplication>
#include <QTextCodec>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <new>
#include <string>
#include <vector>

namespace {

using namespace hosts;

constexpr int failed = 1;
constexpr int wronglyUsed = 2;

std::vector<data::Series> readOne(const QString& path, const data::ReadOptions& options)
{
    chart::ProgressBar bar(path);
    return data::readRecording(path, options, [&](double fraction) { bar.show(fraction); });
}

std::vector<data::Series> readAll(const chart::Options& options)
{
    std::vector<data::Series> all;
    for (const QString& path : options.inputs) {
        std::vector<data::Series> some = readOne(path, options.read);
        // Recordings of one kind name their columns alike.
        if (options.inputs.size() > 1) {
            for (data::Series& series : some) {
                const QString file = QFileInfo(path).completeBaseName();
                if (!series.name.startsWith(file))
                    series.name = file + QStringLiteral(": ") + series.name;
            }
        }
        std::move(some.begin(), some.end(), std::back_inserter(all));
    }
    return all;
}

data::Series shown(const data::Series& series, chart::Show show)
{
    switch (show) {
    case chart::Show::Slope:
        return data::slopeOf(series);
    case chart::Show::Spectrum:
        return data::spectrumOf(series);
    case chart::Show::Values:
        break;
    }
    return series;
}

std::vector<data::Series> readWhatToShow(const chart::Options& options)
{
    std::vector<data::Series> all = readAll(options);
    for (data::Series& series : all)
        series = shown(series, options.show);
    return all;
}

void draw(const chart::Options& options)
{
    const chart::PictureFile file(options.output, options.size, options.dpi,
                                  options.title.simplified());
    const chart::Drawing drawing = chart::Drawing::of(readWhatToShow(options), options);
    file.write([&](QPainter& painter, double deviceScale) {
        charting::ChartPainter(painter, drawing.look, deviceScale)
            .paint(drawing.chart, drawing.layout);
    });
}

// One line, whatever stands in the names of files.
int complain(std::string message, int status)
{
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7f'; };
    std::replace_if(message.begin(), message.end(), isControl, '?');
    std::fprintf(stderr, "kestrane-chart: %s\n", message.c_str());
    return status;
}

// What Qt has to say about its surroundings is not for the user of this program, unless Qt gives
// up.
void hearQt(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg)
        std::_Exit(complain(message.toStdString(), failed));
}

int run(int argc, char** argv)
{
    // Names of files and texts are UTF-8, also where the environment names no language.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const std::optional<chart::Options> options = chart::readCommandLine(argc, argv);
    if (!options)
        return 0;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // Nothing is shown on a screen.
    qInstallMessageHandler(hearQt);
    int applicationArguments = 1;
    const QGuiApplication application(applicationArguments, argv);
    Kestrane::initialize();
    draw(*options);
    Kestrane::deinitialize();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run(argc, argv);
    } catch (const chart::UsageError& error) {
        return complain(error.what(), wronglyUsed);
    } catch (const std::bad_alloc&) {
        return complain("not enough memory", failed);
    } catch (const std::exception& error) {
        return complain(error.what(), failed);
    }
}
