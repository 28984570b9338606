// New data, other modes and lost caches while surface plots are asked for: each answer has to come
// of one setSnapshot() and one mode as a whole.
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/stress/Threads.h"
#include "tests/support/Builders.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// Up to three grids that hold nothing but their width, or nothing at all.
template<typename T>
Grids<T> gridsOf(std::size_t number)
{
    const long long width = static_cast<long long>(number % 4) * 8;
    const std::vector<T> samples(static_cast<std::size_t>(width * 4), static_cast<T>(width));
    std::vector<Grid<T>> grids(width == 0 ? 0 : number % 3 + 1, grid<T>({width, 4}, samples));
    return Grids<T>(grids);
}

void check(const Histogram2DPlotAlgorithm::HistoSegment& segment)
{
    EXPECT_EQ(segment.xEdges.size(), std::size_t(segment.maxCount) + 1);
    EXPECT_EQ(segment.colors.size(), (segment.xEdges.size() - 1) * 4);
    EXPECT_TRUE(segment.counts.empty() || segment.counts.size() == segment.colors.size());
    for (const double count : segment.counts) {
        EXPECT_EQ(count, segment.counts[0]);
        EXPECT_TRUE(count == segment.maxCount || count == std::log10(segment.maxCount));
    }
}

} // namespace

TEST(SurfaceStressTest, ColouredCellsAreOfOneSnapshotAndOneMode)
{
    Histogram2DPlotAlgorithm plot;
    const auto axis = linearAxis();
    runThreads([&](std::size_t thread) {
        repeat(300, [&](std::size_t round) {
            bool changed = false;
            if (thread % 4 == 0) {
                plot.setSnapshot(gridsOf<double>(round + thread));
            } else if (thread % 4 == 1) {
                plot.setSnapshot(gridsOf<unsigned>(round + thread));
                plot.setCountMode(static_cast<Histogram2DPlotAlgorithm::CountMode>(round % 3));
                EXPECT_LE(plot.countMode(), Histogram2DPlotAlgorithm::LogarithmicCounts);
            } else if (thread == 2) { // Alone, since other locks would hide that one is missing.
                plot.clearGeometryCache();
            } else {
                const QSharedPointer<const Axis> equal(axis->clone());
                for (const auto& segment : plot.makeColorArrays(equal, axis, {}, 1.0, 1.0,
                                                                round % 2 ? &changed : nullptr))
                    check(segment);
            }
        });
    });
}

TEST(SurfaceStressTest, ColouredNeedlesAreOfOneSnapshot)
{
    NeedlePlot2DAlgorithm plot;
    const auto axis = linearAxis();
    runThreads([&](std::size_t thread) {
        repeat(300, [&](std::size_t round) {
            if (thread % 2 == 0) {
                if (thread == 2)
                    plot.clearGeometryCache();
                else
                    plot.setSnapshot(gridsOf<double>(round + thread));
                return;
            }
            const auto needles = plot.makeNeedles(axis, axis, Qt::red, Qt::blue, 1.0, 1.0);
            for (int n = 0; n < needles.size(); ++n) {
                const int width = qRound(needles.last().last().x + 0.5);
                ASSERT_EQ(needles[n].size(), 5);
                EXPECT_EQ(needles[n][4].x, n % width + 0.5);
                EXPECT_EQ(needles[n][4].color, QColor(Qt::blue));
            }
        });
    });
}
