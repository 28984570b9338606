// What coloured cells, coloured needles and colour maps promise.
#include "kestrane/colors/AutoComputeColorMapBuilder.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/laws/Law.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::ui::AutoComputeColorMapBuilder;
using pelorin::ui::ColorMap;

namespace {

using HistoSegment = Histogram2DPlotAlgorithm::HistoSegment;

ColorMap randomMap(Dice& dice, bool isCoarse = false)
{
    ColorMap map(Qt::black);
    auto builder = map.build();
    for (int i = dice.upTo(12); i >= 0; --i)
        builder.appendEntry(QColor(i + 1, 0, 0), std::size_t(dice.upTo(isCoarse ? 10 : 1000)));
    return map;
}

// A grid of whole numbers, and axes that show a part of it or all.
struct Request
{
    explicit Request(Dice& dice)
        : map(randomMap(dice))
    {
        for (long long& size : shape)
            size = 1 + dice.upTo(30);
        for (double& pixel : pixels)
            pixel = dice.between(0.01, 0.3);
        for (std::size_t i = 0; i < 2; ++i)
            lengths[i] = double(shape[i]) * dice.between(0.3, 1.5);
        samples.resize(std::size_t(shape[0] * shape[1]));
        for (double& sample : samples)
            sample = dice.upTo(1200) - 50;
    }

    template<typename T>
    Grid<T> gridOf() const
    {
        return grid<T>(shape, std::vector<T>(samples.begin(), samples.end()));
    }

    // In the other order of the memory.
    Grid<double> turnedInMemory() const
    {
        Doubles turned;
        for (long long x = 0; x < shape[0]; ++x) {
            for (long long y = 0; y < shape[1]; ++y)
                turned.push_back(samples[std::size_t(y * shape[0] + x)]);
        }
        return Grid<double>(memory(turned), {MetaInfo(), MetaInfo()}, shape, {shape[1], 1});
    }

    template<typename T>
    QVector<HistoSegment> plot(const std::vector<Grid<T>>& grids, bool isTurned = false) const
    {
        Histogram2DPlotAlgorithm algorithm;
        algorithm.setCountMode(Histogram2DPlotAlgorithm::LinearCounts);
        algorithm.setSnapshot(Grids<T>(grids));
        const std::size_t x = isTurned ? 1 : 0, y = 1 - x;
        return algorithm.makeColorArrays(linearAxis(lengths[x]), linearAxis(lengths[y]), map,
                                         pixels[x], pixels[y]);
    }

    HistoSegment plot() const { return plot<double>({gridOf<double>()}).at(0); }

    ColorMap map;
    Indices shape{};
    std::array<double, 2> pixels{}, lengths{};
    Doubles samples;
};

void expectSame(const HistoSegment& a, const HistoSegment& b)
{
    EXPECT_EQ(a.xEdges, b.xEdges);
    EXPECT_EQ(a.yEdges, b.yEdges);
    EXPECT_EQ(a.colors, b.colors);
    EXPECT_EQ(a.counts, b.counts);
    EXPECT_EQ(a.maxCount, b.maxCount);
}

} // namespace

LAW(SurfaceLawsTest, ACellHasTheColourOfItsCount)
{
    const Request request(dice);
    const HistoSegment cells = request.plot();
    ASSERT_EQ(cells.counts.size(), cells.colors.size());
    for (std::size_t i = 0; i < cells.counts.size(); ++i)
        EXPECT_EQ(cells.colors[i], request.map.mapToColor(std::size_t(cells.counts[i])));
}

LAW(SurfaceLawsTest, CellsFillTheirEdges)
{
    const HistoSegment cells = Request(dice).plot();
    const auto width = cells.xEdges.size() - 1, height = cells.yEdges.size() - 1;
    EXPECT_EQ(cells.colors.size(), width * height);
    for (const auto& edges : {cells.xEdges, cells.yEdges})
        EXPECT_EQ(std::adjacent_find(edges.begin(), edges.end(), std::greater_equal<>()),
                  edges.end());
}

LAW(SurfaceLawsTest, EachCountIsASampleAndTheLargestIsTold)
{
    const Request request(dice);
    const HistoSegment cells = request.plot();
    const std::set<double> samples(request.samples.begin(), request.samples.end());
    for (const double count : cells.counts)
        EXPECT_TRUE(count == 0.0 || samples.count(count) == 1) << count;
    const auto largest = std::max_element(cells.counts.begin(), cells.counts.end());
    EXPECT_EQ(cells.maxCount, largest == cells.counts.end() ? 0.0 : *largest);
}

