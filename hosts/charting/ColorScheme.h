#ifndef HOSTS_CHARTING_COLORSCHEME_H
#define HOSTS_CHARTING_COLORSCHEME_H

#include <QColor>
#include <QString>
#include <QStringList>
#include <QVector>

namespace hosts::charting {

/// A row of colours for values from low to high, straight in between in red, green and blue.
///
/// Laws:
///  1. Lightness (L* of CIELAB) only rises from low to high, so that readers with any colour vision
///     see the order of the values, on a grey print too.
///  2. In a diverging scheme it rises to the middle and falls likewise behind it.
class ColorScheme
{
public:
    static QStringList names();

    /// The scheme of that name, which has to be one of names().
    static ColorScheme named(const QString& name);

    bool isDiverging() const { return m_isDiverging; }

    /// The colour at a share of the way, 0.0 to 1.0.
    QColor at(double share) const;

    /// As many colours as are asked for at equal distances, both ends among them; a single one is
    /// that of the middle.
    QVector<QColor> colors(int count) const;

private:
    ColorScheme(const QVector<QRgb>& stops, bool isDiverging);

    QVector<QRgb> m_stops;
    bool m_isDiverging;
};

} // namespace hosts::charting

#endif
