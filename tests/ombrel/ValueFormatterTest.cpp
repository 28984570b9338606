#include "kestrane/backend/ValueFormatter.h"
#include "kestrane/backend/QuantityManager.h"
#include "tests/support/Numbers.h"
#include "tests/support/QtPrinters.h"
#include "tests/support/SignalLog.h"

#include <gtest/gtest.h>

using namespace pelorin;
using namespace tests;
using F = utilities::ValueFormatter;

namespace {

variables::Quantity quantity(const char* name)
{
    return utilities::Singleton<variables::QuantityManager>::instance().quantity(name);
}

class ValueFormatterTest : public testing::Test
{
protected:
    QString texts(const char* name, std::initializer_list<QVariant> values)
    {
        m_formatter.setQuantity(quantity(name));
        QStringList texts;
        for (const QVariant& value : values)
            texts << m_formatter.format(value);
        return texts.join("; ");
    }

    F m_formatter{{}, QLocale::c(), {}, 4, 3, F::Automatic, F::Automatic, "", " "};
};

} // namespace

TEST_F(ValueFormatterTest, WritesANumberWithPrefixAndUnit)
{
    EXPECT_EQ(texts("voltage", {0.0015, 0.0, -0.0, NaN}), "1.5 mV; 0 V; 0 V; NaN");
    EXPECT_EQ(texts("length", {-1500LL, 15U, 1.5f, "15", true}), "-1.5 km; 15 m; 1.5 m; 15; true");
    EXPECT_EQ(texts("frequency", {999.94, 999.96, 9.9996e-4}), "999.9 Hz; 1 kHz; 1 mHz");
    EXPECT_EQ(texts("charge", {9.9996e26, 9.9996e-25, 9.9994e-25, 4.7e-6}),
              "1×10²⁷ C; 1 yC; 9.999×10⁻²⁵ C; 4.7 µC");
    EXPECT_EQ(texts("mass", {0.001, 70.0, -1e306, Highest, -Infinity}),
              "1 g; 70 kg; -1×10³⁰⁹ g; 1.798×10³¹¹ g; -∞");
    EXPECT_EQ(texts("count", {1234567.0}), "1235000");
    for (const QVariant& seven :
         {QVariant(7), QVariant(7ULL), QVariant::fromValue(7L), QVariant::fromValue(7UL),
          QVariant::fromValue<short>(7), QVariant::fromValue<ushort>(7),
          QVariant::fromValue<char>(7), QVariant::fromValue<signed char>(7),
          QVariant::fromValue<uchar>(7)})
        EXPECT_EQ(m_formatter.format(seven), "7") << seven.typeName();

    const struct
    {
        int digits;
        const char* text;
    } cases[] = {{-1, "1 MW"}, {2, "990 kW"}, {15, "987.65431 kW"}, {99, "987.65431 kW"}};
    for (const auto& [digits, text] : cases) {
        m_formatter.setSignificantDigits(digits);
        EXPECT_EQ(texts("power", {987654.31}), text);
    }
}

TEST_F(ValueFormatterTest, WritesTheNumberAsTheLocaleDoes)
{
    const struct
    {
        const char* locale;
        const char* text;
    } cases[] = {
        {"C", "-1234567.05"},
        {"en_US", "-1,234,567.05"},
        {"de_DE", "-1.234.567,05"},
        {"sv_SE", "\u22121\u00a0234\u00a0567,05"},
        {"en_IN", "-12,34,567.05"},
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        {"ne_NP", "-१,२३४,५६७.०५"},
#else
        {"ne_NP", "-१२,३४,५६७.०५"}, // It knows more of the language.
#endif
    };
    m_formatter.setSignificantDigits(9);
    for (const auto& [name, text] : cases) {
        const QLocale locale(name);
        m_formatter.setLocale(locale);
        EXPECT_EQ(m_formatter.format(-1234567.05), text);
        EXPECT_EQ(m_formatter.format(0.00125), locale.toString(0.00125));
        for (qlonglong number = 0; number < 100000000; number = 7 * number + 1)
            EXPECT_EQ(m_formatter.format(number), locale.toString(number));
    }
}

