#include "ombrel/RoundedNumber.h"

#include <algorithm>

namespace pelorin {
namespace utilities {

namespace {

QString superscript(int number)
{
    static const QString digits = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹");
    QString text = number < 0 ? QStringLiteral("⁻") : QString();
    for (const char digit : QByteArray::number(qAbs(number)))
        text += digits[digit - '0'];
    return text;
}

} // namespace

RoundedNumber::RoundedNumber(double magnitude, int significantDigits)
{
    const QByteArray text = QByteArray::number(magnitude, 'e', significantDigits - 1);
    const int mark = text.indexOf('e');
    m_digits = text.left(mark).replace(".", "");
    m_exponent = text.mid(mark + 1).toInt();
    while (m_digits.endsWith('0'))
        m_digits.chop(1);
}

QString RoundedNumber::plainText(int shift, const QLocale& locale) const
{
    if (isZero())
        return locale.toString(0);
    const int decimals = m_digits.size() - 1 - (m_exponent - shift);
    // Up to 15 digits survive the way through a double.
    const double number = (m_digits + 'e' + QByteArray::number(-decimals)).toDouble();
    return locale.toString(number, 'f', std::max(decimals, 0));
}

QString RoundedNumber::powerOfTen(int shift, const QLocale& locale) const
{
    const int power = m_exponent - shift;
    const QString mantissa = plainText(m_exponent, locale);
    return power == 0 ? mantissa : mantissa + QStringLiteral("×10") + superscript(power);
}

} // namespace utilities
} // namespace pelorin
