#include "kestrane/axes/TickFormatter.h"

#include "tests/fuzz/Target.h"
#include "tests/support/Labels.h"
#include "tests/support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace pelorin::ui::chart;
using namespace tests;

FUZZ_TARGET(TickFormatter)
{
    TickFormatter formatter, twin;
    const int digits = 1 + dice.upTo(14), range = dice.upTo(5) - 1, prefix = dice.upTo(12) * 3 - 18;
    const QLocale locale(dice.upTo(1) ? "de_DE" : "en_US");
    const bool hasUnit = dice.upTo(1), isScientific = dice.upTo(3) == 0;
    const double value = dice.number(), reference = dice.number();
    for (TickFormatter* const one : {&formatter, &twin}) {
        one->setLocale(locale);
        one->setSignificantDigits(digits);
        one->setLimitRangeCount(range);
        one->setQuantity(hasUnit ? "voltage" : "");
        if (isScientific)
            one->setOptions(TickFormatter::Scientific);
    }
    const Axis::Tick tick(value, 0.5, 0.0, {}, false);
    const QString text = formatter.formatTick(tick, NaN).first();
    if (std::fabs(value) > 1e-300 && std::fabs(value) < 1e300) {
        EXPECT_NEAR(readLabel(text, locale) / value, 1.0, 0.5000001 * std::pow(10.0, 1 - digits))
            << text.toStdString() << " for " << value;
    }

    formatter.setPreferredPrefix(prefix);
    twin.setPreferredPrefix(prefix);
    const auto options = formatter.options();
    const QString relative = formatter.formatTick(tick, reference).first();
    EXPECT_EQ(formatter.options(), options);
    if (!std::isnan(reference)) {
        twin.setOptions(options | TickFormatter::AlwaysSign);
        EXPECT_EQ(relative, twin.format(QVariant(value - reference)));
    }
}
