// What does it cost to give a cell of a histogram its colour, and how does that grow with the
// number of classes?
#include "benchmarks/Workload.h"

#include <kestrane/colors/ColorMap.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <random>
#include <vector>

namespace {

using namespace benchmarks;
using pelorin::ui::ColorMap;

constexpr std::size_t cells = 100000;
constexpr std::size_t maximum = 1000000;

// Classes of equal width, so that a count meets each of them as often.
void append(ColorMap::Builder builder, int classes)
{
    for (int i = 0; i < classes; ++i)
        builder.appendEntry(QColor(i, 0, 0), 1 + std::size_t(i) * maximum / std::size_t(classes));
}

// In no order that a processor could foresee.
std::vector<std::size_t> counts()
{
    std::mt19937_64 random(1);
    std::vector<std::size_t> result(cells);
    std::generate(result.begin(), result.end(), [&random] { return random() % (maximum + 1); });
    return result;
}

// Of the last class that begins at or below the count; the classes ascend.
QColor scanned(const ColorMap& map, std::size_t count)
{
    for (int i = map.numberOfClasses() - 1; i >= 0; --i) {
        if (map.thresholdAtIndex(i) <= count)
            return map.colorAtIndex(i);
    }
    return map.unmatchedColor();
}

void mapToColor(benchmark::State& state)
{
    ColorMap map;
    append(map.build(), static_cast<int>(state.range(0)));
    const std::vector<std::size_t> values = counts();
    for (const std::size_t value : values) {
        if (map.mapToColor(value) != scanned(map, value))
            return state.SkipWithError("a count has the colour of another class");
    }
    double total = 0.0;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        for (const std::size_t value : values)
            benchmark::DoNotOptimize(map.mapToColor(value));
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(time.count());
        total += time.count();
    }
    const double perCall = total / static_cast<double>(state.iterations());
    state.counters["ns/cell"] = perCall * 1e9 / static_cast<double>(cells);
    state.counters["passes"] = perCall / secondsOfPlainPass(*samples(cells));
}

} // namespace

BENCHMARK(mapToColor)
    ->Name("colors/mapToColor/classes")
    ->RangeMultiplier(2)
    ->Range(2, 256)
    ->UseManualTime();
