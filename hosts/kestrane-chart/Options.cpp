#include "hosts/kestrane-chart/Options.h"

namespace hosts::chart {

namespace {

void append(QStringList& parts, const QString& name, const std::optional<double>& value)
{
    if (value)
        parts << name << QString::number(*value, 'g', 15);
}

} // namespace

QString AxisOptions::rangeText() const
{
    QStringList parts;
    append(parts, fromName, from);
    append(parts, toName, to);
    return parts.join(QLatin1Char(' '));
}

} // namespace hosts::chart
