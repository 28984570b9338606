#include "tests/hosts/viewer/WindowRig.h"

#include <kestrane/axes/LogAxis.h>

#include <QGestureEvent>
#include <QPinchGesture>
#include <QSharedPointer>

namespace hosts::viewer {

namespace {

using chart::AxisKind;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::LogAxis;

constexpr auto anyKind = {"linear", "fixed", "log", "bipolar"};

// An axis as it was before a gesture, to be moved by direct calls.
class Twin
{
public:
    explicit Twin(const MovableAxis& moved)
        : m_visible(moved.shown().visible)
        , m_axis(moved.shown().axis->clone())
        , m_base(m_axis->scrollScaleState())
    {}

    void scroll(double grip, double place)
    {
        m_axis->scrollAxis(grip * m_visible, (grip - place) * m_visible, m_base);
    }

    void scale(double grip, double place)
    {
        m_axis->scaleAxis(grip * m_visible, (grip - place) * m_visible, m_base);
    }

    double from() const { return m_axis->minValue(); }
    double to() const { return m_axis->inverseTransform(Axis::Linear, m_visible); }

private:
    double m_visible;
    QSharedPointer<Axis> m_axis;
    boost::shared_ptr<const Axis::ScrollScaleState> m_base;
};

class GesturesTest : public testing::TestWithParam<const char*>
{
protected:
    WindowRig rig{{"--x-axis", GetParam(), "--y-axis", GetParam()}};

