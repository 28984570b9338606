#ifndef HOSTS_KESTRANE_CHART_BIPOLARKIND_H
#define HOSTS_KESTRANE_CHART_BIPOLARKIND_H

#include "hosts/kestrane-chart/AxisKind.h"

namespace hosts::chart {

/// Logarithmic axes for both signs, equally far to both sides. They begin at a joint, on which
/// everything is drawn that is nearer to 0, and reach six decades further if the user does not say
/// otherwise.
class BipolarKind : public AxisKind
{
public:
    void check(const AxisOptions& axis) const override;
    Extent::Measure measure() const override;
    charting::ShownAxis forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                     int wanted) const override;
    charting::ShownAxis forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                                  const Curves& curves, int wanted) const override;
    bool isUsable(const charting::ShownAxis& axis) const override;

    /// Magnitudes.
    Extent reach(const charting::ShownAxis& home) const override;

    /// For a grip in the half above 0; below it the directions are the other way round.
    Extent room(const charting::ShownAxis& axis, const Extent& reach) const override;
};

} // namespace hosts::chart

#endif
