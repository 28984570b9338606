// With Qt's keywords left on, as most hosts have them.
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/library/Kestrane.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <QSharedPointer>

#include <boost/make_shared.hpp>

#include <iostream>

using namespace pelorin;

int main()
{
    Kestrane::initialize();

    // Five samples, 0.25 s apart, measured from 0 s on.
    auto samples = boost::make_shared<backend::SampleVector>(
        backend::SampleVector{0.0, 0.5, 1.0, 0.5, 0.0});
    backend::PlotSegment segment(samples, backend::MetaInfo(0.0, 0.25));

    // The x axis shows 2.5 s in 10 divisions, the y axis 0 to 1.
    auto xAxis = QSharedPointer<ui::chart::LinearAxis>::create(0.25);
    auto yAxis = QSharedPointer<ui::chart::LinearAxis>::create(0.1);

    ui::chart::SamplePlotAlgorithm plot;
    plot.setSnapshot(backend::PlotSnapshot({segment}));
    const auto segments = plot.createSegments(xAxis, yAxis, 1.0 / 10, 5.0);

    for (const QPointF& point : segments.first.at(0))
        std::cout << point.x() << ' ' << point.y() << '\n';

    Kestrane::deinitialize();
}
