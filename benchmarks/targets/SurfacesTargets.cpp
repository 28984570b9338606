// What does it cost to colour the cells of a histogram?
#include "benchmarks/SurfaceWorkload.h"
#include "benchmarks/Workload.h"
#include "benchmarks/targets/Contest.h"
#include "benchmarks/targets/Peers.h"
#include "benchmarks/targets/Questions.h"

#include <string>

namespace targets {

namespace {

using namespace benchmarks;
using pelorin::ui::ColorMap;
using pelorin::ui::chart::Histogram2DPlotAlgorithm;

// A plot that has its cells at hand.
template<typename T>
struct HistogramRedraw
{
    SurfaceWorkload workload;
    pelorin::backend::MultiDimensionalPlotSnapshot<T, 2> data = grid<T>(workload);
    ColorMap map = colorMap(workload.classes);
    Histogram2DPlotAlgorithm plot;
    PlainCells<T> plain{workload, data.begin()->base, map};

    explicit HistogramRedraw(const SurfaceWorkload& asked)
        : workload(asked)
    {
        plot.setSnapshot(data);
    }

    auto operator()()
    {
        const auto axis = linearAxis(1.0);
        return plot.makeColorArrays(axis, axis, map, pixelSize, pixelSize);
    }

    bool isRight()
    {
        plain.write();
        return areSame((*this)().at(0), workload.isDenseAlongY, plain.cells());
    }

    Contestant contestant()
    {
        return {"histogram", [this] { benchmark::DoNotOptimize((*this)()); }};
    }

    Contestant limit()
    {
        return {"limit", [this] { plain.write(); }};
    }
};

template<typename T>
std::string nameOf(const SurfaceWorkload& workload)
{
    const std::string side = std::to_string(workload.side);
    return "cells, " + side + " x " + side + (sizeof(T) == 8 ? " double, " : " unsigned, ") +
           std::to_string(workload.classes) + " classes, along " +
           (workload.isDenseAlongY ? "y" : "x");
}

template<typename T>
void addCells(Table& table, const SurfaceWorkload& workload, double target)
{
    const std::string name = nameOf<T>(workload);
    if (!table.wants(name))
        return;
    HistogramRedraw<T> redraw(workload);
    if (!redraw.isRight())
        table.addFault(name, "a cell has another colour than by the plain way");
    const auto seconds = medianSeconds({redraw.limit(), redraw.contestant()});
    table.addRatio(name, seconds[1], "limit", seconds[0], target);
}

void addNaN(Table& table, const SurfaceWorkload& workload)
{
    const std::string name = nameOf<double>(workload);
    if (!table.wants(name))
        return;
    SurfaceWorkload few = workload, half = workload;
    few.percentNaN = 1;
    half.percentNaN = 50;
    HistogramRedraw<double> redraws[] = {HistogramRedraw<double>(workload),
                                         HistogramRedraw<double>(few),
                                         HistogramRedraw<double>(half)};
    const auto seconds =
        medianSeconds({redraws[0].contestant(), redraws[1].contestant(), redraws[2].contestant()});
    table.addRatio(name + ", 1 % NaN", seconds[1], "without", seconds[0], 1.5);
    table.addRatio(name + ", 50 % NaN", seconds[2], "without", seconds[0], 1.5);
}

// Against colours alone, in classes of equal width, which is all that peers have.
void addColorPeers(Table& table, const SurfaceWorkload& workload)
{
    const std::string name = nameOf<double>(workload);
    if (!table.wants(name))
        return;
    HistogramRedraw<double> redraw(workload);
    const double* const begin = redraw.data.begin()->base;
    const std::vector<double> values(begin, begin + workload.side * workload.side);
    std::vector<QRgb> colors;
    for (int k = 0; k < workload.classes; ++k)
        colors.push_back(redraw.map.mapToColor(std::size_t(1) << k).rgb());
    addPeers(table, name, redraw.contestant(), 1.0 / 1.5, [&](const Peer& peer) {
        return peer.colorers({values, static_cast<int>(workload.side), 0.0, 1024.0, colors});
    });
}

} // namespace

void addSurfaces(Table& table)
{
    for (const bool isDenseAlongY : {false, true}) {
        addCells<double>(table, {2000, 10, isDenseAlongY}, 1.8);
        addNaN(table, {2000, 10, isDenseAlongY});
        for (const long long side : {500, 4000})
            addCells<unsigned>(table, {side, 256, isDenseAlongY}, 2.5);
    }
    addColorPeers(table, {2000, 10, false});
}

} // namespace targets
