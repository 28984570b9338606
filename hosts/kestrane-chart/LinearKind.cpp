#include "hosts/kestrane-chart/LinearKind.h"

#include "hosts/charting/AutoRange.h"
#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <cmath>

namespace hosts::chart {

using charting::AxisDivision;
using charting::ShownAxis;
using charting::TickPlaces;

void LinearKind::check(const AxisOptions& axis) const
{
    if (axis.joint)
        throw UsageError(axis.optionName("joint") +
                         QStringLiteral(": only a bipolar axis has a joint"));
    if (!axis.from || !axis.to || AxisDivision::isUsableRange(*axis.from, *axis.to))
        return;
    const bool isOrdered = *axis.from < *axis.to;
    throw UsageError(axis.rangeText() +
                     (isOrdered ? QStringLiteral(": the range is too narrow or too wide")
                                : QStringLiteral(": the range is empty")));
}

Extent::Measure LinearKind::measure() const
{
    return Extent::asItIs;
}

ShownAxis LinearKind::forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                   int wanted) const
{
    const auto spread = AxisDivision::spread(data->low, data->high);
    const double least = axis.from.value_or(spread.first);
    const double most = axis.to.value_or(spread.second);
    if (least > data->high || most < data->low || !AxisDivision::isUsableRange(least, most))
        throw WorkError(axis.outsideText(*data));
    const auto rounded = AxisDivision::rounded(least, most, wanted);
    const double from = axis.from.value_or(rounded.first);
    const double to = axis.to.value_or(rounded.second);
    return AxisDivision::of(from, to, wanted, m_places).shown();
}

ShownAxis LinearKind::forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                                const Curves& curves, int wanted) const
{
    if (!std::isfinite((data->high - data->low) * 8.0))
        throw WorkError(QStringLiteral("the values, from %1 to %2, are too far apart to draw")
                            .arg(data->low)
                            .arg(data->high));
    const auto [low, high] = AxisDivision::spread(data->low, data->high);
    const Extent seen = curves(AxisDivision::of(low, high, 2, TickPlaces::Fixed).shown());
    const AxisDivision automatic = charting::autoRange(seen.low, seen.high, wanted, m_places);
    if (!axis.from && !axis.to)
        return automatic.shown();
    const double bottom = axis.from.value_or(automatic.from);
    const double top = axis.to.value_or(automatic.to());
    if (!AxisDivision::isUsableRange(bottom, top))
        throw WorkError(axis.outsideText(*data));
    return AxisDivision::of(bottom, top, wanted, m_places).shown();
}

ShownAxis LinearKind::divided(const ShownAxis& axis, int wanted) const
{
    return AxisDivision::of(axis.from(), axis.to(), wanted, m_places).shown();
}

bool LinearKind::isUsable(const ShownAxis& axis) const
{
    return AxisDivision::isUsableRange(axis.from(), axis.to());
}

} // namespace hosts::chart
