#include "tests/plots/RandomAxis.h"

#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include <cmath>
#include <stdexcept>

using namespace pelorin::ui::chart;

namespace tests {

namespace {

// A host's axis, with holes or with an end at which it throws.
class ForeignAxis : public LinearAxis
{
public:
    ForeignAxis(double scale, double offset, double anchor, bool throws)
        : LinearAxis(scale, offset, anchor)
        , m_throws(throws)
    {}

    double transform(ScaleMode mode, double value) const override
    {
        const double position = LinearAxis::transform(mode, value);
        if (m_isReady && m_throws && position > 0.8)
            throw std::runtime_error("beyond this axis");
        return std::fmod(value, 3.0) == 1.0 ? NaN : position;
    }

    // Axes that are laid around it ask it already, and are not to be lost for it.
    void finish() { m_isReady = true; }

private:
    bool m_throws;
    bool m_isReady = false;
};

Axis* simpleAxis(Dice& dice)
{
    if (dice.upTo(4) == 0)
        return new LogAxis{dice.oneOf({0.01, 0.25, 1.0, 5.0, 0.0, -1.0}),
                           dice.oneOf({1.0, 3.0, 100.0, 1e4, NaN})};
    const double scale = dice.upTo(9) ? dice.oneOf({0.1, 0.8, 1.0, dice.between(0.01, 3.0)})
                                      : dice.oneOf({-0.5, 0.0, 1e-300});
    const double offset = dice.oneOf({0.0, 0.0, 0.25, dice.between(-2.0, 5.0)});
    const double anchor = dice.oneOf({0.0, 0.0, 0.5});
    if (dice.upTo(7) == 0)
        return new ForeignAxis(scale, offset, anchor, dice.upTo(1) == 0);
    if (dice.upTo(3) == 0)
        return new FixedPositionLinearAxis(scale, offset, anchor, dice.upTo(1) == 0);
    return new LinearAxis(scale, offset, anchor);
}

// Of any kind, with mirrors and aggregates down to a depth.
Axis* anyAxis(Dice& dice, int depth)
{
    const int kind = depth > 0 ? dice.upTo(7) : 7;
    if (kind > 1)
        return simpleAxis(dice);
    Axis* const first = anyAxis(dice, depth - 1);
    auto* const mirror = new MirroredAxis(first);
    first->setParent(mirror);
    if (kind == 0)
        return mirror;
    auto* const aggregate = new AggregateAxis;
    Axis* const second = dice.upTo(1) ? first : anyAxis(dice, depth - 1);
    aggregate->addAxis(mirror, 0.0, 0.5).addAxis(second, 0.5, 1.0);
    mirror->setParent(aggregate);
    if (second != first)
        second->setParent(aggregate);
    return aggregate;
}

} // namespace

QSharedPointer<const Axis> randomAxis(Dice& dice)
{
    QSharedPointer<Axis> axis(anyAxis(dice, 2));
    QList<Axis*> parts = axis->findChildren<Axis*>();
    parts.append(axis.data());
    for (Axis* const part : parts) {
        if (auto* const foreign = dynamic_cast<ForeignAxis*>(part))
            foreign->finish();
    }
    return axis;
}

} // namespace tests
