// What does an axis cost a plot (transforms) and a redraw (ticks)?
#include "benchmarks/Workload.h"

#include <kestrane/axes/FixedPositionLinearAxis.h>
#include <kestrane/axes/LinearAxis.h>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace benchmarks;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::FixedPositionLinearAxis;
using pelorin::ui::chart::LinearAxis;

template<Axis::ScaleMode mode>
void transform(benchmark::State& state)
{
    const auto axis = linearAxis(10.0);
    double value = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(axis->transform(mode, value));
        value += 1e-6;
    }
}

template<Axis::ScaleMode mode>
void inverseTransform(benchmark::State& state)
{
    const auto axis = linearAxis(10.0, 1.0);
    double position = 0.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(axis->inverseTransform(mode, position));
        position += 1e-9;
    }
}

// One step of a drag, then both lists of ticks: 10 major, up to 41 minor ones.
template<typename AxisClass>
void scrollAndTicks(benchmark::State& state)
{
    AxisClass axis(1.0, 0.0, 0.0, false, 10, 5);
    double by = 0.013;
    for (auto _ : state) {
        axis.scrollAxis(0.5, by);
        by = -by;
        benchmark::DoNotOptimize(axis.majorTicks());
        benchmark::DoNotOptimize(axis.minorTicks());
    }
    if (axis.minorTicks().size() < 39)
        state.SkipWithError("ticks are missing");
}

void cachedTicks(benchmark::State& state)
{
    LinearAxis axis(1.0, 0.0, 0.0, false, 10, 5);
    for (auto _ : state)
        benchmark::DoNotOptimize(axis.majorTicks());
}

} // namespace

BENCHMARK(transform<Axis::Linear>)->Name("axis/transform/linear");
BENCHMARK(transform<Axis::Logarithmic>)->Name("axis/transform/logarithmic");
BENCHMARK(inverseTransform<Axis::Linear>)->Name("axis/inverseTransform/linear");
BENCHMARK(inverseTransform<Axis::Logarithmic>)->Name("axis/inverseTransform/logarithmic");
BENCHMARK(scrollAndTicks<LinearAxis>)->Name("axis/scrollAndTicks/moving");
BENCHMARK(scrollAndTicks<FixedPositionLinearAxis>)->Name("axis/scrollAndTicks/fixed");
BENCHMARK(cachedTicks)->Name("axis/ticks/cached");
