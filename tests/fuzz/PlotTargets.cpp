#include "kestrane/plots/SplineAlgorithm.h"

#include "tests/fuzz/Target.h"
#include "tests/plots/PlainSpline.h"
#include "tests/plots/RandomAxis.h"
#include "tests/support/Builders.h"
#include "tests/support/Comparisons.h"
#include "tests/surfaces/PlainSurface.h"

#include <gtest/gtest.h>

using namespace pelorin::ui::chart;
using namespace tests;

static Seen seen;

FUZZ_TARGET(SamplePlot)
{
    compareSamplePlots(dice, seen);
}

FUZZ_TARGET(XYPlot)
{
    compareXYPlots(dice, seen);
}

FUZZ_TARGET(Needles)
{
    compareNeedles(dice, seen);
}

FUZZ_TARGET(Histogram)
{
    compareSurfaces(dice, Surface::Histogram, seen);
}

FUZZ_TARGET(ColoredNeedles)
{
    compareSurfaces(dice, Surface::Needles, seen);
}

FUZZ_TARGET(Spline)
{
    std::vector<double> samples(std::size_t(dice.upTo(dice.upTo(3) ? 60 : 2000)));
    const bool isWild = dice.upTo(3) == 0;
    const double size = dice.oneOf({1.0, 1.0, 1e-308, 1e300, 1e12});
    for (double& sample : samples)
        sample = isWild && dice.upTo(9) == 0 ? dice.number() : size * dice.between(-1.0, 1.0);
    const auto data = segment(samples);
    pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator> spline(data.begin, data.count);
    PlainSpline plain(samples);
    for (int i = 0; i < 60; ++i) {
        const double index =
            dice.upTo(5) ? dice.between(-1.0, double(samples.size())) : dice.number();
        const bool isInside = index >= 0.0 && std::floor(index) < double(samples.size()) - 1.0;
        ASSERT_EQ(spline.covers(index), isInside) << index;
        if (isInside) {
            ASSERT_TRUE(same(spline[index], plain[index])) << index;
        } else {
            ASSERT_ANY_THROW(spline[index]) << index;
        }
    }
}

namespace {

struct Cells : GeometryBasedPlotAlgorithm
{
    using GeometryBasedPlotAlgorithm::buildGeometryList;
};

} // namespace

FUZZ_TARGET(CellGeometry)
{
    const auto axis = randomAxis(dice);
    const MetaInfo metaInfo{dice.number(), dice.number(),
                            dice.upTo(1) ? Axis::Linear : Axis::Logarithmic};
    const Grid<double> grid(memory<double>({}), {metaInfo, metaInfo}, Indices{dice.upTo(300), 0});
    const double pixelSize = dice.upTo(2) ? dice.oneOf({0.1, 0.01, 0.125}) : dice.number();
    if (pixelSize == 0.0)
        return;
    std::vector<PlainSurface::Edge> expected{{0.0, 0}};
    QList<PlainSurface::Edge> actual;
    PlainSurface::Edge first{0.0, 0};
    bool throws = false;
    try {
        PlainSurface::cut(expected, metaInfo, grid.shape[0], *axis, pixelSize);
    } catch (const std::runtime_error&) {
        throws = true;
    }
    try {
        Cells().buildGeometryList(grid, actual, first, axis.data(), pixelSize, 0);
        ASSERT_FALSE(throws);
    } catch (const std::runtime_error&) {
        ASSERT_TRUE(throws && actual.isEmpty());
        return;
    }
    actual.prepend(first);
    ASSERT_EQ(std::size_t(actual.size()), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_TRUE(same(actual[int(i)].position, expected[i].position)) << i;
        ASSERT_EQ(actual[int(i)].index, expected[i].index) << i;
    }
}
