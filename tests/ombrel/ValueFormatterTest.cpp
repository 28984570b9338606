#include "kestrane/backend/ValueFormatter.h"
#include "kestrane/backend/QuantityManager.h"
#include "tests/support/SignalLog.h"

#include <gtest/gtest.h>

#include <limits>

using namespace pelorin;
using utilities::ValueFormatter;
using Options = ValueFormatter::FormatterOptions;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr int automatic = ValueFormatter::Automatic;

variables::Quantity quantity(const char* name)
{
    return utilities::Singleton<variables::QuantityManager>::instance().quantity(name);
}

class ValueFormatterTest : public testing::Test
{
protected:
    std::string format(const QVariant& value) { return m_formatter.format(value).toStdString(); }

    ValueFormatter m_formatter{{}, QLocale::c(), variables::Quantity(), 4, 3, automatic, automatic,
                               "", " "};
};

} // namespace

TEST_F(ValueFormatterTest, WritesANumberWithPrefixAndUnit)
{
    const struct
    {
        double value;
        const char* quantity;
        int digits;
        const char* text;
    } cases[] = {
        {0.0015, "voltage", 4, "1.5 mV"},
        {20000.0, "frequency", 4, "20 kHz"},
        {-3.2, "time", 4, "-3.2 s"},
        {0.0, "voltage", 4, "0 V"},
        {-0.0, "voltage", 4, "0 V"},
        // Rounding carries into the next prefix, and so does it in the last one.
        {999.94, "frequency", 4, "999.9 Hz"},
        {999.96, "frequency", 4, "1 kHz"},
        {9.9996e-4, "length", 4, "1 mm"},
        {-0.99996e-24, "current", 4, "-1 yA"},
        {999.96e24, "current", 4, "1×10²⁷ A"},
        {0.99994e-24, "current", 4, "9.999×10⁻²⁵ A"},
        {987654.321, "power", 1, "1 MW"},
        {987654.321, "power", 2, "990 kW"},
        {987654.321, "power", 15, "987.654321 kW"},
        {0.1 + 0.2, "resistance", 15, "300 mΩ"},
        {0.1 + 0.2, "resistance", 99, "300 mΩ"},
        {6.5, "resistance", -1, "7 Ω"},
        {4.7e-6, "charge", 4, "4.7 µC"},
        // Values are in the coherent unit, whose own prefix is part of the text.
        {0.001, "mass", 4, "1 g"},
        {70.0, "mass", 4, "70 kg"},
        {1500.0, "mass", 4, "1.5 Mg"},
        {0.05, "ratio", 4, "5 %"},
        {20000.0, "level", 6, "20000 dB"},
        {20000.0, "count", 4, "20000"},
        {1234567.0, "no such quantity", 7, "1234567"},
        {1234567.0, "", 4, "1235000"},
        {nan, "voltage", 4, "NaN"},
        {inf, "voltage", 4, "∞"},
        {-inf, "", 4, "-∞"},
    };
    for (const auto& [value, name, digits, text] : cases) {
        m_formatter.setQuantity(quantity(name));
        m_formatter.setSignificantDigits(digits);
        EXPECT_EQ(format(value), text) << value << ' ' << name << ' ' << digits;
    }
}

TEST_F(ValueFormatterTest, WritesTheNumberAsTheLocaleDoes)
{
    const struct
    {
        const char* locale;
        const char* voltage;
        const char* count;
    } cases[] = {
        {"C", "-1.5 mV", "1234567.5"},
        {"en_US", "-1.5 mV", "1,234,567.5"},
        {"de_DE", "-1,5 mV", "1.234.567,5"},
        {"fr_FR", "-1,5 mV", "1\u202f234\u202f567,5"},
        {"sv_SE", "\u22121,5 mV", "1\u00a0234\u00a0567,5"},
    };
    m_formatter.setSignificantDigits(9);
    for (const auto& [locale, voltage, count] : cases) {
        m_formatter.setLocale(QLocale(locale));
        m_formatter.setQuantity(quantity("voltage"));
        EXPECT_EQ(format(-0.0015), voltage) << locale;
        m_formatter.setQuantity(quantity("count"));
        EXPECT_EQ(format(1234567.5), count) << locale;
    }
}

