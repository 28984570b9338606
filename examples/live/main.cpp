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

    // Samples go into memory that is there from the start. A snapshot is what is full of it: that
    // never changes again, and copying a snapshot copies no sample.
    const int count = 100000;
    std::thread source([&] {
        const auto samples = boost::make_shared<backend::SampleVector>(count);
        const backend::SampleIterator begin(samples->begin(), samples);
        for (int full = 0; full < count;) {
            for (int i = 0; i < 1000; ++i, ++full) // A second of them.
                (*samples)[std::size_t(full)] = std::sin(0.0001 * full);
            const backend::PlotSegment segment(begin, begin + full, backend::MetaInfo(0.0, 0.001));
            plot.setSnapshot(backend::PlotSnapshot({segment}));
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
    std::cout << points << " points for " << count << " samples\n";
    Kestrane::deinitialize();
}
