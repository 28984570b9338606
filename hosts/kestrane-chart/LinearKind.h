#ifndef HOSTS_KESTRANE_CHART_LINEARKIND_H
#define HOSTS_KESTRANE_CHART_LINEARKIND_H

#include "hosts/charting/AxisDivision.h"
#include "hosts/kestrane-chart/AxisKind.h"

namespace hosts::chart {

/// Linear axes. Their range ends on a tick for abscissas, and leaves some room for values.
class LinearKind : public AxisKind
{
public:
    explicit LinearKind(charting::TickPlaces places)
        : m_places(places)
    {}

    void check(const AxisOptions& axis) const override;
    bool suitsAnyRange() const override { return m_places == charting::TickPlaces::Moving; }
    bool isEven() const override { return true; }
    Extent::Measure measure() const override;
    charting::ShownAxis forAbscissas(const AxisOptions& axis, const std::optional<Extent>& data,
                                     int wanted) const override;
    charting::ShownAxis forValues(const AxisOptions& axis, const std::optional<Extent>& data,
                                  const Curves& curves, int wanted) const override;
    charting::ShownAxis divided(const charting::ShownAxis& axis, int wanted) const override;
    bool isUsable(const charting::ShownAxis& axis) const override;

private:
    charting::TickPlaces m_places;
};

} // namespace hosts::chart

#endif
