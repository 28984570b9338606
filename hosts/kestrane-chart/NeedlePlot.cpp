#include "hosts/kestrane-chart/NeedlePlot.h"

#include "hosts/charting/Symbols.h"
#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/Extent.h"

#include <kestrane/plots/NeedlePlotAlgorithm.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace hosts::chart {

using charting::AxisView;
using charting::Curve;
using charting::ShownAxis;
using data::Series;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::NeedlePlotAlgorithm;

namespace {

/// Collects the needles of a series, from left to right.
class NeedleRow
{
public:
    NeedleRow(const AxisView& x, const AxisView& y, double columnWidth)
        : m_x(x)
        , m_y(y)
        , m_columnWidth(columnWidth)
        , m_base(baseOn(y))
    {}

    // All needles: in a column of pixels the algorithm would leave only the one of the largest
    // sample, and those below the base would be lost.
    void take(const PlotSegment& segment)
    {
        constexpr double everySample = std::numeric_limits<double>::quiet_NaN();
        NeedlePlotAlgorithm algorithm;
        algorithm.setSnapshot(PlotSnapshot({segment}));
        double index = 0.0;
        for (const double tip :
             algorithm.createNeedles(m_x.axis().data(), m_y.axis().data(), everySample).values) {
            const double x = index * segment.xInfo.scale + segment.xInfo.offset;
            put({m_x.axis()->transform(Axis::Linear, x), tip});
            ++index;
        }
    }

    Curve curve(double symbolSpacing)
    {
        endColumn();
        Curve curve;
        for (const QPointF& tip : std::as_const(m_tips))
            curve.polylines.append({QPointF(tip.x(), m_base), tip});
        const auto symbols = charting::uncrowdedSymbols(m_tips, symbolSpacing * m_columnWidth);
        if (!symbols.isEmpty())
            curve.symbols.append(symbols);
        return curve;
    }

private:
    // A value that is no power has its place below a logarithmic axis.
    static double baseOn(const AxisView& y)
    {
        const double zero = y.axis()->transform(Axis::Linear, 0.0);
        return std::isfinite(zero) ? std::clamp(zero, 0.0, y.visible()) : 0.0;
    }

    void put(const QPointF& tip)
    {
        const double rounding = m_x.visible() * 1e-9;
        const bool isInSight = tip.x() >= -rounding && tip.x() <= m_x.visible() + rounding;
        if (!isInSight || !std::isfinite(tip.y()))
            return;
        const double column = std::floor(tip.x() / m_columnWidth);
        if (column != m_column)
            endColumn();
        m_column = column;
        ++m_count;
        const QPointF inside(std::clamp(tip.x(), 0.0, m_x.visible()), tip.y());
        std::optional<QPointF>& longest = tip.y() < m_base ? m_lowest : m_highest;
        if (!longest || std::abs(longest->y() - m_base) < std::abs(tip.y() - m_base))
            longest = inside;
    }

    // Of the needles in a column of pixels the longest on either side of the base cover the others.
    // They stand in its middle, lest needles beside each other leave gaps.
    void endColumn()
    {
        for (std::optional<QPointF>* longest : {&m_highest, &m_lowest}) {
            if (*longest && m_count > 1)
                (*longest)->setX((m_column + 0.5) * m_columnWidth);
            if (*longest)
                m_tips.append(**longest);
            longest->reset();
        }
        m_count = 0;
    }

    const AxisView& m_x;
    const AxisView& m_y;
    double m_columnWidth;
    double m_base;
    double m_column = 0.0;
    int m_count = 0; ///< Of needles in it.
    std::optional<QPointF> m_highest;
    std::optional<QPointF> m_lowest;
    QVector<QPointF> m_tips;
};

// If all needles point the same way there is no need for room beyond 0.
AxisOptions standingOnZero(AxisOptions y, const Extent& seen)
{
    if (!y.from && seen.low == 0.0 && y.to.value_or(1.0) > 0.0)
        y.from = 0.0;
    else if (!y.to && seen.high == 0.0 && y.from.value_or(-1.0) < 0.0)
        y.to = 0.0;
    return y;
}

} // namespace

ShownAxis NeedlePlot::yAxis(const AxisView& x) const
{
    const AxisKind& kind = *options().y.kind;
    const auto withBase = [&](Extent::Measure measure) {
        std::optional<Extent> extent = valuesInSight(x, measure);
        if (extent)
            extent->take(measure(0.0));
        return extent;
    };
    const Extent seen = *withBase(Extent::asItIs);
    const bool hasZero = std::isfinite(kind.measure()(0.0));
    return kind.forValues(
        hasZero ? standingOnZero(options().y, seen) : options().y, withBase(kind.measure()),
        [&](const ShownAxis&) { return seen; }, wantedYDivisions());
}

QVector<Curve> NeedlePlot::curves(const AxisView& x, const AxisView& y, double plotWidth) const
{
    QVector<Curve> curves;
    for (const Series& one : series()) {
        NeedleRow row(x, y, columnWidth(x, plotWidth));
        for (const PlotSegment& segment : one.snapshot.segments)
            row.take(segment);
        curves.append(row.curve(symbolSpacing()));
    }
    return curves;
}

QVector<charting::Crossing> NeedlePlot::crossings(const AxisView&, const AxisView&) const
{
    return {};
}

} // namespace hosts::chart