    QPointF placeOf(QPoint point)
    {
        const QRectF plot = rig.chart().plotArea();
        return {(point.x() - plot.left()) / plot.width(),
                (plot.bottom() - point.y()) / plot.height()};
    }
};

TEST_P(GesturesTest, ADragMovesTheAxesAsDirectCallsDo)
{
    const QPoint from = rig.at(0.75, 0.8), to = rig.at(0.65, 0.85);
    const QPointF grip = placeOf(from), place = placeOf(to);
    Twin x(rig.model().x()), y(rig.model().y());
    x.scroll(grip.x(), place.x());
    y.scroll(grip.y(), place.y());
    rig.drag(from, to);
    expectView(rig.view(), {x.from(), x.to(), y.from(), y.to()});
}

TEST_P(GesturesTest, ADragOnTheLabelsMovesThatAxisAlone)
{
    const std::vector<double> home = rig.view();
    const QPoint from = rig.onX(0.75), to = rig.onX(0.8);
    Twin x(rig.model().x());
    x.scroll(placeOf(from).x(), placeOf(to).x());
    rig.drag(from, to);
    expectView(rig.view(), {x.from(), x.to(), home[2], home[3]});

    const std::vector<double> before = rig.view();
    const QPoint low = rig.onY(0.8), high = rig.onY(0.9);
    Twin y(rig.model().y());
    y.scale(placeOf(low).y(), placeOf(high).y());
    rig.drag(low, high, Qt::RightButton);
    expectView(rig.view(), {before[0], before[1], y.from(), y.to()});
    EXPECT_LT(y.to(), home[3]);
}

TEST_P(GesturesTest, AThousandMovesEndWhereOneDoes)
{
    const std::vector<double> home = rig.view();
    rig.press(rig.at(0.6, 0.7));
    for (int k = 0; k < 1000; ++k)
        rig.move(rig.at(0.6 + 0.3 * std::sin(k), 0.7 + 0.2 * std::cos(k)));
    rig.move(rig.at(0.55, 0.75));
    const std::vector<double> many = rig.view();
    rig.key(Qt::Key_Escape);
    expectView(rig.view(), home);
    rig.drag(rig.at(0.6, 0.7), rig.at(0.55, 0.75));
    expectView(many, rig.view());
}

TEST_P(GesturesTest, TheWheelZoomsAroundThePointer)
{
    for (const double place : {0.1, 0.62, 0.95}) {
        for (const int notches : {3, -2}) {
            const QPoint point = rig.at(place, place);
            const QPointF at = placeOf(point);
            const charting::ShownAxis x = rig.model().x().shown(), y = rig.model().y().shown();
            const double xValue = x.axis->inverseTransform(Axis::Linear, at.x() * x.visible);
            const double yValue = y.axis->inverseTransform(Axis::Linear, at.y() * y.visible);
            rig.turnWheel(point, notches);
            EXPECT_NEAR(x.axis->transform(Axis::Linear, xValue), at.x() * x.visible, 1e-9);
            EXPECT_NEAR(y.axis->transform(Axis::Linear, yValue), at.y() * y.visible, 1e-9);
        }
    }
}

TEST_P(GesturesTest, ViewsAreUndoneAndRedone)
{
    std::vector<std::vector<double>> views{rig.view()};
    const auto expectNewView = [&] {
        EXPECT_NE(rig.view(), views.back());
        views.push_back(rig.view());
    };
    rig.drag(rig.at(0.6, 0.8), rig.at(0.62, 0.77));
    expectNewView();
    rig.turnWheel(rig.at(0.7, 0.7), 2);
    expectNewView();
    rig.drag(rig.onX(0.75), rig.onX(0.7), Qt::RightButton);
    expectNewView();
    rig.key(Qt::Key_Home);
    expectView(rig.view(), views.front());
    for (int k = 3; k >= 0; --k) {
        rig.chart().undo();
        expectView(rig.view(), views[std::size_t(k)]);
    }
    EXPECT_FALSE(rig.chart().history().canUndo());
    for (std::size_t k = 1; k < views.size(); ++k) {
        rig.chart().redo();
        expectView(rig.view(), views[k]);
    }
}

TEST_P(GesturesTest, DataStayInReachAndThereIsAlwaysSomethingToRead)
{
    const std::vector<double> home = rig.view();
    for (int k = 0; k < 30; ++k)
        rig.drag(rig.at(0.95, 0.9), rig.at(0.55, 0.6));
    rig.key(Qt::Key_Home);
    expectView(rig.view(), home);
    for (const int notches : {40, -80}) {
        for (int k = 0; k < 5; ++k)
            rig.turnWheel(rig.at(0.7, 0.7), notches);
        for (const double limit : rig.view())
            EXPECT_TRUE(std::isfinite(limit));
        EXPECT_LT(rig.view()[0], rig.view()[1]);
        EXPECT_FALSE(rig.model().xView().marks().isEmpty());
        EXPECT_FALSE(rig.model().yView().marks().isEmpty());
        EXPECT_EQ(rig.window->message(), QString());
    }
    rig.key(Qt::Key_Home);
    expectView(rig.view(), home);
}

TEST_P(GesturesTest, APinchZoomsAsTheWheelDoes)
{
    const QPoint point = rig.at(0.7, 0.8);
    const std::vector<double> home = rig.view();
    rig.turnWheel(point, 1);
    const std::vector<double> turned = rig.view();
    rig.chart().undo();
    rig.waitForFrame();
    QPinchGesture pinch;
    pinch.setCenterPoint(rig.chart().mapToGlobal(point));
    pinch.setScaleFactor(1.15);
    pinch.setChangeFlags(QPinchGesture::ScaleFactorChanged);
    QGestureEvent event({&pinch});
    QApplication::sendEvent(&rig.chart(), &event);
    expectView(rig.view(), turned);
    EXPECT_NE(rig.view(), home);
}

INSTANTIATE_TEST_SUITE_P(EveryKind, GesturesTest, testing::ValuesIn(anyKind));

TEST(ChartWidgetTest, KeysScrollZoomAndFit)
{
    WindowRig rig({"--from", "0", "--to", "1000", "--bottom", "-10", "--top", "30"});
    expectView(rig.view(), {0.0, 1000.0, -10.0, 30.0});
    rig.key(Qt::Key_Right);
    rig.key(Qt::Key_Up);
    expectView(rig.view(), {100.0, 1100.0, -6.0, 34.0});
    rig.key(Qt::Key_Left);
    rig.key(Qt::Key_Down);
    rig.key(Qt::Key_Plus);
    expectView(rig.view(), {100.0, 900.0, -6.0, 26.0});
    rig.key(Qt::Key_Minus);
    expectView(rig.view(), {0.0, 1000.0, -10.0, 30.0});
    rig.key(Qt::Key_F);
    EXPECT_LT(rig.view()[3], 20.0);
    EXPECT_GT(rig.view()[3], 18.0);
    EXPECT_LT(rig.view()[2], 1.0);
    EXPECT_GT(rig.view()[2], -1.0);
}

TEST(MovableAxisTest, ALogarithmicAxisZoomsByAFactorWhereverItsDecadesLie)
{
    for (const auto& [from, to] : {std::pair(1.0, 1000.0), {20.0, 90.0}, {2.0, 9.0}, {3.0, 1e4}}) {
        MovableAxis axis({QSharedPointer<LogAxis>::create(from, to)}, AxisKind::named("log"));
        axis.zoom(0.25, 1.25);
        const double start = std::log10(axis.shown().from()), end = std::log10(axis.shown().to());
        EXPECT_NEAR(end - start, std::log10(to / from) / 1.25, 1e-12) << from;
        EXPECT_NEAR(0.75 * start + 0.25 * end, 0.75 * std::log10(from) + 0.25 * std::log10(to),
                    1e-12);
    }
}

TEST(MovableAxisTest, AViewComesBackThoughALimitIsThatOfTheWayThere)
{
    const charting::ShownAxis wide{QSharedPointer<LogAxis>::create(1.0, 100.0)};
    MovableAxis axis(wide, AxisKind::named("log"));
    axis.show({QSharedPointer<LogAxis>::create(10.0, 100.0)});
    axis.show(wide);
    EXPECT_DOUBLE_EQ(axis.shown().from(), 1.0);
    EXPECT_DOUBLE_EQ(axis.shown().to(), 100.0);
}

// Where there is nothing to fit, the view stays, and the window says why.
TEST(ChartWidgetTest, FitNeedsSomethingInSight)
{
    WindowRig rig;
    QByteArray rows = "value,\n";
    for (int k = 0; k <= 1000; ++k)
        rows += k > 400 && k < 600 ? ",\n" : "7,\n";
    rig.write("gap.csv", rows);
    rig.window->open({rig.path("gap.csv")});
    rig.waitForFrame();
    rig.turnWheel(rig.at(0.5, 0.5), 20);
    const std::vector<double> before = rig.view();
    EXPECT_GT(before[0], 400.0);
    rig.key(Qt::Key_F);
    EXPECT_EQ(rig.view(), before);
    EXPECT_TRUE(rig.window->message().contains("a gap in the data"))
        << rig.window->message().toStdString();
}

TEST(ChartWidgetTest, EscapeTakesBackTheDragAndNoMore)
{
    WindowRig rig;
    rig.drag(rig.at(0.5, 0.5), rig.at(0.6, 0.6));
    const std::vector<double> before = rig.view();
    rig.press(rig.at(0.5, 0.5));
    rig.move(rig.at(0.2, 0.7));
    EXPECT_NE(rig.view(), before);
    rig.key(Qt::Key_Escape);
    expectView(rig.view(), before);
    rig.move(rig.at(0.3, 0.3));
    rig.release(rig.at(0.3, 0.3));
    rig.key(Qt::Key_Escape);
    expectView(rig.view(), before);
}

} // namespace

} // namespace hosts::viewer
