// What does a redraw of two-dimensional data cost, and how far is that from the plainest way to the
// same colours, or from one pass over the memory? "cells" are those of the result; "ns/sample"
// counts all samples; "limits" is the time of a call against that of the plainest way.
#include "benchmarks/Workload.h"

#include <kestrane/surfaces/Histogram2DPlotAlgorithm.h>
#include <kestrane/surfaces/NeedlePlot2DAlgorithm.h>

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace {

using namespace benchmarks;
using namespace pelorin::ui::chart;
using pelorin::backend::MultiDimensionalPlotSegment;
using pelorin::backend::MultiDimensionalPlotSnapshot;
using pelorin::ui::ColorMap;

constexpr double pixelSize = 1.0 / 1000;

struct Workload
{
    long long side;
    int classes = 10;
    bool isDenseAlongY = false;
    unsigned percentNaN = 0; // Zeros, where samples are whole numbers.
};

// Counts of two Gaussian peaks on a floor of noise, side times side of them over the whole axes;
// all of them less than 1024.
template<typename T>
MultiDimensionalPlotSnapshot<T, 2> grid(const Workload& workload)
{
    const long long side = workload.side;
    const auto samples = boost::make_shared<T[]>(static_cast<std::size_t>(side * side));
    std::mt19937_64 random(1);
    for (long long k = 0; k < side * side; ++k) {
        const double x = static_cast<double>(k % side) / static_cast<double>(side);
        const double y = static_cast<double>(k / side) / static_cast<double>(side);
        const double peaks = std::exp(-50.0 * ((x - 0.3) * (x - 0.3) + (y - 0.4) * (y - 0.4))) +
                             std::exp(-200.0 * ((x - 0.7) * (x - 0.7) + (y - 0.6) * (y - 0.6)));
        samples[k] = static_cast<T>(1000.0 * peaks + static_cast<double>(random() % 16));
        if (random() % 100 < workload.percentNaN)
            samples[k] = std::numeric_limits<T>::quiet_NaN();
    }
    const pelorin::backend::MetaInfo info(0.0, 1.0 / static_cast<double>(side));
    std::array<long long, 2> strides{1, side};
    if (workload.isDenseAlongY)
        std::swap(strides[0], strides[1]);
    return MultiDimensionalPlotSnapshot<T, 2>(
        {MultiDimensionalPlotSegment<T, 2>(samples, {info, info}, {side, side}, strides)});
}

// Few classes twice as wide each time, or many of equal width.
ColorMap colorMap(int classes)
{
    ColorMap map;
    auto builder = map.build();
    for (int k = 0; k < classes; ++k)
        builder.appendEntry(QColor::fromHsv(240 - 240 * k / classes, 255, 255),
                            classes <= 10 ? std::size_t(1) << k : std::size_t(4 * k + 1));
    return map;
}

// The yardstick: what writes a colour for each cell with no more than a look at each sample, into
// memory at hand. It may know that cells are squares of some width and counts whole and small.
template<typename T, int width>
void writePlainCells(const T* samples, long long side, const std::vector<QColor>& colors,
                     std::vector<QColor>& cells)
{
    std::vector<T> line(static_cast<std::size_t>(side));
    T* __restrict const largest = line.data();
    QColor* cell = cells.data();
    for (long long y = 0; y + width <= side; y += width, samples += width * side) {
        for (long long x = 0; x < side; ++x) {
            T value = 0;
            for (int row = 0; row < width; ++row)
                value = samples[row * side + x] > value ? samples[row * side + x] : value;
            largest[x] = value;
        }
        for (long long x = 0; x + width <= side; x += width) {
            T value = largest[x];
            for (int column = 1; column < width; ++column)
                value = std::max(value, largest[x + column]);
            std::memcpy(static_cast<void*>(cell++), &colors[static_cast<unsigned>(value)],
                        sizeof(QColor));
        }
    }
}

template<typename Call>
double secondsOf(const Call& call)
{
    const auto begin = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(call());
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

template<typename T>
double secondsOfPlainCells(const Workload& workload, const T* samples, const ColorMap& map,
                           std::vector<QColor>& cells)
{
    std::vector<QColor> colors;
    for (std::size_t count = 0; count < 1024; ++count)
        colors.push_back(map.mapToColor(count));
    const auto write = workload.side == 4000   ? writePlainCells<T, 4>
                       : workload.side == 2000 ? writePlainCells<T, 2>
                                               : writePlainCells<T, 1>;
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < 9; ++i)
        best = std::min(best, secondsOf([&] {
                            write(samples, workload.side, colors, cells);
                            return cells.data();
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

// Of a result cell by cell and of cells in the order of the memory.
bool areSame(const Histogram2DPlotAlgorithm::HistoSegment& segment, bool isDenseAlongY,
             const std::vector<QColor>& cells)
{
    const std::size_t width = segment.xEdges.size() - 1;
    const std::size_t height = segment.yEdges.size() - 1;
    for (std::size_t k = 0; k < cells.size() && segment.colors.size() == cells.size(); ++k) {
        if (segment.colors[k] != cells[isDenseAlongY ? k % width * height + k / width : k])
            return false;
    }
    return segment.colors.size() == cells.size();
}

template<typename T, bool hit>
void makeColorArrays(benchmark::State& state)
{
    const Workload workload{state.range(0), static_cast<int>(state.range(1)), state.range(2) != 0,
                            static_cast<unsigned>(state.range(3))};
    const auto axis = linearAxis(1.0);
    const ColorMap map = colorMap(workload.classes);
    const auto data = grid<T>(workload);
    Histogram2DPlotAlgorithm plot;
    plot.setSnapshot(data);
    const auto call = [&] { return plot.makeColorArrays(axis, axis, map, pixelSize, pixelSize); };

    // Times count only for a result that is right.
    const long long side = std::min(workload.side, 1000LL);
    std::vector<QColor> cells(static_cast<std::size_t>(side * side));
    double limit = secondsOfPlainCells(workload, data.begin()->base, map, cells);
    if (!areSame(call().at(0), workload.isDenseAlongY, cells))
        return state.SkipWithError("a cell has another colour than by the plain way");
    state.counters["cells"] = static_cast<double>(cells.size());
    const double seconds = secondsPerCall(state, plot, call, hit);
    limit = std::min(limit, secondsOfPlainCells(workload, data.begin()->base, map, cells));
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
