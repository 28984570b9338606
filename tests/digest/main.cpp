// Prints a digest of what each kind of operation gives, bit by bit, for random data. Whatever the
// compiler, its optimization, and what lay in memory before: the digests are to be the same.
#include "kestrane/axes/LinearPlotAutoScaler.h"
#include "kestrane/axes/TickFormatter.h"
#include "kestrane/library/Kestrane.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"
#include "kestrane/surfaces/Histogram2DPlotAlgorithm.h"
#include "kestrane/surfaces/NeedlePlot2DAlgorithm.h"

#include "tests/plots/RandomAxis.h"
#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"
#include "tests/surfaces/Grids.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

using namespace pelorin::ui::chart;
using namespace tests;

namespace {

// Numbers to their last bit, but for the sign and the bits of a NaN, which no operation promises.
class Digest
{
public:
    void add(double number)
    {
        if (std::isnan(number))
            number = NaN;
        m_hash.addData(
            QByteArray::fromRawData(reinterpret_cast<const char*>(&number), sizeof number));
    }
    void add(const QPointF& point)
    {
        add(point.x());
        add(point.y());
    }
    void add(const QColor& color) { add(double(color.rgba())); }
    void add(const QString& text) { m_hash.addData(text.toUtf8()); }
    void add(const Axis::Tick& tick)
    {
        add(tick.logicalPosition());
        add(tick.axisPosition());
        add(tick.rank());
    }
    void add(const NeedlePlot2DAlgorithm::ColoredPoint& point)
    {
        add(QPointF(point.x, point.y));
        add(point.color);
    }
    template<typename List>
    auto add(const List& list) -> decltype(list.begin(), void())
    {
        add(double(list.end() - list.begin()));
        for (const auto& item : list)
            add(item);
    }
    QByteArray result() const { return m_hash.result().toHex(); }

private:
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
};

using Operation = void (*)(Dice&, Digest&);

std::vector<double> samples(Dice& dice)
{
    std::vector<double> result(std::size_t(dice.upTo(dice.upTo(9) ? 60 : 3000)));
    const bool isOdd = dice.upTo(3) == 0;
    for (double& sample : result)
        sample = isOdd && dice.upTo(20) == 0 ? dice.number() : dice.between(-1.0, 1.0);
    return result;
}

pelorin::backend::PlotSnapshot data(Dice& dice)
{
    const double offset = dice.between(-2.0, 2.0), step = dice.between(0.001, 1.0);
    return snapshot({segment(samples(dice), offset, step)});
}

void transform(Dice& dice, Digest& digest)
{
    const auto axis = randomAxis(dice);
    for (int i = 0; i < 100; ++i) {
        const auto mode = dice.upTo(1) ? Axis::Linear : Axis::Logarithmic;
        const double number = dice.number();
        try {
            digest.add(axis->transform(mode, number));
        } catch (const std::runtime_error&) { // A host's axis ends there.
        }
        digest.add(axis->inverseTransform(mode, number));
    }
}

void ticks(Dice& dice, Digest& digest)
{
    const std::unique_ptr<Axis> axis(randomAxis(dice)->clone());
    for (int i = 0; i < 4; ++i) {
        digest.add(axis->majorTicks());
        digest.add(axis->minorTicks());
        const auto gesture = dice.upTo(1) ? &Axis::scrollAxis : &Axis::scaleAxis;
        const double at = dice.between(0.0, 1.0), by = dice.between(-0.5, 0.5);
        (*axis.*gesture)(at, by, nullptr, Lowest, Highest, 1e-3);
        digest.add(axis->minValue());
        digest.add(axis->maxValue());
    }
}

void labels(Dice& dice, Digest& digest)
{
    TickFormatter formatter;
    formatter.setLocale(QLocale::c());
    formatter.setSignificantDigits(1 + dice.upTo(14));
    formatter.setQuantity(dice.upTo(1) ? "voltage" : "");
    for (int i = 0; i < 20; ++i) {
        const double value = dice.number(), reference = dice.upTo(1) ? dice.number() : NaN;
        for (const QString& line : formatter.formatTick({value, 0.5, 0.0, {1.0}, false}, reference))
            digest.add(line);
    }
}

void autoScaler(Dice& dice, Digest& digest)
{
    for (int i = 0; i < 100; ++i) {
        const double scale = dice.number(), offset = dice.number(), bottom = dice.number(),
                     top = dice.number();
        const auto suggested = LinearPlotAutoScaler::suggest(scale, offset, bottom, top, 10, 0.9,
                                                             0.1, 0.3, 1e-9, false, true);
        digest.add(suggested.scale);
        digest.add(suggested.offset);
    }
}

void spline(Dice& dice, Digest& digest)
{
    const auto curve = data(dice).segments.front();
    pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator> spline(curve.begin,
                                                                            curve.count);
    for (int i = 0; i < 100; ++i) {
        const double index = dice.between(0.0, double(curve.count));
        if (spline.covers(index))
            digest.add(spline[index]);
    }
}

void samplePlot(Dice& dice, Digest& digest)
{
    const auto x = randomAxis(dice), y = randomAxis(dice);
    const double width = dice.between(0.001, 0.3), spacing = dice.between(0.0, 3.0);
    SamplePlotAlgorithm plot;
    plot.setSnapshot(data(dice));
    const auto drawn = plot.createSegments(x, y, width, spacing);
    digest.add(drawn.first);
    digest.add(drawn.second);
    try {
        for (const Intersection& crossing : plot.doIntersect(x.data(), y.data(), width)) {
            digest.add(crossing.position);
            digest.add(crossing.value);
        }
    } catch (const std::runtime_error&) {
    }
}

void xyPlot(Dice& dice, Digest& digest)
{
    const auto x = randomAxis(dice), y = randomAxis(dice);
    const auto xs = data(dice), ys = data(dice);
    XYPlotAlgorithm plot;
    plot.setSnapshot(xs, ys);
    try {
        const auto drawn = plot.createSegments(x, y, dice.between(0.001, 0.3), 1.0);
        digest.add(drawn.first);
        digest.add(drawn.second);
    } catch (const std::runtime_error&) {
    }
}

void needles(Dice& dice, Digest& digest)
{
    const auto x = randomAxis(dice), y = randomAxis(dice);
    NeedlePlotAlgorithm plot;
    plot.setSnapshot(data(dice));
    const auto drawn =
        plot.createNeedles(x.data(), y.data(), dice.upTo(3) ? dice.between(0.001, 0.3) : NaN);
    digest.add(drawn.firstPosition);
    digest.add(drawn.values);
}

void surfaces(Dice& dice, Digest& digest)
{
    const Indices shape{1 + dice.upTo(40), 1 + dice.upTo(40)};
    std::vector<double> values(std::size_t(shape[0] * shape[1]));
    for (double& value : values)
        value = dice.upTo(20) ? dice.upTo(2000) : dice.number();
    pelorin::ui::ColorMap map;
    for (int i = dice.upTo(20); i >= 0; --i)
        map.appendEntry(QColor(i, 0, 0), std::size_t(dice.upTo(3000)));
    const auto x = linearAxis(double(shape[0])), y = linearAxis(double(shape[1]));
    const double pixel = dice.between(0.005, 0.2);
    const auto grids = Grids<double>({grid<double>(shape, values)});
    Histogram2DPlotAlgorithm histogram;
    histogram.setSnapshot(grids);
    histogram.setCountMode(Histogram2DPlotAlgorithm::LogarithmicCounts);
    for (const auto& cells : histogram.makeColorArrays(x, y, map, pixel, pixel)) {
        digest.add(cells.xEdges);
        digest.add(cells.colors);
        digest.add(cells.counts);
        digest.add(cells.maxCount);
    }
    NeedlePlot2DAlgorithm sticks;
    sticks.setSnapshot(grids);
    digest.add(sticks.makeNeedles(x, y, Qt::black, Qt::white, pixel, pixel));
}

const std::pair<const char*, Operation> operations[] = {
    {"transform", transform},    {"ticks", ticks},     {"labels", labels},
    {"auto scaler", autoScaler}, {"spline", spline},   {"sample plot", samplePlot},
    {"x/y plot", xyPlot},        {"needles", needles}, {"surfaces", surfaces}};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int cases = argc == 2 ? std::atoi(argv[1]) : 0;
    if (cases <= 0) {
        std::fprintf(stderr, "usage: kestrane_digest CASES\n");
        return 2;
    }
    Kestrane::initialize();
    for (const auto& [name, operation] : operations) {
        Digest digest;
        for (int seed = 0; seed < cases; ++seed) {
            Dice dice{unsigned(seed)};
            operation(dice, digest);
        }
        std::printf("%s  %s\n", digest.result().constData(), name);
    }
    Kestrane::deinitialize();
}
