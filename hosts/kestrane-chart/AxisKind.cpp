#include "hosts/kestrane-chart/AxisKind.h"

#include "hosts/kestrane-chart/BipolarKind.h"
#include "hosts/kestrane-chart/LinearKind.h"
#include "hosts/kestrane-chart/LogKind.h"

#include <algorithm>
#include <map>

namespace hosts::chart {

using charting::ShownAxis;
using charting::TickPlaces;
using pelorin::ui::chart::Axis;

namespace {

const std::map<QString, const AxisKind*>& kinds()
{
    static const LinearKind linear(TickPlaces::Moving);
    static const LinearKind fixed(TickPlaces::Fixed);
    static const LogKind log;
    static const BipolarKind bipolar;
    static const std::map<QString, const AxisKind*> kinds = {{QStringLiteral("linear"), &linear},
                                                             {QStringLiteral("fixed"), &fixed},
                                                             {QStringLiteral("log"), &log},
                                                             {QStringLiteral("bipolar"), &bipolar}};
    return kinds;
}

} // namespace

QStringList AxisKind::names()
{
    QStringList names;
    for (const auto& kind : kinds())
        names.append(kind.first);
    return names;
}

const AxisKind& AxisKind::named(const QString& name)
{
    return *kinds().at(name);
}

ShownAxis AxisKind::divided(const ShownAxis& axis, int) const
{
    return axis;
}

Extent AxisKind::reach(const ShownAxis& home) const
{
    return {home.axis->inverseTransform(Axis::Linear, -home.visible),
            home.axis->inverseTransform(Axis::Linear, 2.0 * home.visible)};
}

Extent AxisKind::room(const ShownAxis& axis, const Extent& reach) const
{
    return {std::min(axis.axis->transform(Axis::Linear, reach.low), 0.0),
            std::max(axis.axis->transform(Axis::Linear, reach.high) - axis.visible, 0.0)};
}

} // namespace hosts::chart
