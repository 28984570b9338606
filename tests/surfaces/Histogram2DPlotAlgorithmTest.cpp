#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::ui::ColorMap;
using Plot = Histogram2DPlotAlgorithm;

namespace {

const QColor none(Qt::black), low(Qt::blue), high(Qt::red), top(Qt::white);

class Histogram2DPlotAlgorithmTest : public testing::Test
{
protected:
    Histogram2DPlotAlgorithmTest()
    {
        map.build().appendEntry(low, 1).appendEntry(high, 7).appendEntry(top, ~std::size_t(0));
        plot.setCountMode(Plot::LinearCounts);
    }

    QVector<Plot::HistoSegment> ask()
    {
        return plot.makeColorArrays(xAxis, yAxis, map, 1.0, 1.0, &changed);
    }

    // A row of cells, each with one of the samples and, above it, a zero.
    template<typename T>
    static Grid<T> row(std::vector<T> samples, double offset = 0.0)
    {
        const auto width = static_cast<long long>(samples.size());
        samples.resize(2 * samples.size());
        return grid<T>({width, 2}, samples, {offset, 1.0}, {0.0, 0.5});
    }

    Plot plot;
    QSharedPointer<const Axis> xAxis = linearAxis(), yAxis = linearAxis();
    ColorMap map{none};
    bool changed = false;
};

} // namespace

TEST_F(Histogram2DPlotAlgorithmTest, ACellShowsItsLargestSample)
{
    const std::vector<unsigned> samples{0, 3, 1, 0, 0, 0, 7, 2};
    EXPECT_EQ(Plot().countMode(), Plot::NoCounts);
    const std::pair<int, Doubles> modes[] = {
        {Plot::NoCounts, {}},
        {Plot::LinearCounts, {3, 1, 0, 7}},
        {Plot::LogarithmicCounts, {std::log10(3.0), 0, -Infinity, std::log10(7.0)}},
        {-5, {}},
    };
    for (const bool whole : {true, false}) {
        const MetaInfo x(0.0, 0.5), y;
        if (whole)
            plot.setSnapshot(Grids<unsigned>({grid({4, 2}, samples, x, y)}));
        else
            plot.setSnapshot(Grids<double>({grid({4, 2}, doubles(samples), x, y)}));
        for (const auto& [mode, counts] : modes) {
            plot.setCountMode(static_cast<Plot::CountMode>(mode));
            EXPECT_EQ(plot.countMode(), mode);
            const auto segments = ask();
            ASSERT_EQ(segments.size(), 1);
            EXPECT_EQ(doubles(segments[0].xEdges), (Doubles{0, 1, 2}));
            EXPECT_EQ(doubles(segments[0].yEdges), (Doubles{0, 1, 2}));
            EXPECT_TRUE(std::equal(segments[0].colors.begin(), segments[0].colors.end(),
                                   std::begin({low, low, none, high})));
            EXPECT_EQ(doubles(segments[0].counts), counts);
            EXPECT_EQ(segments[0].counts.capacity() != 0, mode != Plot::NoCounts);
            EXPECT_EQ(segments[0].maxCount, 7.0);
            EXPECT_EQ(changed, whole && mode == Plot::NoCounts) << "both kinds share their cells";
        }
    }
}

TEST_F(Histogram2DPlotAlgorithmTest, DoublesCountWholeForColoursAndAsTheyAreOtherwise)
{
    plot.setSnapshot(Grids<double>(
        {row<double>({0.9, 6.99, -3.0, NaN, 1e30, Infinity}), row<double>({-1.0, NaN}),
         grid<double>({2, 2}, Doubles(4, -0.0), {0.0, 1.0}, {0.0, 0.5})}));
    const auto segments = ask();
    EXPECT_EQ(doubles(segments.at(0).counts), (Doubles{0.9, 6.99, 0.0, 0.0, 1e30, Infinity}));
    const auto& colors = segments[0].colors;
    EXPECT_EQ(std::vector<QColor>(colors.begin(), colors.end()),
              (std::vector<QColor>{none, low, none, none, top, top}));
    EXPECT_EQ(segments[0].maxCount, Infinity);
    EXPECT_EQ(segments.at(1).maxCount, 0.0);
    EXPECT_FALSE(std::signbit(segments.at(2).counts.at(0)));
}

