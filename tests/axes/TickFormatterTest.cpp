#include "kestrane/axes/TickFormatter.h"
#include "kestrane/backend/Quantity.h"
#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/Singleton.h"
#include "kestrane/backend/TranslationManager.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"

#include <QCoreApplication>
#include <QLocale>

#include <gtest/gtest.h>

#include <thread>

using namespace pelorin::ui::chart;
using namespace pelorin::utilities;
using namespace tests;

namespace {

using Texts = QList<QString>;

// Writes down what it is asked to format, and with which options.
class RecordingFormatter : public TickFormatter
{
public:
    QString format(const QVariant& value) override
    {
        types << value.userType();
        return QString::number(value.toDouble()) + (options() & AlwaysSign ? " signed" : "") +
               (options() & NoPrefix ? " plain" : "");
    }

    QList<int> types;
};

class TickFormatterTest : public testing::Test
{
protected:
    void SetUp() override { translations.setLocale("en_US"); }
    void TearDown() override { translations.setLocale(before); }

    TranslationManager& translations = Singleton<TranslationManager>::instance();
    const QString before = translations.locale();
};

} // namespace

TEST_F(TickFormatterTest, OneLineForEachValueOfATick)
{
    RecordingFormatter formatter;
    const Axis::Tick plain(101.5, 0.5, 0.0, {}, false);
    const Axis::Tick joint(101.5, 0.5, 0.0, {-3.0, 100.0}, false);

    EXPECT_EQ(formatter.formatTick(plain, NaN), Texts({"101.5"}));
    EXPECT_EQ(formatter.formatTick(plain, 100.0), Texts({"1.5 signed"}));
    EXPECT_EQ(formatter.formatTick(joint, NaN), Texts({"101.5", "-3", "100"}));
    EXPECT_EQ(formatter.formatTick(joint, 100.0), Texts({"1.5 signed", "-103 signed", "0 signed"}));
    EXPECT_EQ(formatter.formatTick(Axis::Tick(NaN, 0.5, 0.0, {}, false), NaN), Texts({"nan"}));
    for (const int type : formatter.types)
        EXPECT_EQ(type, int(QMetaType::Double));
}

TEST_F(TickFormatterTest, LabelsHaveUnitSignAndLanguage)
{
    TickFormatter formatter;
    const Axis::Tick tick(0.0015, 0.5, 0.0, {}, false);
    EXPECT_EQ(formatter.formatTick(tick, NaN), Texts({"0.0015"}));
    formatter.setQuantity("voltage");
    EXPECT_EQ(formatter.formatTick(tick, NaN), Texts({"1.5 mV"}));
    EXPECT_EQ(formatter.formatTick(tick, 0.001), Texts({"+500 \u00b5V"}));
    translations.setLocale("de_DE");
    EXPECT_EQ(formatter.formatTick(tick, NaN), Texts({"1,5 mV"}));
}

TEST_F(TickFormatterTest, StartsInTheLanguageOfTheApplicationWithItsOwnSettings)
{
    translations.setLocale("de_DE");
    TickFormatter formatter;
    EXPECT_EQ(formatter.locale(), QLocale("de_DE"));
    EXPECT_EQ(formatter.quantity(), "");
    EXPECT_EQ(int(formatter.options()), 0);
    EXPECT_EQ(formatter.significantDigits(), 4);
    EXPECT_EQ(formatter.limitRangeCount(), 3);
    EXPECT_EQ(formatter.preferredUnit(), 65536);
    EXPECT_EQ(formatter.preferredPrefix(), 65536);
    EXPECT_EQ(formatter.preferredUnitSystem(), "");
}

TEST_F(TickFormatterTest, RelativeLabelsLeaveOptionsAndListenersAlone)
{
    RecordingFormatter formatter;
    formatter.setOptions(ValueFormatter::NoPrefix);
    SignalLog log(&formatter);
    EXPECT_EQ(formatter.formatTick(Axis::Tick(1.0, 0.5, 0.0, {2.0}, false), 0.5),
              Texts({"0.5 signed plain", "1.5 signed plain"}));
    EXPECT_EQ(int(formatter.options()), int(ValueFormatter::NoPrefix));
    EXPECT_EQ(log.take(), "");
    formatter.setOptions(ValueFormatter::AlwaysSign);
    EXPECT_EQ(formatter.formatTick(Axis::Tick(1.0, 0.5, 0.0, {}, false), Infinity),
              Texts({"-inf signed"}));

    formatter.blockSignals(true);
    formatter.formatTick(Axis::Tick(1.0, 0.5, 0.0, {}, false), 0.5);
    EXPECT_FALSE(formatter.signalsBlocked());
}

TEST_F(TickFormatterTest, ChangesOfSettingsAskForNewLabels)
{
    TickFormatter formatter;
    QStringList heard;
    QObject::connect(&formatter, &TickFormatter::formatterChanged, [&] { heard << "changed"; });
    QObject::connect(&formatter, &TickFormatter::quantityChanged,
                     [&](const QString& name) { heard << name; });
    QObject::connect(&formatter, &TickFormatter::sizeTemplateChanged,
                     [&](const QString& text) { heard << text; });
    const auto take = [&] { return std::exchange(heard, QStringList()); };

    formatter.setQuantity("voltage");
    EXPECT_EQ(take(), QStringList({"changed", "voltage"}));
    EXPECT_EQ(formatter.quantity(), "voltage");
    formatter.setQuantity("voltage");
    EXPECT_EQ(take(), QStringList());

    translations.setLocale("fr_FR");
    EXPECT_EQ(take(), QStringList({"changed"}));
    std::thread([&] { translations.setLocale("de_DE"); }).join();
    EXPECT_EQ(take(), QStringList());
    QCoreApplication::processEvents(); // In the formatter's own thread.
    EXPECT_EQ(formatter.locale(), QLocale("de_DE"));
    EXPECT_EQ(take(), QStringList({"changed"}));

    formatter.setOptions(ValueFormatter::AlwaysSign);
    formatter.setSignificantDigits(6);
    formatter.setLimitRangeCount(2);
    formatter.setPreferredUnit(0);
    formatter.setPreferredPrefix(0);
    formatter.setPreferredUnitSystem("US");
    EXPECT_EQ(take().join(' '), "changed changed changed changed changed changed");

    EXPECT_TRUE(formatter.sizeTemplate().isEmpty() && !formatter.sizeTemplate().isNull());
    formatter.setSizeTemplate("-88.8 mV");
    formatter.setSizeTemplate("-88.8 mV");
    EXPECT_EQ(take(), QStringList({"-88.8 mV"}));
    EXPECT_EQ(formatter.sizeTemplate(), "-88.8 mV");
}
