#ifndef HOSTS_KESTRANE_CHART_AXISKIND_H
#define HOSTS_KESTRANE_CHART_AXISKIND_H

#include "hosts/charting/ShownAxis.h"
#include "hosts/kestrane-chart/AxisOptions.h"
#include "hosts/kestrane-chart/Extent.h"

#include <QStringList>

#include <functional>
#include <optional>

namespace hosts::chart {

/// A kind of axis: which ranges it can have, and which of them suits some data.
class AxisKind
{
public:
    /// What splines make of the values in sight when they are drawn on an axis.
    using Curves = std::function<Extent(const charting::ShownAxis&)>;

    /// What the command line calls the kinds.
    static QStringList names();

    /// The kind of that name, which has to be one of names().
    static const AxisKind& named(const QString& name);

    virtual ~AxisKind() = default;

    /// @throws UsageError if @p axis asks for what this kind cannot give, whatever the data
    virtual void check(const AxisOptions& axis) const = 0;

    /// Whether its ticks look well whatever the range, so that it can fit data closely.
    virtual bool suitsAnyRange() const { return false; }

    /// Whether a distance of values has one length everywhere.
    virtual bool isEven() const { return false; }

    /// Which values tell the range.
    virtual Extent::Measure measure() const = 0;

    /// An axis for abscissas, that covers @p data in what the options leave open.
    /// @param data what measure() tells of all abscissas; none if it tells of none
    /// @param wanted a number of divisions to come near to
    /// @throws WorkError if the options do not fit the data
    virtual charting::ShownAxis
    forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data, int wanted) const = 0;

    /// An axis for values.
    /// @param data what measure() tells of the values in sight
    virtual charting::ShownAxis forValues(const AxisOptions& axis,
                                          const std::optional<Extent>& data, const Curves& curves,
                                          int wanted) const = 0;

    /// What @p axis shows, on an axis that is good to look at: a gesture leaves the number of
    /// divisions as it is, whatever their size.
    virtual charting::ShownAxis divided(const charting::ShownAxis& axis, int wanted) const;

    /// Whether what @p axis shows can be read.
    virtual bool isUsable(const charting::ShownAxis& axis) const = 0;

    /// The values that gestures may go to, which leave @p home in reach: its own length beyond it
    /// on either side.
    virtual Extent reach(const charting::ShownAxis& home) const;

    /// How far @p axis can be scrolled within @p reach, in axis space: the distance towards smaller
    /// values, not above 0, and that towards larger ones.
    virtual Extent room(const charting::ShownAxis& axis, const Extent& reach) const;
};

} // namespace hosts::chart

#endif
