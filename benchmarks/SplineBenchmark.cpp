// What does it cost to set up a spline, and to ask it?
#include "benchmarks/Workload.h"

#include <kestrane/plots/SplineAlgorithm.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>

namespace {

using namespace benchmarks;
using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

void setUp(benchmark::State& state)
{
    const auto data = snapshot(state.range(0));
    const auto& segment = data.segments.front();
    double total = 0.0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        Spline spline(segment.begin, segment.count);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        if (spline[1.0] != segment.begin[1])
            return state.SkipWithError("the curve misses its samples");
        state.SetIterationTime(time.count());
        total += time.count();
    }
    const double perCall = total / static_cast<double>(state.iterations());
    state.counters["ns/sample"] = perCall * 1e9 / static_cast<double>(state.range(0));
    state.counters["passes"] = perCall / secondsOfPlainPass(*samples(state.range(0)));
}

// Steps of 0.1 stay in an interval ten times, steps of 10 never.
void query(benchmark::State& state)
{
    const auto data = snapshot(100000);
    Spline spline(data.segments.front().begin, data.segments.front().count);
    const double step = static_cast<double>(state.range(0)) / 10.0;
    double index = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(spline[index]);
        index += step;
        if (!(index < 99000.0))
            index = 0.0;
    }
}

} // namespace

BENCHMARK(setUp)
    ->Name("spline/setUp")
    ->RangeMultiplier(10)
    ->Range(10000, 10000000)
    ->UseManualTime();
BENCHMARK(query)->Name("spline/query(step*10)")->Arg(1)->Arg(100);
