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
    auto samples =
        boost::make_shared<backend::SampleVector>(backend::SampleVector{0.0, 0.5, 1.0, 0.5, 0.0});
    backend::PlotSegment segment(samples, backend::MetaInfo(0.0, 0.25));

    // Ten divisions each: 0 to 2.5 s across, 0 to 1 upwards.
    auto xAxis = QSharedPointer<ui::chart::LinearAxis>::create(0.25);
    auto yAxis = QSharedPointer<ui::chart::LinearAxis>::create(0.1);

    ui::chart::SamplePlotAlgorithm plot;
    plot.setSnapshot(backend::PlotSnapshot({segment}));

    // Columns a tenth of the axis wide; a symbol for each sample that stands a column apart.
    const auto segments = plot.createSegments(xAxis, yAxis, 0.1, 0.5);
    for (const QPointF& point : segments.first.at(0))
        std::cout << "line   " << point.x() << ' ' << point.y() << '\n';
    for (const QPointF& point : segments.second.at(0))
        std::cout << "symbol " << point.x() << ' ' << point.y() << '\n';

    for (const auto& tick : xAxis->majorTicks().mid(0, 3)) // The most important three.
        std::cout << "tick   " << tick.axisPosition() << " is " << tick.logicalPosition() << '\n';

    Kestrane::deinitialize();
}
