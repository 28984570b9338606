// What does a redraw of a sampled signal cost, and how far is that from one pass over its memory?
#include "benchmarks/Workload.h"

#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

using namespace benchmarks;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::SamplePlotAlgorithm;

using Result = decltype(SamplePlotAlgorithm().createSegments({}, {}, 0.0, 0.0));

struct Redraw
{
    QSharedPointer<const Axis> xAxis;
    QSharedPointer<const Axis> yAxis = linearAxis(1.0);

    Result operator()(SamplePlotAlgorithm& plot) const
    {
        return plot.createSegments(xAxis, yAxis, columnWidth, symbolSpacing);
    }
};

double secondsOf(const Redraw& redraw, SamplePlotAlgorithm& plot)
{
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(redraw(plot));
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

// Times count only for a result that is there and comes out the same twice.
bool isSound(const Redraw& redraw, long long count)
{
    SamplePlotAlgorithm plot;
    plot.setSnapshot(snapshot(count));
    const Result first = redraw(plot);
    return first.first.size() == 1 && first.first.at(0).size() >= 900 && first == redraw(plot);
}

void report(benchmark::State& state, double seconds, long long visible, long long count)
{
    const double perCall = seconds / static_cast<double>(state.iterations());
    state.counters["ns/sample"] = perCall * 1e9 / static_cast<double>(visible);
    state.counters["passes"] = perCall / secondsOfPlainPass(*samples(count));
}

void firstCall(benchmark::State& state)
{
    const long long count = state.range(0);
    const Redraw redraw{linearAxis(static_cast<double>(count))};
    if (!isSound(redraw, count))
        return state.SkipWithError("the two results differ or are empty");

    SamplePlotAlgorithm plot;
    double total = 0.0;
    for (auto _ : state) {
        plot.setSnapshot(snapshot(count));
        const double seconds = secondsOf(redraw, plot);
        state.SetIterationTime(seconds);
        total += seconds;
    }
    report(state, total, count, count);
}

void repeatedCall(benchmark::State& state, double from, long long visible, long long count)
{
    const Redraw redraw{linearAxis(static_cast<double>(visible), from)};
    if (!isSound(redraw, count))
        return state.SkipWithError("the two results differ or are empty");

    SamplePlotAlgorithm plot;
    plot.setSnapshot(snapshot(count));
    redraw(plot);
    double total = 0.0;
    for (auto _ : state) {
        const double seconds = secondsOf(redraw, plot);
        state.SetIterationTime(seconds);
        total += seconds;
    }
    report(state, total, visible, count);
}

void wholeData(benchmark::State& state)
{
    repeatedCall(state, 0.0, state.range(0), state.range(0));
}

// Zoomed in on 1e4 samples of many; "passes" is still measured against all of them.
void zoomedIn(benchmark::State& state)
{
    repeatedCall(state, static_cast<double>(state.range(0)) / 2, 10000, state.range(0));
}

} // namespace

BENCHMARK(firstCall)
    ->Name("createSegments/first")
    ->RangeMultiplier(10)
    ->Range(10000, 10000000)
    ->UseManualTime();
BENCHMARK(wholeData)
    ->Name("createSegments/repeated")
    ->RangeMultiplier(10)
    ->Range(10000, 10000000)
    ->UseManualTime();
BENCHMARK(zoomedIn)->Name("createSegments/zoomedIn")->Arg(10000000)->UseManualTime();
