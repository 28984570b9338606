#include "hosts/kestrane-chart/CommandLine.h"

#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <kestrane/backend/QuantityManager.h>

#include <QFileInfo>
#include <QRegularExpression>

#include <CLI/CLI.hpp>

#include <cmath>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hosts::chart {

using charting::AxisDivision;
using charting::TickPlaces;
using pelorin::utilities::Singleton;
using pelorin::variables::QuantityManager;

namespace {

constexpr auto footer = R"(Data
  Tables (CSV, TSV) and sounds (WAV, FLAC, Ogg). Each column or channel becomes a curve. A missing
  number is a gap in its curve.

Ranges
  --from, --to, --bottom and --top are kept exactly. What is left open follows from the data: x
  covers them and ends on a tick, y leaves some room above and below.
  With moving ticks the ticks stand on round values, wherever these fall in the range; with fixed
  ticks they divide the range evenly, whatever values that gives.

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

// As the options stand on the command line, before they are checked and put in order.
struct RawOptions
{
    std::vector<std::string> inputs;
    std::string output;
    std::vector<std::string> columns;
    std::vector<int> channels;
    std::string timeColumn;
    std::vector<std::string> legend;
    std::string title;
    std::string ticks = "moving";
    std::string look = "light";
    std::string size = "1000x600";
    std::string xCaption, yCaption, xQuantity, yQuantity, xUnit, yUnit;
    std::optional<double> start, step, from, to, bottom, top, xReference, yReference;
    double dpi = 96.0;
    double symbols = 8.0;
    bool noLegend = false;
};

QString text(const std::string& raw)
{
    return QString::fromStdString(raw);
}

QStringList texts(const std::vector<std::string>& raw)
{
    QStringList list;
    for (const std::string& item : raw)
        list.append(text(item));
    return list;
}

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

void addOptions(CLI::App& app, RawOptions& raw)
{
    app.formatter(std::make_shared<HelpFormatter>());
    app.set_version_flag("--version", "kestrane-chart " KESTRANE_VERSION)->group("Other");
    app.set_help_flag("-h,--help", "Print this help and leave")->group("Other");
    app.add_option("INPUT", raw.inputs, "Recordings to draw into one chart")
        ->required()
        ->type_name("...");
    addPictureOptions(app, raw);
    addDataOptions(app, raw);
    addRangeOptions(app, raw);
    addAxisOptions(app, raw);
    app.footer(footer);
}

void checkNumbers(const RawOptions& raw)
{
    const std::map<const char*, std::optional<double>> numbers = {
        {"--start", raw.start},    {"--step", raw.step}, {"--from", raw.from},
        {"--to", raw.to},          {"--top", raw.top},   {"--x-relative", raw.xReference},
        {"--bottom", raw.bottom},  {"--dpi", raw.dpi},   {"--y-relative", raw.yReference},
        {"--symbols", raw.symbols}};
    for (const auto& [name, value] : numbers) {
        if (value && !std::isfinite(*value))
            throw UsageError(QStringLiteral("%1: not a finite number").arg(QLatin1String(name)));
    }
    if (raw.step && !(*raw.step > 0.0))
        throw UsageError(QStringLiteral("--step: must be greater than 0"));
    for (const int channel : raw.channels) {
        if (channel < 1)
            throw UsageError(QStringLiteral("--channel %1: they count from 1").arg(channel));
    }
    if (raw.symbols < 0.0)
        throw UsageError(QStringLiteral("--symbols: must not be negative"));
}

void checkRange(const AxisOptions& axis)
{
    if (!axis.from || !axis.to || AxisDivision::isUsableRange(*axis.from, *axis.to))
        return;
    const bool isOrdered = *axis.from < *axis.to;
    throw UsageError(axis.rangeText() +
                     (isOrdered ? QStringLiteral(": the range is too narrow or too wide")
                                : QStringLiteral(": the range is empty")));
}

void checkQuantity(const std::string& name)
{
    const QStringList known = Singleton<QuantityManager>::instance().names();
    if (!name.empty() && !known.contains(text(name)))
        throw UsageError(QStringLiteral("unknown quantity '%1'; there are %2")
                             .arg(text(name), known.join(QStringLiteral(", "))));
}

QSize readSize(const std::string& raw)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(text(raw));
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (!match.hasMatch() || size.width() < 160 || size.height() < 120)
        throw UsageError(QStringLiteral("--size %1: give WIDTHxHEIGHT in pixels, 160x120 or more")
                             .arg(text(raw)));
    return size;
}

