#ifndef HOSTS_KESTRANE_CHART_LOGKIND_H
#define HOSTS_KESTRANE_CHART_LOGKIND_H

#include "hosts/kestrane-chart/AxisKind.h"

namespace hosts::chart {

/// Logarithmic axes. They have a place for positive numbers only.
class LogKind : public AxisKind
{
public:
    void check(const AxisOptions& axis) const override;
    bool suitsAnyRange() const override { return true; }
    Extent::Measure measure() const override;
    charting::ShownAxis forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                     int wanted) const override;

    /// Of values that span more than twelve decades the lower ones are left out.
    charting::ShownAxis forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                                  const Curves& curves, int wanted) const override;
    bool isUsable(const charting::ShownAxis& axis) const override;
};

} // namespace hosts::chart

#endif
