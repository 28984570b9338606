#ifndef OMBREL_ROUNDEDNUMBER_H
#define OMBREL_ROUNDEDNUMBER_H

#include <QByteArray>
#include <QLocale>
#include <QString>

namespace pelorin {
namespace utilities {

/// A number rounded to significant decimal digits: d.ddd × 10^exponent, kept as text, so that
/// moving its decimal mark does not round again.
class RoundedNumber
{
public:
    /// @param magnitude finite and not negative
    /// @param significantDigits 1 to 15
    RoundedNumber(double magnitude, int significantDigits);

    /// The product of two such magnitudes, which may lie beyond what a double holds.
    static RoundedNumber product(double a, double b, int significantDigits);

    bool isZero() const { return m_digits.isEmpty(); }

    /// The power of ten of the first digit, after rounding; 0 for zero.
    int exponent() const { return m_exponent; }

    /// The number × 10^-@p shift with all its digits and no more.
    QString plainText(int shift, const QLocale& locale) const;

    /// The same number with a power of ten, which is left out where it is 1: "1.5×10⁹".
    QString powerOfTen(int shift, const QLocale& locale) const;

private:
    QByteArray m_digits; // without zeros at the end
    int m_exponent;
};

} // namespace utilities
} // namespace pelorin

#endif
