#include "hosts/charting/Look.h"

#include <QString>

namespace hosts::charting {

namespace {

QFont fontOfSize(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    // Hinted glyphs have other widths at other resolutions, which would shift the layout.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

// The hues are those of Okabe and Ito's palette for all kinds of colour vision; yellow, which fades
// on white, gives way to grey there, and on black the dark ones are lightened.

Look Look::light()
{
    Look look;
    look.background = QColor(0xffffff);
    look.plotBackground = QColor(0xffffff);
    look.majorGrid = QColor(0xdfe3e8);
    look.minorGrid = QColor(0xf1f3f5);
    look.frame = QColor(0x9aa3ad);
    look.text = QColor(0x22272e);
    look.faintText = QColor(0x4a525c);
    look.curveColors = {QColor(0x0072b2), QColor(0xd55e00), QColor(0x009e73), QColor(0xb85a94),
                        QColor(0xe69f00), QColor(0x3fa0d8), QColor(0x5f6770), QColor(0x7a4b1e)};
    return look;
}

Look Look::dark()
{
    Look look;
    look.background = QColor(0x15191e);
    look.plotBackground = QColor(0x1a1f25);
    look.majorGrid = QColor(0x303842);
    look.minorGrid = QColor(0x232930);
    look.frame = QColor(0x6b7580);
    look.text = QColor(0xe8ebee);
    look.faintText = QColor(0xb3bbc4);
    look.curveColors = {QColor(0x56b4e9), QColor(0xf0a030), QColor(0x2fc79a), QColor(0xe08cc0),
                        QColor(0xf0e442), QColor(0xff7a45), QColor(0x7f9dff), QColor(0xc8ced4)};
    return look;
}

QColor Look::curveColor(int index) const
{
    const int count = int(curveColors.size());
    QColor color = curveColors.at(index % count);
    switch ((index / count) % 3) {
    case 1:
        return color.darker(150);
    case 2:
        return color.lighter(140);
    default:
        return color;
    }
}

QFont Look::textFont() const
{
    return fontOfSize(textSize);
}

QFont Look::titleFont() const
{
    QFont font = fontOfSize(titleSize);
    font.setWeight(QFont::Bold);
    return font;
}

} // namespace hosts::charting
