#include "kestrane/axes/LogAxis.h"
#include "kestrane/backend/LazyRWMutex.h"
#include "kestrane/plots/Intersectable.h"
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"
#include "tests/faults/HostAxis.h"
#include "tests/faults/Trial.h"
#include "tests/support/Builders.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace pelorin::ui::chart;
using pelorin::algo::MinMaxAverageAlgorithm;
using pelorin::backend::PlotSnapshot;
using pelorin::utilities::LazyRWMutex;
using pelorin::utilities::Registration;
using pelorin::utilities::RegistryList;

namespace tests {

namespace {

constexpr double columnWidth = 1.0 / 16;

PlotSnapshot measured(double factor)
{
    std::vector<double> noise(300);
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = 2.0 + factor * std::sin(double(i * i));
    return snapshot({segment(noise, 1.0, 0.01), segment({1.0, 4.0, 2.0}, 6.5, 0.25)});
}

/// Its spline needs memory for all of its coefficients, when it is first asked.
pelorin::backend::PlotSegment parabola()
{
    std::vector<double> samples(3000);
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = double(i * i);
    return segment(samples);
}

/// A plot of each kind, on axes of one kind, holding data.
template<typename Kind>
struct Plots
{
    Plots()
    {
        samples.setSnapshot(measured(1.0));
        points.setSnapshot(measured(1.0), measured(-0.5));
        needles.setSnapshot(measured(1.0));
    }

    auto lines() { return samples.createSegments(x, y, columnWidth, 0.5); }
    auto pairs() { return points.createSegments(x, y, columnWidth, 0.5); }
    auto sticks() { return needles.createNeedles(x.data(), y.data(), columnWidth); }
    auto crossings() { return samples.doIntersect(x.data(), y.data(), 0.35); }

    std::string read() { return Bits::of(lines(), crossings(), pairs(), sticks()); }

    const QSharedPointer<Kind> x = QSharedPointer<Kind>::create();
    const QSharedPointer<Kind> y = QSharedPointer<Kind>::create();
    SamplePlotAlgorithm samples;
    XYPlotAlgorithm points;
    NeedlePlotAlgorithm needles;
    PlotSnapshot next = measured(0.5);
};

template<typename Kind>
void walkPlots(const std::string& kind)
{
    using All = Plots<Kind>;
    const std::string on = " on " + kind;
    walk({
        row<All>(
            "createSegments" + on, [](All& all) { return all.lines(); }, Answer::Partial),
        row<All>("createSegments of x/y" + on, [](All& all) { return all.pairs(); }),
        row<All>(
            "createNeedles" + on, [](All& all) { return all.sticks(); }, Answer::Partial),
        row<All>("doIntersect" + on, [](All& all) { return all.crossings(); }),
        row<All>("setSnapshot" + on, [](All& all) { all.samples.setSnapshot(all.next); }),
        row<All>("setSnapshot of x/y" + on,
                 [](All& all) { all.points.setSnapshot(all.next, all.next); }),
        row<All>("setSnapshot of needles" + on,
                 [](All& all) { all.needles.setSnapshot(all.next); }),
    });
}

/// What plots are made of: a spline, and a line with a column to be added to it.
struct Parts
{
    using Spline = pelorin::algo::SplineAlgorithm<pelorin::backend::SampleIterator>;

    Parts()
    {
        for (const double value : {2.0, 1.0, 4.0, 3.0})
            column.put(value);
        line.reserve(2);
        line.append(QPointF(0.0, 0.0));
    }

    double value() { return spline[1500.5]; }
    std::string read() { return Bits::of(value(), line, double(column.count())); }

    void flush() { PointsBasedPlotHelper().flushMinMax(0.5, column, line); }

