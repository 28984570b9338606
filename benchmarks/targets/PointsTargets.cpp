// What do x/y plots and needles cost a point?
#include "benchmarks/Workload.h"
#include "benchmarks/targets/Contest.h"
#include "benchmarks/targets/Limits.h"
#include "benchmarks/targets/Peers.h"
#include "benchmarks/targets/Questions.h"

#include <kestrane/plots/NeedlePlotAlgorithm.h>
#include <kestrane/plots/XYPlotAlgorithm.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>
#include <random>

namespace targets {

namespace {

using benchmarks::columnWidth;
using benchmarks::linearAxis;
using namespace pelorin::backend;
using namespace pelorin::ui::chart;

using Values = std::vector<double>;

constexpr std::size_t count = 10000000;

boost::shared_ptr<SampleVector> share(const Values& values)
{
    return boost::make_shared<SampleVector>(values.begin(), values.end());
}

Values sine()
{
    const auto samples = benchmarks::samples(count);
    return Values(samples->begin(), samples->end());
}

Values withNaN(Values values, unsigned percent)
{
    std::mt19937_64 random(1);
    for (double& value : values) {
        if (random() % 100 < percent)
            value = std::numeric_limits<double>::quiet_NaN();
    }
    return values;
}

struct XYRedraw
{
    XYPlotAlgorithm plot;

    XYRedraw(const Values& x, const Values& y)
    {
        plot.setSnapshot(PlotSnapshot({PlotSegment(share(x))}),
                         PlotSnapshot({PlotSegment(share(y))}));
    }

    // Each call is made twice, and the second one counts: the first one brings back pages that the
    // system took while others ran, and leaves the heap as this one needs it.
    Contestant contestant()
    {
        const auto axis = linearAxis(1.0);
        const auto redraw = [this, axis] {
            benchmark::DoNotOptimize(
                plot.createSegments(axis, axis, columnWidth, benchmarks::symbolSpacing));
        };
        return {"xy", redraw, redraw};
    }
};

void addXY(Table& table, const std::string& order, const Values& x)
{
    const std::string name = "x/y, 1e7 points " + order;
    if (!table.wants(name))
        return;
    constexpr double perPoint = 1.0 / static_cast<double>(count);
    const Values y = sine();
    XYRedraw whole(x, y), few(x, withNaN(y, 1)), half(x, withNaN(y, 50));
    const auto seconds = medianSeconds({whole.contestant(), few.contestant(), half.contestant()});
    table.addTime(name + ", a point", seconds[0] * perPoint, 4e-9);
    table.addRatio(name + ", 1 % NaN", seconds[1], "without", seconds[0], 1.5);
    table.addRatio(name + ", 50 % NaN", seconds[2], "without", seconds[0], 1.5);
    addPeers(table, name, whole.contestant(), 0.0,
             [&](const benchmarks::Peer& peer) { return peer.xyReducers(x, y); });
}

struct NeedleRedraw
{
    NeedlePlotAlgorithm plot;
    double step;

    // Columns as wide as the whole, by the rule, thin needles out: with a step of 1.0 they are not.
    NeedleRedraw(const boost::shared_ptr<SampleVector>& samples, bool thinned)
        : step(thinned ? 1e-6 : 1.0)
    {
        plot.setSnapshot(PlotSnapshot({PlotSegment(samples, MetaInfo(0.0, step))}));
    }

    Contestant contestant()
    {
        const auto xAxis = linearAxis(step * static_cast<double>(count));
        const auto yAxis = linearAxis(1.0);
        return {"needles", [this, xAxis, yAxis] {
                    benchmark::DoNotOptimize(
                        plot.createNeedles(xAxis.get(), yAxis.get(), columnWidth));
                }};
    }
};

void addNeedles(Table& table)
{
    const std::string name = "needles, 1e7 samples ";
    if (!table.wants(name))
        return;
    const Values samples = sine();
    const auto whole = share(samples), few = share(withNaN(samples, 1)),
               half = share(withNaN(samples, 50));
    const Contestant pass{"pass",
                          [&] { benchmark::DoNotOptimize(plainPass(samples.data(), count)); }};
    const Contestant write{"write", [&] {
                               SampleVector copy(samples.begin(), samples.end());
                               benchmark::DoNotOptimize(copy.data());
                           }};
    for (const bool thinned : {true, false}) {
        const std::string kind = name + (thinned ? "thinned out" : "kept whole");
        NeedleRedraw redraws[] = {{whole, thinned}, {few, thinned}, {half, thinned}};
        const auto seconds = medianSeconds({thinned ? pass : write, redraws[0].contestant(),
                                            redraws[1].contestant(), redraws[2].contestant()});
        table.addRatio(kind, seconds[1], thinned ? "pass" : "write of the result", seconds[0], 1.5);
        table.addRatio(kind + ", 1 % NaN", seconds[2], "without", seconds[1], 1.5);
        table.addRatio(kind + ", 50 % NaN", seconds[3], "without", seconds[1], 1.5);
    }
}

} // namespace

void addPoints(Table& table)
{
    Values x(count);
    for (std::size_t i = 0; i < count; ++i)
        x[i] = static_cast<double>(i) / static_cast<double>(count);
    addXY(table, "in order", x);
    std::shuffle(x.begin(), x.end(), std::mt19937_64(1));
    addXY(table, "unordered", x);
    addNeedles(table);
}

} // namespace targets
