#include "hosts/kestrane-chart/SampledCurve.h"

#include "hosts/charting/ColumnOrder.h"
#include "hosts/charting/StraightLines.h"
#include "hosts/charting/Symbols.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace hosts::chart {

using charting::AxisView;
using charting::Curve;
using charting::StraightLines;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::Intersection;
using pelorin::ui::chart::SamplePlotAlgorithm;

namespace {

// A sample between two gaps has no line, so it needs a mark of its own at any distance.
QVector<QPointF> loneSamples(const PlotSnapshot& snapshot, const AxisView& x, const AxisView& y,
                             double columnWidth)
{
    std::vector<PlotSegment> alone;
    std::copy_if(snapshot.segments.begin(), snapshot.segments.end(), std::back_inserter(alone),
                 [](const PlotSegment& segment) { return segment.count == 1; });
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(PlotSnapshot(std::move(alone)));
    QVector<QPointF> points;
    for (const QVector<QPointF>& symbols :
         algorithm.createSegments(x.axis(), y.axis(), columnWidth, 0.0).second)
        points += symbols;
    return points;
}

} // namespace

SampledCurve::SampledCurve(const PlotSnapshot& snapshot)
    : m_snapshot(snapshot)
{
    m_algorithm.setSnapshot(snapshot);
}

void SampledCurve::setSnapshot(const PlotSnapshot& snapshot)
{
    m_snapshot = snapshot;
    m_algorithm.setSnapshot(snapshot);
    m_straightOn.reset();
    fireUpdates();
}

void SampledCurve::joinFor(const AxisView& y)
{
    const bool isStraight = y.axis()->scaleMode() == Axis::Logarithmic;
    const QSharedPointer<Axis> straightOn = isStraight ? y.axis() : nullptr;
    if (straightOn == m_straightOn)
        return;
    m_algorithm.setSnapshot(StraightLines::whereTheySuit(m_snapshot, y.axis()));
    m_straightOn = straightOn;
}

Curve SampledCurve::curve(const AxisView& x, const AxisView& y, double columnWidth,
                          double symbolSpacing)
{
    joinFor(y);
    auto segments = m_algorithm.createSegments(x.axis(), y.axis(), columnWidth, symbolSpacing);
    for (QVector<QPointF>& polyline : segments.first)
        polyline = charting::inColumnOrder(polyline);
    for (QVector<QPointF>& symbols : segments.second)
        symbols = charting::uncrowdedSymbols(symbols, symbolSpacing * columnWidth);
    return {segments.first, segments.second, loneSamples(m_snapshot, x, y, columnWidth)};
}

// Beside the very place too, by less than can be seen: rounding can put a cursor on the first
// sample just before it, and no curve counts as crossed at its last sample.
QList<Intersection> SampledCurve::crossings(const AxisView& x, const AxisView& y, double position)
{
    joinFor(y);
    for (const double share : {0.0, 1e-9, -1e-9}) {
        const QList<Intersection> crossings =
            doIntersect(x.axis().data(), y.axis().data(), position + share * x.visible());
        if (!crossings.isEmpty())
            return crossings;
    }
    return {};
}

QList<Intersection> SampledCurve::doIntersect(const Axis* xAxis, const Axis* yAxis,
                                              double position) const
{
    return m_algorithm.doIntersect(xAxis, yAxis, position);
}

} // namespace hosts::chart
