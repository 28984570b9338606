// Data that grow in one thread while another asks for their picture.
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/library/Kestrane.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <QSharedPointer>
#include <boost/make_shared.hpp>
#include <atomic>
#include <cmath>
#include <iostream>
#include <thread>

using namespace pelorin;

int main()
{
    Kestrane::initialize();
    ui::chart::SamplePlotAlgorithm plot; // setSnapshot() and createSegments() may meet.
    std::atomic<bool> isDone{false};

    // Measures blocks of 1000 samples. A block that is part of a snapshot never changes again, so
    // that each snapshot is a list of those before and a new one.
    std::thread source([&] {
        std::vector<backend::PlotSegment> segments;
        for (int block = 0; block < 100; ++block) {
            auto samples = boost::make_shared<backend::SampleVector>();
            for (int i = 0; i < 1000; ++i)
                samples->push_back(std::sin(0.0001 * (1000 * block + i)));
            segments.emplace_back(samples, backend::MetaInfo(block, 0.001));
            plot.setSnapshot(backend::PlotSnapshot(segments));
        }
        isDone = true;
    });

    // Axes have no lock: they belong to the thread that draws.
    auto x = QSharedPointer<ui::chart::LinearAxis>::create(10.0);        // 0 to 100 s
    auto y = QSharedPointer<ui::chart::LinearAxis>::create(0.25, -1.25); // -1.25 to 1.25
    qint64 points = 0;
    for (bool isLast = false; !isLast;) {
        isLast = isDone;
        points = 0;
        for (const auto& line : plot.createSegments(x, y, 0.001, 8).first)
            points += line.size();
    }
    source.join();
    std::cout << points << " points for 100000 samples\n";
    Kestrane::deinitialize();
}
