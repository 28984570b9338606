#include "hosts/kestrane-chart/AxisOptions.h"

#include "hosts/kestrane-chart/Extent.h"

#include <QStringList>

namespace hosts::chart {

namespace {

void append(QStringList& parts, const QString& name, const std::optional<double>& value)
{
    if (value)
        parts << name << QString::number(*value, 'g', 15);
}

} // namespace

QString AxisOptions::optionName(const char* option) const
{
    return QStringLiteral("--%1-%2").arg(name, QLatin1String(option));
}

QString AxisOptions::rangeText() const
{
    QStringList parts;
    append(parts, fromName, from);
    append(parts, toName, to);
    append(parts, optionName("joint"), joint);
    return parts.join(QLatin1Char(' '));
}

QString AxisOptions::outsideText(const Extent& data) const
{
    const QString range = rangeText();
    return (range.isEmpty() ? QStringLiteral("too far for an axis for %1").arg(name) : range) +
           QStringLiteral(": the data go from %1 to %2")
               .arg(data.low, 0, 'g', 10)
               .arg(data.high, 0, 'g', 10);
}

} // namespace hosts::chart
