// A curve in a window, with labelled ticks. Turn the wheel to scroll.
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
        labels.setQuantity("time");
        connect(x.data(), &Axis::parametersChanged, this, [this] { update(); });
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(40, 10);
        const double w = width() - 80, h = height() - 40; // The labels stand below.
        for (const Axis::Tick& tick : x->majorTicks())
            painter.drawText(QRectF(tick.axisPosition() * w - 40, h, 80, 30), Qt::AlignCenter,
                             labels.formatTick(tick, 0.0).first());
        for (QVector<QPointF>& line : plot.createSegments(x, y, 1.0 / w, 8.0).first) {
            for (QPointF& point : line)
                point = {point.x() * w, (1.0 - point.y()) * h};
            painter.drawPolyline(line.data(), int(line.size()));
        }
    }
    void wheelEvent(QWheelEvent* event) override
    {
        x->scrollAxis(0.0, -event->angleDelta().y() / 2000.0);
    }
    SamplePlotAlgorithm plot;
    QSharedPointer<LinearAxis> x = QSharedPointer<LinearAxis>::create(1.0);         // 0 to 10 s
    QSharedPointer<LinearAxis> y = QSharedPointer<LinearAxis>::create(0.25, -1.25); // -1.25 to 1.25
    TickFormatter labels;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Chart chart;
    chart.resize(800, 400);
    chart.show();
    return application.exec();
}