void checkPixels(const QSize& size, double dpi)
{
    if (dpi < 24.0 || dpi > 2400.0)
        throw UsageError(QStringLiteral("--dpi %1: must be from 24 to 2400").arg(dpi));
    const double width = size.width() * dpi / 96.0;
    const double height = size.height() * dpi / 96.0;
    // The painter's own limit for a side, and 400 megabytes.
    if (width > 32000.0 || height > 32000.0 || width * height > 1e8)
        throw UsageError(QStringLiteral("a picture of %1x%2 pixels is too large")
                             .arg(std::lround(width))
                             .arg(std::lround(height)));
}

void checkFiles(const Options& options)
{
    PictureFile::formatOf(options.output);
    for (const QString& input : options.inputs) {
        if (QFileInfo(input).exists() && QFileInfo(input) == QFileInfo(options.output))
            throw UsageError(QStringLiteral("%1: would be overwritten by the picture").arg(input));
    }
}

data::ReadOptions readOptionsOf(const RawOptions& raw)
{
    data::ReadOptions read;
    read.columns = texts(raw.columns);
    for (const int channel : raw.channels)
        read.columns.append(QString::number(channel));
    read.timeColumn = text(raw.timeColumn);
    read.start = raw.start;
    read.step = raw.step;
    return read;
}

AxisOptions xOptionsOf(const RawOptions& raw)
{
    AxisOptions x;
    x.fromName = QStringLiteral("--from");
    x.toName = QStringLiteral("--to");
    x.caption = text(raw.xCaption);
    x.quantity = text(raw.xQuantity);
    x.unit = text(raw.xUnit);
    x.from = raw.from;
    x.to = raw.to;
    x.reference = raw.xReference.value_or(x.reference);
    return x;
}

AxisOptions yOptionsOf(const RawOptions& raw)
{
    AxisOptions y;
    y.fromName = QStringLiteral("--bottom");
    y.toName = QStringLiteral("--top");
    y.caption = text(raw.yCaption);
    y.quantity = text(raw.yQuantity);
    y.unit = text(raw.yUnit);
    y.from = raw.bottom;
    y.to = raw.top;
    y.reference = raw.yReference.value_or(y.reference);
    return y;
}

Options optionsOf(const RawOptions& raw)
{
    checkNumbers(raw);
    checkQuantity(raw.xQuantity);
    checkQuantity(raw.yQuantity);
    Options options;
    options.inputs = texts(raw.inputs);
    options.output = text(raw.output);
    options.read = readOptionsOf(raw);
    options.x = xOptionsOf(raw);
    options.y = yOptionsOf(raw);
    options.ticks = raw.ticks == "fixed" ? TickPlaces::Fixed : TickPlaces::Moving;
    options.title = text(raw.title);
    options.legend = texts(raw.legend);
    options.showLegend = !raw.noLegend;
    options.isDark = raw.look == "dark";
    options.symbolSpacing = raw.symbols;
    options.size = readSize(raw.size);
    options.dpi = raw.dpi;
    checkRange(options.x);
    checkRange(options.y);
    checkPixels(options.size, options.dpi);
    checkFiles(options);
    return options;
}

} // namespace

std::optional<Options> readCommandLine(int argc, char** argv)
{
    CLI::App app("Draws measured data.", "kestrane-chart");
    RawOptions raw;
    addOptions(app, raw);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) { // The help or the version was asked for.
        app.exit(success, std::cout, std::cerr);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(text(error.what()) + QStringLiteral(" (see --help)"));
    }
    return optionsOf(raw);
}

} // namespace hosts::chart
