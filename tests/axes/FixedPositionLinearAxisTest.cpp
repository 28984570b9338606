#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"
#include "tests/support/Ticks.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;
using testing::ElementsAre;

namespace {

// 90 to 110, the value 100 in the middle.
std::unique_ptr<FixedPositionLinearAxis> centredAxis(bool offsetIsAdded = false)
{
    return std::make_unique<FixedPositionLinearAxis>(2.0, 100.0, 0.5, offsetIsAdded, 10, 5);
}

} // namespace

TEST(FixedPositionLinearAxisTest, MapsValuesToPositionsAndBack)
{
    const auto axis = centredAxis();
    EXPECT_TRUE(axis->minValue() == 90.0 && axis->maxValue() == 110.0);
    EXPECT_EQ(axis->transform(Axis::Linear, 100.0), 0.5);
    EXPECT_EQ(axis->inverseTransform(Axis::Linear, 0.25), 95.0);
    EXPECT_EQ(axis->transform(Axis::Logarithmic, 2.0), 0.5);
    EXPECT_EQ(axis->inverseTransform(Axis::Logarithmic, 0.5), 2.0);
    EXPECT_EQ(axis->scaleMode(), Axis::Linear);
    EXPECT_EQ(axis->smallestTickDistance(true), 2.0);
    EXPECT_EQ(axis->smallestTickDistance(false), 0.4);
    EXPECT_EQ(axis->anchor(), 0.5);

    const auto added = centredAxis(true);
    EXPECT_TRUE(added->minValue() == -110.0 && added->maxValue() == -90.0);
    EXPECT_EQ(added->inverseTransform(Axis::Logarithmic, 0.5), 2.0); // The sign of -100 is lost.
}

TEST(FixedPositionLinearAxisTest, OddNumbersTravelOn)
{
    for (const Axis::ScaleMode mode : {Axis::Linear, Axis::Logarithmic}) {
        EXPECT_TRUE(std::isnan(centredAxis()->transform(mode, NaN)));
        EXPECT_TRUE(std::isnan(centredAxis()->inverseTransform(mode, NaN)));
    }
    EXPECT_EQ(FixedPositionLinearAxis().inverseTransform(Axis::Logarithmic, 0.0), -Infinity);
    EXPECT_EQ(FixedPositionLinearAxis().transform(Axis::Linear, Infinity), Infinity);

    const FixedPositionLinearAxis empty(0.0);
    EXPECT_EQ(empty.transform(Axis::Linear, 1.0), Infinity);
    EXPECT_TRUE(std::isnan(empty.transform(Axis::Linear, 0.0)));

    const FixedPositionLinearAxis reversed(-1.0);
    EXPECT_TRUE(reversed.minValue() == 0.0 && reversed.maxValue() == -10.0);
    EXPECT_EQ(reversed.transform(Axis::Linear, -5.0), 0.5);
    EXPECT_EQ(FixedPositionLinearAxis(1.0, 0.0, 0.0, false, 10, 0).smallestTickDistance(false),
              Infinity);
}

TEST(FixedPositionLinearAxisTest, ArithmeticKeepsItsOrder)
{
    const FixedPositionLinearAxis axis(0.3, 0.7, 0.1, false, 7);
    const double full = 7 * 0.3;
    EXPECT_EQ(axis.minValue(), -0.1 * full - -0.7);
    EXPECT_EQ(axis.maxValue(), -0.1 * full - -0.7 + full);
    for (int i = -50; i < 50; ++i) {
        const double x = i * 0.037;
        EXPECT_EQ(axis.transform(Axis::Linear, x), (x + -0.7) * (1.0 / full) + 0.1) << x;
        EXPECT_EQ(axis.inverseTransform(Axis::Linear, x), (x - 0.1) * full - -0.7) << x;
        const double power = std::pow(10.0, x);
        EXPECT_EQ(axis.transform(Axis::Logarithmic, x), axis.transform(Axis::Linear, power)) << x;
    }
}

