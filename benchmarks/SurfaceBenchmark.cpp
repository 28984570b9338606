// What does a redraw of two-dimensional data cost, and how far is that from one pass over its
// memory? "cells" are those of the result; "ns/sample" counts all samples.
#include "benchmarks/Workload.h"

#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>
#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>

namespace {

using namespace benchmarks;
using namespace pelorin::ui::chart;
using pelorin::backend::MultiDimensionalPlotSegment;
using pelorin::backend::MultiDimensionalPlotSnapshot;
using pelorin::ui::ColorMap;

constexpr double pixelSize = 1.0 / 1000;

// Counts of two Gaussian peaks on a floor of noise, side times side of them over the whole axes.
template<typename T>
MultiDimensionalPlotSnapshot<T, 2> grid(long long side)
{
    const auto samples = boost::make_shared<T[]>(static_cast<std::size_t>(side * side));
    std::mt19937_64 random(1);
    for (long long k = 0; k < side * side; ++k) {
        const double x = static_cast<double>(k % side) / static_cast<double>(side);
        const double y = static_cast<double>(k / side) / static_cast<double>(side);
        const double peaks = std::exp(-50.0 * ((x - 0.3) * (x - 0.3) + (y - 0.4) * (y - 0.4))) +
                             std::exp(-200.0 * ((x - 0.7) * (x - 0.7) + (y - 0.6) * (y - 0.6)));
        samples[k] = static_cast<T>(1000.0 * peaks + static_cast<double>(random() % 16));
    }
    const pelorin::backend::MetaInfo info(0.0, 1.0 / static_cast<double>(side));
    return MultiDimensionalPlotSnapshot<T, 2>(
        {MultiDimensionalPlotSegment<T, 2>(samples, {info, info}, {side, side})});
}

ColorMap tenClasses()
{
    ColorMap map;
    auto builder = map.build();
    for (int k = 0; k < 10; ++k)
        builder.appendEntry(QColor::fromHsv(240 - 24 * k, 255, 255), std::size_t(1) << k);
    return map;
}

template<typename Call>
double secondsOf(const Call& call)
{
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(call());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

void report(benchmark::State& state, double seconds, std::size_t sampleSize)
{
    const double count = static_cast<double>(state.range(0) * state.range(0));
    const double perCall = seconds / static_cast<double>(state.iterations());
    const auto asDoubles = static_cast<long long>(count * static_cast<double>(sampleSize) / 8.0);
    state.counters["ns/sample"] = perCall * 1e9 / count;
    state.counters["passes"] = perCall / secondsOfPlainPass(*samples(asDoubles));
}

// Times of calls with the cells at hand, or cut anew each time.
template<typename Plot, typename Call>
void timeCalls(benchmark::State& state, Plot& plot, const Call& call, bool hit,
               std::size_t sampleSize)
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
    report(state, total, sampleSize);
}

template<typename T, bool hit>
void makeColorArrays(benchmark::State& state)
{
    const auto axis = linearAxis(1.0);
    const ColorMap map = tenClasses();
    const auto data = grid<T>(state.range(0));
    Histogram2DPlotAlgorithm plot;
    plot.setSnapshot(data);
    const auto call = [&] { return plot.makeColorArrays(axis, axis, map, pixelSize, pixelSize); };

    // Times count only for a result that is there and shows the largest sample.
    const auto result = call();
    const T* const begin = data.begin()->base;
    const T largest = *std::max_element(begin, begin + state.range(0) * state.range(0));
    if (result.size() != 1 || result[0].maxCount != static_cast<double>(largest))
        return state.SkipWithError("the result is empty or misses a sample");
    state.counters["cells"] = static_cast<double>(result[0].colors.size());
    timeCalls(state, plot, call, hit, sizeof(T));
}

template<bool hit>
void makeNeedles(benchmark::State& state)
{
    const auto axis = linearAxis(1.0);
    NeedlePlot2DAlgorithm plot;
    plot.setSnapshot(grid<double>(state.range(0)));
    const auto call = [&] {
        return plot.makeNeedles(axis, axis, Qt::blue, Qt::red, pixelSize, pixelSize);
    };
    const auto result = call();
    if (result.size() < std::min(state.range(0), 1000L) - 1 || result[0].size() < 2)
        return state.SkipWithError("needles are missing");
    timeCalls(state, plot, call, hit, sizeof(double));
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    for (const int side : {500, 1000, 2000, 4000})
        benchmark->Arg(side);
    benchmark->UseManualTime();
}

} // namespace

BENCHMARK(makeColorArrays<double, true>)->Name("makeColorArrays/double/hit")->Apply(sizes);
BENCHMARK(makeColorArrays<double, false>)->Name("makeColorArrays/double/miss")->Apply(sizes);
BENCHMARK(makeColorArrays<unsigned, true>)->Name("makeColorArrays/unsigned/hit")->Apply(sizes);
BENCHMARK(makeColorArrays<unsigned, false>)->Name("makeColorArrays/unsigned/miss")->Apply(sizes);
BENCHMARK(makeNeedles<true>)->Name("makeNeedles/hit")->Apply(sizes);
BENCHMARK(makeNeedles<false>)->Name("makeNeedles/miss")->Apply(sizes);
