#include "hosts/kestrane-chart/LogKind.h"

#include "hosts/charting/LogRange.h"
#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <algorithm>
#include <cmath>

namespace hosts::chart {

using charting::LogRange;
using charting::ShownAxis;

namespace {

constexpr double leastShare = 1e-12; // Of the greatest value.

double ifPositive(double value)
{
    return value > 0.0 ? value : std::nan("");
}

ShownAxis axisFor(const AxisOptions& axis, const LogRange& automatic, const Extent& data)
{
    const LogRange range = {axis.from.value_or(automatic.from), axis.to.value_or(automatic.to)};
    if (!range.isUsable())
        throw WorkError(axis.outsideText(data));
    return range.shown();
}

} // namespace

void LogKind::check(const AxisOptions& axis) const
{
    if (axis.joint)
        throw UsageError(axis.optionName("joint") +
                         QStringLiteral(": only a bipolar axis has a joint"));
    if (!std::isnan(axis.reference))
        throw UsageError(axis.optionName("relative") +
                         QStringLiteral(": there are no distances on a log axis"));
    if (axis.from.value_or(1.0) <= 0.0 || axis.to.value_or(1.0) <= 0.0)
        throw UsageError(axis.rangeText() +
                         QStringLiteral(": a log axis shows only what is above 0"));
    if (!axis.from || !axis.to || LogRange{*axis.from, *axis.to}.isUsable())
        return;
    throw UsageError(axis.rangeText() +
                     (*axis.from < *axis.to
                          ? QStringLiteral(": the range is too narrow or too wide for a log axis")
                          : QStringLiteral(": the range is empty")));
}

Extent::Measure LogKind::measure() const
{
    return ifPositive;
}

ShownAxis LogKind::forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                int) const
{
    if (!data)
        throw WorkError(QStringLiteral("no sample has %1 above 0, so there can be no log axis")
                            .arg(axis.name == QLatin1String("x") ? QStringLiteral("an x")
                                                                 : QStringLiteral("a y")));
    if (axis.from.value_or(data->low) > data->high || axis.to.value_or(data->high) < data->low)
        throw WorkError(axis.outsideText(*data));
    return axisFor(axis, LogRange::around(data->low, data->high), *data);
}

ShownAxis LogKind::forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                             const Curves&, int) const
{
    if (!data)
        throw WorkError(QStringLiteral("no value is above 0, so there can be no log axis"));
    const double low = std::max(data->low, data->high * leastShare);
    return axisFor(axis, LogRange::around(low, data->high).inDecades(), *data);
}

bool LogKind::isUsable(const ShownAxis& axis) const
{
    return LogRange{axis.from(), axis.to()}.isUsable();
}

} // namespace hosts::chart
