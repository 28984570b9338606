#include "hosts/kestrane-viewer/ViewerOptions.h"

#include "hosts/kestrane-chart/CommandLine.h"

#include <CLI/CLI.hpp>

#include <string>

namespace hosts::viewer {

namespace {

constexpr auto handling = R"(Handling
  Drag in the plot to scroll, on the numbers of an axis to scroll that one; with the right button
  there to scale it. Turn the wheel, or pinch, to zoom around the pointer.
  arrows, + -    scroll and zoom          Home     all data
  C, double click    a cursor, to drag    F        y fits what is to be seen
  Delete    takes away the cursor below   Escape   takes back the drag that is going on

)";

} // namespace

std::optional<ViewerOptions> ViewerOptions::read(int argc, char** argv)
{
    CLI::App app("Shows measured data in a window.", "kestrane-viewer");
    chart::RawOptions raw;
    raw.addTo(app);
    app.footer(std::string(handling) + chart::RawOptions::guide());
    if (!chart::readCommandLine(app, argc, argv))
        return std::nullopt;
    ViewerOptions options;
    options.chart = chart::optionsOf(raw);
    options.asksForLook = app.count("--look") > 0;
    options.asksForSize = app.count("--size") > 0;
    return options;
}

} // namespace hosts::viewer