TEST_F(ValueFormatterTest, WritesAPowerOfTenBeyondTheLimitRange)
{
    const struct
    {
        int count;
        std::initializer_list<QVariant> values;
        QString texts;
    } cases[] = {
        {3, {999.94e6, 999.96e6}, "999900000; 1×10⁹"},
        {3, {0.99996e-4, 1.5e-5}, "0.0001; 1.5×10⁻⁵"},
        {1, {999.0, -1000.0, 0.012, 0.0012}, "999; -1×10³; 0.012; 1.2×10⁻³"},
        {0, {5.0, 12.0, 0.5, 0.05}, "5; 1.2×10¹; 0.5; 5×10⁻²"},
        {-2, {5.0, 12.0, 0.5, 0.05}, "5; 1.2×10¹; 0.5; 5×10⁻²"},
        {8, {1e23, 1e24}, "1" + QString(23, '0') + "; 1×10²⁴"},
        {715827883, {Highest}, "1798" + QString(305, '0')},
    };
    for (const auto& [count, values, expected] : cases) {
        m_formatter.setLimitRangeCount(count);
        EXPECT_EQ(texts("", values), expected) << count;
    }
    m_formatter.setLimitRangeCount(0);
    EXPECT_EQ(texts("frequency", {20000.0}), "20 kHz");
}

TEST_F(ValueFormatterTest, OptionsAndAPreferredPrefixLeaveOutAddAndForce)
{
    const struct
    {
        F::FormatterOptions options;
        int prefix;
        std::initializer_list<QVariant> values;
        const char* texts;
    } cases[] = {
        {F::NoUnit, F::Automatic, {0.0015}, "0.0015"},
        {F::NoUnit, -3, {0.0015}, "1.5"},
        {F::NoPrefix, -3, {0.0015, 1.5e9}, "0.0015 V; 1.5×10⁹ V"},
        {F::Scientific, -6, {-0.0015, 1.5, 0.0}, "-1.5×10⁻³ V; 1.5 V; 0 V"},
        {F::AlwaysSign, F::Automatic, {1.5, -1.5, 0.0, Infinity}, "+1.5 V; -1.5 V; 0 V; +∞"},
        {{}, -12, {1e-6, 0.0}, "1000000 pV; 0 pV"},
        {{}, -2, {0.015}, "1.5 cV"},
        {{}, 3, {1e-12}, "1×10⁻¹⁵ kV"},
        {{}, 4, {1500.0}, "1.5 kV"},
    };
    for (const auto& [options, prefix, values, expected] : cases) {
        m_formatter.setOptions(options);
        m_formatter.setPreferredPrefix(prefix);
        EXPECT_EQ(texts("voltage", values), expected) << "options " << options;
    }
}

TEST_F(ValueFormatterTest, UnitsAreChosenByIndexOrElseBySystem)
{
    m_formatter.setPreferredUnitSystem("US");
    EXPECT_EQ(texts("length", {0.3048}), "1 ft");
    EXPECT_EQ(texts("mass", {0.45359237, Highest}), "1 lb; 3.963×10³⁰⁸ lb");
    EXPECT_EQ(texts("force", {4.4482216152605}), "1 lbf");
    EXPECT_EQ(texts("pressure", {101325.0}), "14.7 psi");
    EXPECT_EQ(texts("power", {745.7}), "1 hp");
    EXPECT_EQ(texts("time", {90.0}), "90 s");
    for (const int none : {99, -1}) {
        m_formatter.setPreferredUnit(none);
        EXPECT_EQ(texts("temperature", {310.15}), "98.6 °F");
    }
    m_formatter.setOptions(F::AlwaysSign);
    EXPECT_EQ(texts("temperature", {10.0}), "+18 °F");
    m_formatter.setOptions({});
    m_formatter.setPreferredUnit(1);
    EXPECT_EQ(texts("temperature", {293.15}), "20 °C");
    EXPECT_EQ(texts("angle", {3.14159265358979}), "180°");
    EXPECT_EQ(texts("frequency", {50.0}), "3000 1/min");
    EXPECT_EQ(texts("velocity", {10.0}), "36 km/h");
    EXPECT_EQ(texts("acceleration", {19.6133}), "2 g₀");
    EXPECT_EQ(texts("energy", {3.6e6}), "1 kWh");
    EXPECT_EQ(texts("ratio", {0.05}), "50000 ppm");

    m_formatter.setQuantity(variables::Quantity("", {{"u", true, Infinity, 0.0, ""}}));
    EXPECT_EQ(m_formatter.format(-2.0), "-∞");
}

TEST_F(ValueFormatterTest, SettersTellOfChangesOnly)
{
    SignalLog log(&m_formatter);
    for (int turn = 0; turn < 2; ++turn) {
        m_formatter.setQuantity(quantity("mass"));
        m_formatter.setLocale(QLocale("de"));
        m_formatter.setOptions(F::NoUnit);
        m_formatter.setPreferredUnit(2);
        m_formatter.setPreferredPrefix(3);
        m_formatter.setPreferredUnitSystem("US");
        m_formatter.setSignificantDigits(7);
        m_formatter.setLimitRangeCount(5);
        EXPECT_EQ(log.take().count("Changed("), turn == 0 ? 8 : 0);
    }
}
