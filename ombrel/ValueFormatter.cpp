#include "kestrane/backend/ValueFormatter.h"

#include "ombrel/RoundedNumber.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace pelorin {
namespace utilities {

namespace {

using Unit = variables::Quantity::Unit;

struct Prefix
{
    int exponent;
    const char* symbol;
};

constexpr Prefix prefixes[] = {
    {-24, "y"}, {-21, "z"}, {-18, "a"}, {-15, "f"}, {-12, "p"}, {-9, "n"}, {-6, "µ"},
    {-3, "m"},  {-2, "c"},  {-1, "d"},  {0, ""},    {1, "da"},  {2, "h"},  {3, "k"},
    {6, "M"},   {9, "G"},   {12, "T"},  {15, "P"},  {18, "E"},  {21, "Z"}, {24, "Y"},
};

constexpr Prefix noPrefix = {0, ""};

const Prefix* findPrefix(int exponent)
{
    const auto found =
        std::find_if(std::begin(prefixes), std::end(prefixes),
                     [exponent](const Prefix& prefix) { return prefix.exponent == exponent; });
    return found == std::end(prefixes) ? nullptr : found;
}

int floorToThousands(int exponent)
{
    return exponent - ((exponent % 3) + 3) % 3;
}

// The degree of an angle stands close to its number.
bool isAttached(const QString& symbol)
{
    return symbol == QStringLiteral("°");
}

QString signOf(double number, const QLocale& locale, bool isPlusWritten)
{
    if (number < 0.0)
        return locale.negativeSign();
    return number > 0.0 && isPlusWritten ? QString(locale.positiveSign()) : QString();
}

// Returns whether that changed the setting. Signals that take a reference get a copy of their own:
// a listener may set the same setting again while others have yet to hear of this one.
template<typename T>
bool assign(T& setting, const T& value)
{
    if (setting == value)
        return false;
    setting = value;
    return true;
}

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

} // namespace

ValueFormatter::ValueFormatter(const QFlags<FormatterOption>& options, const QLocale& locale,
                               const variables::Quantity& quantity, int significantDigits,
                               int limitRangeCount, int preferredUnit, int preferredPrefix,
                               const QString& preferredUnitSystem, const QString& separator)
    : m_options(options)
    , m_locale(locale)
    , m_quantity(quantity)
    , m_significantDigits(significantDigits)
    , m_limitRangeCount(limitRangeCount)
    , m_preferredUnit(preferredUnit)
    , m_preferredPrefix(preferredPrefix)
    , m_preferredUnitSystem(preferredUnitSystem)
    , m_separator(separator)
{}

ValueFormatter::~ValueFormatter() = default;

QString ValueFormatter::format(const QVariant& value)
{
    return isNumber(value) ? formatNumber(value.toDouble()) : value.toString();
}

QString ValueFormatter::formatNumber(double value) const
{
    const Unit unit = chosenUnit();
    const bool isDifference = m_options.testFlag(AlwaysSign);
    const double scaled = value * unit.scale;
    const double number = scaled + (isDifference ? 0.0 : unit.offset);
    if (std::isnan(number))
        return QStringLiteral("NaN");

    const QString sign = signOf(number, m_locale, isDifference);
    const int digits = std::clamp(m_significantDigits, 1, 15);
    if (std::isfinite(number))
        return sign + formatMagnitude(RoundedNumber(std::abs(number), digits), unit);
    // The offset is nothing beside a product that no double holds.
    if (std::isinf(scaled) && std::isfinite(value) && std::isfinite(unit.scale)) {
        const auto product = RoundedNumber::product(std::abs(value), std::abs(unit.scale), digits);
        return sign + formatMagnitude(product, unit);
    }
    return sign + QStringLiteral("∞");
}

QString ValueFormatter::formatMagnitude(const RoundedNumber& rounded, const Unit& unit) const
{
    const bool mayHavePrefix = unit.takesPrefix && !(m_options & (NoPrefix | Scientific));
    const Prefix* const preferred = mayHavePrefix ? findPrefix(m_preferredPrefix) : nullptr;
    const Prefix* const automatic = mayHavePrefix && !preferred && !(m_options & NoUnit)
                                        ? findPrefix(floorToThousands(rounded.exponent()))
                                        : nullptr;
    const Prefix& prefix = preferred ? *preferred : automatic ? *automatic : noPrefix;

    const bool isPlain =
        automatic || rounded.isZero() || isWithinLimit(rounded.exponent() - prefix.exponent);
    const QString number = isPlain ? rounded.plainText(prefix.exponent, m_locale)
                                   : rounded.powerOfTen(prefix.exponent, m_locale);
    const QString symbol = QString::fromUtf8(prefix.symbol) + unit.symbol;
    if (m_options & NoUnit || symbol.isEmpty())
        return number;
    return number + (isAttached(symbol) ? QString() : m_separator) + symbol;
}

bool ValueFormatter::isWithinLimit(int exponent) const
{
    const int count = std::max(m_limitRangeCount, 0);
    return !m_options.testFlag(Scientific) && exponent < 3LL * count && exponent >= -count - 1;
}

variables::Quantity::Unit ValueFormatter::chosenUnit() const
{
    const QVector<Unit>& units = m_quantity.units();
    if (m_preferredUnit >= 0 && m_preferredUnit < units.size())
        return units[m_preferredUnit];
    if (!m_preferredUnitSystem.isEmpty())
        for (const Unit& unit : units)
            if (unit.system == m_preferredUnitSystem)
                return unit;
    return units.value(0);
}

const QFlags<ValueFormatter::FormatterOption>& ValueFormatter::options() const
{
    return m_options;
}

void ValueFormatter::setOptions(QFlags<FormatterOption> options)
{
    if (assign(m_options, options))
        Q_EMIT optionsChanged(options);
}

QLocale ValueFormatter::locale() const
{
    return m_locale;
}

void ValueFormatter::setLocale(const QLocale& locale)
{
    if (assign(m_locale, locale))
        Q_EMIT localeChanged(QLocale(m_locale));
}

variables::Quantity ValueFormatter::quantity() const
{
    return m_quantity;
}

void ValueFormatter::setQuantity(const variables::Quantity& quantity)
{
    if (assign(m_quantity, quantity))
        Q_EMIT quantityChanged(variables::Quantity(m_quantity));
}

int ValueFormatter::significantDigits() const
{
    return m_significantDigits;
}

void ValueFormatter::setSignificantDigits(int digits)
{
    if (assign(m_significantDigits, digits))
        Q_EMIT significantDigitsChanged(digits);
}

int ValueFormatter::limitRangeCount() const
{
    return m_limitRangeCount;
}

void ValueFormatter::setLimitRangeCount(int count)
{
    if (assign(m_limitRangeCount, count))
        Q_EMIT limitRangeCountChanged(count);
}

int ValueFormatter::preferredUnit() const
{
    return m_preferredUnit;
}

void ValueFormatter::setPreferredUnit(int unit)
{
    if (assign(m_preferredUnit, unit))
        Q_EMIT preferredUnitChanged(unit);
}

int ValueFormatter::preferredPrefix() const
{
    return m_preferredPrefix;
}

void ValueFormatter::setPreferredPrefix(int exponent)
{
    if (assign(m_preferredPrefix, exponent))
        Q_EMIT preferredPrefixChanged(exponent);
}

QString ValueFormatter::preferredUnitSystem() const
{
    return m_preferredUnitSystem;
}

void ValueFormatter::setPreferredUnitSystem(const QString& system)
{
    if (assign(m_preferredUnitSystem, system))
        Q_EMIT preferredUnitSystemChanged(m_preferredUnitSystem);
}

} // namespace utilities
} // namespace pelorin
