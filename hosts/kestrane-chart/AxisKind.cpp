#include "hosts/kestrane-chart/AxisKind.h"

#include "hosts/kestrane-chart/BipolarKind.h"
#include "hosts/kestrane-chart/LinearKind.h"
#include "hosts/kestrane-chart/LogKind.h"

#include <map>

namespace hosts::chart {

using charting::TickPlaces;

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

} // namespace hosts::chart
