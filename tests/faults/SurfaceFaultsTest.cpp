#include "kestrane/axes/LogAxis.h"
#include "kestrane/colors/AutoComputeColorMapBuilder.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"
#include "tests/faults/HostAxis.h"
#include "tests/faults/Trial.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

using namespace pelorin::ui;
using namespace pelorin::ui::chart;

namespace tests {

namespace {

/// Two grids, of which one has more samples than pixels.
template<typename T>
Grids<T> measured(T factor)
{
    std::vector<T> samples;
    for (int i = 0; i < 300; ++i)
        samples.push_back(factor * T((i * 7919) % 100));
    return Grids<T>({grid<T>({30, 10}, samples, {1.0, 0.3}, {1.0, 1.0}),
                     grid<T>({4, 3}, samples, {2.0, 1.0}, {3.0, 2.0})});
}

/// A plot of each kind, on axes of one kind, holding data and the cells of other pixels.
template<typename Kind>
struct Surfaces
{
    struct Cells : GeometryBasedPlotAlgorithm
    {
        using GeometryBasedPlotAlgorithm::buildGeometryList;
    };

    Surfaces()
    {
        colors.build().appendEntry(Qt::blue, 1).appendEntry(Qt::red, 50);
        histogram.setCountMode(Histogram2DPlotAlgorithm::LogarithmicCounts);
        histogram.setSnapshot(measured<double>(1.0));
        counts.setSnapshot(measured<unsigned>(1));
        needles.setSnapshot(measured<double>(1.0));
        read();
    }

    auto rectangles(double pixel) { return histogram.makeColorArrays(x, y, colors, pixel, pixel); }
    auto counted(double pixel) { return counts.makeColorArrays(x, y, colors, pixel, pixel); }
    auto sticks(double pixel) { return needles.makeNeedles(x, y, Qt::blue, Qt::red, pixel, pixel); }
    double edges()
    {
        GeometryBasedPlotAlgorithm::Geometry first{0.0, 0};
        QList<GeometryBasedPlotAlgorithm::Geometry> list;
        cells.buildGeometryList(*next.begin(), list, first, x.data(), 1.0 / 64, 0);
        return list.isEmpty() ? 0.0 : list.last().position;
    }

    std::string read() { return Bits::of(rectangles(1.0 / 16), counted(0.25), sticks(0.125)); }

    const QSharedPointer<const Axis> x = QSharedPointer<Kind>::create();
    const QSharedPointer<const Axis> y = QSharedPointer<Kind>::create();
    ColorMap colors;
    Histogram2DPlotAlgorithm histogram, counts;
    NeedlePlot2DAlgorithm needles;
    Cells cells;
    Grids<double> next = measured<double>(2.0);
};

template<typename Kind>
void walkSurfaces(const std::string& kind)
{
    using All = Surfaces<Kind>;
    const std::string on = " on " + kind;
    walk({
        row<All>("makeColorArrays" + on, [](All& all) { return all.rectangles(1.0 / 64); }),
        row<All>("makeColorArrays of counts" + on, [](All& all) { return all.counted(1.0 / 64); }),
        row<All>("makeColorArrays again" + on, [](All& all) { return all.rectangles(1.0 / 16); }),
        row<All>("makeNeedles" + on, [](All& all) { return all.sticks(1.0 / 64); }),
        row<All>("buildGeometryList" + on, [](All& all) { return all.edges(); }),
        row<All>("setSnapshot" + on, [](All& all) { all.histogram.setSnapshot(all.next); }),
        row<All>("clearGeometryCache" + on, [](All& all) { all.needles.clearGeometryCache(); }),
    });
}

struct Colors
{
    Colors() { map.build().appendEntry(Qt::blue, 1).appendEntry(Qt::red, 50); }

    std::string read() { return Bits::of(map); }

    ColorMap map;
};

} // namespace

TEST(SurfaceFaults, AreSurvivedBySurfaces)
{
    walkSurfaces<LinearAxis>("linear axes");
    walkSurfaces<LogAxis>("logarithmic axes");
    walkSurfaces<HostAxis>("axes of the host");
}

TEST(SurfaceFaults, AreSurvivedByColors)
{
    walk({
        row<Colors>("appendEntry", [](Colors& c) { c.map.appendEntry(Qt::green, 3); }),
        row<Colors>("build", [](Colors& c) { c.map.build().appendEntry(Qt::green, 3); }),
        row<Colors>(
            "build on the way of an exception",
            [](Colors& c) {
                try {
                    const ColorMap::Builder builder = c.map.appendEntry(Qt::green, 3);
                    throw HostError();
                } catch (const HostError&) {
                }
            },
            Answer::Partial),
        row<Colors>("ColorMap", [](Colors& c) { return ColorMap(c.map, 1.5); }),
        row<Colors>("operator=", [](Colors& c) { c.map = ColorMap(c.map, 1.5); }),
        row<Colors>(
            "buildAutoComputeMap",
            [](Colors& c) { return AutoComputeColorMapBuilder::buildAutoComputeMap(c.map, 100); }),
    });
}

} // namespace tests
