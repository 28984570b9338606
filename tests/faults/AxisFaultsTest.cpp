#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/axes/TickFormatter.h"
#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/Singleton.h"
#include "kestrane/backend/TranslationManager.h"
#include "kestrane/library/Kestrane.h"
#include "tests/faults/HostAxis.h"
#include "tests/faults/Trial.h"
#include "tests/support/Numbers.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <iterator>

using namespace pelorin::ui::chart;
using pelorin::utilities::Singleton;
using pelorin::utilities::TranslationManager;
using pelorin::utilities::ValueFormatter;
using pelorin::variables::Quantity;
using pelorin::variables::QuantityManager;

namespace tests {

namespace {

using Operations = std::vector<Operation>;
using OwnAxis = std::unique_ptr<Axis>;

/// An axis with its mirror in front of it, both laid out, and with listeners at all of them.
template<typename Kind>
struct Axes
{
    Axes()
    {
        whole.addAxis(&mirror, 0.0, 0.5).addAxis(&axis, 0.5, 1.0);
        for (Axis* const one : {static_cast<Axis*>(&axis), static_cast<Axis*>(&whole)}) {
            QObject::connect(one, &Axis::minValueChanged, hostCode);
            QObject::connect(one, &Axis::maxValueChanged, hostCode);
            QObject::connect(one, &Axis::parametersChanged, hostCode);
            QObject::connect(one, &Axis::ticksUpdated, hostCode);
            QObject::connect(one, &Axis::axisChangedViaScalingOrScrolling, hostCode);
        }
        axis.scrollAxis(0.5, 0.05);
        read();
    }

    std::string read() { return Bits::of(&axis, &mirror, &whole); }

    Kind axis;
    Kind spare;
    MirroredAxis mirror{&axis};
    AggregateAxis whole;
};

/// An axis that nobody has laid hands on yet.
struct Alone
{
    std::string read() { return Bits::of(&axis); }

    LinearAxis axis;
};

template<typename Kind>
void appendAxisRows(Operations& rows, const std::string& kind)
{
    using All = Axes<Kind>;
    const auto add = [&](const char* name, const auto& act) {
        rows.push_back(row<All>(name + (" of " + kind), act));
    };
    add("scrollAxis", [](All& all) { all.whole.scrollAxis(0.75, 0.1); });
    add("scaleAxis", [](All& all) { all.mirror.scaleAxis(0.3, -0.1); });
    add("scrollScaleState", [](All& all) {
        const auto base = all.whole.scrollScaleState();
        all.whole.scrollAxis(0.25, 0.1, base);
    });
    add("majorTicks", [](All& all) {
        all.axis.scrollAxis(0.5, 0.3);
        return all.axis.majorTicks();
    });
    add("minorTicks", [](All& all) {
        all.axis.scrollAxis(0.5, 0.3);
        return all.whole.minorTicks();
    });
    add("clone", [](All& all) { return OwnAxis(all.whole.clone()); });
    add("MirroredAxis", [](All& all) { return OwnAxis(new MirroredAxis(&all.axis, &all.axis)); });
    add("addAxis", [](All& all) { all.whole.addAxis(&all.spare, 1.0, 2.0); });
    add("addAxis in place", [](All& all) { all.whole.addAxis(&all.spare, 0.5, 1.0); });
    add("removeAxis", [](All& all) { all.whole.removeAxis(&all.axis); });
    add("removeAllAxes", [](All& all) { all.whole.removeAllAxes(); });
}

template<typename Kind>
void appendLinearRows(Operations& rows, const std::string& kind)
{
    using All = Axes<Kind>;
    const auto add = [&](const char* name, const auto& act) {
        rows.push_back(row<All>(name + (" of " + kind), act));
    };
    add("setScale", [](All& all) { all.axis.setScale(2.0); });
    add("setOffset", [](All& all) { all.axis.setOffset(2.0); });
    add("setOffsetAndScale", [](All& all) { all.axis.setOffsetAndScale(2.0, 3.0); });
    add("setAnchor", [](All& all) { all.axis.setAnchor(0.25); });
    add("setOffsetIsAdded", [](All& all) { all.axis.setOffsetIsAdded(true); });
    add("setNumMajorDivisions", [](All& all) { all.axis.setNumMajorDivisions(300); });
    add("setNumMinorDivisions", [](All& all) { all.axis.setNumMinorDivisions(3); });
}

/// A label, and whoever wants to hear of changes.
struct Labels
{
    Labels()
    {
        language().setLocale("en_US");
        formatter = std::make_unique<TickFormatter>();
        QObject::connect(formatter.get(), &TickFormatter::formatterChanged, hostCode);
    }