TEST_F(ValueFormatterTest, WritesAPowerOfTenBeyondTheLimitRange)
{
    const struct
    {
        int count;
        double value;
        const char* text;
    } cases[] = {
        {3, 999.94e6, "999900000"},  {3, 999.96e6, "1×10⁹"},
        {3, 0.0001234, "0.0001234"}, {3, 0.99996e-4, "0.0001"},
        {3, 1.5e-5, "1.5×10⁻⁵"},     {1, 999.0, "999"},
        {1, -1000.0, "-1×10³"},      {1, 0.012, "0.012"},
        {1, 0.0012, "1.2×10⁻³"},     {0, 5.0, "5"},
        {0, 12.0, "1.2×10¹"},        {0, 0.5, "0.5"},
        {-2, 0.05, "5×10⁻²"},        {7, 1.5e20, "150000000000000000000"},
    };
    for (const auto& [count, value, text] : cases) {
        m_formatter.setLimitRangeCount(count);
        EXPECT_EQ(format(value), text) << value << " within " << count;
    }
}

TEST_F(ValueFormatterTest, OptionsLeaveOutAddAndForce)
{
    const auto none = ValueFormatter::FormatterOption(0);
    const struct
    {
        Options options;
        double value;
        int prefix;
        const char* text;
    } cases[] = {
        {ValueFormatter::NoUnit, 0.0015, automatic, "0.0015"},
        {ValueFormatter::NoUnit, 0.0015, -3, "1.5"},
        {ValueFormatter::NoPrefix, 0.0015, automatic, "0.0015 V"},
        {ValueFormatter::NoPrefix, 0.0015, -3, "0.0015 V"},
        {ValueFormatter::NoPrefix, 1.5e9, automatic, "1.5×10⁹ V"},
        {ValueFormatter::Scientific, -0.0015, -6, "-1.5×10⁻³ V"},
        {ValueFormatter::Scientific, 1.5, automatic, "1.5 V"},
        {ValueFormatter::Scientific, 0.0, automatic, "0 V"},
        {ValueFormatter::AlwaysSign, 1.5, automatic, "+1.5 V"},
        {ValueFormatter::AlwaysSign, -1.5, automatic, "-1.5 V"},
        {ValueFormatter::AlwaysSign, 0.0, automatic, "0 V"},
        {ValueFormatter::AlwaysSign, inf, automatic, "+∞"},
        {ValueFormatter::AlwaysSign | ValueFormatter::NoUnit, 15.0, automatic, "+15"},
        {none, 1500.0, -3, "1500000 mV"},
        {none, 0.015, -2, "1.5 cV"},
        {none, 0.0, -3, "0 mV"},
        {none, 1e-12, 3, "1×10⁻¹⁵ kV"},
        {none, 1500.0, 4, "1.5 kV"},
    };
    m_formatter.setQuantity(quantity("voltage"));
    for (const auto& [options, value, prefix, text] : cases) {
        m_formatter.setOptions(options);
        m_formatter.setPreferredPrefix(prefix);
        EXPECT_EQ(format(value), text) << value << " prefix " << prefix << " options " << options;
    }
}

