// What do the ticks of a redraw cost?
#include "benchmarks/targets/Contest.h"
#include "benchmarks/targets/Questions.h"

#include <kestrane/axes/LinearAxis.h>
#include <kestrane/axes/LogAxis.h>

#include <benchmark/benchmark.h>

#include <string>

namespace targets {

namespace {

using pelorin::ui::chart::LinearAxis;
using pelorin::ui::chart::LogAxis;

// Each call scrolls, so that all ticks are made anew, with their ranks.
template<typename AxisClass>
void addRebuild(Table& table, const std::string& name, AxisClass& axis, int major, int minor,
                double target)
{
    if (axis.majorTicks().size() < major || axis.minorTicks().size() < minor)
        table.addFault(name, "ticks are missing");
    double by = 0.013;
    const Contestant rebuild{"rebuild",
                             [&] {
                                 axis.scrollAxis(0.5, by);
                                 by = -by;
                                 benchmark::DoNotOptimize(axis.majorTicks());
                                 benchmark::DoNotOptimize(axis.minorTicks());
                             },
                             [] {}, 2000};
    const Contestant cached{"cached", [&] { benchmark::DoNotOptimize(axis.majorTicks()); }, [] {},
                            100000};
    const auto seconds = medianSeconds({rebuild, cached});
    table.addTime(name + ", made anew", seconds[0], target);
    table.addTime(name + ", cached", seconds[1], 30e-9);
}

} // namespace

void addTicks(Table& table)
{
    const std::string linear = "ticks, linear, 11 major and 42 minor",
                      log = "ticks, log, 4 decades";
    if (table.wants(linear)) {
        LinearAxis axis(1.0, 0.0, 0.0, false, 10, 5);
        addRebuild(table, linear, axis, 10, 39, 1.2e-6);
    }
    if (table.wants(log)) {
        LogAxis axis(1.0, 10000.0);
        addRebuild(table, log, axis, 4, 32, 2.2e-6);
    }
}

} // namespace targets