TEST(FixedPositionLinearAxisTest, TicksStandStillWhateverTheValues)
{
    FixedPositionLinearAxis axis(0.3, 0.7, 0.1, false, 7, 3);
    for (const double offset : {0.7, 1.9}) {
        axis.setOffset(offset);
        Places major, minor;
        for (int i = 0; i < 7; ++i) {
            major.emplace_back(axis.minValue() + 0.3 * i, i * (1.0 / 7));
            for (int j = 1; j < 3; ++j)
                minor.emplace_back(j * (0.3 / 3) + major.back().first,
                                   j * (1.0 / 7 / 3) + major.back().second);
        }
        EXPECT_EQ(places(axis.majorTicks()), major);
        EXPECT_EQ(places(axis.minorTicks()), minor);
    }
    const Ticks major = axis.majorTicks(), minor = axis.minorTicks();
    EXPECT_TRUE(arePlain(major) && arePlain(minor));
    EXPECT_EQ(major.first().rank(), (6.0 / 7.0 + 1.0) * 500.0 + 1500.0);
    EXPECT_EQ(minor.first().rank(), (13.0 / 14.0 + 1.0) * 500.0);
    EXPECT_THAT(values(FixedPositionLinearAxis().majorTicks()),
                ElementsAre(9, 0, 4, 6, 2, 7, 5, 3, 1, 8));
    EXPECT_TRUE(FixedPositionLinearAxis().minorTicks().isEmpty());
}

TEST(FixedPositionLinearAxisTest, NoDivisionsGiveNoTicks)
{
    for (const int divisions : {0, -3}) {
        FixedPositionLinearAxis axis(1.0, 0.0, 0.0, false, divisions, 5);
        EXPECT_TRUE(axis.majorTicks().isEmpty() && axis.minorTicks().isEmpty());
        FixedPositionLinearAxis noMinor(1.0, 0.0, 0.0, false, 4, divisions);
        EXPECT_EQ(noMinor.majorTicks().size(), 4);
        EXPECT_TRUE(noMinor.minorTicks().isEmpty());
    }
}

TEST(FixedPositionLinearAxisTest, EqualAxesHaveTheSameParametersWhateverTheirTicks)
{
    struct Foreign : FixedPositionLinearAxis
    {
        bool operator==(const Axis&) const override { return true; }
    };
    const FixedPositionLinearAxis axis(2.0, 100.0, 0.5, false, 10, 5);
    EXPECT_TRUE(axis == LinearAxis(2.0, 100.0, 0.5, false, 10, 5));
    using Other = FixedPositionLinearAxis;
    EXPECT_TRUE(axis != Other(std::nextafter(2.0, 3.0), 100.0, 0.5, false, 10, 5));
    EXPECT_TRUE(axis != Other(2.0, std::nextafter(100.0, 0.0), 0.5, false, 10, 5));
    EXPECT_TRUE(axis != Other(2.0, 100.0, std::nextafter(0.5, 0.0), false, 10, 5));
    EXPECT_TRUE(axis != Other(2.0, 100.0, 0.5, true, 10, 5));
    EXPECT_TRUE(axis != Other(2.0, 100.0, 0.5, false, 9, 5));
    EXPECT_TRUE(axis != Other(2.0, 100.0, 0.5, false, 10, 4));
    EXPECT_FALSE(Foreign() != axis) << "by the virtual operator";
    const Other unknown(NaN);
    EXPECT_TRUE(unknown != unknown);

    QObject parent;
    const Axis* child = new LinearAxis(2.0, 100.0, 0.5, true, 8, 4, &parent);
    EXPECT_EQ(child->parent(), &parent);
    const std::unique_ptr<Axis> clone(child->clone());
    EXPECT_TRUE(*clone == *child && dynamic_cast<LinearAxis*>(clone.get()));
    EXPECT_EQ(clone->parent(), nullptr);
}

