#include "benchmarks/targets/SampleRedraw.h"

#include "benchmarks/Workload.h"
#include "benchmarks/targets/Limits.h"

#include <kestrane/axes/LogAxis.h>

#include <benchmark/benchmark.h>

namespace targets {

using benchmarks::linearAxis;
using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::LogAxis;

namespace {

// In columns: so far apart that lines are drawn without symbols, also where a logarithmic axis
// begins and a column holds a small part of a sample step.
constexpr double symbolSpacing = 100.0;

} // namespace

SampleRedraw::SampleRedraw(long long count, bool logX, bool logY)
    : xAxis(linearAxis(static_cast<double>(count), 1.0))
    , yAxis(linearAxis(1.0))
{
    if (logX)
        xAxis = QSharedPointer<LogAxis>::create(1.0, static_cast<double>(count + 1));
    if (logY)
        yAxis = QSharedPointer<LogAxis>::create(0.01, 1.0);
}

std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>> SampleRedraw::operator()()
{
    return plot.createSegments(xAxis, yAxis, benchmarks::columnWidth, symbolSpacing);
}

void SampleRedraw::renew(const Samples& samples)
{
    plot.setSnapshot(PlotSnapshot({PlotSegment(samples, MetaInfo(1.0, 1.0))}));
}

Contestant onceNew(SampleRedraw& redraw, const Samples& samples)
{
    return {"first", [&redraw] { benchmark::DoNotOptimize(redraw()); },
            [&redraw, samples] { redraw.renew(samples); }};
}

Contestant again(SampleRedraw& redraw)
{
    return {"again", [&redraw] { benchmark::DoNotOptimize(redraw()); }};
}

Contestant pass(const Samples& samples)
{
    return {"pass",
            [samples] { benchmark::DoNotOptimize(plainPass(samples->data(), samples->size())); }};
}

} // namespace targets