LAW(SurfaceLawsTest, WhereAllSamplesHavePixelsNoPeakIsLost)
{
    Request request(dice);
    for (std::size_t i = 0; i < 2; ++i) {
        request.lengths[i] = 2.0 * double(request.shape[i]);
        request.pixels[i] = dice.between(0.1, 0.4) / request.lengths[i];
    }
    const HistoSegment cells = request.plot();
    const double largest = *std::max_element(request.samples.begin(), request.samples.end());
    if (!cells.counts.empty()) {
        EXPECT_EQ(cells.maxCount, std::max(largest, 0.0));
    }
}

LAW(SurfaceLawsTest, TheOrderInMemoryMakesNoDifference)
{
    const Request request(dice);
    expectSame(request.plot<double>({request.turnedInMemory()}).at(0), request.plot());
}

LAW(SurfaceLawsTest, CountsMayBeWholeNumbers)
{
    Request request(dice);
    for (double& sample : request.samples)
        sample = std::max(sample, 0.0);
    expectSame(request.plot<unsigned>({request.gridOf<unsigned>()}).at(0), request.plot());
}

LAW(SurfaceLawsTest, TurnedDataAreDrawnTurned)
{
    const Request request(dice);
    const Grid<double> turned(memory(request.samples), {MetaInfo(), MetaInfo()},
                              {request.shape[1], request.shape[0]}, {request.shape[0], 1});
    const HistoSegment plain = request.plot(), other = request.plot<double>({turned}, true).at(0);
    EXPECT_EQ(plain.xEdges, other.yEdges);
    EXPECT_EQ(plain.yEdges, other.xEdges);
    const std::size_t width = plain.xEdges.size() - 1, height = plain.yEdges.size() - 1;
    for (std::size_t i = 0; i < plain.colors.size(); ++i)
        EXPECT_EQ(plain.colors[i], other.colors[i % width * height + i / width]);
}

LAW(SurfaceLawsTest, ALargerSampleLowersNoCount)
{
    Request request(dice);
    const HistoSegment before = request.plot();
    request.samples[std::size_t(dice.upTo(int(request.samples.size()) - 1))] += 500.0;
    const HistoSegment after = request.plot();
    for (std::size_t i = 0; i < before.counts.size(); ++i)
        EXPECT_GE(after.counts[i], before.counts[i]);
}

LAW(SurfaceLawsTest, GridsAreDrawnAsIfAlone)
{
    const Request request(dice);
    const Grid<double> one = request.gridOf<double>(),
                       other = grid<double>({2, 2}, {1.0, 2.0, 3.0, dice.between(0.0, 9.0)});
    const auto both = request.plot<double>({one, other});
    expectSame(both.at(0), request.plot());
    expectSame(both.at(1), request.plot<double>({other}).at(0));
}

LAW(SurfaceLawsTest, ASecondRequestMakesNoNewCells)
{
    const Request request(dice);
    Histogram2DPlotAlgorithm algorithm;
    algorithm.setSnapshot(Grids<double>({request.gridOf<double>()}));
    const auto x = linearAxis(request.lengths[0]), y = linearAxis(request.lengths[1]);
    const auto plot = [&](bool* isNew) {
        return algorithm
            .makeColorArrays(x, y, request.map, request.pixels[0], request.pixels[1], isNew)
            .at(0);
    };
    bool isNew = false;
    const HistoSegment first = plot(&isNew);
    EXPECT_TRUE(isNew);
    expectSame(plot(&isNew), first);
    EXPECT_EQ(isNew, first.colors.empty()); // Where there are no cells, there are none to keep.
}

LAW(SurfaceLawsTest, ANeedleStandsOnItsFootAndDescends)
{
    const Request request(dice);
    NeedlePlot2DAlgorithm algorithm;
    algorithm.setSnapshot(Grids<double>({request.gridOf<double>()}));
    const auto needles =
        algorithm.makeNeedles(linearAxis(request.lengths[0]), linearAxis(request.lengths[1]),
                              Qt::black, Qt::white, request.pixels[0], request.pixels[1]);
    const HistoSegment cells = request.plot();
    EXPECT_EQ(std::size_t(needles.size()), cells.yEdges.size() > 1 ? cells.xEdges.size() - 1 : 0u);
    for (const auto& needle : needles) {
        EXPECT_NE(needle.size(), 1);
        for (int i = 1; i < needle.size(); ++i) {
            EXPECT_EQ(needle[i].x, needle[0].x);
            EXPECT_TRUE(i + 1 == needle.size() || needle[i].y < needle[i - 1].y);
        }
        EXPECT_TRUE(needle.isEmpty() || needle.last().y == 0.0);
    }
}

