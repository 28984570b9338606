#include "hosts/kestrane-chart/RawOptions.h"

#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/OptionParser.h"

#include <utility>

namespace hosts::chart {

namespace {

constexpr auto chartGuide = R"(Data
  Tables (CSV, TSV) and sounds (WAV, FLAC, Ogg). Each column or channel becomes a curve. A missing
  number is a gap in its curve.
  --show slope draws the change from sample to sample over the distance of x; --show spectrum the
  amplitudes in the longest run without a gap, over frequency, in hertz with --x-quantity time.

Kinds of plots
  line     each column or channel over x
  xy       each further column over the first, in the order of the rows; there is no time
           column then unless --time-column names one
  needles  a stick for each sample, standing on 0; of those in a column of pixels the longest
  histogram    cells in colours: a table of numbers, its columns over x and its rows over y; or, of
               two columns, how often which values come together, of one column values and slopes
  spectrogram  the spectrum of a sound or a column over time, in colours
  columns      a stick for each column of such cells, in colours that tell how its sum grows from the
               top cell down

Ranges
  --from, --to, --bottom and --top are kept exactly. What is left open follows from the data: x
  covers them and ends on a tick, y leaves some room above and below.

Kinds of axes
  linear   ticks on round values, wherever these fall in the range
  fixed    ticks that divide the range evenly from its left or lower end on
  log      powers of ten at equal distances. Only what is above 0 has a place: a line leaves the
           picture where its values are not. An open y reaches down twelve decades at the most.
  bipolar  such an axis for each sign, end to end, with equal limits. They meet at the joint, by
           default six decades below the limits at the most; what is nearer to 0 lies on it.

Cursors
  A ring marks where a cursor crosses a curve within the picture, with the value of the curve as it
  is drawn: between two samples that of the spline, on a log or bipolar y axis of a straight line.
)";

constexpr auto pictureGuide = R"(
Pictures
  The ending of the output's name says what it becomes. A picture of 1000x600 has as many pixels
  at 96 dpi, four times as many at 192; lettering and lines grow with it.

Exit status: 0 done; 1 it could not be done; 2 wrong usage. A picture is written whole or not at all.

Examples
  kestrane-chart ecg.csv --step 0.0027777778 --x-quantity time --y-unit mV -o ecg.png
  kestrane-chart eeg.csv --column Fz --column Cz --from 2 --to 4 --look dark -o eeg.svg
  kestrane-chart eeg.csv --column Fz --from 2 --to 4 --cursor 2.5 --cursor 3.1 -o alpha.png
  kestrane-chart voice.flac --x-quantity time --title Voice --dpi 192 -o voice.png
  kestrane-chart loop.csv --plot xy --column field --column flux -o loop.png
  kestrane-chart voice.flac --plot spectrogram --x-quantity time --y-axis log -o voice.png
  kestrane-chart hits.csv --plot histogram --column x --column y --bins 200x100 -o hits.png
  kestrane-chart voice.flac --show spectrum --x-axis log --y-axis log -o spectrum.png)";

std::vector<std::string> kindNames()
{
    std::vector<std::string> names;
    for (const QString& name : AxisKind::names())
        names.push_back(name.toStdString());
    return names;
}

void addDataOptions(OptionParser& parser, RawOptions& raw)
{
    const auto add = [&](const OptionParser::Option& option) { parser.add("Data", option); };
    add({"--column", &raw.columns, "NAME", "Column to draw, by name or number; repeatable"});
    add({"--channel", &raw.channels, "N", "Channel of a sound to draw; repeatable"});
    add({"--time-column", &raw.timeColumn, "NAME",
         "Column with the x values, or 'none' to count the rows"});
    add({"--show",
         &raw.show,
         "WHAT",
         "values, the default; slope or spectrum: see below",
         {"values", "slope", "spectrum"}});
    add({"--plot",
         &raw.plot,
         "KIND",
         "Kind of plot, line by default: see below",
         {"line", "xy", "needles", "histogram", "spectrogram", "columns"}});
    add({"--start", &raw.start, "X", "x of the first sample"});
    add({"--step", &raw.step, "X", "Distance of the samples in x"});
}

