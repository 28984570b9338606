#include "kestrane/axes/MirroredAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"

#include "tests/support/Numbers.h"
#include "tests/support/SignalLog.h"
#include "tests/support/Ticks.h"

#include <gmock/gmock.h>

#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;
using testing::ElementsAre;
using testing::Pair;

namespace {

constexpr auto Linear = Axis::Linear;
constexpr auto Logarithmic = Axis::Logarithmic;

// 1 to 100, and -100 to -1.
class MirroredAxisTest : public testing::Test
{
protected:
    std::unique_ptr<LogAxis> source = std::make_unique<LogAxis>(1.0, 100.0);
    MirroredAxis mirror{source.get()};
};

} // namespace

TEST_F(MirroredAxisTest, TurnsValuesAndPositionsRound)
{
    EXPECT_EQ(mirror.minValue(), -100.0);
    EXPECT_EQ(mirror.maxValue(), -1.0);
    EXPECT_EQ(mirror.transform(Linear, -10.0), 0.5);
    EXPECT_EQ(mirror.transform(Linear, -100.0), 0.0);
    EXPECT_EQ(mirror.transform(Linear, 10.0), Infinity);
    EXPECT_EQ(mirror.transform(Logarithmic, -1.5), 0.25); // The logarithm changes its sign.
    EXPECT_DOUBLE_EQ(mirror.inverseTransform(Linear, 0.5), -10.0);
    EXPECT_DOUBLE_EQ(mirror.inverseTransform(Logarithmic, 0.25), -1.5);
    EXPECT_TRUE(std::isnan(mirror.transform(Linear, NaN)));
    EXPECT_EQ(mirror.scaleMode(), Logarithmic);
    EXPECT_EQ(mirror.smallestTickDistance(true), 9.0);
    EXPECT_NEAR(mirror.smallestTickDistance(false), 1.0, 1e-15);
    source->setSmallest(0.5);
    EXPECT_EQ(mirror.anchor(), source->anchor());
}

TEST_F(MirroredAxisTest, JointTickLeadsTheTicksOfTheSource)
{
    const Ticks major = mirror.majorTicks();
    EXPECT_THAT(values(major), ElementsAre(1.0, -100.0, -1.0, -10.0));
    EXPECT_EQ(ranks(major).front(), 2500.0);
    EXPECT_EQ(ranks(major.mid(1)), ranks(source->majorTicks()));
    EXPECT_THAT(places(major),
                ElementsAre(Pair(-100.0, 0.0), Pair(-10.0, 0.5), Pair(-1.0, 1.0), Pair(1.0, 1.0)));
    EXPECT_EQ(major.first().secondaryLogicalPositions(), QList<double>{-1.0});
    EXPECT_TRUE(arePlain(major.mid(1)) && arePlain(mirror.minorTicks()));

    const Ticks minor = mirror.minorTicks(), sourceMinor = source->minorTicks();
    ASSERT_EQ(minor.size(), 16);
    EXPECT_EQ(ranks(minor), ranks(sourceMinor));
    EXPECT_EQ(minor[3].logicalPosition(), -sourceMinor[3].logicalPosition());
    EXPECT_EQ(minor[3].axisPosition(), 1.0 - sourceMinor[3].axisPosition());

    source->setLargest(5.0); // The only major tick stands at the joint and is dropped.
    EXPECT_THAT(values(mirror.majorTicks()), ElementsAre(1.0));
}

TEST(MirroredAxisTicksTest, ZeroHasNoSecondValueAndNaNHas)
{
    LinearAxis fromZero;
    EXPECT_TRUE(arePlain(MirroredAxis(&fromZero).majorTicks()));
    LogAxis fromNaN(NaN, 10.0);
    EXPECT_EQ(MirroredAxis(&fromNaN).majorTicks().first().secondaryLogicalPositions().size(), 1);

    LinearAxis linear(1.0, 1.0);
    MirroredAxis mirror(&linear), again(&mirror); // A list of further values goes on unchanged.
    const Ticks ticks = again.majorTicks();
    ASSERT_EQ(ticks.size(), 13);
    EXPECT_EQ(ticks[0].secondaryLogicalPositions(), QList<double>{11.0});
    EXPECT_EQ(ticks[1].secondaryLogicalPositions(), QList<double>{-1.0});
    EXPECT_EQ(ticks[1].logicalPosition(), -1.0);
    EXPECT_EQ(ticks[1].axisPosition(), 0.0);
}

TEST_F(MirroredAxisTest, PassesOnWhatTheSourceTells)
{
    SignalLog log(&mirror);
    int ticks = 0;
    QObject::connect(&mirror, &Axis::ticksUpdated, [&] { ticks = mirror.majorTicks().size(); });
    source->setLargest(1000.0);
    EXPECT_EQ(log.take(), "ticksUpdated() minValueChanged(-1000) parametersChanged(other)");
    EXPECT_EQ(ticks, 5); // Rebuilt when the signal comes.
    source->setSmallest(10.0);
    EXPECT_EQ(log.take(), "ticksUpdated() maxValueChanged(-10) parametersChanged(other)");
    mirror.update();
    EXPECT_EQ(log.take(), "parametersChanged(self)");
}

