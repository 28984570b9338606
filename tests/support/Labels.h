#ifndef TESTS_SUPPORT_LABELS_H
#define TESTS_SUPPORT_LABELS_H

#include <QLocale>
#include <QString>
#include <QStringList>

namespace tests {

/// What a label says, its prefix and its power of ten included.
inline double readLabel(QString text, const QLocale& locale)
{
    static const QString prefixes = QStringLiteral("yzafpnµm kMGTPEZY"),
                         raised = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
    int exponent = 0;
    if (text.endsWith('V')) {
        text.chop(1);
        const int prefix = prefixes.indexOf(text.back());
        exponent = 3 * (prefix - 8);
        text = text.left(text.size() - 1).trimmed();
    }
    const QStringList parts = text.split(QStringLiteral("×10"));
    if (parts.size() == 2) {
        QString digits;
        for (const QChar c : parts[1])
            digits += raised.contains(c) ? QChar('0' + int(raised.indexOf(c))) : QChar('-');
        exponent += digits.toInt();
    }
    return locale.toDouble(parts[0].trimmed() + 'e' + QString::number(exponent));
}

} // namespace tests

#endif
