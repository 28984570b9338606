// A curve in a window, with a labelled grid. Turn the wheel to scroll.
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/axes/TickFormatter.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <QApplication>
#include <QPainter>
#include <QWheelEvent>
#include <QWidget>
#include <boost/make_shared.hpp>
#include <cmath>

using namespace pelorin;
using namespace pelorin::ui::chart;

struct Chart : QWidget
{
    Chart()
    {
        auto samples = boost::make_shared<backend::SampleVector>();
        for (int i = 0; i < 100000; ++i) // 100 s, a sample each millisecond
            samples->push_back(std::sin(0.005 * i) * std::exp(-0.00004 * i));
        plot.setSnapshot(backend::PlotSnapshot({backend::PlotSegment(samples, {0.0, 0.001})}));
        connect(x.data(), &Axis::parametersChanged, this, [this] { update(); });
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), Qt::white);
        const QTransform toPixels(width() - 100, 0, 0, 60 - height(), 60, height() - 40);
        const auto paint = [&](const Axis::Tick& tick, const QLineF& line, const QPointF& label) {
            painter.drawLine(toPixels.map(line));
            painter.drawText(QRectF(toPixels.map(line.p1()) + label, QSizeF(60, 20)),
                             Qt::AlignCenter, labels.formatTick(tick, qQNaN()).first());
        };
        painter.setPen(QPen(Qt::black, 0.2));
        for (const Axis::Tick& tick : x->majorTicks())
            paint(tick, {tick.axisPosition(), 0, tick.axisPosition(), 1}, {-30, 5});
        for (const Axis::Tick& tick : y->majorTicks())
            paint(tick, {0, tick.axisPosition(), 1, tick.axisPosition()}, {-60, -10});
        painter.setPen(QPen(QColor(0, 114, 178), 1.5));
        for (const auto& line : plot.createSegments(x, y, 1.0 / toPixels.m11(), 8.0).first)
            painter.drawPolyline(toPixels.map(QPolygonF(line)));
    }
    void wheelEvent(QWheelEvent* turn) override { x->scrollAxis(0, -turn->angleDelta().y() / 2e3); }
    SamplePlotAlgorithm plot;
    QSharedPointer<LinearAxis> x{new LinearAxis(1.0)};       // 0 to 10 s
    QSharedPointer<LinearAxis> y{new LinearAxis(0.2, -1.0)}; // -1 to 1
    TickFormatter labels;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Chart chart;
    chart.show();
    return application.exec();
}
