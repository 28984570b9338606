#ifndef TESTS_HOSTS_VIEWER_WINDOWRIG_H
#define TESTS_HOSTS_VIEWER_WINDOWRIG_H

#include "hosts/kestrane-viewer/ViewerOptions.h"
#include "hosts/kestrane-viewer/ViewerWindow.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace hosts::viewer {

/// The real window with a recording in it, moved by events.
class WindowRig
{
public:
    /// 1001 values from x = 0 to 1000.
    static double valueAt(double x) { return 5.0 + 4.0 * std::sin(x * 0.02); }

    explicit WindowRig(const QStringList& arguments = {}, bool withInput = true)
    {
        QByteArray rows = "value,double\n";
        for (int k = 0; k <= 1000; ++k)
            rows += QByteArray::number(valueAt(k), 'g', 17) + ',' +
                    QByteArray::number(2.0 * valueAt(k), 'g', 17) + '\n';
        write("in.csv", rows);
        const QStringList input = withInput ? QStringList{path("in.csv")} : QStringList();
        window = std::make_unique<ViewerWindow>(options(input + arguments));
        window->show();
        waitForFrame();
    }

    QString path(const QString& name) const { return m_directory.filePath(name); }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
    }

    static ViewerOptions options(const QStringList& arguments)
    {
        std::vector<std::string> texts{"kestrane-viewer"};
        for (const QString& argument : arguments)
            texts.push_back(argument.toStdString());
        std::vector<char*> argv;
        for (std::string& text : texts)
            argv.push_back(&text[0]);
        return *ViewerOptions::read(int(argv.size()), argv.data());
    }

    ChartWidget& chart() { return window->chart(); }
    ChartModel& model() { return *chart().model(); }
    const pelorin::ui::chart::Axis& x() { return *model().x().shown().axis; }
    const pelorin::ui::chart::Axis& y() { return *model().y().shown().axis; }

    /// What is to be seen: the values at both ends.
    std::vector<double> view()
    {
        const charting::ShownAxis& x = model().x().shown();
        const charting::ShownAxis& y = model().y().shown();
        return {x.from(), x.to(), y.from(), y.to()};
    }

    /// A pixel of the chart, of shares of the plot.
    QPoint at(double x, double y)
    {
        const QRectF plot = chart().plotArea();
        return {int(plot.left() + x * plot.width()), int(plot.bottom() - y * plot.height())};
    }

    /// On the labels of the x axis, and of the y axis.
    QPoint onX(double x) { return {at(x, 0.0).x(), at(0.0, 0.0).y() + 12}; }
    QPoint onY(double y) { return {at(0.0, 0.0).x() - 12, at(0.0, y).y()}; }

    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&chart(), button, Qt::NoModifier, point);
    }

    void move(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, point, chart().mapToGlobal(point), Qt::NoButton,
                          button, Qt::NoModifier);
        QApplication::sendEvent(&chart(), &event);
    }

    void release(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(&chart(), button, Qt::NoModifier, point);
    }

    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton)
    {
        press(from, button);
        move(to, button);
        release(to, button);
        waitForFrame();
    }

    void turnWheel(QPoint point, int notches)
    {
        QWheelEvent event(point, chart().mapToGlobal(point), QPoint(), QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&chart(), &event);
        waitForFrame();
    }

    void key(Qt::Key key)
    {
        QTest::keyClick(&chart(), key);
        waitForFrame();
    }

    /// Until nothing is left to be drawn.
    void waitForFrame() { QTest::qWait(40); }

    QString cell(int row, int column)
    {
        const QTableWidgetItem* const item = window->cursorTable().item(row, column);
        return item ? item->text() : QStringLiteral("-");
    }

    std::unique_ptr<ViewerWindow> window;

private:
    QTemporaryDir m_directory;
};

/// Views that are the same but for much less than a pixel.
inline void expectView(const std::vector<double>& view, const std::vector<double>& expected)
{
    for (std::size_t k = 0; k < expected.size(); ++k)
        EXPECT_NEAR(view[k], expected[k], 1e-6 * (expected[k | 1] - expected[k & ~std::size_t(1)]))
            << "limit " << k;
}

} // namespace hosts::viewer

#endif