LAW(SurfaceLawsTest, ClassesMayBeAppendedInAnyOrder)
{
    std::set<int> thresholds;
    for (int i = dice.upTo(10); i >= 0; --i)
        thresholds.insert(dice.upTo(100));
    std::vector<int> order(thresholds.begin(), thresholds.end());
    ColorMap ascending, other;
    for (const int threshold : order)
        ascending.appendEntry(QColor(threshold, 0, 0), std::size_t(threshold));
    for (std::size_t i = order.size(); i > 0; --i) {
        std::swap(order[i - 1], order[std::size_t(dice.upTo(int(i) - 1))]);
        other.appendEntry(QColor(order[i - 1], 0, 0), std::size_t(order[i - 1]));
    }
    for (std::size_t value = 0; value < 110; ++value)
        EXPECT_EQ(ascending.mapToColor(value), other.mapToColor(value)) << value;
}

LAW(SurfaceLawsTest, AClassTakesWhatIsNotBelowIt)
{
    const ColorMap map = randomMap(dice, true);
    for (int i = 0; i < map.numberOfClasses(); ++i) {
        const std::size_t value = map.thresholdAtIndex(i) + std::size_t(dice.upTo(3));
        EXPECT_EQ(map.isUnmatched(value), value == 0);
        for (int k = 0; k < map.numberOfClasses(); ++k) {
            if (value > 0 && map.mapToColor(value) == map.colorAtIndex(k)) {
                EXPECT_GE(map.thresholdAtIndex(k), map.thresholdAtIndex(i));
                EXPECT_LE(map.thresholdAtIndex(k), value);
            }
        }
    }
}

LAW(SurfaceLawsTest, AnotherClassChangesColoursFromItsThresholdToTheNext)
{
    ColorMap map = randomMap(dice, true);
    const ColorMap before = map;
    const auto threshold = std::size_t(dice.upTo(12));
    map.appendEntry(Qt::white, threshold);
    auto next = ~std::size_t(0);
    for (int i = 0; i < before.numberOfClasses(); ++i) {
        if (before.thresholdAtIndex(i) > threshold)
            next = std::min(next, before.thresholdAtIndex(i));
    }
    for (std::size_t value = 0; value < 20; ++value) {
        const bool isItsOwn = value > 0 && value >= threshold && value < next;
        EXPECT_EQ(map.mapToColor(value), isItsOwn ? QColor(Qt::white) : before.mapToColor(value))
            << value;
    }
}

LAW(SurfaceLawsTest, AMapTimesAFactorTakesTheMultiples)
{
    const ColorMap map = randomMap(dice);
    const int factor = 1 + dice.upTo(5);
    const ColorMap larger(map, factor);
    ASSERT_EQ(larger.colors(), map.colors());
    for (int i = 1; i < map.numberOfClasses(); ++i) // The first class stays.
        EXPECT_EQ(larger.thresholdAtIndex(i), std::size_t(factor) * map.thresholdAtIndex(i));
    EXPECT_EQ(larger.thresholdAtIndex(0), map.thresholdAtIndex(0));
}

LAW(SurfaceLawsTest, AComputedMapTakesAllCountsAndAscends)
{
    QVector<QColor> colors;
    for (int i = 1 + dice.upTo(20); i > 0; --i)
        colors.append(QColor(i, 0, 0));
    const auto maximum = std::size_t(dice.upTo(100000));
    const ColorMap map = AutoComputeColorMapBuilder::buildAutoComputeMap(colors, maximum);
    EXPECT_TRUE(map.isUnmatched(0));
    EXPECT_EQ(map.unmatchedColor(), QColor(Qt::transparent));
    int before = 0;
    for (std::size_t value = 1; value <= maximum + 1; value = value * 5 / 4 + 1) {
        const int index = colors.indexOf(map.mapToColor(value));
        EXPECT_GE(index, before);
        before = index;
    }
    EXPECT_EQ(map.mapToColor(2 * maximum + 2), maximum < 2 ? colors.first() : colors.last());
}