TEST_F(ValueFormatterTest, UnitsAreChosenByIndexOrBySystem)
{
    const struct
    {
        const char* quantity;
        double value;
        int unit;
        const char* system;
        const char* text;
        const char* difference;
    } cases[] = {
        {"temperature", 293.15, automatic, "", "293.1 K", "+293.1 K"},
        {"temperature", 293.15, 1, "US", "20 °C", "+293.1 °C"},
        {"temperature", 310.15, automatic, "US", "98.6 °F", "+558.3 °F"},
        {"temperature", 0.5, 99, "", "500 mK", "+500 mK"},
        {"temperature", 0.5, -1, "SI", "500 mK", "+500 mK"},
        {"angle", 3.14159265358979, 1, "", "180°", "+180°"},
        {"time", 90.0, automatic, "US", "90 s", "+90 s"},
        {"time", 90.0, 1, "", "1.5 min", "+1.5 min"},
        {"frequency", 50.0, 1, "", "3000 1/min", "+3000 1/min"},
        {"length", 0.3048, automatic, "US", "1 ft", "+1 ft"},
        {"velocity", 10.0, 1, "", "36 km/h", "+36 km/h"},
        {"acceleration", 19.6133, 1, "", "2 g₀", "+2 g₀"},
        {"mass", 0.45359237, automatic, "US", "1 lb", "+1 lb"},
        {"force", 4.4482216152605, automatic, "US", "1 lbf", "+1 lbf"},
        {"pressure", 101325.0, automatic, "US", "14.7 psi", "+14.7 psi"},
        {"energy", 3.6e6, 1, "", "1 kWh", "+1 kWh"},
        {"power", 745.7, automatic, "US", "1 hp", "+1 hp"},
    };
    for (const auto& [name, value, unit, system, text, difference] : cases) {
        m_formatter.setQuantity(quantity(name));
        m_formatter.setPreferredUnit(unit);
        m_formatter.setPreferredUnitSystem(system);
        m_formatter.setOptions({});
        EXPECT_EQ(format(value), text);
        m_formatter.setOptions(ValueFormatter::AlwaysSign);
        EXPECT_EQ(format(value), difference);
    }
}

TEST_F(ValueFormatterTest, WritesEveryKindOfNumberAndLeavesOtherValuesAlone)
{
    m_formatter.setQuantity(quantity("length"));
    EXPECT_EQ(format(1500), "1.5 km");
    EXPECT_EQ(format(1500u), "1.5 km");
    EXPECT_EQ(format(-1500ll), "-1.5 km");
    EXPECT_EQ(format(1500ull), "1.5 km");
    EXPECT_EQ(format(1.5f), "1.5 m");
    EXPECT_EQ(format(QVariant::fromValue(short(-7))), "-7 m");
    EXPECT_EQ(format("1500"), "1500");
    EXPECT_EQ(format(true), "true");
    EXPECT_EQ(format(QVariant()), "");
}

TEST_F(ValueFormatterTest, TellsEachChangeOnce)
{
    tests::SignalLog log(&m_formatter);
    for (int round = 0; round < 2; ++round) {
        m_formatter.setQuantity(quantity("time"));
        m_formatter.setLocale(QLocale("de_DE"));
        m_formatter.setOptions(ValueFormatter::NoPrefix);
        m_formatter.setPreferredUnit(1);
        m_formatter.setPreferredPrefix(-3);
        m_formatter.setPreferredUnitSystem("US");
        m_formatter.setSignificantDigits(6);
        m_formatter.setLimitRangeCount(2);
    }
    QStringList heard = log.take();
    heard.replaceInStrings(QRegExp("\\(.*"), "");
    EXPECT_EQ(heard, QStringList({"quantityChanged", "localeChanged", "optionsChanged",
                                  "preferredUnitChanged", "preferredPrefixChanged",
                                  "preferredUnitSystemChanged", "significantDigitsChanged",
                                  "limitRangeCountChanged"}));
    EXPECT_EQ(m_formatter.quantity(), quantity("time"));
    EXPECT_EQ(m_formatter.locale(), QLocale("de_DE"));
    EXPECT_EQ(m_formatter.options(), Options(ValueFormatter::NoPrefix));
    EXPECT_EQ(m_formatter.preferredUnit(), 1);
    EXPECT_EQ(m_formatter.preferredPrefix(), -3);
    EXPECT_EQ(m_formatter.preferredUnitSystem(), "US");
    EXPECT_EQ(m_formatter.significantDigits(), 6);
    EXPECT_EQ(m_formatter.limitRangeCount(), 2);
}
