#ifndef HOSTS_KESTRANE_CHART_AXISOPTIONS_H
#define HOSTS_KESTRANE_CHART_AXISOPTIONS_H

#include <QString>

#include <limits>
#include <optional>

namespace hosts::chart {

class AxisKind;
struct Extent;

/// What the user wants of one axis.
struct AxisOptions
{
    /// What the command line calls an option that both axes have: "--y-joint".
    QString optionName(const char* option) const;

    /// The range as it was asked for on the command line, such as "--from 3 --to 4".
    QString rangeText() const;

    /// Says that the range does not fit the data.
    QString outsideText(const Extent& data) const;

    QString name;     ///< "x" or "y".
    QString fromName; ///< What the command line calls the two limits.
    QString toName;
    QString caption;
    QString quantity;
    QString unit; ///< Written as it is behind each number.
    const AxisKind* kind = nullptr;
    std::optional<double> from;
    std::optional<double> to;
    std::optional<double> joint; ///< The least magnitude on a bipolar axis.
    double reference = std::numeric_limits<double>::quiet_NaN();
};

} // namespace hosts::chart

#endif