    static TranslationManager& language() { return Singleton<TranslationManager>::instance(); }
    static QuantityManager& quantities() { return Singleton<QuantityManager>::instance(); }

    std::string read()
    {
        return Bits::of(label(NaN), label(100.0), formatter->quantity(), formatter->sizeTemplate(),
                        double(formatter->options()), double(formatter->signalsBlocked()),
                        language().locale(), quantities().names());
    }

    QList<QString> label(double reference) { return formatter->formatTick(tick, reference); }

    const Axis::Tick tick{1.0e7 / 3, 0.5, 1.0, {12.5e-9}, false};
    std::unique_ptr<TickFormatter> formatter;
};

} // namespace

TEST(AxisFaults, AreSurvivedByAxes)
{
    Operations rows;
    appendAxisRows<LinearAxis>(rows, "LinearAxis");
    appendLinearRows<LinearAxis>(rows, "LinearAxis");
    appendLinearRows<FixedPositionLinearAxis>(rows, "FixedPositionLinearAxis");
    appendAxisRows<LogAxis>(rows, "LogAxis");
    appendAxisRows<HostAxis>(rows, "a host's axis");
    rows.push_back(row<Axes<LogAxis>>("setSmallest", [](auto& all) { all.axis.setSmallest(0.2); }));
    rows.push_back(row<Axes<LogAxis>>("setLargest", [](auto& all) { all.axis.setLargest(70.0); }));
    rows.push_back(row<Alone>("setScale of an axis alone", [](Alone& a) { a.axis.setScale(2.0); }));
    rows.push_back(row<Axes<HostAxis>>("updateRanking", [](auto& all) {
        QVector<Axis::Tick> ticks = all.axis.majorTicks();
        all.axis.rank(ticks);
        return ticks;
    }));
    walk(rows);
}

TEST(AxisFaults, AreSurvivedByLabels)
{
    const auto label = [](double reference) {
        return [=](Labels& labels) { return labels.label(reference); };
    };
    walk({
        row<Labels>("formatTick", label(NaN)),
        row<Labels>("formatTick of a distance", label(12.0)),
        row<Labels>("setQuantity", [](Labels& l) { l.formatter->setQuantity("pressure"); }),
        row<Labels>("setSizeTemplate", [](Labels& l) { l.formatter->setSizeTemplate("wide"); }),
        row<Labels>("setOptions",
                    [](Labels& l) { l.formatter->setOptions(ValueFormatter::NoUnit); }),
        row<Labels>("setLocale of a label",
                    [](Labels& l) { l.formatter->setLocale(QLocale("de")); }),
        row<Labels>("setLocale", [](Labels& l) { l.language().setLocale("de_DE"); }),
        row<Labels>("TickFormatter", [](Labels&) { return TickFormatter().quantity(); }),
        row<Labels>("quantity", [](Labels& l) { return l.quantities().quantity("none"); }),
        row<Labels>("add a quantity", [](Labels& l) { l.quantities().add(Quantity("new")); }),
        row<Labels>("names", [](Labels& l) { return l.quantities().names(); }),
    });
}

} // namespace tests