    pelorin::backend::PlotSegment data = parabola();
    Spline spline{data.begin, data.count};
    MinMaxAverageAlgorithm column;
    QVector<QPointF> line;
};

struct FullLine : Parts
{
    FullLine() { line.squeeze(); }
};

/// A plot with callbacks, and the list that it has them in, with hooks.
struct Callbacks : Intersectable
{
    struct Hooked : RegistryList<Notifyee>
    {
        ~Hooked() override { detach(); }
        void itemAdded(const Notifyee&) override { log += '+'; }
        void itemRemoved(const Notifyee&) override { log += '-'; }
        using RegistryList::visit;

        std::string log;
    };

    Callbacks()
    {
        heard.reserve(1000);
        hooked.log.reserve(1000);
        kept.reserve(100);
        for (const char* name : {"a", "b", "c"})
            add(name);
        hooked.log.clear();
    }

    QList<Intersection> doIntersect(const Axis*, const Axis*, double) const override { return {}; }
    using Intersectable::fireUpdates;

    void add(const char* name)
    {
        const Notifyee notifyee = [this, name](const Intersectable*) {
            hostCode();
            heard += name;
        };
        Registration first = notifyees().add(notifyee);
        Registration second = hooked.add(notifyee);
        kept.push_back({std::move(first), std::move(second)});
    }
    void drop() { kept.erase(kept.begin()); }

    void fire()
    {
        heard.clear();
        fireUpdates();
    }
    // A pass takes up what there was no memory for, and then the hooks have heard of it.
    std::string read()
    {
        fire();
        hooked.visit([this](const Notifyee& notifyee) { notifyee(this); });
        return heard + ' ' + hooked.log;
    }

    std::string heard;
    Hooked hooked;
    std::vector<std::pair<Registration, Registration>> kept;
};

/// A lock, and what has been done by actions.
struct Lock
{
    std::string read() { return std::to_string(done); }

    void push()
    {
        lock.pushWriterAction([this] { ++done; });
    }
    void readAndPush()
    {
        lock.lockForRead();
        try {
            push();
        } catch (...) {
            lock.unlockForRead();
            throw;
        }
        lock.unlockForRead();
    }

    LazyRWMutex lock{LazyRWMutex::_noop, LazyRWMutex::_noop};
    int done = 0;
};

} // namespace

TEST(PlotFaults, AreSurvivedByPlots)
{
    walkPlots<LinearAxis>("linear axes");
    walkPlots<LogAxis>("logarithmic axes");
    walkPlots<HostAxis>("axes of the host");
}

TEST(PlotFaults, AreSurvivedByPartsOfPlots)
{
    walk({
        row<Parts>("SplineAlgorithm", [](Parts& p) { return Parts::Spline(p.spline)[200.5]; }),
        row<Parts>("tail", [](Parts& p) { return (*p.spline.tail(50))[200.5]; }),
        row<Parts>("operator[]", [](Parts& p) { return p.value(); }),
        row<Parts>("operator=", [](Parts& p) { p.spline = Parts::Spline(p.spline); }),
        row<Parts>("PlotSnapshot",
                   [](Parts& p) { return double(PlotSnapshot({p.data}).segments.size()); }),
        row<Parts>("flushMinMax", [](Parts& p) { p.flush(); }),
        row<FullLine>("flushMinMax to a full line", [](FullLine& p) { p.flush(); }),
    });
}

TEST(PlotFaults, AreSurvivedByListsOfCallbacks)
{
    walk({
        row<Callbacks>("add", [](Callbacks& all) { all.add("d"); }),
        row<Callbacks>("~Registration", [](Callbacks& all) { all.drop(); }),
        row<Callbacks>("fireUpdates", [](Callbacks& all) { all.fire(); }),
        row<Callbacks>("~Registration in a pass",
                       [](Callbacks& all) {
                           all.hooked.visit([&](const auto&) {
                               if (all.kept.size() > 1)
                                   all.drop();
                           });
                       }),
        row<Callbacks>("RegistryList", [](Callbacks&) { return Callbacks().read(); }),
        row<Lock>("pushWriterAction", [](Lock& all) { all.push(); }),
        row<Lock>("lockForRead", [](Lock& all) { all.readAndPush(); }),
    });
}

} // namespace tests
