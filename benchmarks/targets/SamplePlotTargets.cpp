// What does a redraw of a sampled signal cost against one pass over its samples?
#include "benchmarks/Workload.h"
#include "benchmarks/targets/Contest.h"
#include "benchmarks/targets/Peers.h"
#include "benchmarks/targets/Questions.h"
#include "benchmarks/targets/SampleRedraw.h"

#include <boost/make_shared.hpp>

#include <malloc.h>

#include <deque>
#include <limits>
#include <string>

namespace targets {

namespace {

using benchmarks::linearAxis;
using pelorin::backend::SampleVector;

// One digit and a power of ten.
std::string sizeOf(long long count)
{
    int exponent = 0;
    for (; count >= 10; count /= 10)
        ++exponent;
    return std::to_string(count) + "e" + std::to_string(exponent);
}

// New snapshots with all samples in view, and the same ones once more.
void addWhole(Table& table, long long count)
{
    const std::string name = "samples, " + sizeOf(count) + " all in view, ";
    if (!table.wants(name))
        return;
    const Samples samples = benchmarks::samples(count);
    SampleRedraw first(count), repeated(count);
    repeated.renew(samples);
    const auto result = repeated();
    if (result.first.size() != 1 || result.first[0].size() < 900)
        table.addFault(name, "the line is missing");
    const auto seconds = medianSeconds({pass(samples), onceNew(first, samples)});
    table.addRatio(name + "first call", seconds[1], "pass", seconds[0],
                   count > 1000000 ? 1.5 : 4.0);
    const double secondsAgain = medianSeconds({again(repeated)}, 31)[0];
    if (count >= 10000000)
        table.addTime(name + "same view again", secondsAgain, count > 10000000 ? 0.5e-3 : 0.3e-3);
    else
        table.addRatio(name + "same view again", secondsAgain, "pass", seconds[0], 0.0);
    if (count > 10000000)
        return;
    const std::vector<double> copy(samples->begin(), samples->end());
    Contestant own = onceNew(first, samples);
    own.prepare = [renew = own.prepare, call = own.call] { // As peers are.
        renew();
        call();
        renew();
    };
    addPeers(table, name + "first call", own, count > 1000000 ? 0.0 : 0.25,
             [&](const benchmarks::Peer& peer) { return peer.reducers(copy); });
}

void addLogarithmic(Table& table, long long count)
{
    const std::string name = "samples, " + sizeOf(count) + " on log axes, ";
    if (!table.wants(name))
        return;
    const Samples samples = benchmarks::samples(count);
    const char* const kinds[] = {"linear", "log x", "log y", "log x and y"};
    std::deque<SampleRedraw> redraws;
    std::vector<Contestant> contestants;
    for (int kind = 0; kind < 4; ++kind) {
        for (int i = 0; i < 2; ++i)
            redraws.emplace_back(count, kind % 2 > 0, kind / 2 > 0);
    }
    for (std::size_t i = 0; i < redraws.size(); i += 2) {
        contestants.push_back(onceNew(redraws[i], samples));
        redraws[i + 1].renew(samples);
        contestants.push_back(again(redraws[i + 1]));
    }
    const auto seconds = medianSeconds(contestants);
    for (std::size_t kind = 1; kind < 4; ++kind) {
        table.addRatio(name + kinds[kind] + ", first call", seconds[2 * kind], "linear", seconds[0],
                       3.0);
        table.addRatio(name + kinds[kind] + ", again", seconds[2 * kind + 1], "linear", seconds[1],
                       2.0);
    }
}

// A part of the samples in view, another one at each call: what a drag asks for.
void addPanned(Table& table, long long count, long long visible, double target)
{
    const std::string name =
        "samples, " + sizeOf(count) + ", " + sizeOf(visible) + " in view, panned to a new place";
    if (!table.wants(name))
        return;
    SampleRedraw redraw(count);
    redraw.renew(benchmarks::samples(count));
    redraw();
    // Places far apart, a golden section of the free way each time.
    double place = 0.0;
    const auto pan = [&] {
        place += 0.618033988749895;
        place -= static_cast<int>(place);
        redraw.xAxis = linearAxis(static_cast<double>(visible),
                                  1.0 + place * static_cast<double>(count - visible));
    };
    Contestant panned = again(redraw);
    panned.prepare = pan;
    table.addTime(name, medianSeconds({panned}, 31)[0], target);
}

// Nothing is drawn of a segment that holds what is not a number.
void addNaN(Table& table, long long count)
{
    const std::string name = "samples, " + sizeOf(count) + " of them ";
    if (!table.wants(name))
        return;
    const Samples whole = benchmarks::samples(count);
    const auto withNaN = [&](std::size_t every) {
        const auto copy = boost::make_shared<SampleVector>(*whole);
        for (std::size_t i = every / 2; i < copy->size(); i += every)
            (*copy)[i] = std::numeric_limits<double>::quiet_NaN();
        return copy;
    };
    const Samples few = withNaN(100), half = withNaN(2);
    SampleRedraw redraws[] = {SampleRedraw(count), SampleRedraw(count), SampleRedraw(count)};
    const auto seconds = medianSeconds(
        {onceNew(redraws[0], whole), onceNew(redraws[1], few), onceNew(redraws[2], half)});
    table.addRatio(name + "1 % NaN, first call", seconds[1], "without", seconds[0], 1.0);
    table.addRatio(name + "50 % NaN, first call", seconds[2], "without", seconds[0], 1.0);
}

void addSpline(Table& table)
{
    const std::string name = "samples, 100 on 1000 columns (spline in view)";
    if (!table.wants(name))
        return;
    SampleRedraw redraw(100);
    redraw.renew(benchmarks::samples(100));
    Contestant contestant = again(redraw);
    contestant.calls = 100;
    table.addTime(name, medianSeconds({contestant})[0], 12e-6);
    const Samples samples = benchmarks::samples(100);
    const std::vector<double> copy(samples->begin(), samples->end());
    addPeers(table, name, again(redraw), 1.0,
             [&](const benchmarks::Peer& peer) { return peer.splines(copy); });
}

// What the plot holds on to once a call is over.
void addMemory(Table& table, long long count)
{
    const std::string name = "samples, " + sizeOf(count) + ", memory kept beyond them";
    if (!table.wants(name))
        return;
    SampleRedraw redraw(count);
    redraw.renew(benchmarks::samples(count));
    const auto inUse = [] {
        const auto info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    const double before = inUse();
    redraw();
    table.addShare(name, (inUse() - before) / (8.0 * static_cast<double>(count)), 0.03);
}

} // namespace

void addSamplePlots(Table& table)
{
    addSpline(table);
    for (const long long count : {100000, 1000000, 10000000}) {
        addWhole(table, count);
        addLogarithmic(table, count);
        addMemory(table, count);
        for (const long long zoom : {2, 10, 100, 1000})
            addPanned(table, count, count / zoom, 0.8e-3);
    }
    addNaN(table, 10000000);
    addWhole(table, 100000000);
    for (const long long zoom : {2, 10, 100, 1000, 10000})
        addPanned(table, 100000000, 100000000 / zoom, 1.5e-3);
}

} // namespace targets
