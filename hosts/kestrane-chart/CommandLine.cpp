#include "hosts/kestrane-chart/CommandLine.h"

#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/PictureFile.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <kestrane/backend/QuantityManager.h>

#include <QFileInfo>
#include <QRegularExpression>

#include <cmath>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace hosts::chart {

using pelorin::utilities::Singleton;
using pelorin::variables::QuantityManager;

namespace {

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

void checkNumbers(const RawOptions& raw)
{
    const std::pair<const char*, std::optional<double>> numbers[] = {
        {"--start", raw.start},     {"--step", raw.step},      {"--from", raw.from},
        {"--to", raw.to},           {"--top", raw.top},        {"--x-relative", raw.xReference},
        {"--bottom", raw.bottom},   {"--dpi", raw.dpi},        {"--y-relative", raw.yReference},
        {"--symbols", raw.symbols}, {"--x-joint", raw.xJoint}, {"--y-joint", raw.yJoint}};
    for (const auto& [name, value] : numbers) {
        if (value && !std::isfinite(*value))
            throw UsageError(QStringLiteral("%1: not a finite number").arg(QLatin1String(name)));
    }
    for (const double cursor : raw.cursors) {
        if (!std::isfinite(cursor))
            throw UsageError(QStringLiteral("--cursor: not a finite number"));
    }
    if (!raw.cursors.empty() && raw.plot != "line")
        throw UsageError(QStringLiteral("--cursor: only lines have crossings, not --plot %1")
                             .arg(text(raw.plot)));
    if (raw.step && !(*raw.step > 0.0))
        throw UsageError(QStringLiteral("--step: must be greater than 0"));
    for (const int channel : raw.channels) {
        if (channel < 1)
            throw UsageError(QStringLiteral("--channel %1: they count from 1").arg(channel));
    }
    if (raw.symbols < 0.0)
        throw UsageError(QStringLiteral("--symbols: must not be negative"));
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
    if (!options.output.isEmpty())
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

Show showOf(const RawOptions& raw)
{
    return raw.show == "slope"      ? Show::Slope
           : raw.show == "spectrum" ? Show::Spectrum
                                    : Show::Values;
}

Draw drawOf(const RawOptions& raw)
{
    static const std::map<std::string, Draw> kinds = {{"line", Draw::Lines},
                                                      {"xy", Draw::XY},
                                                      {"needles", Draw::Needles},
                                                      {"histogram", Draw::Histogram},
                                                      {"spectrogram", Draw::Spectrogram},
                                                      {"columns", Draw::Columns}};
    return kinds.at(raw.plot);
}

bool isSurface(Draw draw)
{
    return draw == Draw::Histogram || draw == Draw::Spectrogram || draw == Draw::Columns;
}

// What some plot is without, and would pass over.
void checkPlot(const RawOptions& raw)
{
    const Draw draw = drawOf(raw);
    const QString given = raw.surface.firstGiven();
    if (!isSurface(draw) && !given.isEmpty())
        throw UsageError(given +
                         QStringLiteral(": only for --plot histogram, spectrogram, columns"));
    if (draw == Draw::Columns && raw.surface.hasClasses())
        throw UsageError(QStringLiteral("--plot columns: has one even scale of colours, without "
                                        "--color-scale, --thresholds and --classes"));
    if (draw == Draw::Spectrogram && raw.show == "spectrum")
        throw UsageError(QStringLiteral("--show spectrum: a spectrogram shows spectra already"));
}

AxisOptions xOptionsOf(const RawOptions& raw)
{
    AxisOptions x;
    x.name = QStringLiteral("x");
    x.fromName = QStringLiteral("--from");
    x.toName = QStringLiteral("--to");
    x.caption = text(raw.xCaption);
    x.quantity = text(raw.xQuantity);
    if (showOf(raw) == Show::Spectrum && x.quantity == QLatin1String("time"))
        x.quantity = QStringLiteral("frequency");
    x.unit = text(raw.xUnit);
    x.kind = &AxisKind::named(text(raw.xKind));
    x.from = raw.from;
    x.to = raw.to;
    x.joint = raw.xJoint;
    x.reference = raw.xReference.value_or(x.reference);
    return x;
}

AxisOptions yOptionsOf(const RawOptions& raw)
{
    AxisOptions y;
    y.name = QStringLiteral("y");
    y.fromName = QStringLiteral("--bottom");
    y.toName = QStringLiteral("--top");
    y.caption = text(raw.yCaption);
    y.quantity = text(raw.yQuantity);
    if (drawOf(raw) == Draw::Spectrogram && y.quantity.isEmpty() && raw.xQuantity == "time")
        y.quantity = QStringLiteral("frequency");
    y.unit = text(raw.yUnit);
    y.kind = &AxisKind::named(text(raw.yKind));
    y.from = raw.bottom;
    y.to = raw.top;
    y.joint = raw.yJoint;
    y.reference = raw.yReference.value_or(y.reference);
    return y;
}

} // namespace

Options optionsOf(const RawOptions& raw)
{
    checkNumbers(raw);
    checkQuantity(raw.xQuantity);
    checkQuantity(raw.yQuantity);
    checkPlot(raw);
    Options options;
    options.inputs = texts(raw.inputs);
    options.output = text(raw.output);
    options.read = readOptionsOf(raw);
    options.show = showOf(raw);
    options.draw = drawOf(raw);
    options.surface = raw.surface.checked();
    const bool areValuesAlone = options.draw == Draw::XY || options.draw == Draw::Histogram ||
                                options.draw == Draw::Columns;
    if (areValuesAlone && raw.timeColumn.empty())
        options.read.timeColumn = QStringLiteral("none");
    options.x = xOptionsOf(raw);
    options.y = yOptionsOf(raw);
    options.title = text(raw.title);
    options.legend = texts(raw.legend);
    options.showLegend = !raw.noLegend;
    options.cursors = QVector<double>(raw.cursors.begin(), raw.cursors.end());
    options.isDark = raw.look == "dark";
    options.symbolSpacing = raw.symbols;
    options.size = readSize(raw.size);
    options.dpi = raw.dpi;
    options.x.kind->check(options.x);
    options.y.kind->check(options.y);
    checkPixels(options.size, options.dpi);
    checkFiles(options);
    return options;
}

} // namespace hosts::chart
