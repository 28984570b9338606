#include "kestrane/axes/FixedPositionLinearAxis.h"
#include "kestrane/axes/LinearAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::FixedPositionLinearAxis;
using pelorin::ui::chart::LinearAxis;
using tests::Infinity;
using tests::NaN;
using tests::SignalLog;

namespace {

// 90 to 110, the value 100 in the middle.
std::unique_ptr<FixedPositionLinearAxis> centredAxis(bool offsetIsAdded = false)
{
    return std::make_unique<FixedPositionLinearAxis>(2.0, 100.0, 0.5, offsetIsAdded, 10, 5);
}

QVector<Axis::Tick> byPosition(QVector<Axis::Tick> ticks)
{
    std::sort(ticks.begin(), ticks.end(), [](const Axis::Tick& a, const Axis::Tick& b) {
        return a.axisPosition() < b.axisPosition();
    });
    return ticks;
}

} // namespace

TEST(FixedPositionLinearAxisTest, MapsValuesToPositionsAndBack)
{
    const auto axis = centredAxis();
    EXPECT_EQ(axis->minValue(), 90.0);
    EXPECT_EQ(axis->maxValue(), 110.0);
    EXPECT_EQ(axis->transform(Axis::Linear, 100.0), 0.5);
    EXPECT_EQ(axis->transform(Axis::Linear, 120.0), 1.5);
    EXPECT_EQ(axis->inverseTransform(Axis::Linear, 0.25), 95.0);
    EXPECT_EQ(axis->transform(Axis::Logarithmic, 2.0), 0.5);
    EXPECT_EQ(axis->inverseTransform(Axis::Logarithmic, 0.5), 2.0);
    EXPECT_EQ(axis->scaleMode(), Axis::Linear);
    EXPECT_EQ(axis->smallestTickDistance(true), 2.0);
    EXPECT_EQ(axis->smallestTickDistance(false), 0.4);
    EXPECT_EQ(axis->anchor(), 0.5);

    const auto added = centredAxis(true);
    EXPECT_EQ(added->minValue(), -110.0);
    EXPECT_EQ(added->maxValue(), -90.0);
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
    EXPECT_EQ(reversed.minValue(), 0.0);
    EXPECT_EQ(reversed.maxValue(), -10.0);
    EXPECT_EQ(reversed.transform(Axis::Linear, -5.0), 0.5);
    EXPECT_EQ(FixedPositionLinearAxis(1.0, 0.0, 0.0, false, 10, 0).smallestTickDistance(false),
              Infinity);
}

TEST(FixedPositionLinearAxisTest, TicksStandStillWhateverTheValues)
{
    const QVector<Axis::Tick> first = byPosition(FixedPositionLinearAxis().majorTicks());
    ASSERT_EQ(first.size(), 10);
    EXPECT_TRUE(FixedPositionLinearAxis().minorTicks().isEmpty());

    const auto axis = centredAxis();
    const QVector<Axis::Tick> major = byPosition(axis->majorTicks());
    ASSERT_EQ(major.size(), 10);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(first.at(i).axisPosition(), i * 0.1);
        EXPECT_EQ(first.at(i).logicalPosition(), i);
        EXPECT_EQ(major.at(i).axisPosition(), i * 0.1);
        EXPECT_EQ(major.at(i).logicalPosition(), 90.0 + 2.0 * i);
        EXPECT_TRUE(major.at(i).isValid() && !major.at(i).isInvisible());
    }
    const QVector<Axis::Tick> minor = byPosition(axis->minorTicks());
    ASSERT_EQ(minor.size(), 40);
    EXPECT_EQ(minor.at(4).logicalPosition(), 92.4);
    EXPECT_EQ(minor.at(4).axisPosition(), 1 * (0.1 / 5) + 0.1);

    axis->setOffset(101.0);
    EXPECT_EQ(byPosition(axis->majorTicks()).first().logicalPosition(), 91.0);
    EXPECT_EQ(byPosition(axis->majorTicks()).first().axisPosition(), 0.0);
}

TEST(FixedPositionLinearAxisTest, NoDivisionsGiveNoTicks)
{
    for (const int divisions : {0, -3}) {
        FixedPositionLinearAxis axis(1.0, 0.0, 0.0, false, divisions, 5);
        EXPECT_TRUE(axis.majorTicks().isEmpty());
        EXPECT_TRUE(axis.minorTicks().isEmpty());

        FixedPositionLinearAxis noMinor(1.0, 0.0, 0.0, false, 4, divisions);
        EXPECT_EQ(noMinor.majorTicks().size(), 4);
        EXPECT_TRUE(noMinor.minorTicks().isEmpty());
    }
}