TEST_F(Histogram2DPlotAlgorithmTest, DoublesAreDrawnWhereThereAreAny)
{
    plot.setSnapshot(Grids<double>({row<double>({0, 1})}));
    plot.setSnapshot(Grids<unsigned>({row<unsigned>({4000000000u, 2})}));
    EXPECT_EQ(ask().at(0).maxCount, 1.0);
    plot.setSnapshot(Grids<double>());
    EXPECT_EQ(ask().at(0).maxCount, 4e9);
}

TEST_F(Histogram2DPlotAlgorithmTest, CellsAreReusedUntilWhatTheyWereMadeFromChanges)
{
    auto* first = new LinearAxis(1.0, 0.0, 0.0, false, 1);
    const QSharedPointer<const Axis> keepAlive(first);
    xAxis = keepAlive;
    const auto setRows = [this](double sample, double offset) {
        plot.setSnapshot(Grids<double>({row<double>({1, 2}), row<double>({3, sample}, offset)}));
    };
    const struct
    {
        const char* name;
        std::function<void()> change;
        bool rebuilds;
        Doubles edges, counts; // Of the second segment.
    } steps[] = {
        {"at first", [&] { setRows(4, 0); }, true, {0, 1, 2}, {3, 4}},
        {"nothing", [] {}, false, {0, 1, 2}, {3, 4}},
        {"samples", [&] { setRows(5, 0); }, false, {0, 1, 2}, {3, 5}},
        {"a grid", [&] { setRows(5, 8); }, true, {8, 9, 10}, {3, 5}},
        {"the axis in place", [&] { first->setOffset(1.0); }, false, {8, 9, 10}, {3, 5}},
        {"no cells", [&] { plot.clearGeometryCache(); }, true, {7, 8, 9}, {3, 5}},
        {"an equal axis", [&] { xAxis.reset(first->clone()); }, false, {7, 8, 9}, {3, 5}},
        {"the axis kept", [&] { first->setOffset(2.0); }, true, {7, 8, 9}, {3, 5}},
        {"another axis", [&] { xAxis = linearAxis(2.0); }, true, {4, 5}, {5}},
    };
    for (const auto& [name, change, rebuilds, edges, counts] : steps) {
        change();
        const auto segments = ask();
        ASSERT_EQ(segments.size(), 2);
        EXPECT_EQ(changed, rebuilds) << name;
        EXPECT_EQ(doubles(segments[1].xEdges), edges) << name;
        EXPECT_EQ(doubles(segments[1].counts), counts) << name;
    }
}

TEST_F(Histogram2DPlotAlgorithmTest, WhatItRefusesLeavesTheCellsAlone)
{
    const Grids<double> data({row<double>({1, 2})});
    const auto refused = [&](const auto& x, const auto& y, double xPixel, double yPixel) {
        changed = false;
        return plot.makeColorArrays(x, y, map, xPixel, yPixel, &changed).isEmpty() && changed;
    };
    plot.setSnapshot(data);
    ask();
    for (int pass = 0; pass < 2; ++pass) { // With data, then without.
        EXPECT_TRUE(refused(nullptr, yAxis, 1.0, 1.0) && refused(xAxis, nullptr, 1.0, 1.0));
        EXPECT_TRUE(refused(xAxis, yAxis, 0.0, 1.0) && refused(xAxis, yAxis, 1.0, -0.0));
        plot.setSnapshot(Grids<double>());
        EXPECT_TRUE(plot.makeColorArrays(xAxis, yAxis, map, 1.0, 1.0).isEmpty());
    }
    plot.setSnapshot(data);
    EXPECT_EQ(ask().size(), 1);
    EXPECT_FALSE(changed);

    plot.setSnapshot(Grids<double>());
    EXPECT_TRUE(refused(xAxis, yAxis, 1.0, 1.0)) << "no data, and the flag asked for";
    plot.setSnapshot(data);
    EXPECT_EQ(ask().size(), 1);
    EXPECT_TRUE(changed);
}

TEST_F(Histogram2DPlotAlgorithmTest, AGridWithoutCellsIsTriedAgainEachTime)
{
    plot.setSnapshot(Grids<double>({grid<double>({1, 2}, {5, 6})}));
    for (int call = 0; call < 2; ++call) {
        const auto segments = ask();
        EXPECT_TRUE(changed);
        EXPECT_EQ(doubles(segments.at(0).xEdges), (Doubles{0}));
        EXPECT_EQ(doubles(segments.at(0).yEdges), (Doubles{0, 1, 2}));
        EXPECT_TRUE(segments[0].colors.empty() && segments[0].counts.empty());
        EXPECT_EQ(segments[0].maxCount, 0.0);
    }
}
