#ifndef KESTRANE_BACKEND_VALUEFORMATTER_H
#define KESTRANE_BACKEND_VALUEFORMATTER_H

#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/Quantity.h"

#include <QFlags>
#include <QLocale>
#include <QObject>
#include <QString>
#include <QVariant>

namespace pelorin {
namespace utilities {

class RoundedNumber;

/// Writes measured values for people: "1.5 mV", "20 kHz", "-3,2 s".
///
/// The text is a number as the locale writes it (decimal mark, signs, digits and group marks),
/// rounded to the significant digits (a tie away from zero) without zeros behind its decimals;
/// then, for a quantity with units, the separator, the prefix and the symbol of the unit.
///
///  - Prefix: y (10^-24) to Y (10^24) in steps of a thousand, so that the rounded number lies in
///    [1, 1000): 999.96 Hz in 4 digits is "1 kHz". Past both ends it is a power of ten instead.
///  - Power of ten: "1.5×10⁹". Where no prefix is chosen automatically, it takes the place of
///    numbers with more than three times limitRangeCount() digits before the decimal mark, and
///    of those with more than limitRangeCount() zeros between the mark and the first digit.
///  - Zero has no sign, and no prefix unless one is preferred: "0 V". What is not finite is "NaN",
///    "∞" or "-∞" without a unit.
///
/// Every setting has a getter, a setter and a signal; a setter that changes nothing emits nothing.
///
/// Threads: no lock; one object serves one thread at a time.
///
/// @code
/// using utilities::ValueFormatter;
/// using namespace variables;
/// const Quantity voltage("voltage", {{"V", true, 1.0, 0.0, {}}});
/// ValueFormatter formatter({}, QLocale::c(), voltage, 3, 3, 0, ValueFormatter::Automatic, {},
///                          " ");
/// formatter.format(0.01234).toStdString(); // = 12.3 mV
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT ValueFormatter : public QObject
{
    Q_OBJECT

public:
    enum FormatterOption {
        /// Leaves out prefix and unit, for use below a title that says them: the number is in the
        /// chosen unit, and in its multiple if there is a preferredPrefix().
        NoUnit = 1,
        /// Writes the unit without any prefix.
        NoPrefix = 2,
        /// Writes every number but [1, 10) as a power of ten, and the unit without any prefix.
        Scientific = 4,
        /// The value is a difference: what is above zero gets a plus sign, and a unit whose zero
        /// lies elsewhere (°C against K) only scales it.
        AlwaysSign = 8
    };
    Q_DECLARE_FLAGS(FormatterOptions, FormatterOption)
    Q_FLAG(FormatterOptions)

    /// The preferredUnit() or preferredPrefix() that leaves the choice to the formatter.
    static constexpr int Automatic = 65536;

    /// The first seven arguments are those of the setters.
    /// @param separator what stands between number and unit, for the life of the formatter
    ValueFormatter(const QFlags<FormatterOption>& options, const QLocale& locale,
                   const pelorin::variables::Quantity& quantity, int significantDigits,
                   int limitRangeCount, int preferredUnit, int preferredPrefix,
                   const QString& preferredUnitSystem, const QString& separator);
    ~ValueFormatter() override;

    /// The text of @p value in the present settings. What is no number gives its own text.
    /// @param value in the coherent SI unit of quantity()
    virtual QString format(const QVariant& value);

    const QFlags<FormatterOption>& options() const;
    void setOptions(QFlags<FormatterOption> options);

    QLocale locale() const;
    void setLocale(const QLocale& locale);

    pelorin::variables::Quantity quantity() const;
    void setQuantity(const pelorin::variables::Quantity& quantity);

    /// The most digits that a number has, zeros at its ends aside; 1 to 15, where a number beyond
    /// these counts as the nearer one.
    int significantDigits() const;
    void setSignificantDigits(int digits);

    /// How far numbers go without a power of ten, see above; one below 0 counts as 0.
    int limitRangeCount() const;
    void setLimitRangeCount(int count);

    /// The index of the unit to use in Quantity::units(). Automatic, or an index that is not
    /// there, stands for the first unit that belongs to preferredUnitSystem(), or the first one
    /// when none does.
    int preferredUnit() const;
    void setPreferredUnit(int unit);

    /// The decimal exponent of the prefix to use: -3 for "m". Centi, deci, deca and hecto are
    /// used only here. Automatic, or an exponent without a prefix, has it chosen by the value.
    int preferredPrefix() const;
    void setPreferredPrefix(int exponent);

    /// The name of a system of units, such as "US"; empty for none in particular.
    QString preferredUnitSystem() const;
    void setPreferredUnitSystem(const QString& system);

Q_SIGNALS:
    void quantityChanged(const pelorin::variables::Quantity& quantity);
    void localeChanged(const QLocale& locale);
    void optionsChanged(QFlags<FormatterOption> options);
    void preferredUnitChanged(int unit);
    void preferredPrefixChanged(int exponent);
    void preferredUnitSystemChanged(QString system);
    void significantDigitsChanged(int digits);
    void limitRangeCountChanged(int count);

private:
    QString formatNumber(double value) const;
    QString formatMagnitude(const RoundedNumber& rounded,
                            const variables::Quantity::Unit& unit) const;
    bool isWithinLimit(int exponent) const;
    variables::Quantity::Unit chosenUnit() const;

    QFlags<FormatterOption> m_options;
    QLocale m_locale;
    pelorin::variables::Quantity m_quantity;
    int m_significantDigits;
    int m_limitRangeCount;
    int m_preferredUnit;
    int m_preferredPrefix;
    QString m_preferredUnitSystem;
    QString m_separator;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ValueFormatter::FormatterOptions)

} // namespace utilities
} // namespace pelorin

#endif