TEST_F(MirroredAxisTest, GesturesMoveTheSource)
{
    SignalLog log(&mirror);
    const auto base = mirror.scrollScaleState();
    mirror.scrollAxis(0.25, 0.5, base);
    EXPECT_EQ(source->smallest(), 0.1);
    EXPECT_EQ(log.take(), "ticksUpdated() maxValueChanged(-0.1) minValueChanged(-10) "
                          "parametersChanged(other) axisChangedViaScalingOrScrolling()");
    mirror.scaleAxis(0.5, -0.25, base, 0.0, 1e3); // Grips at 0.5 and drags by 0.25 to the start.
    EXPECT_EQ(source->largest(), 1e3);
    mirror.scaleAxis(0.75, 0.25, base); // Grips at 0.25.
    EXPECT_DOUBLE_EQ(source->largest(), 10.0);
}

TEST(MirroredAxisSourceTest, GetsEveryArgumentAndKeepsItsTicksInvisible)
{
    class Recorder : public LinearAxis
    {
    public:
        using Base = boost::shared_ptr<const ScrollScaleState>;
        void scrollAxis(double at, double by, const Base& base, double low, double high,
                        double pixel) override
        {
            got << at << by << (base ? 1.0 : 0.0) << low << high << pixel;
        }
        void scaleAxis(double at, double by, const Base& base, double low, double high,
                       double pixel) override
        {
            Recorder::scrollAxis(at, by, base, low, high, pixel);
        }
        QVector<Tick> majorTicks() override
        {
            if (isOutOfOrder)
                throw 1;
            return {{1.0, 0.5, 7.0, {}, true}};
        }
        QList<double> got;
        bool isOutOfOrder = false;
    };
    auto own = std::make_unique<Recorder>();
    Recorder& source = *own;
    MirroredAxis mirror(&source);
    mirror.scrollAxis(0.25, 0.5, mirror.scrollScaleState(), -7.0, 9.0, 0.125);
    mirror.scaleAxis(0.75, -0.5, {}, -3.0, 5.0, 0.25);
    EXPECT_EQ(source.got, (QList<double>{0.75, -0.5, 1, -7, 9, 0.125, 0.25, 0.5, 0, -3, 5, 0.25}));
    EXPECT_TRUE(mirror.majorTicks().last().isInvisible());
    source.isOutOfOrder = true;
    source.setScale(2.0);
    EXPECT_THROW(mirror.majorTicks(), int);
    own.reset(); // It keeps what it has.
    EXPECT_EQ(mirror.majorTicks().size(), 2);
}

TEST_F(MirroredAxisTest, WithoutASourceItAnswersZero)
{
    const Ticks before = mirror.majorTicks();
    SignalLog log(&mirror);
    source.reset();
    EXPECT_EQ(log.take(), "");
    const MirroredAxis never(nullptr);
    const std::unique_ptr<MirroredAxis> clone(mirror.clone());
    for (const MirroredAxis* axis : {static_cast<const MirroredAxis*>(&mirror), &never,
                                     static_cast<const MirroredAxis*>(clone.get())}) {
        EXPECT_EQ(axis->minValue(), 0.0);
        EXPECT_EQ(axis->maxValue(), 0.0);
        EXPECT_EQ(axis->transform(Linear, NaN), 0.0);
        EXPECT_EQ(axis->inverseTransform(Logarithmic, NaN), 0.0);
        EXPECT_EQ(axis->scaleMode(), Linear);
        EXPECT_EQ(axis->smallestTickDistance(true), 0.0);
        EXPECT_EQ(axis->anchor(), 0.0);
        EXPECT_FALSE(axis->scrollScaleState());
        EXPECT_TRUE(*axis == mirror);
    }
    mirror.scrollAxis(0.5, 0.5);
    mirror.scaleAxis(0.5, 0.25);
    EXPECT_EQ(log.take(), "");
    EXPECT_EQ(values(mirror.majorTicks()), values(before));
    EXPECT_TRUE(clone->majorTicks().isEmpty());
}

TEST_F(MirroredAxisTest, EqualsAMirrorOfAnEqualSource)
{
    const std::unique_ptr<MirroredAxis> clone(mirror.clone());
    EXPECT_TRUE(*clone == mirror);
    EXPECT_EQ(clone->parent(), nullptr);
    EXPECT_EQ(clone->children().size(), 1); // Its own source.
    LogAxis other(1.0, 10.0);
    EXPECT_TRUE(mirror != MirroredAxis(&other));
    EXPECT_TRUE(mirror != MirroredAxis(nullptr));
    EXPECT_TRUE(MirroredAxis(nullptr) != mirror);
    EXPECT_TRUE(mirror != *source);
    source->setLargest(7.0);
    EXPECT_TRUE(*clone != mirror);
}
