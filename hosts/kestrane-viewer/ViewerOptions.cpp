#include "hosts/kestrane-viewer/ViewerOptions.h"

#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/CommandLine.h"
#include "hosts/kestrane-chart/OptionParser.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <cmath>
#include <string>

namespace hosts::viewer {

using chart::UsageError;

namespace {

constexpr auto handling = R"(Handling
  Drag in the plot to scroll, on the numbers of an axis to scroll that one; with the right button
  there to scale it. Turn the wheel, or pinch, to zoom around the pointer.
  arrows, + -    scroll and zoom          Home     all data
  Space    stops or goes on following data that come in
  C, double click    a cursor, to drag    F        y fits what is to be seen
  Delete    takes away the cursor below   Escape   takes back the drag that is going on

)";

void checkLive(ViewerOptions& options)
{
    if (!(std::isfinite(options.seconds) && options.seconds > 0.0))
        throw UsageError(QStringLiteral("--seconds: must be greater than 0"));
    if (!(options.rate >= 1.0 && options.rate <= 1e8))
        throw UsageError(QStringLiteral("--rate: must be from 1 to 100000000"));
    if (options.live.isEmpty())
        return;
    chart::Options& shown = options.chart;
    if (!shown.inputs.isEmpty())
        throw UsageError(QStringLiteral("--live: there can be no recordings beside it"));
    if (shown.draw != chart::Draw::Lines && shown.draw != chart::Draw::Needles)
        throw UsageError(QStringLiteral("--live: only for --plot line and needles"));
    if (shown.show != chart::Show::Values)
        throw UsageError(QStringLiteral("--live: shows values only"));
    if (shown.x.from || shown.x.to)
        throw UsageError(QStringLiteral("--live: what is in view is told by --seconds"));
    if (!shown.x.kind->isEven())
        throw UsageError(QStringLiteral("--live: x has to be linear"));
    shown.read.timeColumn = QStringLiteral("none");
}

} // namespace

std::optional<ViewerOptions> ViewerOptions::read(int argc, char** argv)
{
    chart::OptionParser parser("kestrane-viewer", KESTRANE_VERSION,
                               "Shows measured data in a window.");
    chart::RawOptions raw;
    raw.addTo(parser);
    std::string live;
    double seconds = 10.0, rate = 20000.0;
    parser.add("Live", {"--live", &live, "SOURCE",
                        "Show data while they come: 'signal', a file that grows, or '-' for the "
                        "standard input"});
    parser.add("Live", {"--seconds", &seconds, "X", "How much of x to keep in view, default 10"});
    parser.add("Live", {"--rate", &rate, "N", "Samples of the signal in a second, default 20000"});
    parser.setGuide(std::string(handling) + chart::RawOptions::guide());
    if (!parser.parse(argc, argv))
        return std::nullopt;
    ViewerOptions options;
    if (live == "signal" && raw.xQuantity.empty() && raw.xUnit.empty())
        raw.xQuantity = "time";
    options.chart = chart::optionsOf(raw);
    options.live = QString::fromStdString(live);
    options.seconds = seconds;
    options.rate = rate;
    checkLive(options);
    options.asksForLook = parser.has("--look");
    options.asksForSize = parser.has("--size");
    return options;
}

} // namespace hosts::viewer
