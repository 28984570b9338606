#include "hosts/kestrane-chart/BipolarKind.h"

#include "hosts/charting/BipolarAxis.h"
#include "hosts/charting/Decimal.h"
#include "hosts/charting/LogRange.h"
#include "hosts/kestrane-chart/UsageError.h"
#include "hosts/kestrane-chart/WorkError.h"

#include <algorithm>
#include <cmath>

namespace hosts::chart {

using charting::BipolarAxis;
using charting::LogRange;
using charting::ShownAxis;
using pelorin::ui::chart::Axis;

namespace {

constexpr double leastShare = 1e-6; // Of the outer limit.

double magnitude(double value)
{
    return value != 0.0 ? std::abs(value) : std::nan("");
}

std::optional<double> outerLimit(const AxisOptions& axis)
{
    return axis.to ? axis.to : axis.from ? std::optional(-*axis.from) : std::nullopt;
}

// What data without a magnitude are taken for: they lie on the joint, wherever that is.
Extent decadeThatFits(const AxisOptions& axis)
{
    const double high = outerLimit(axis).value_or(axis.joint.value_or(0.1) * 10.0);
    return {axis.joint.value_or(high / 10.0), high};
}

LogRange rangeOf(const ShownAxis& axis)
{
    return {axis.axis->inverseTransform(Axis::Linear, axis.axis->anchor()), axis.axis->maxValue()};
}

// The joint and the outer limit.
LogRange rangeFor(const AxisOptions& axis, const Extent& data)
{
    const double highest = outerLimit(axis).value_or(data.high);
    const double lowest = axis.joint.value_or(std::max(data.low, highest * leastShare));
    const LogRange automatic = LogRange::around(std::min(lowest, highest), highest).inDecades();
    const double outer = outerLimit(axis).value_or(automatic.to);
    const double joint =
        std::max(charting::decadeBelow(automatic.from), charting::decadeAbove(outer * leastShare));
    return {axis.joint.value_or(joint), outer};
}

} // namespace

void BipolarKind::check(const AxisOptions& axis) const
{
    if (!std::isnan(axis.reference))
        throw UsageError(axis.optionName("relative") +
                         QStringLiteral(": there are no distances on a bipolar axis"));
    if (axis.to.value_or(1.0) <= 0.0 || axis.from.value_or(-1.0) >= 0.0 ||
        (axis.from && axis.to && *axis.from != -*axis.to))
        throw UsageError(axis.rangeText() +
                         QStringLiteral(": a bipolar axis goes as far below 0 as above"));
    if (axis.joint.value_or(1.0) <= 0.0)
        throw UsageError(axis.rangeText() + QStringLiteral(": the joint must be above 0"));
    if (axis.joint && outerLimit(axis) && !LogRange{*axis.joint, *outerLimit(axis)}.isUsable())
        throw UsageError(axis.rangeText() +
                         QStringLiteral(": the limit must lie beyond the joint, neither too near "
                                        "to it nor too far"));
}

Extent::Measure BipolarKind::measure() const
{
    return magnitude;
}

ShownAxis BipolarKind::forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                    int) const
{
    const Extent extent = data.value_or(decadeThatFits(axis));
    if (outerLimit(axis).value_or(extent.low) < extent.low)
        throw WorkError(axis.outsideText(extent));
    const LogRange range = rangeFor(axis, extent);
    if (!range.isUsable())
        throw WorkError(axis.outsideText(extent));
    return {QSharedPointer<BipolarAxis>::create(range.from, range.to)};
}

ShownAxis BipolarKind::forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                                 const Curves&, int wanted) const
{
    return forAbscissas(axis, data, wanted);
}

bool BipolarKind::isUsable(const ShownAxis& axis) const
{
    return rangeOf(axis).isUsable();
}

Extent BipolarKind::reach(const ShownAxis& home) const
{
    const auto [joint, outer] = rangeOf(home);
    return {joint * (joint / outer), outer * (outer / joint)};
}

Extent BipolarKind::room(const ShownAxis& axis, const Extent& reach) const
{
    const auto [joint, outer] = rangeOf(axis);
    const double decade = (1.0 - axis.axis->anchor()) / std::log10(outer / joint);
    return {std::min(std::log10(reach.low / joint) * decade, 0.0),
            std::max(std::log10(reach.high / outer) * decade, 0.0)};
}

} // namespace hosts::chart
