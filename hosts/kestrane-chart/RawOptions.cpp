#include "hosts/kestrane-chart/RawOptions.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace hosts::chart {

namespace {

constexpr auto footer = R"(Data
  Tables (CSV, TSV) and sounds (WAV, FLAC, Ogg). Each column or channel becomes a curve. A missing
  number is a gap in its curve.

Ranges
  --from, --to, --bottom and --top are kept exactly. What is left open follows from the data: x
  covers them and ends on a tick, y leaves some room above and below.
  With moving ticks the ticks stand on round values, wherever these fall in the range; with fixed
  ticks they divide the range evenly from its left or lower end on, whatever values that gives.

Pictures
  The ending of the output's name says what it becomes. A picture of 1000x600 has as many pixels
  at 96 dpi, four times as many at 192; lettering and lines grow with it.

Exit status: 0 done; 1 it could not be done; 2 wrong usage. A picture is written whole or not at all.

Examples
  kestrane-chart ecg.csv --step 0.0027777778 --x-quantity time --y-unit mV -o ecg.png
  kestrane-chart eeg.csv --column Fz --column Cz --from 2 --to 4 --look dark -o eeg.svg
  kestrane-chart voice.flac --x-quantity time --title Voice --dpi 192 -o voice.png)";

// Says of an option only what to write behind it; the rest is in its description.
class HelpFormatter : public CLI::Formatter
{
public:
    HelpFormatter() { column_width(30); }

    std::string make_option_opts(const CLI::Option* option) const override
    {
        const std::string type = option->get_type_name();
        return type.empty() ? type : ' ' + type.substr(0, type.find(':'));
    }
};

void addDataOptions(CLI::App& app, RawOptions& raw)
{
    const auto group = [](CLI::Option* option) { option->group("Data"); };
    group(app.add_option("--column", raw.columns, "Column to draw, by name or number; repeatable")
              ->allow_extra_args(false)
              ->type_name("NAME"));
    group(app.add_option("--channel", raw.channels, "Channel of a sound to draw; repeatable")
              ->allow_extra_args(false)
              ->type_name("N"));
    group(app.add_option("--time-column", raw.timeColumn,
                         "Column with the x values, or 'none' to count the rows")
              ->type_name("NAME"));
    group(app.add_option("--start", raw.start, "x of the first sample")->type_name("X"));
    group(app.add_option("--step", raw.step, "Distance of the samples in x")->type_name("X"));
}

void addRangeOptions(CLI::App& app, RawOptions& raw)
{
    const auto add = [&](const char* name, std::optional<double>& value, const char* help) {
        app.add_option(name, value, help)->type_name("VALUE")->group("Range");
    };
    add("--from", raw.from, "x at the left");
    add("--to", raw.to, "x at the right");
    add("--bottom", raw.bottom, "y at the bottom");
    add("--top", raw.top, "y at the top");
}

void addAxisOptions(CLI::App& app, RawOptions& raw)
{
    const auto add = [&](const char* name, auto& value, const char* type, const char* help) {
        return app.add_option(name, value, help)->type_name(type)->group("Axes");
    };
    add("--x-caption", raw.xCaption, "TEXT", "What x is");
    add("--y-caption", raw.yCaption, "TEXT", "What y is");
    add("--x-quantity", raw.xQuantity, "NAME",
        "Quantity of x, which gives the labels a unit and its prefixes");
    add("--y-quantity", raw.yQuantity, "NAME", "Quantity of y");
    add("--x-unit", raw.xUnit, "TEXT", "Unit of x to write as it is, in place of a quantity")
        ->excludes("--x-quantity");
    add("--y-unit", raw.yUnit, "TEXT", "Unit of y")->excludes("--y-quantity");
    add("--x-relative", raw.xReference, "VALUE", "Label x by the distance from this value");
    add("--y-relative", raw.yReference, "VALUE", "Label y by the distance from this value");
    add("--ticks", raw.ticks, "WHERE",
        "moving: ticks on round values, the default; fixed: at fixed places")
        ->check(CLI::IsMember({"moving", "fixed"}));
}

void addPictureOptions(CLI::App& app, RawOptions& raw)
{
    const auto add = [&](const char* name, auto& value, const char* type, const char* help) {
        return app.add_option(name, value, help)->type_name(type)->group("Picture");
    };
    add("-o,--output", raw.output, "FILE", "The picture: .png, .svg or .pdf")->required();
    add("--title", raw.title, "TEXT", "Headline");
    add("--legend", raw.legend, "NAME", "Name of a curve in place of its own; repeatable")
        ->allow_extra_args(false);
    app.add_flag("--no-legend", raw.noLegend, "No legend; else there is one for several curves")
        ->group("Picture");
    add("--symbols", raw.symbols, "N", "Mark samples that are at least N pixels apart, default 8");
    add("--look", raw.look, "WHICH", "light, the default, or dark")
        ->check(CLI::IsMember({"light", "dark"}));
    add("--size", raw.size, "WxH", "Size in pixels at 96 dpi, default 1000x600");
    add("--dpi", raw.dpi, "N", "Pixels in an inch, default 96");
}

} // namespace

void RawOptions::addTo(CLI::App& app)
{
    app.formatter(std::make_shared<HelpFormatter>());
    app.set_version_flag("--version", "kestrane-chart " KESTRANE_VERSION)->group("Other");
    app.set_help_flag("-h,--help", "Print this help and leave")->group("Other");
    app.add_option("INPUT", inputs, "Recordings to draw into one chart")
        ->required()
        ->type_name("...");
    addPictureOptions(app, *this);
    addDataOptions(app, *this);
    addRangeOptions(app, *this);
    addAxisOptions(app, *this);
    app.footer(footer);
}

} // namespace hosts::chart
