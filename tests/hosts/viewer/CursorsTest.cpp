#include "tests/hosts/viewer/WindowRig.h"

#include <boost/make_shared.hpp>

namespace hosts::viewer {

namespace {

using Names = QStringList;

TEST(CursorsTest, TheTableTellsCrossingsAndSignedDifferences)
{
    WindowRig rig({"--from", "0", "--to", "1000", "--cursor", "100", "--cursor", "400", "--cursor",
                   "900", "--y-unit", "V"});
    ASSERT_EQ(rig.window->cursorTable().rowCount(), 3);
    ASSERT_EQ(rig.window->cursorTable().columnCount(), 5);
    EXPECT_EQ(rig.cell(0, 1), "400");
    EXPECT_EQ(rig.cell(0, 3), "+300");
    const auto expectValue = [&](int row, int column, double expected) {
        QString text = rig.cell(row, column);
        ASSERT_TRUE(text.endsWith("V"));
        text.chop(2);
        EXPECT_NEAR(text.toDouble(), expected, 0.01) << rig.cell(row, column).toStdString();
    };
    for (const int curve : {1, 2}) {
        const auto value = [&](double x) { return curve * WindowRig::valueAt(x); };
        expectValue(curve, 0, value(100.0));
        expectValue(curve, 2, value(900.0));
        expectValue(curve, 3, value(400.0) - value(100.0));
        expectValue(curve, 4, value(900.0) - value(100.0));
    }
    EXPECT_TRUE(rig.cell(1, 4).startsWith("-") || rig.cell(1, 4).startsWith("+"));
}

TEST(CursorsTest, ACursorIsDraggedAlongXAndStaysWhenTheAxisMoves)
{
    WindowRig rig({"--from", "0", "--to", "1000", "--cursor", "500"});
    const std::vector<double> before = rig.view();
    rig.drag(rig.at(0.5, 0.4), rig.at(0.7, 0.9));
    EXPECT_EQ(rig.view(), before);
    const double moved = rig.model().cursors().first();
    EXPECT_NEAR(moved, 700.0, 3.0);
    EXPECT_EQ(rig.cell(0, 0), rig.model().xView().textOf(moved, 1e-6));

    rig.drag(rig.at(0.2, 0.5), rig.at(0.1, 0.5));
    EXPECT_EQ(rig.model().cursors().first(), moved);
    rig.press(rig.at(0.6, 0.4)); // Where the cursor is by now.
    rig.move(rig.at(0.9, 0.4));
    EXPECT_NE(rig.model().cursors().first(), moved);
    rig.key(Qt::Key_Escape);
    EXPECT_EQ(rig.model().cursors().first(), moved);
}

TEST(CursorsTest, ThereAreFourAtMostAndOnlyOfCurves)
{
    WindowRig rig;
    for (int k = 0; k < 6; ++k)
        QTest::mouseDClick(&rig.chart(), Qt::LeftButton, Qt::NoModifier,
                           rig.at(0.2 + 0.1 * k, 0.5));
    rig.waitForFrame();
    EXPECT_EQ(rig.model().cursors().size(), 4);
    EXPECT_EQ(rig.window->cursorTable().columnCount(), 7);
    rig.chart().removeCursor(1);
    rig.waitForFrame();
    EXPECT_EQ(rig.window->cursorTable().columnCount(), 5);

    WindowRig needles({"--plot", "needles"});
    needles.key(Qt::Key_C);
    EXPECT_TRUE(needles.model().cursors().isEmpty());
}

// Out of sight it has no line, but its values all the same.
TEST(CursorsTest, TheTableGoesOnOutOfSight)
{
    WindowRig rig({"--from", "0", "--to", "1000", "--cursor", "900"});
    const QString value = rig.cell(1, 0);
    rig.drag(rig.onX(0.3), rig.onX(0.6));
    EXPECT_EQ(rig.model().drawing().chart.texts.cursors.size(), 0);
    EXPECT_EQ(rig.cell(1, 0), value);
}

TEST(CursorsTest, NewDataAreReadAtOnce)
{
    WindowRig rig({"--from", "0", "--to", "1000", "--cursor", "500"});
    const auto samples = boost::make_shared<pelorin::backend::SampleVector>(1001, 3.0);
    rig.model().crossedCurves().front()->setSnapshot(
        pelorin::backend::PlotSnapshot({pelorin::backend::PlotSegment(samples)}));
    rig.waitForFrame();
    EXPECT_EQ(rig.cell(1, 0), "3");
    EXPECT_NE(rig.cell(2, 0), "3");
}

} // namespace

} // namespace hosts::viewer
