#include "kestrane/backend/InvalidIndexException.h"
#include "kestrane/backend/LazyRWMutex.h"
#include "kestrane/backend/QuantityManager.h"
#include "kestrane/backend/TranslationManager.h"
#include "kestrane/colors/AutoComputeColorMapBuilder.h"
#include "kestrane/library/Kestrane.h"
#include "kestrane/plots/Intersectable.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/PointsBasedPlotHelper.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/misuse/Misuse.h"
#include "tests/support/Builders.h"
#include "tests/surfaces/Grids.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::AutoComputeColorMapBuilder;
using pelorin::ui::ColorMap;
using pelorin::utilities::Registration;
using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

namespace {

std::vector<double> hardSamples()
{
    return {std::begin(hardNumbers), std::end(hardNumbers)};
}

void plotAll(const PlotSnapshot& data, const QSharedPointer<const Axis>& x,
             const QSharedPointer<const Axis>& y, double width, double spacing)
{
    SamplePlotAlgorithm samplePlot;
    samplePlot.setSnapshot(data);
    for (const auto& line : samplePlot.createSegments(x, y, width, spacing).first)
        EXPECT_GE(line.size(), 2);
    samplePlot.doIntersect(x.data(), y.data(), spacing);
    XYPlotAlgorithm xyPlot;
    xyPlot.setSnapshot(data, data);
    for (const auto& line : xyPlot.createSegments(x, y, width, spacing).first)
        EXPECT_GE(line.size(), 2);
    NeedlePlotAlgorithm needlePlot;
    needlePlot.setSnapshot(data);
    needlePlot.createNeedles(x.data(), y.data(), width);
}

void oddWidths()
{
    const auto data = snapshot({segment(hardSamples()), segment({}), segment({0.5, 0.25, 1.0})});
    forHardPairs([&](double width, double spacing) {
        plotAll(data, linearAxis(10.0), linearAxis(), width, spacing);
        plotAll(data, nullptr, linearAxis(), width, spacing);
        plotAll(data, linearAxis(), nullptr, width, spacing);
        plotAll(PlotSnapshot(), linearAxis(), linearAxis(), width, spacing);
    });
}

void oddAbscissas()
{
    forHardPairs([](double offset, double step) {
        const auto data = snapshot({segment(hardSamples(), offset, step),
                                    segment({0.1, 0.2}, step, offset, Axis::Logarithmic)});
        plotAll(data, linearAxis(), linearAxis(), 0.01, 1.0);
    });
}

void oddAxesOfPlots()
{
    const auto data = snapshot({segment(hardSamples()), segment({0.5, 0.25, 1.0})});
    forHardPairs([&](double scale, double offset) {
        const auto odd = QSharedPointer<LinearAxis>::create(scale, offset);
        plotAll(data, odd, linearAxis(), 0.01, 1.0);
        plotAll(data, linearAxis(), odd, 0.01, 1.0);
    });
}

void oddSplines()
{
    for (const long long count : {-1LL, std::numeric_limits<long long>::min(), 0LL, 1LL, 2LL}) {
        const auto data = segment({1.0, 2.0});
        Spline spline(data.begin, count);
        for (const double index : hardNumbers) {
            const bool isCovered = count == 2 && index >= 0.0 && index < 1.0;
            EXPECT_EQ(spline.covers(index), isCovered);
            if (!isCovered) {
                EXPECT_THROW(spline[index], pelorin::utilities::InvalidIndexException);
            }
        }
    }
    const auto data = segment({1.0});
    EXPECT_THROW(Spline(data.begin, 1LL << 40), std::length_error);
    EXPECT_THROW(NeedlePlotAlgorithm::NeedleResult(-1), std::length_error);
    for (const long long start : {0LL, 1LL})
        EXPECT_TRUE(Spline(data.begin, 1).tail(start));
    data.setSubsampler(nullptr);
    Spline moved(data.begin, 1);
    Spline target(std::move(moved));
    target = Spline(data.begin, 1);
}

void oddColumns()
{
    for (const double x : hardNumbers) {
        pelorin::algo::MinMaxAverageAlgorithm column;
        QVector<QPointF> points;
        PointsBasedPlotHelper().flushMinMax(x, column, points);
        EXPECT_TRUE(points.isEmpty());
        for (const double value : hardNumbers)
            column.put(value);
        PointsBasedPlotHelper().flushMinMax(x, column, points);
        EXPECT_LE(points.size(), 4);
    }
}

void colourAll(const Grids<double>& grids, const QSharedPointer<const Axis>& axis,
               const ColorMap& map, double xPixel, double yPixel)
{
    Histogram2DPlotAlgorithm histogram;
    histogram.setSnapshot(grids);
    histogram.setCountMode(static_cast<Histogram2DPlotAlgorithm::CountMode>(77));
    bool isNew = false;
    for (const auto& cells :
         histogram.makeColorArrays(axis, linearAxis(3.0), map, xPixel, yPixel, &isNew))
        EXPECT_TRUE(cells.counts.empty());
    histogram.clearGeometryCache();
    NeedlePlot2DAlgorithm needles;
    needles.setSnapshot(grids);
    needles.makeNeedles(axis, linearAxis(3.0), QColor(), QColor(), xPixel, yPixel);
}

struct Cells : GeometryBasedPlotAlgorithm
{
    using GeometryBasedPlotAlgorithm::buildGeometryList;
};

void oddPixels()
{
    const auto hard = grid<double>({13, 1}, hardSamples()),
               row = grid<double>({1, 13}, hardSamples()), none = grid<double>({0, 0}, {}),
               plain = grid<double>({3, 3}, std::vector<double>(9));
    forHardPairs([&](double x, double y) {
        const LinearAxis odd(x, y);
        Cells::Geometry first{0.0, 0};
        QList<Cells::Geometry> edges;
        for (const Grid<double>& cells : {hard, none, plain})
            Cells().buildGeometryList(cells, edges, first, &odd, x, 0);
        EXPECT_LE(edges.size(), 16);
        colourAll(Grids<double>({hard, row, none, plain}), linearAxis(3.0), {}, x, y);
        colourAll(Grids<double>({plain}), nullptr, {}, x, y);
        colourAll(Grids<double>({plain}), QSharedPointer<LinearAxis>::create(x, y), {}, 0.1, 0.1);
        colourAll(Grids<double>(), linearAxis(3.0), {}, x, y);
    });
}

void oddThresholds()
{
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
    ColorMap map;
    for (const std::size_t threshold : {most, std::size_t(0), most, std::size_t(1), most - 1})
        map.appendEntry(QColor(), threshold);
    {
        auto builder = map.build();
        auto other = std::move(builder);
        builder.appendEntry(Qt::red, 5); // Moved from: it has no map.
    }
    EXPECT_EQ(map.numberOfClasses(), 5);
    EXPECT_EQ(map.thresholdAtIndex(4), most - 1);
    EXPECT_EQ(map.colorAtIndex(4), QColor());
    for (const std::size_t count : {most, most - 1, std::size_t(0)})
        EXPECT_EQ(map.mapToColor(count), map.isUnmatched(count) ? map.unmatchedColor() : QColor());
    for (const double factor : hardNumbers)
        colourAll(Grids<double>({grid<double>({13, 1}, hardSamples())}), linearAxis(13.0),
                  ColorMap(map, factor), 0.1, 0.1);
    ColorMap target = std::move(map);
    EXPECT_EQ(target.numberOfClasses(), 5);
    for (const std::size_t maximum : {std::size_t(0), most}) {
        AutoComputeColorMapBuilder::buildAutoComputeMap(QVector<QColor>(), maximum);
        AutoComputeColorMapBuilder::buildAutoComputeMap(QVector<QColor>(300, Qt::red), maximum);
    }
}

struct Plot : Intersectable
{
    QList<Intersection> doIntersect(const Axis*, const Axis*, double) const override { return {}; }
    using Intersectable::fireUpdates;
};

void callbacksThatMeddle()
{
    auto plot = std::make_unique<Plot>();
    Registration first, second, late;
    int depth = 0, calls = 0;
    first = plot->notifyees().add([&](const Intersectable* sender) {
        EXPECT_EQ(sender, plot.get());
        first = Registration();
        second = Registration();
        late = plot->notifyees().add([&](const Intersectable*) { ++calls; });
        if (++depth < 5)
            plot->fireUpdates();
    });
    second = plot->notifyees().add([&](const Intersectable*) { ++calls; });
    plot->fireUpdates();
    const int before = calls;
    plot->fireUpdates();
    EXPECT_EQ(calls, before + 1); // That of the late one.

    const Registration empty = plot->notifyees().add({});
    EXPECT_THROW(plot->fireUpdates(), boost::bad_function_call);
    Registration moved = std::move(late);
    late = std::move(moved);
    plot.reset();
    late = Registration(nullptr); // Behind its list.
}

void plotsThatDieWhileTheyTell()
{
    auto* const plot = new Plot;
    const Registration last = plot->notifyees().add([=](const Intersectable*) { delete plot; });
    plot->fireUpdates();
}

void oddOrders()
{
    Kestrane::initialize();
    Kestrane::initialize();
    Kestrane::registerMetaTypes();
    for (int i = 0; i < 4; ++i)
        Kestrane::deinitialize();
    using pelorin::utilities::LazyRWMutex;
    int done = 0;
    LazyRWMutex mutex(LazyRWMutex::_noop, LazyRWMutex::_noop);
    mutex.lockForRead();
    mutex.lockForRead();
    mutex.pushWriterAction([&] {
        ++done;
        mutex.pushWriterAction([&] { ++done; });
    });
    mutex.unlockForRead();
    EXPECT_EQ(done, 0);
    mutex.unlockForRead();
    EXPECT_EQ(done, 2);
}

void oddNames()
{
    using pelorin::utilities::Singleton;
    using namespace pelorin::variables;
    auto& quantities = Singleton<QuantityManager>::instance();
    auto& translations = Singleton<pelorin::utilities::TranslationManager>::instance();
    const QString locale = translations.locale();
    for (const QString& name : {QString(), QStringLiteral(""), QString(100000, 'x')}) {
        EXPECT_EQ(QString(quantities.quantity(name)), name);
        quantities.add(Quantity(name, {{}, {name, true, 0.0, NaN, name}}));
        EXPECT_EQ(quantities.quantity(name).units().size(), 2);
        translations.setLocale(name);
        EXPECT_EQ(translations.locale(), "C");
    }
    translations.setLocale(locale);
}

const Misuse misuses[] = {
    {"columns and spacings of odd widths", oddWidths},
    {"samples at odd places", oddAbscissas},
    {"plots on odd axes", oddAxesOfPlots},
    {"splines of odd sizes, asked at odd places", oddSplines},
    {"columns of odd numbers", oddColumns},
    {"cells of odd pixels", oddPixels},
    {"colour maps of odd thresholds and factors", oddThresholds},
    {"callbacks that register, drop and fire", callbacksThatMeddle},
    {"a plot that dies while it tells of a change", plotsThatDieWhileTheyTell},
    {"calls in odd orders", oddOrders},
    {"odd names", oddNames}};

} // namespace

class DataMisuseTest : public testing::TestWithParam<Misuse>
{
};

TEST_P(DataMisuseTest, EndsAsDocumented)
{
    expectToPass(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Rows, DataMisuseTest, testing::ValuesIn(misuses));