TEST(FixedPositionLinearAxisTest, ListenersFindStoredWhatTheyAreTold)
{
    FixedPositionLinearAxis axis(2.0, 100.0, 0.5, false, 10, 5);
    QVector<double> seen;
    QObject::connect(&axis, &FixedPositionLinearAxis::offsetChanged,
                     [&](double) { seen << axis.offset() << axis.scale() << axis.minValue(); });
    QObject::connect(&axis, &Axis::minValueChanged, [&](double) { seen << axis.maxValue(); });
    QObject::connect(&axis, &Axis::ticksUpdated,
                     [&] { seen << places(axis.majorTicks()).front().first; });

    axis.majorTicks();
    axis.setOffset(110.0);
    EXPECT_EQ(seen, QVector<double>({110.0, 2.0, 90.0, 110.0, 100.0}));
    seen.clear();
    axis.setOffsetAndScale(120.0, 4.0); // The minimum stays at 100.
    EXPECT_EQ(seen, QVector<double>({120.0, 4.0, 100.0, 100.0}));
    seen.clear();
    axis.scrollAxis(0.0, 0.25);
    EXPECT_EQ(seen, QVector<double>({130.0, 4.0, 100.0, 140.0, 110.0}));
}

TEST(FixedPositionLinearAxisTest, SettersTellInOrder)
{
    const auto axis = centredAxis();
    SignalLog log(axis.get());
    // clang-format off
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[&] { axis->setOffset(101.0); }, "offsetChanged(101) minValueChanged(91) maxValueChanged(111)"},
        {[&] { axis->setScale(4.0); }, "scaleChanged(4) minValueChanged(81) maxValueChanged(121)"},
        {[&] { axis->setAnchor(0.0); }, "anchorChanged(0) minValueChanged(101) maxValueChanged(141)"},
        {[&] { axis->setNumMajorDivisions(5); }, "numMajorDivisionsChanged(5) maxValueChanged(121)"},
        {[&] { axis->setNumMinorDivisions(2); }, "numMinorDivisionsChanged(2)"},
        {[&] { axis->setOffsetIsAdded(true); }, "offsetIsAddedChanged(true) minValueChanged(-101) maxValueChanged(-81)"},
        {[&] { axis->setOffsetAndScale(1.0, 2.0); }, "offsetChanged(1) scaleChanged(2) minValueChanged(-1) maxValueChanged(9)"},
        {[&] { axis->setOffsetAndScale(1.0, 2.0); }, ""},
        // Only setting both can store NaN, and replace it; NaN limits differ from themselves.
        {[&] { axis->setOffsetAndScale(NaN, 2.0); }, "offsetChanged(nan) minValueChanged(nan) maxValueChanged(nan)"},
        {[&] { axis->setOffset(3.0); }, nullptr},
        {[&] { axis->setOffsetAndScale(NaN, 2.0); }, "minValueChanged(nan) maxValueChanged(nan)"},
        {[&] { axis->setOffsetAndScale(100.0, 2.0); }, "offsetChanged(100) minValueChanged(-100) maxValueChanged(-90)"},
    };
    // clang-format on
    for (const auto& [set, told] : rows) {
        set();
        const QString tail = "ticksUpdated() parametersChanged(self)";
        EXPECT_EQ(log.take(), told ? (told + (*told ? " " + tail : tail)) : QString());
    }
}

TEST(FixedPositionLinearAxisTest, SettersIgnoreWhatIsEqualWithinRounding)
{
    const auto axis = centredAxis();
    SignalLog log(axis.get());
    axis->setOffset(100.0 * (1.0 + 1e-13));
    axis->setScale(2.0 * (1.0 - 1e-13));
    axis->setAnchor(0.5 * (1.0 + 1e-13));
    axis->setScale(NaN);
    axis->setNumMajorDivisions(10);
    axis->setNumMinorDivisions(5);
    axis->setOffsetIsAdded(false);
    EXPECT_EQ(log.take(), "");
    EXPECT_TRUE(*axis == *centredAxis());

    axis->setAnchor(0.0);
    log.take();
    axis->setAnchor(1e-300); // A stored zero equals zero alone.
    EXPECT_TRUE(log.take().startsWith("anchorChanged(1e-300)"));
}
