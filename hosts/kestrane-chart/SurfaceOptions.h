#ifndef HOSTS_KESTRANE_CHART_SURFACEOPTIONS_H
#define HOSTS_KESTRANE_CHART_SURFACEOPTIONS_H

#include "hosts/data/Spectrogram.h"

#include <QString>
#include <QVector>

#include <optional>
#include <string>
#include <utility>

namespace hosts::chart {

class OptionParser;

/// What the user wants of a plot of cells or columns.
struct SurfaceOptions
{
    enum class Scale { Linear, Logarithmic };

    QString colors = QStringLiteral("dusk"); ///< The name of a scheme.
    std::optional<Scale> scale;
    QVector<double> thresholds; ///< Ascending; empty for computed ones.
    std::optional<int> classes;
    QString caption;
    std::optional<std::pair<int, int>> bins;
    data::Stretches stretches;
    double rowStart = 0.0;
    double rowStep = 1.0;
};

/// These options as they stand on the command line.
class RawSurfaceOptions
{
public:
    /// As RawOptions::addTo().
    void addTo(OptionParser& parser);

    /// Checked and in order.
    /// @throws UsageError
    SurfaceOptions checked() const;

    /// What the command line calls one of them that is there; empty if there is none.
    QString firstGiven() const;

    /// Whether they say anything of single colours.
    bool hasClasses() const { return m_scale || m_thresholds || m_classes; }

private:
    std::optional<std::string> m_colors, m_scale, m_thresholds, m_caption, m_bins;
    std::optional<int> m_classes;
    std::optional<long long> m_window;
    std::optional<double> m_overlap, m_rowStart, m_rowStep;
};

} // namespace hosts::chart

#endif
