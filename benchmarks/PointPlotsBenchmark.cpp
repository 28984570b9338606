// What do x/y plots and needles cost a sample, and how far is that from one pass over the samples?
#include "benchmarks/Workload.h"

#include <kestrane/plots/NeedlePlotAlgorithm.h>
#include <kestrane/plots/XYPlotAlgorithm.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>
#include <random>

namespace {

using namespace benchmarks;
using namespace pelorin::backend;
using pelorin::ui::chart::NeedlePlotAlgorithm;
using pelorin::ui::chart::XYPlotAlgorithm;

// From 0 to 1, either ascending or shuffled.
PlotSnapshot positions(long long count, bool inOrder)
{
    const auto all = boost::make_shared<SampleVector>(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < all->size(); ++i)
        (*all)[i] = static_cast<double>(i) / static_cast<double>(count);
    if (!inOrder)
        std::shuffle(all->begin(), all->end(), std::mt19937_64(1));
    return PlotSnapshot({PlotSegment(all)});
}

void report(benchmark::State& state, long long count)
{
    state.counters["samples/s"] = benchmark::Counter(
        static_cast<double>(count * state.iterations()), benchmark::Counter::kIsRate);
    state.counters["pass ns/sample"] =
        secondsOfPlainPass(*samples(count)) * 1e9 / static_cast<double>(count);
}

// samples(), the given part of them NaN.
PlotSnapshot holed(long long count, double part)
{
    const auto all = boost::make_shared<SampleVector>(*samples(count));
    std::mt19937_64 random(1);
    std::bernoulli_distribution isHole(part);
    for (double& sample : *all) {
        if (isHole(random))
            sample = std::numeric_limits<double>::quiet_NaN();
    }
    return PlotSnapshot({PlotSegment(all)});
}

void xyPlot(benchmark::State& state, bool inOrder, double holes = 0.0)
{
    const long long count = state.range(0);
    const auto xAxis = linearAxis(1.0), yAxis = linearAxis(1.0);
    XYPlotAlgorithm plot;
    plot.setSnapshot(positions(count, inOrder),
                     holes > 0.0 ? holed(count, holes) : snapshot(count));
    const auto lines = plot.createSegments(xAxis, yAxis, columnWidth, symbolSpacing).first.size();
    if (holes > 0.0 ? lines < 1000 : lines != 1)
        return state.SkipWithError("there is no line");
    for (auto _ : state)
        benchmark::DoNotOptimize(plot.createSegments(xAxis, yAxis, columnWidth, symbolSpacing));
    report(state, count);
}

void needles(benchmark::State& state, bool thinned)
{
    const long long count = state.range(0);
    const auto xAxis = linearAxis(static_cast<double>(count)), yAxis = linearAxis(1.0);
    // Columns have to be as wide as the whole, by the rule, for steps of 1.0 to be thinned out.
    const auto fine = PlotSnapshot({PlotSegment(samples(count), MetaInfo(0.0, 1e-6))});
    NeedlePlotAlgorithm plot;
    plot.setSnapshot(thinned ? fine : snapshot(count));
    const auto fineAxis = linearAxis(1e-6 * static_cast<double>(count));
    const auto& axis = thinned ? fineAxis : xAxis;
    const auto first = plot.createNeedles(axis.get(), yAxis.get(), columnWidth);
    const auto size = static_cast<long long>(first.values.size());
    if (thinned ? size < 900 || size > 1100 : size != count)
        return state.SkipWithError("the needles are too many or too few");
    for (auto _ : state)
        benchmark::DoNotOptimize(plot.createNeedles(axis.get(), yAxis.get(), columnWidth));
    report(state, count);
}

void xyInOrder(benchmark::State& state)
{
    xyPlot(state, true);
}

void xyWithHoles(benchmark::State& state)
{
    xyPlot(state, true, 0.01);
}

void xyHalfHoles(benchmark::State& state)
{
    xyPlot(state, true, 0.5);
}

void xyShuffled(benchmark::State& state)
{
    xyPlot(state, false);
}

void needlesThinned(benchmark::State& state)
{
    needles(state, true);
}

void needlesWhole(benchmark::State& state)
{
    needles(state, false);
}

} // namespace

BENCHMARK(xyInOrder)->Name("xy/inOrder")->Arg(1000000)->Arg(10000000);
BENCHMARK(xyShuffled)->Name("xy/shuffled")->Arg(1000000)->Arg(10000000);
BENCHMARK(xyWithHoles)->Name("xy/inOrder/1percentNaN")->Arg(1000000)->Arg(10000000);
BENCHMARK(xyHalfHoles)->Name("xy/inOrder/50percentNaN")->Arg(1000000)->Arg(10000000);
BENCHMARK(needlesThinned)->Name("needles/thinned")->Arg(1000000)->Arg(10000000);
BENCHMARK(needlesWhole)->Name("needles/whole")->Arg(1000000)->Arg(10000000);
