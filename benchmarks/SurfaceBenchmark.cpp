// What does a redraw of two-dimensional data cost, and how far is that from the plainest way to the
// same colours, or from one pass over the memory? "cells" are those of the result; "ns/sample"
// counts all samples; "limits" is the time of a call against that of the plainest way.
#include "benchmarks/SurfaceWorkload.h"
#include "benchmarks/Workload.h"

#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <limits>

namespace {

using namespace benchmarks;
using namespace pelorin::ui::chart;
using pelorin::ui::ColorMap;

template<typename Call>
double secondsOf(const Call& call)
{
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(call());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

template<typename T>
double secondsOfPlainCells(PlainCells<T>& cells)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < 9; ++i)
        best = std::min(best, secondsOf([&] {
                            cells.write();
                            return 0;
                        }));
    return best;
}

// Seconds per call with the cells at hand, or cut anew each time.
template<typename Plot, typename Call>
double secondsPerCall(benchmark::State& state, Plot& plot, const Call& call, bool hit)
{
    call();
    double total = 0.0;
    for (auto _ : state) {
        if (!hit)
            plot.clearGeometryCache();
        const double seconds = secondsOf(call);
        state.SetIterationTime(seconds);
        total += seconds;
    }
    const double perCall = total / static_cast<double>(state.iterations());
    state.counters["ns/sample"] =
        perCall * 1e9 / static_cast<double>(state.range(0) * state.range(0));
    return perCall;
}

template<typename T, bool hit>
void makeColorArrays(benchmark::State& state)
{
    const SurfaceWorkload workload{state.range(0), static_cast<int>(state.range(1)),
                                   state.range(2) != 0, static_cast<unsigned>(state.range(3))};
    const auto axis = linearAxis(1.0);
    const ColorMap map = colorMap(workload.classes);
    const auto data = grid<T>(workload);
    Histogram2DPlotAlgorithm plot;
    plot.setSnapshot(data);
    const auto call = [&] { return plot.makeColorArrays(axis, axis, map, pixelSize, pixelSize); };

    // Times count only for a result that is right.
    PlainCells<T> cells(workload, data.begin()->base, map);
    double limit = secondsOfPlainCells(cells);
    if (!areSame(call().at(0), workload.isDenseAlongY, cells.cells()))
        return state.SkipWithError("a cell has another colour than by the plain way");
    state.counters["cells"] = static_cast<double>(cells.cells().size());
    const double seconds = secondsPerCall(state, plot, call, hit);
    limit = std::min(limit, secondsOfPlainCells(cells));
    state.counters["limits"] = seconds / limit;
}

template<bool hit>
void makeNeedles(benchmark::State& state)
{
    const auto axis = linearAxis(1.0);
    NeedlePlot2DAlgorithm plot;
    plot.setSnapshot(grid<double>({state.range(0)}));
    const auto call = [&] {
        return plot.makeNeedles(axis, axis, Qt::blue, Qt::red, pixelSize, pixelSize);
    };
    const auto result = call();
    if (result.size() < std::min(state.range(0), 1000L) - 1 || result[0].size() < 2)
        return state.SkipWithError("needles are missing");
    const double seconds = secondsPerCall(state, plot, call, hit);
    state.counters["passes"] =
        seconds / secondsOfPlainPass(*samples(state.range(0) * state.range(0)));
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    for (const int side : {500, 1000, 2000, 4000})
        benchmark->Arg(side);
    benchmark->UseManualTime();
}

// Side, classes, whether dense along y, percentage of NaN.
void workloads(benchmark::internal::Benchmark* benchmark)
{
    for (const int side : {500, 1000, 2000, 4000})
        benchmark->Args({side, 10, 0, 0});
    benchmark->UseManualTime();
}

void manyWorkloads(benchmark::internal::Benchmark* benchmark)
{
    workloads(benchmark);
    for (const int isDenseAlongY : {0, 1}) {
        for (const int side : {500, 4000})
            benchmark->Args({side, 256, isDenseAlongY, 0});
        for (const int percentNaN : {1, 50})
            benchmark->Args({2000, 10, isDenseAlongY, percentNaN});
    }
    benchmark->Args({2000, 10, 1, 0});
}

} // namespace

BENCHMARK(makeColorArrays<double, true>)->Name("makeColorArrays/double/hit")->Apply(manyWorkloads);
BENCHMARK(makeColorArrays<double, false>)->Name("makeColorArrays/double/miss")->Apply(workloads);
BENCHMARK(makeColorArrays<unsigned, true>)
    ->Name("makeColorArrays/unsigned/hit")
    ->Apply(manyWorkloads);
BENCHMARK(makeColorArrays<unsigned, false>)
    ->Name("makeColorArrays/unsigned/miss")
    ->Apply(workloads);
BENCHMARK(makeNeedles<true>)->Name("makeNeedles/hit")->Apply(sizes);
BENCHMARK(makeNeedles<false>)->Name("makeNeedles/miss")->Apply(sizes);
