#include "hosts/charting/ColorScheme.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace hosts::charting {

// The stops are equally far apart in lightness; hue and saturation were then chosen by eye.
ColorScheme ColorScheme::named(const QString& name)
{
    static const std::map<QString, ColorScheme> schemes = {
        {QStringLiteral("dusk"),
         {{0x001f47, 0x202988, 0x762699, 0xba1f91, 0xf03173, 0xff6f5d, 0xffa360, 0xffcf70,
           0xfff5ba},
          false}},
        {QStringLiteral("lagoon"),
         {{0x021d4c, 0x043666, 0x035377, 0x077185, 0x07908f, 0x1bb18d, 0x68ce79, 0xbae464,
           0xfbf898},
          false}},
        {QStringLiteral("ice"),
         {{0x01153c, 0x003572, 0x0c5b9c, 0x0e84c4, 0x2aafea, 0x89d7f7, 0xe5faff}, false}},
        {QStringLiteral("grey"), {{0x181818, 0xf6f6f6}, false}},
        {QStringLiteral("poles"),
         {{0x064979, 0x117dba, 0x7eb7e1, 0xedf1f4, 0xe99f76, 0xc6532d, 0x8b1a10}, true}}};
    return schemes.at(name);
}

QStringList ColorScheme::names()
{
    return {QStringLiteral("dusk"), QStringLiteral("lagoon"), QStringLiteral("ice"),
            QStringLiteral("grey"), QStringLiteral("poles")};
}

ColorScheme::ColorScheme(const QVector<QRgb>& stops, bool isDiverging)
    : m_stops(stops)
    , m_isDiverging(isDiverging)
{}

QColor ColorScheme::at(double share) const
{
    const double place = std::clamp(share, 0.0, 1.0) * double(m_stops.size() - 1);
    const int stop = std::min(int(place), int(m_stops.size()) - 2);
    const double rest = place - stop;
    const QColor a(m_stops[stop]);
    const QColor b(m_stops[stop + 1]);
    const auto mix = [rest](double from, double to) { return from + rest * (to - from); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

QVector<QColor> ColorScheme::colors(int count) const
{
    QVector<QColor> colors;
    for (int i = 0; i < count; ++i)
        colors.append(at(count > 1 ? i / double(count - 1) : 0.5));
    return colors;
}

} // namespace hosts::charting