void addRangeOptions(OptionParser& parser, RawOptions& raw)
{
    const auto add = [&](const OptionParser::Option& option) { parser.add("Range", option); };
    add({"--from", &raw.from, "VALUE", "x at the left"});
    add({"--to", &raw.to, "VALUE", "x at the right"});
    add({"--bottom", &raw.bottom, "VALUE", "y at the bottom"});
    add({"--top", &raw.top, "VALUE", "y at the top"});
}

void addAxisOptions(OptionParser& parser, RawOptions& raw)
{
    const auto add = [&](const OptionParser::Option& option) { parser.add("Axes", option); };
    for (const auto& [name, kind] :
         {std::pair("--x-axis", &raw.xKind), std::pair("--y-axis", &raw.yKind)})
        add({name, kind, "KIND", "linear, the default; fixed, log or bipolar: see below",
             kindNames()});
    add({"--x-joint", &raw.xJoint, "VALUE", "Where the halves of a bipolar x axis meet"});
    add({"--y-joint", &raw.yJoint, "VALUE", "Where the halves of a bipolar y axis meet"});
    add({"--x-caption", &raw.xCaption, "TEXT", "What x is"});
    add({"--y-caption", &raw.yCaption, "TEXT", "What y is"});
    add({"--x-quantity", &raw.xQuantity, "NAME",
         "Quantity of x, which gives the labels a unit and its prefixes"});
    add({"--y-quantity", &raw.yQuantity, "NAME", "Quantity of y"});
    add({"--x-unit",
         &raw.xUnit,
         "TEXT",
         "Unit of x to write as it is, in place of a quantity",
         {},
         "--x-quantity"});
    add({"--y-unit", &raw.yUnit, "TEXT", "Unit of y", {}, "--y-quantity"});
    add({"--x-relative", &raw.xReference, "VALUE", "Label x by the distance from this value"});
    add({"--y-relative", &raw.yReference, "VALUE", "Label y by the distance from this value"});
}

void addLookOptions(OptionParser& parser, RawOptions& raw)
{
    const auto add = [&](const OptionParser::Option& option) { parser.add("Look", option); };
    add({"--title", &raw.title, "TEXT", "Headline"});
    add({"--legend", &raw.legend, "NAME", "Name of a curve in place of its own; repeatable"});
    parser.addFlag("Look", "--no-legend", raw.noLegend,
                   "No legend; else there is one for several curves");
    add({"--cursor", &raw.cursors, "X",
         "Vertical line at X that tells the values of the curves there; repeatable"});
    add({"--symbols", &raw.symbols, "N",
         "Mark samples that are at least N pixels apart, default 8"});
    add({"--look", &raw.look, "WHICH", "light, the default, or dark", {"light", "dark"}});
    add({"--size", &raw.size, "WxH", "Size in pixels at 96 dpi, default 1000x600"});
}

} // namespace

void RawOptions::addTo(OptionParser& parser)
{
    parser.addArguments("INPUT", inputs, "Recordings to draw into one chart");
    addLookOptions(parser, *this);
    addDataOptions(parser, *this);
    addRangeOptions(parser, *this);
    addAxisOptions(parser, *this);
    surface.addTo(parser);
}

void RawOptions::addPictureTo(OptionParser& parser)
{
    const auto add = [&](const OptionParser::Option& option) { parser.add("Picture", option); };
    add({"-o,--output", &output, "FILE", "The picture: .png, .svg or .pdf"});
    add({"--dpi", &dpi, "N", "Pixels in an inch, default 96"});
    parser.require("INPUT");
    parser.require("--output");
    parser.setGuide(std::string(chartGuide) + pictureGuide);
}

const char* RawOptions::guide()
{
    return chartGuide;
}

} // namespace hosts::chart
