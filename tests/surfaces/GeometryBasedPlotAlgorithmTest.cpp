#include "kestrane/surfaces/GeometryBasedPlotAlgorithm.h"

#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// Index k lies at the k-th position, and nothing is asked beyond the last.
class TableAxis : public LinearAxis
{
public:
    explicit TableAxis(Doubles positions)
        : m_positions(std::move(positions))
    {}

    double transform(ScaleMode mode, double value) const override
    {
        EXPECT_EQ(mode, Logarithmic);
        return m_positions.at(static_cast<std::size_t>(value));
    }

private:
    Doubles m_positions;
};

struct Plot : GeometryBasedPlotAlgorithm
{
    using GeometryBasedPlotAlgorithm::buildGeometryList;
    using GeometryBasedPlotAlgorithm::Geometry;
};

using Edges = std::vector<std::pair<double, long long>>;

} // namespace

TEST(GeometryBasedPlotAlgorithmTest, SamplesShareThePixelThatTheyFallInto)
{
    const struct
    {
        const char* name;
        double pixelSize;
        Doubles positions; // The last one is where the last sample ends.
        Edges expected;    // The first one stays at (7, 7) where nothing has a position.
    } cases[] = {
        {"four to a pixel", 1, {0, .25, .5, .75, 1, 1.25, 1.5, 1.75, 2}, {{0, 0}, {1, 4}, {2, 8}}},
        {"fewer than pixels", 1, {0, 3, 6, 9}, {{0, 0}, {3, 1}, {6, 2}, {9, 3}}},
        {"two left over", 1, {0, .25, .5, .75, 1, 1.25, 1.5}, {{0, 0}, {1, 4}}},
        {"half pixels from the left", .5, {-.7, -.4, .4, .6}, {{-1, 0}, {-.5, 1}, {0, 2}, {.5, 3}}},
        {"one sample", 1, {3.5, 4.5}, {{3, 0}}},
        {"no sample", 1, {3.5}, {{3, 0}}},
        {"hole behind two", 1, {0, .5, NaN, 1.2, 2.2}, {{0, 0}, {1, 2}, {2, 4}}},
        {"hole behind one", 1, {0, NaN, 1.2, 2.2}, {{0, 0}, {2, 3}}},
        {"hole at the end", 1, {0, 1, 1.5, NaN}, {{0, 0}, {1, 1}, {2, 3}}},
        {"holes before the first", 1, {NaN, NaN, 3, 4, 5}, {{3, 2}, {4, 3}, {5, 4}}},
        {"holes before the last", 1, {NaN, NaN, 3, 4}, {{3, 2}}},
        {"holes only", 1, {NaN, NaN, 3}, {{7, 7}}},
        {"a jump behind a full cell", 1, {0, .5, 5, 6}, {{0, 0}, {1, 2}, {6, 3}}},
        {"falling", 1, {5, 4, 3, 2}, {{5, 0}}},
        {"from infinity", 1, {-Infinity, 0, 1}, {{-Infinity, 0}, {0, 1}, {1, 2}}},
    };
    const MetaInfo info(0.0, 1.0, Axis::Logarithmic), other(5.0, 1.0, Axis::Linear);
    for (const auto& [name, pixelSize, positions, expected] : cases) {
        const TableAxis axis(positions);
        const auto samples = static_cast<long long>(positions.size()) - 1;
        for (const std::size_t dimension : {0u, 1u}) {
            Plot plot;
            Plot::Geometry first{7.0, 7};
            QList<Plot::Geometry> others;
            if (dimension == 0)
                plot.buildGeometryList(grid<double>({samples, 99}, {}, info, other), others, first,
                                       &axis, pixelSize, 0);
            else
                plot.buildGeometryList(grid<unsigned>({99, samples}, {}, other, info), others,
                                       first, &axis, pixelSize, 1);
            Edges edges{{first.position, first.index}};
            for (const Plot::Geometry& geometry : others)
                edges.emplace_back(geometry.position, geometry.index);
            EXPECT_EQ(edges, expected) << name;
        }
    }
}

TEST(GeometryBasedPlotAlgorithmTest, EachKindOfDataReplacesItsOwn)
{
    Plot plot;
    EXPECT_TRUE(plot.snapshot().empty() && plot.intSnapshot().empty());
    plot.setSnapshot(Grids<double>({grid<double>({1, 1}, {2.5})}));
    plot.setSnapshot(Grids<unsigned>({grid<unsigned>({1, 1}, {3})}));
    ASSERT_FALSE(plot.snapshot().empty() || plot.intSnapshot().empty());
    EXPECT_EQ(*plot.snapshot().begin()->base, 2.5);
    EXPECT_EQ(*plot.intSnapshot().begin()->base, 3u);
    plot.setSnapshot(Grids<double>());
    EXPECT_TRUE(plot.snapshot().empty() && !plot.intSnapshot().empty());
}
