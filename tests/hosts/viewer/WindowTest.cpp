#include "tests/hosts/viewer/WindowRig.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

namespace hosts::viewer {

namespace {

TEST(ViewerWindowTest, FilesAreOpenedAllTogetherOrNotAtAll)
{
    WindowRig rig({}, false);
    EXPECT_FALSE(rig.chart().model());
    EXPECT_TRUE(rig.window->message().startsWith("Open a recording"));
    rig.write("one.csv", "a\n1\n2\n3\n");
    rig.write("two.csv", "b\n4\n5\n6\n");
    rig.window->open({rig.path("one.csv"), rig.path("two.csv")});
    rig.waitForFrame();
    EXPECT_EQ(rig.model().curveNames(), QStringList({"one: a", "two: b"}));
    EXPECT_TRUE(rig.window->costs().startsWith("6 samples in view"))
        << rig.window->costs().toStdString();
    EXPECT_EQ(rig.window->message(), QString());

    rig.window->open({rig.path("one.csv"), rig.path("missing.csv")});
    EXPECT_TRUE(rig.window->message().contains("missing.csv"));
    EXPECT_EQ(rig.model().curveNames().size(), 2);
}

TEST(ViewerWindowTest, FilesCanBeDropped)
{
    WindowRig rig({}, false);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(rig.path("in.csv"))});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(rig.window.get(), &enter);
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(rig.window.get(), &event);
    ASSERT_TRUE(rig.chart().model());
    EXPECT_EQ(rig.model().curveNames(), QStringList({"value", "double"}));
}

TEST(ViewerWindowTest, EveryKindOfPlotCanBeMoved)
{
    for (const char* plot : {"line", "xy", "needles", "histogram", "columns", "spectrogram"}) {
        const QStringList column =
            plot == std::string("spectrogram") ? QStringList{"--column", "value"} : QStringList();
        WindowRig rig(QStringList{"--plot", plot} + column);
        const QImage before = rig.chart().grab().toImage();
        rig.drag(rig.at(0.5, 0.5), rig.at(0.4, 0.6));
        rig.turnWheel(rig.at(0.5, 0.5), 2);
        EXPECT_NE(rig.chart().grab().toImage(), before) << plot;
        EXPECT_EQ(rig.window->message(), QString()) << plot;
        rig.key(Qt::Key_F);
        rig.key(Qt::Key_Home);
        EXPECT_EQ(rig.chart().grab().toImage(), before) << plot;
    }
}

TEST(ViewerWindowTest, PicturesShowThePresentView)
{
    WindowRig rig({"--plot", "histogram"});
    rig.turnWheel(rig.at(0.5, 0.5), 3);
    for (const char* name : {"a.png", "a.svg", "a.pdf"}) {
        rig.window->savePicture(rig.path(name));
        EXPECT_GT(QFileInfo(rig.path(name)).size(), 1000) << name;
    }
    EXPECT_EQ(QImage(rig.path("a.png")),
              rig.chart().grab().toImage().convertToFormat(QImage(rig.path("a.png")).format()));
    rig.window->savePicture(rig.path("a.jpg"));
    EXPECT_TRUE(rig.window->message().contains(".png")) << rig.window->message().toStdString();
    EXPECT_FALSE(QFileInfo(rig.path("a.jpg")).exists());
}

TEST(ViewerWindowTest, TheLookIsRememberedAndTheCommandLineWins)
{
    QSettings().setValue("dark", true);
    EXPECT_TRUE(WindowRig().model().options().isDark);
    EXPECT_FALSE(WindowRig({"--look", "light"}).model().options().isDark);
    QSettings().clear();
}

TEST(ViewerWindowTest, ManyChangesAreOneFrame)
{
    WindowRig rig;
    int frames = 0;
    QObject::connect(&rig.chart(), &ChartWidget::framePainted, [&] { ++frames; });
    rig.press(rig.at(0.5, 0.5));
    for (int k = 0; k < 500; ++k)
        rig.move(rig.at(0.5 + k * 1e-3, 0.5));
    rig.waitForFrame();
    EXPECT_EQ(frames, 1);
}

TEST(ViewerWindowTest, WrongOptionsAreSaidInOneLine)
{
    EXPECT_ANY_THROW(WindowRig::options({"--plot", "pie"}));
    EXPECT_ANY_THROW(WindowRig(
        {"--cursor", "1", "--cursor", "2", "--cursor", "3", "--cursor", "4", "--cursor", "5"}));
    EXPECT_ANY_THROW(WindowRig({"--from", "2000", "--to", "3000"}));
}

} // namespace

} // namespace hosts::viewer
