// Both surface plots against their plain rules, bit for bit, over sequences of calls: what changes
// between two calls decides which cells are used again.
#include "tests/plots/RandomAxis.h"
#include "tests/support/Builders.h"
#include "tests/support/Comparisons.h"
#include "tests/surfaces/PlainSurface.h"

#include <gtest/gtest.h>

#include <optional>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

const QColor startColor(20, 200, 30, 40), endColor(220, 100, 30, 240);

MetaInfo randomMetaInfo(Dice& dice)
{
    const double offset = dice.upTo(19)
                              ? dice.oneOf({0.0, 0.25, 1.0, -3.0, dice.between(-9.0, 9.0)})
                              : dice.oneOf({NaN, Infinity, 1e300});
    const double scale = dice.upTo(19) ? dice.oneOf({1.0, 0.25, 0.1, 0.05, dice.between(0.01, 2.0)})
                                       : dice.oneOf({NaN, -0.7, 1e300, 0.0});
    return MetaInfo(offset, scale, dice.upTo(4) ? Axis::Linear : Axis::Logarithmic);
}

// A place in memory of 25 times 25 samples.
struct Layout
{
    std::array<MetaInfo, 2> metaInfo;
    Indices shape, strides;
    long long originOffset;
};

Indices randomShape(Dice& dice)
{
    const auto length = [&] { return static_cast<long long>(dice.oneOf({0, 1, 2, 9, 24, 24})); };
    return {length(), length()};
}

Layout randomLayout(Dice& dice)
{
    Indices strides{1, 25};
    if (dice.upTo(1))
        std::swap(strides[0], strides[1]);
    long long origin = dice.upTo(1);
    if (dice.upTo(4) == 0) {
        origin += strides[0] * 24;
        strides[0] = -strides[0];
    }
    return {{randomMetaInfo(dice), randomMetaInfo(dice)}, randomShape(dice), strides, origin};
}

template<typename T>
T randomSample(Dice& dice);

template<>
double randomSample<double>(Dice& dice)
{
    const double odd = dice.oneOf({NaN, Infinity, -1.0, -Infinity, 1e19, 1e30, 0.3, -0.0, 0x1p53,
                                   0x1p53 + 2.0, 0x1p64, 0x1p64 - 2048.0, 5e-324, 0.999});
    const double usual = std::floor(dice.between(-40.0, 40.0));
    return dice.upTo(9) ? std::fmax(usual, 0.0) : odd;
}

template<>
unsigned randomSample<unsigned>(Dice& dice)
{
    return dice.upTo(9) ? unsigned(std::max(0, dice.upTo(80) - 40)) : ~0u;
}

template<typename T>
Grids<T> randomGrids(Dice& dice, const std::vector<Layout>& layouts)
{
    std::vector<Grid<T>> result;
    for (const Layout& layout : layouts) {
        std::vector<T> samples(25 * 25);
        std::generate(samples.begin(), samples.end(), [&] { return randomSample<T>(dice); });
        result.emplace_back(memory(samples), layout.metaInfo, layout.shape, layout.strides,
                            layout.originOffset);
    }
    return Grids<T>(result);
}

// Classes in no order, some of them equal, at 0 or between two doubles.
pelorin::ui::ColorMap randomMap(Dice& dice)
{
    const std::size_t largest = ~std::size_t(0);
    const std::size_t odd[] = {
        0, largest, largest - 2047, largest - 2046, largest / 2, (std::size_t(1) << 53) + 1};
    pelorin::ui::ColorMap map;
    const int classes = int(dice.oneOf({0, 1, 2, 5, 30, 300}));
    for (int k = 0; k < classes; ++k)
        map.appendEntry(QColor(k % 256, k / 256, 0),
                        dice.upTo(4) ? std::size_t(dice.upTo(60)) : odd[dice.upTo(5)]);
    return map;
}

bool same(const PlainSurface::Histo& a, const PlainSurface::Histo& b)
{
    return tests::same(a.xEdges, b.xEdges) && tests::same(a.yEdges, b.yEdges) &&
           a.colors == b.colors && tests::same(a.counts, b.counts) && a.maxCount == b.maxCount;
}

bool same(const QVector<NeedlePlot2DAlgorithm::ColoredPoint>& a, const PlainSurface::Needle& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& p, const auto& q) {
        return tests::same(p.x, q.x) && tests::same(p.y, q.y) && p.color == q.color;
    });
}

