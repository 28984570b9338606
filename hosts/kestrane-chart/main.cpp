#include "hosts/charting/ChartPainter.h"
#include "hosts/kestrane-chart/CommandLine.h"
#include "hosts/kestrane-chart/Drawing.h"
#include "hosts/kestrane-chart/OptionParser.h"
#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/Program.h"

#include <kestrane/library/Kestrane.h>

#include <QGuiApplication>

namespace {

using namespace hosts;

constexpr auto programName = "kestrane-chart";

void draw(const chart::Options& options)
{
    const chart::PictureFile file(options.output, options.size, options.dpi,
                                  options.title.simplified());
    const chart::Drawing drawing = chart::Drawing::of(chart::Recordings::read(options), options);
    file.write([&](QPainter& painter, double deviceScale) { drawing.paint(painter, deviceScale); });
}

int run(int argc, char** argv)
{
    chart::OptionParser parser(programName, KESTRANE_VERSION, "Draws measured data.");
    chart::RawOptions raw;
    raw.addTo(parser);
    raw.addPictureTo(parser);
    if (!parser.parse(argc, argv))
        return 0;
    const chart::Options options = chart::optionsOf(raw);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // Nothing is shown on a screen.
    int applicationArguments = 1;
    const QGuiApplication application(applicationArguments, argv);
    Kestrane::initialize();
    draw(options);
    Kestrane::deinitialize();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    return chart::runProgram(programName, [&] { return run(argc, argv); });
}
