#ifndef TESTS_FAULTS_HOSTAXIS_H
#define TESTS_FAULTS_HOSTAXIS_H

#include "kestrane/axes/LinearAxis.h"
#include "tests/faults/Faults.h"

namespace tests {

/// An axis of the host's own, each of whose answers may be an exception.
class HostAxis : public pelorin::ui::chart::LinearAxis
{
public:
    using LinearAxis::LinearAxis;

    void rank(QVector<Tick>& ticks) { updateRanking(ticks, true); }

    double minValue() const override { return hostCode(), LinearAxis::minValue(); }
    double maxValue() const override { return hostCode(), LinearAxis::maxValue(); }
    QVector<Tick> majorTicks() override { return hostCode(), LinearAxis::majorTicks(); }
    QVector<Tick> minorTicks() override { return hostCode(), LinearAxis::minorTicks(); }
    double transform(ScaleMode mode, double value) const override
    {
        return hostCode(), LinearAxis::transform(mode, value);
    }
    double inverseTransform(ScaleMode mode, double position) const override
    {
        return hostCode(), LinearAxis::inverseTransform(mode, position);
    }
    boost::shared_ptr<const ScrollScaleState> scrollScaleState() const override
    {
        return hostCode(), LinearAxis::scrollScaleState();
    }
    HostAxis* clone() const override
    {
        hostCode();
        return new HostAxis(scale(), offset(), anchor(), offsetIsAdded(), numMajorDivisions(),
                            numMinorDivisions());
    }
    bool operator==(const Axis& other) const override
    {
        return hostCode(), LinearAxis::operator==(other);
    }
};

} // namespace tests

#endif