// Nothing where an axis throws.
template<typename Call>
auto resultOf(const Call& call) -> std::optional<decltype(call())>
{
    try {
        return call();
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

template<typename Actual, typename Expected>
void expectSame(const Actual& actual, const Expected& expected)
{
    ASSERT_EQ(actual.has_value(), expected.has_value());
    if (!actual)
        return;
    ASSERT_EQ(std::size_t(actual->size()), expected->size());
    for (std::size_t i = 0; i < expected->size(); ++i)
        ASSERT_TRUE(same(actual->at(int(i)), expected->at(i))) << "entry " << i;
}

// Both plots with the data that they show, and their judges.
struct Plots
{
    Plots(Dice& dice_, Seen& seen_)
        : dice(dice_)
        , seen(seen_)
    {
        for (int i = 0; i < 9; ++i)
            change(i);
    }

    void change(int what)
    {
        const auto pixel = [this] {
            return dice.upTo(29) ? dice.oneOf({0.125, 0.1, 0.3, 0.01, dice.between(0.02, 0.5)})
                                 : dice.oneOf({NaN, Infinity, 0.0, -0.1});
        };
        if (what == 0) {
            const int count = dice.upTo(3);
            layouts.assign(std::size_t(count), randomLayout(dice));
        } else if (what == 1 && !layouts.empty())
            layouts.back() = randomLayout(dice);
        else if (what == 2)
            isWhole = dice.upTo(1);
        else if (what == 3)
            request.xPixelSize = pixel();
        else if (what == 4)
            request.yPixelSize = pixel();
        else if (what == 5)
            request.xAxis = randomAxis(dice);
        else if (what == 6)
            request.yAxis = randomAxis(dice);
        else if (what == 7)
            histogram.setCountMode(static_cast<Histogram2DPlotAlgorithm::CountMode>(dice.upTo(3)));
        else if (what == 8)
            map = randomMap(dice);
        else if (what == 9)
            request.xAxis.reset(request.xAxis->clone()); // An equal one of ours, not of a host's.
        else if (what == 10)
            clear();
        else if (what == 11 && !layouts.empty())
            layouts.back().shape = randomShape(dice);
    }

    void clear()
    {
        histogram.clearGeometryCache();
        needlePlot.clearGeometryCache();
        plainHistogram.clear();
        plainNeedles.clear();
    }

    void compareHistograms()
    {
        const int mode = histogram.countMode();
        const auto whole = randomGrids<unsigned>(dice, layouts);
        const auto data = randomGrids<double>(dice, isWhole ? std::vector<Layout>() : layouts);
        histogram.setSnapshot(whole);
        histogram.setSnapshot(data);
        bool changed = false, expectedChange = false;
        bool* const flag = data.empty() && whole.empty() ? nullptr : &changed;
        const auto actual = resultOf([&] {
            return histogram.makeColorArrays(request.xAxis, request.yAxis, map, request.xPixelSize,
                                             request.yPixelSize, flag);
        });
        const auto expected = resultOf([&] {
            return data.empty()
                       ? plainHistogram.colorArrays(whole, request, map, mode, expectedChange)
                       : plainHistogram.colorArrays(data, request, map, mode, expectedChange);
        });
        expectSame(actual, expected);
        EXPECT_TRUE(!flag || !actual || changed == expectedChange);
        seen.of["reused"] += actual && !actual->isEmpty() && !changed;
        for (int i = 0; actual && i < actual->size(); ++i)
            seen.of["cells"] += std::size_t(actual->at(i).colors.size());
    }

    void compareNeedles()
    {
        const auto data = randomGrids<double>(dice, layouts);
        needlePlot.setSnapshot(data);
        const auto actual = resultOf([&] {
            return needlePlot.makeNeedles(request.xAxis, request.yAxis, startColor, endColor,
                                          request.xPixelSize, request.yPixelSize);
        });
        expectSame(actual, resultOf([&] {
                       return plainNeedles.needles(data, request, startColor, endColor);
                   }));
        seen.of["thrown"] += !actual;
        seen.of["needles"] += actual ? std::size_t(actual->size()) : 0;
    }

    Dice& dice;
    Seen& seen;
    pelorin::ui::ColorMap map;
    SurfaceRequest request;
    std::vector<Layout> layouts;
    bool isWhole = false;
    Histogram2DPlotAlgorithm histogram;
    NeedlePlot2DAlgorithm needlePlot;
    PlainSurface plainHistogram, plainNeedles;
};

} // namespace

void tests::compareSurfaces(Dice& dice, Surface surface, Seen& seen)
{
    Plots plots(dice, seen);
    for (int call = 0; call < 8 && !testing::Test::HasFailure(); ++call) {
        if (surface != Surface::Needles)
            plots.compareHistograms();
        if (surface != Surface::Histogram)
            plots.compareNeedles();
        plots.change(dice.upTo(13));
    }
}
