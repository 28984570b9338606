// What does an axis cost a plot (transforms) and a redraw (ticks)?
#include "benchmarks/Workload.h"

#include <kestrane/axes/AggregateAxis.h>
#include <kestrane/axes/FixedPositionLinearAxis.h>
#include <kestrane/axes/LinearAxis.h>
#include <kestrane/axes/LogAxis.h>
#include <kestrane/axes/MirroredAxis.h>

#include <benchmark/benchmark.h>

#include <cmath>

namespace {

using namespace benchmarks;
using pelorin::ui::chart::AggregateAxis;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::FixedPositionLinearAxis;
using pelorin::ui::chart::LinearAxis;
using pelorin::ui::chart::LogAxis;
using pelorin::ui::chart::MirroredAxis;

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

// 1 to 1000, and the same mirrored before it.
struct Bipolar
{
    Bipolar() { whole.addAxis(&mirror, 0.0, 0.5).addAxis(&source, 0.5, 1.0); }

    LogAxis source{1.0, 1000.0};
    MirroredAxis mirror{&source};
    AggregateAxis whole;
};

template<Axis::ScaleMode mode>
void transformLog(benchmark::State& state)
{
    const LogAxis axis(1.0, 1000.0);
    double value = 1.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(axis.transform(mode, value));
        value += 1e-6;
    }
}

void transformBipolar(benchmark::State& state)
{
    const Bipolar axes;
    double value = 1.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(axes.whole.transform(Axis::Linear, value));
        value = -value;
    }
}

// One step of a drag, then both lists of ticks: of 3 decades, and of twice 3.
void scrollAndTicksBipolar(benchmark::State& state)
{
    Bipolar axes;
    double by = 0.013;
    for (auto _ : state) {
        axes.whole.scrollAxis(0.75, by);
        by = -by;
        benchmark::DoNotOptimize(axes.whole.majorTicks());
        benchmark::DoNotOptimize(axes.whole.minorTicks());
    }
    if (axes.whole.minorTicks().size() < 46)
        state.SkipWithError("ticks are missing");
}

void scrollAndTicksLog(benchmark::State& state)
{
    LogAxis axis(1.0, 1000.0);
    double by = 0.013;
    for (auto _ : state) {
        axis.scrollAxis(0.5, by);
        by = -by;
        benchmark::DoNotOptimize(axis.majorTicks());
        benchmark::DoNotOptimize(axis.minorTicks());
    }
    if (axis.minorTicks().size() < 23)
        state.SkipWithError("ticks are missing");
}

} // namespace

BENCHMARK(transform<Axis::Linear>)->Name("axis/transform/linear");
BENCHMARK(transform<Axis::Logarithmic>)->Name("axis/transform/logarithmic");
BENCHMARK(inverseTransform<Axis::Linear>)->Name("axis/inverseTransform/linear");
BENCHMARK(inverseTransform<Axis::Logarithmic>)->Name("axis/inverseTransform/logarithmic");
BENCHMARK(transformLog<Axis::Linear>)->Name("axis/transform/on log axis");
BENCHMARK(transformLog<Axis::Logarithmic>)->Name("axis/transform/on log axis, logarithmic");
BENCHMARK(transformBipolar)->Name("axis/transform/on bipolar axis");
BENCHMARK(scrollAndTicksLog)->Name("axis/scrollAndTicks/log");
BENCHMARK(scrollAndTicksBipolar)->Name("axis/scrollAndTicks/bipolar");
BENCHMARK(scrollAndTicks<LinearAxis>)->Name("axis/scrollAndTicks/moving");
BENCHMARK(scrollAndTicks<FixedPositionLinearAxis>)->Name("axis/scrollAndTicks/fixed");
BENCHMARK(cachedTicks)->Name("axis/ticks/cached");
