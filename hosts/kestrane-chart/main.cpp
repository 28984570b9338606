#include "hosts/charting/ChartPainter.h"
#include "hosts/kestrane-chart/CommandLine.h"
#include "hosts/kestrane-chart/Drawing.h"
#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <kestrane/library/Kestrane.h>

#include <QGuiApplication>
#include <QTextCodec>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

namespace {

using namespace hosts;

constexpr int failed = 1;
constexpr int wronglyUsed = 2;

void draw(const chart::Options& options)
{
    const chart::PictureFile file(options.output, options.size, options.dpi,
                                  options.title.simplified());
    const chart::Drawing drawing = chart::Drawing::of(chart::Recordings::read(options), options);
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
