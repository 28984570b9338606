// The life of a host, at random and sped up: axes made, moved and deleted, data drawn, callbacks
// registered. The memory in use has to stay flat.
#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/TickFormatter.h"
#include "kestrane/library/Kestrane.h"
#include "kestrane/plots/Intersectable.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/plots/RandomAxis.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/support/Seeds.h"
#include "tests/surfaces/Grids.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <malloc.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

constexpr int roundsPerLook = 500;
constexpr int looksPerWindow = 10;

// Memory in use, in bytes: what the C library has handed out, and what is resident, for allocators
// that go their own way.
struct Use
{
    double allocated, resident;

    static Use now()
    {
        const struct mallinfo2 memory = mallinfo2();
        std::ifstream statm("/proc/self/statm");
        double pages = 0.0, residentPages = 0.0;
        statm >> pages >> residentPages;
        return {double(memory.uordblks + memory.hblkhd), residentPages * 4096.0};
    }

    // Of two, so that what happens to be alive at a look does not count.
    Use least(const Use& other) const
    {
        return {std::fmin(allocated, other.allocated), std::fmin(resident, other.resident)};
    }

    bool isFlat(const Use& first) const
    {
        constexpr double allowance = 256.0 * 1024.0, residentAllowance = 8.0 * 1024.0 * 1024.0;
        return allocated <= first.allocated + allowance &&
               resident <= first.resident + residentAllowance;
    }
};

struct Plot : Intersectable
{
    QList<Intersection> doIntersect(const Axis* x, const Axis* y, double position) const override
    {
        return algorithm.doIntersect(x, y, position);
    }
    using Intersectable::fireUpdates;

    SamplePlotAlgorithm algorithm;
};

// What a host keeps from one round to the next.
class Host
{
public:
    explicit Host(unsigned seed)
        : m_dice(seed)
    {}

    void live()
    {
        const std::function<void()> acts[] = {
            [&] { m_x = randomAxis(m_dice); },
            [&] { m_y = randomAxis(m_dice); },
            [&] { newData(); },
            [&] { move(); },
            [&] { draw(); },
            [&] { drawCells(); },
            [&] { label(); },
            [&] { listen(); },
        };
        try {
            acts[m_dice.upTo(7)]();
        } catch (const std::runtime_error&) { // A host's axis ends there.
        }
    }

private:
    void newData()
    {
        std::vector<double> samples(std::size_t(m_dice.upTo(500)));
        for (double& sample : samples)
            sample = m_dice.between(-1.0, 1.0);
        m_plot.algorithm.setSnapshot(snapshot({segment(samples)}));
        m_plot.fireUpdates();
        m_xy.setSnapshot(snapshot({segment(samples)}), snapshot({segment(samples)}));
        m_needles.setSnapshot(snapshot({segment(samples)}));
        const Indices shape{1 + m_dice.upTo(20), 1 + m_dice.upTo(20)};
        const auto grids = Grids<double>({grid<double>(shape, std::vector<double>(400, 7.0))});
        m_cells.setSnapshot(grids);
        m_sticks.setSnapshot(grids);
    }

    void move()
    {
        const QSharedPointer<Axis> axis(m_x->clone());
        const auto base = axis->scrollScaleState();
        const double at = m_dice.between(0.0, 1.0), by = m_dice.between(-0.3, 0.3);
        axis->scrollAxis(at, by, base);
        axis->scaleAxis(at, by, base);
        axis->majorTicks();
        axis->minorTicks();
        m_x = axis;
    }

    void draw()
    {
        const double width = m_dice.between(0.001, 0.1);
        m_plot.algorithm.createSegments(m_x, m_y, width, 1.0);
        m_needles.createNeedles(m_x.data(), m_y.data(), width);
        m_plot.doIntersect(m_x.data(), m_y.data(), width);
        m_xy.createSegments(m_x, m_y, width, 1.0);
    }

    void drawCells()
    {
        pelorin::ui::ColorMap map;
        for (int i = m_dice.upTo(20); i > 0; --i)
            map.appendEntry(Qt::red, std::size_t(m_dice.upTo(5000)));
        const double pixel = m_dice.between(0.01, 0.1);
        m_cells.makeColorArrays(m_x, m_y, map, pixel, pixel);
        m_sticks.makeNeedles(m_x, m_y, Qt::red, Qt::blue, pixel, pixel);
    }

    void label()
    {
        TickFormatter formatter;
        formatter.setQuantity(m_dice.upTo(1) ? "voltage" : "");
        const QSharedPointer<Axis> axis(m_x->clone());
        for (const Axis::Tick& tick : axis->majorTicks().mid(0, 10))
            formatter.formatTick(tick, NaN);
    }

    void listen()
    {
        if (m_listeners.size() > 10)
            m_listeners.erase(m_listeners.begin() + m_dice.upTo(10));
        m_listeners.push_back(m_plot.notifyees().add([this](const Intersectable*) { ++m_heard; }));
    }

    Dice m_dice;
    QSharedPointer<const Axis> m_x = linearAxis(100.0), m_y = linearAxis(2.0, -1.0);
    Plot m_plot;
    XYPlotAlgorithm m_xy;
    NeedlePlotAlgorithm m_needles;
    Histogram2DPlotAlgorithm m_cells;
    NeedlePlot2DAlgorithm m_sticks;
    std::vector<pelorin::utilities::Registration> m_listeners;
    long m_heard = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const double seconds = argc == 2 ? std::atof(argv[1]) : 0.0;
    if (!(seconds > 0.0)) {
        std::fprintf(stderr, "usage: kestrane_soak SECONDS\n");
        return 2;
    }
    const unsigned seed = Seeds(1).first;
    std::printf("soak: KESTRANE_SEED=%u\n", seed);
    Kestrane::initialize();
    Host host(seed);
    const auto window = [&] {
        Use use{Infinity, Infinity};
        for (int look = 0; look < looksPerWindow; ++look) {
            for (int i = 0; i < roundsPerLook; ++i)
                host.live();
            use = use.least(Use::now());
        }
        return use;
    };
    window(); // Caches and pools get their size.
    const Use first = window();
    Use last = first;
    long windows = 2;
    QElapsedTimer time;
    for (time.start(); double(time.elapsed()) < 1e3 * seconds; ++windows) {
        last = window();
        if (!last.isFlat(first)) {
            std::fprintf(stderr,
                         "soak: %.0f kB in use and %.0f kB resident, at first %.0f and %.0f\n",
                         last.allocated / 1e3, last.resident / 1e3, first.allocated / 1e3,
                         first.resident / 1e3);
            return 1;
        }
    }
    std::printf("soak: %ld rounds, %.0f kB in use and %.0f kB resident, at first %.0f and %.0f\n",
                windows * looksPerWindow * roundsPerLook, last.allocated / 1e3, last.resident / 1e3,
                first.allocated / 1e3, first.resident / 1e3);
}
