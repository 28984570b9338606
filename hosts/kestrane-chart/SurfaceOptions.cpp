#include "hosts/kestrane-chart/SurfaceOptions.h"

#include "hosts/charting/ColorScheme.h"
#include "hosts/kestrane-chart/OptionParser.h"
#include "hosts/kestrane-chart/UsageError.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <vector>

namespace hosts::chart {

namespace {

QString text(const std::string& raw)
{
    return QString::fromStdString(raw);
}

std::vector<std::string> schemeNames()
{
    std::vector<std::string> names;
    for (const QString& name : charting::ColorScheme::names())
        names.push_back(name.toStdString());
    return names;
}

QVector<double> thresholdsOf(const std::string& raw)
{
    const auto fail = [&](const char* problem) {
        throw UsageError(
            QStringLiteral("--thresholds %1: %2").arg(text(raw), QLatin1String(problem)));
    };
    QVector<double> thresholds;
    for (const QString& part : text(raw).split(QLatin1Char(','))) {
        bool isNumber = false;
        const double threshold = part.trimmed().toDouble(&isNumber);
        if (!isNumber || !(std::abs(threshold) < 1e300))
            fail("give numbers with commas between them");
        if (!thresholds.isEmpty() && !(threshold > thresholds.last()))
            fail("they must ascend");
        thresholds.append(threshold);
    }
    if (thresholds.size() > 256)
        fail("256 are the most");
    return thresholds;
}

std::pair<int, int> binsOf(const std::string& raw)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,4})(x([0-9]{1,4}))?$"));
    const QRegularExpressionMatch match = form.match(text(raw));
    const int across = match.captured(1).toInt();
    const int upwards = match.captured(3).isEmpty() ? across : match.captured(3).toInt();
    if (!match.hasMatch() || across < 2 || upwards < 2)
        throw UsageError(QStringLiteral("--bins %1: give N or NxM, from 2 to 9999").arg(text(raw)));
    return {across, upwards};
}

double finite(const char* name, const std::optional<double>& value, double otherwise)
{
    if (value && !std::isfinite(*value))
        throw UsageError(QStringLiteral("%1: not a finite number").arg(QLatin1String(name)));
    return value.value_or(otherwise);
}

} // namespace

void RawSurfaceOptions::addTo(OptionParser& parser)
{
    const auto add = [&](const OptionParser::Option& option) {
        parser.add("Cells and columns", option);
    };
    add({"--colors", &m_colors, "NAME",
         "dusk, the default; lagoon, ice, grey; poles for both signs", schemeNames()});
    add({"--color-scale",
         &m_scale,
         "KIND",
         "log, the default for events; linear for all else",
         {"linear", "log"}});
    add({"--thresholds", &m_thresholds, "A,B,...",
         "Where the colours begin, in place of computed ones"});
    add({"--classes", &m_classes, "N", "Number of colours, 2 to 256"});
    add({"--color-caption", &m_caption, "TEXT", "What the colours show"});
    add({"--bins", &m_bins, "N", "Cells to count events in, N or NxM"});
    add({"--row-start", &m_rowStart, "Y", "y of the first row of a table"});
    add({"--row-step", &m_rowStep, "Y", "Distance of the rows in y"});
    add({"--window", &m_window, "N",
         "Samples in a column of a spectrogram, by default 1024 at most"});
    add({"--overlap", &m_overlap, "PERCENT",
         "What columns have in common with the next, default 75"});
}

SurfaceOptions RawSurfaceOptions::checked() const
{
    SurfaceOptions options;
    options.colors = text(m_colors.value_or("dusk"));
    if (m_scale)
        options.scale =
            *m_scale == "log" ? SurfaceOptions::Scale::Logarithmic : SurfaceOptions::Scale::Linear;
    if (m_thresholds)
        options.thresholds = thresholdsOf(*m_thresholds);
    if (m_thresholds && (m_scale || m_classes))
        throw UsageError(
            QStringLiteral("--thresholds: leave nothing for --color-scale or --classes"));
    options.classes = m_classes;
    if (m_classes && (*m_classes < 2 || *m_classes > 256))
        throw UsageError(QStringLiteral("--classes %1: must be from 2 to 256").arg(*m_classes));
    options.caption = text(m_caption.value_or(""));
    if (m_bins)
        options.bins = binsOf(*m_bins);
    options.stretches.length = m_window;
    if (m_window && (*m_window < 4 || *m_window > 1 << 20))
        throw UsageError(QStringLiteral("--window %1: must be from 4 to 1048576").arg(*m_window));
    options.stretches.overlap = finite("--overlap", m_overlap, 75.0) / 100.0;
    if (options.stretches.overlap < 0.0 || options.stretches.overlap > 0.99)
        throw UsageError(QStringLiteral("--overlap: must be from 0 to 99"));
    options.rowStart = finite("--row-start", m_rowStart, 0.0);
    options.rowStep = finite("--row-step", m_rowStep, 1.0);
    if (!(options.rowStep > 0.0))
        throw UsageError(QStringLiteral("--row-step: must be greater than 0"));
    return options;
}

QString RawSurfaceOptions::firstGiven() const
{
    const std::pair<const char*, bool> all[] = {
        {"--colors", m_colors.has_value()},         {"--color-scale", m_scale.has_value()},
        {"--thresholds", m_thresholds.has_value()}, {"--classes", m_classes.has_value()},
        {"--color-caption", m_caption.has_value()}, {"--bins", m_bins.has_value()},
        {"--row-start", m_rowStart.has_value()},    {"--row-step", m_rowStep.has_value()},
        {"--window", m_window.has_value()},         {"--overlap", m_overlap.has_value()}};
    for (const auto& [name, isGiven] : all) {
        if (isGiven)
            return QLatin1String(name);
    }
    return {};
}

} // namespace hosts::chart