TEST(FixedPositionLinearAxisTest, EqualAxesHaveTheSameParametersWhateverTheirTicks)
{
    const auto axis = centredAxis();
    EXPECT_TRUE(*axis == LinearAxis(2.0, 100.0, 0.5, false, 10, 5));
    EXPECT_TRUE(*axis != FixedPositionLinearAxis(2.0, 100.0, 0.5, true, 10, 5));
    EXPECT_TRUE(*axis !=
                FixedPositionLinearAxis(2.0, std::nextafter(100.0, 101.0), 0.5, false, 10, 5));
    EXPECT_TRUE(*axis != FixedPositionLinearAxis(2.0, 100.0, 0.5, false, 10, 4));
    const FixedPositionLinearAxis unknown(NaN);
    EXPECT_TRUE(unknown != unknown);

    QObject parent;
    axis->setParent(&parent);
    const std::unique_ptr<Axis> clone(static_cast<const Axis&>(*axis).clone());
    axis->setParent(nullptr);
    EXPECT_TRUE(*clone == *axis);
    EXPECT_EQ(clone->parent(), nullptr);
    EXPECT_EQ(clone->minorTicks().size(), 40);
}

TEST(FixedPositionLinearAxisTest, SettersStoreThenTellInOrder)
{
    const auto axis = centredAxis();
    SignalLog log(axis.get());
    const QStringList tail{"ticksUpdated()", "parametersChanged(self)"};

    axis->setOffset(101.0);
    EXPECT_EQ(log.take(),
              QStringList({"offsetChanged(101)", "minValueChanged(91)", "maxValueChanged(111)"}) +
                  tail);
    axis->setScale(4.0);
    EXPECT_EQ(log.take(),
              QStringList({"scaleChanged(4)", "minValueChanged(81)", "maxValueChanged(121)"}) +
                  tail);
    axis->setAnchor(0.0);
    EXPECT_EQ(log.take(),
              QStringList({"anchorChanged(0)", "minValueChanged(101)", "maxValueChanged(141)"}) +
                  tail);
    axis->setNumMajorDivisions(5);
    EXPECT_EQ(log.take(),
              QStringList({"numMajorDivisionsChanged(5)", "maxValueChanged(121)"}) + tail);
    axis->setNumMinorDivisions(2);
    EXPECT_EQ(log.take(), QStringList{"numMinorDivisionsChanged(2)"} + tail);
    axis->setOffsetIsAdded(true);
    EXPECT_EQ(log.take(), QStringList({"offsetIsAddedChanged(true)", "minValueChanged(-101)",
                                       "maxValueChanged(-81)"}) +
                              tail);
    axis->setOffsetAndScale(1.0, 2.0);
    EXPECT_EQ(log.take(), QStringList({"offsetChanged(1)", "scaleChanged(2)", "minValueChanged(-1)",
                                       "maxValueChanged(9)"}) +
                              tail);
    axis->setOffsetAndScale(1.0, 2.0);
    EXPECT_EQ(log.take(), tail);
}

TEST(FixedPositionLinearAxisTest, SettersIgnoreWhatIsEqualWithinRounding)
{
    const auto axis = centredAxis();
    SignalLog log(axis.get());

    axis->setOffset(100.0 * (1.0 + 1e-13));
    axis->setScale(2.0);
    axis->setAnchor(NaN);
    axis->setNumMajorDivisions(10);
    axis->setNumMinorDivisions(5);
    axis->setOffsetIsAdded(false);
    EXPECT_EQ(log.take(), QStringList());
    EXPECT_EQ(axis->offset(), 100.0);
    EXPECT_EQ(axis->anchor(), 0.5);

    axis->setAnchor(0.0);
    log.take();
    axis->setAnchor(1e-300); // A stored zero equals zero alone.
    EXPECT_EQ(log.take().first(), "anchorChanged(1e-300)");
}

TEST(FixedPositionLinearAxisTest, OnlySettingBothCanStoreAndReplaceNaN)
{
    const auto axis = centredAxis();
    SignalLog log(axis.get());
    const QStringList tail{"ticksUpdated()", "parametersChanged(self)"};
    const QStringList unknownLimits{"minValueChanged(nan)", "maxValueChanged(nan)"};

    axis->setOffsetAndScale(NaN, 2.0);
    EXPECT_EQ(log.take(), QStringList{"offsetChanged(nan)"} + unknownLimits + tail);
    axis->setOffset(3.0);
    EXPECT_EQ(log.take(), QStringList());
    axis->setOffsetAndScale(NaN, 2.0); // NaN limits differ from themselves.
    EXPECT_EQ(log.take(), unknownLimits + tail);
    axis->setOffsetAndScale(100.0, 2.0);
    EXPECT_EQ(log.take().first(), "offsetChanged(100)");
    EXPECT_EQ(axis->minValue(), 90.0);
}
