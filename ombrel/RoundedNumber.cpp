#include "ombrel/RoundedNumber.h"

#include <QStringList>

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

struct Decimal
{
    double mantissa;
    int exponent;
};

Decimal decimal(double number)
{
    const QString text = QLocale::c().toString(number, 'e', QLocale::FloatingPointShortest);
    const auto mark = text.indexOf('e');
    return {text.left(mark).toDouble(), text.mid(mark + 1).toInt()};
}

QString localDigits(const QByteArray& digits, const QLocale& locale)
{
    const ushort zero = QString(locale.zeroDigit()).at(0).unicode(); // A QChar before Qt 6.
    QString text;
    for (const char digit : digits)
        text += QChar(zero + (digit - '0'));
    return text;
}

void insertGroupMarks(QString& whole, const QLocale& locale)
{
    // Nothing but a text tells the sizes: 3 digits, but 2 ahead of the last 3 in India, or none.
    const QStringList groups = locale.toString(1234567890).split(locale.groupSeparator());
    const auto count = groups.size();
    if (count == 1)
        return;
    auto position = whole.size() - groups[count - 1].size();
    for (; position > 0; position -= groups[count - 2].size())
        whole.insert(position, locale.groupSeparator());
}

} // namespace

RoundedNumber::RoundedNumber(double magnitude, int significantDigits)
{
    const QByteArray text = QByteArray::number(magnitude, 'e', significantDigits - 1);
    const auto mark = text.indexOf('e');
    m_digits = text.left(mark).replace(".", "");
    m_exponent = text.mid(mark + 1).toInt();
    while (m_digits.endsWith('0'))
        m_digits.chop(1);
}

RoundedNumber RoundedNumber::product(double a, double b, int significantDigits)
{
    const Decimal first = decimal(a);
    const Decimal second = decimal(b);
    RoundedNumber result(first.mantissa * second.mantissa, significantDigits);
    result.m_exponent += first.exponent + second.exponent;
    return result;
}

QString RoundedNumber::plainText(int shift, const QLocale& locale) const
{
    if (isZero())
        return locale.toString(0);
    const int exponent = m_exponent - shift;
    const QByteArray digits = QByteArray(std::max(-exponent, 0), '0') + m_digits;
    const int wholeCount = std::max(exponent, 0) + 1;
    QString text = localDigits(digits.left(wholeCount).leftJustified(wholeCount, '0'), locale);
    insertGroupMarks(text, locale);
    if (digits.size() > wholeCount)
        text += locale.decimalPoint() + localDigits(digits.mid(wholeCount), locale);
    return text;
}

QString RoundedNumber::powerOfTen(int shift, const QLocale& locale) const
{
    const int power = m_exponent - shift;
    const QString mantissa = plainText(m_exponent, locale);
    return power == 0 ? mantissa : mantissa + QStringLiteral("×10") + superscript(power);
}

} // namespace utilities
} // namespace pelorin
