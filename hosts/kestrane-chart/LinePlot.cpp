#include "hosts/kestrane-chart/LinePlot.h"

#include "hosts/kestrane-chart/AxisKind.h"
#include "hosts/kestrane-chart/WorkError.h"

namespace hosts::chart {

using charting::AxisView;
using charting::Crossing;
using charting::Curve;
using charting::ShownAxis;
using data::Series;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::Intersection;

namespace {

// What is to be seen of the curves: between samples a spline goes beyond them.
Extent extentOfCurves(const QVector<Curve>& curves, const AxisView& x, const ShownAxis& y,
                      const Extent& data)
{
    Extent extent = data;
    for (const Curve& curve : curves) {
        for (const QVector<QPointF>& polyline : curve.polylines) {
            for (const QPointF& point : polyline) {
                if (point.x() >= 0.0 && point.x() <= x.visible())
                    extent.take(y.axis->inverseTransform(Axis::Linear, point.y()));
            }
        }
    }
    return extent;
}

} // namespace

LinePlot::LinePlot(const std::vector<Series>& series, const Options& options)
    : Plot(series, options)
{
    if (!Extent::ofAbscissas(series, Extent::asItIs))
        throw WorkError(QStringLiteral("there are no samples to draw"));
    for (const Series& one : series)
        m_curves.push_back(std::make_shared<SampledCurve>(one.snapshot));
}

void LinePlot::setSeries(const std::vector<Series>& series)
{
    Plot::setSeries(series);
    for (std::size_t k = 0; k < series.size(); ++k)
        m_curves[k]->setSnapshot(series[k].snapshot);
}

ShownAxis LinePlot::xAxis() const
{
    const AxisKind& kind = *options().x.kind;
    return kind.forAbscissas(options().x, Extent::ofAbscissas(series(), kind.measure()),
                             wantedXDivisions());
}

ShownAxis LinePlot::yAxis(const AxisView& x) const
{
    const AxisKind& kind = *options().y.kind;
    const Extent data = *valuesInSight(x, Extent::asItIs);
    return kind.forValues(
        options().y, valuesInSight(x, kind.measure()),
        [&](const ShownAxis& y) {
            const double width = options().size.width();
            return extentOfCurves(curves(x, AxisView(y, QString()), width), x, y, data);
        },
        wantedYDivisions());
}

std::optional<Extent> LinePlot::valuesInSight(const AxisView& x, Extent::Measure measure) const
{
    if (!Extent::ofValues(series(), x.from(), x.to()))
        throw WorkError(options().x.rangeText() + QStringLiteral(": a gap in the data"));
    return Extent::ofValues(series(), x.from(), x.to(), measure);
}

QVector<Curve> LinePlot::curves(const AxisView& x, const AxisView& y, double plotWidth) const
{
    QVector<Curve> curves;
    for (const auto& curve : m_curves)
        curves.append(curve->curve(x, y, columnWidth(x, plotWidth), symbolSpacing()));
    return curves;
}

QVector<Crossing> LinePlot::crossings(const AxisView& x, const AxisView& y) const
{
    QVector<Crossing> crossings;
    for (int curve = 0; curve < int(m_curves.size()); ++curve) {
        for (const double cursor : options().cursors) {
            const double position = x.axis()->transform(Axis::Linear, cursor);
            for (const Intersection& found :
                 m_curves[std::size_t(curve)]->crossings(x, y, position)) {
                const double height = y.place(found.position);
                if (height >= 0.0 && height <= 1.0)
                    crossings.append({curve, {x.place(position), height}, y.textOf(found.value)});
            }
        }
    }
    return crossings;
}

} // namespace hosts::chart
