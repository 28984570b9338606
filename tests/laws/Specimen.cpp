#include "tests/laws/Specimen.h"

#include "kestrane/axes/AggregateAxis.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/axes/LogAxis.h"
#include "kestrane/axes/MirroredAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace pelorin::ui::chart;

namespace tests {

namespace {

// Up to 1e5 at the most.
Leaf log(Dice& dice)
{
    const double smallest = std::pow(10.0, dice.between(-3.0, 1.0));
    const double largest = smallest * std::pow(10.0, dice.between(0.5, 4.0));
    return {new LogAxis(smallest, largest), {smallest / 100.0, largest * 100.0}};
}

Leaf linear(Dice& dice, double from)
{
    const double scale = std::pow(10.0, dice.between(-1.0, 3.0));
    const int major = 1 + dice.upTo(12), minor = 1 + dice.upTo(5);
    const double length = scale * major;
    Axis* const axis = dice.upTo(1)
                           ? new LinearAxis(scale, from, 0.0, false, major, minor)
                           : new FixedPositionLinearAxis(scale, from, 0.0, false, major, minor);
    return {axis, {from - length, from + 3.0 * length}};
}

Specimen alone(const Leaf& leaf)
{
    Specimen specimen{std::unique_ptr<Axis>(leaf.axis), {leaf}};
    specimen.takesLogarithms = leaf.axis->minValue() > 0.0;
    return specimen;
}

Specimen mirrored(Specimen specimen)
{
    Axis* const source = specimen.axis.release();
    specimen.axis = std::make_unique<MirroredAxis>(source);
    source->setParent(specimen.axis.get());
    std::swap(specimen.leaves.front(), specimen.leaves.back());
    return specimen;
}

Specimen endToEnd(Axis* low, Axis* high, std::vector<Leaf> leaves, bool takesLogarithms)
{
    auto axis = std::make_unique<AggregateAxis>();
    axis->addAxis(low, 0.0, 0.5).addAxis(high, 0.5, 1.0);
    low->setParent(axis.get());
    high->setParent(axis.get());
    return {std::move(axis), std::move(leaves), takesLogarithms};
}

Specimen bipolar(Dice& dice)
{
    const Leaf source = log(dice);
    auto* const mirror = new MirroredAxis(source.axis);
    return endToEnd(mirror, source.axis, {source}, false);
}

} // namespace

Specimen Specimen::simple(Dice& dice)
{
    const int kind = dice.upTo(2);
    return alone(kind == 0 ? log(dice) : linear(dice, dice.between(-1e3, 1e3)));
}

Specimen Specimen::any(Dice& dice)
{
    constexpr double beyondLogs = 2e8; // Of any gesture.
    switch (dice.upTo(5)) {
    case 0:
        return mirrored(alone(log(dice)));
    case 1: {
        const Leaf low = log(dice), high = linear(dice, beyondLogs);
        return endToEnd(low.axis, high.axis, {low, high}, true);
    }
    case 2:
        return bipolar(dice);
    case 3:
        return mirrored(bipolar(dice));
    case 4: {
        Specimen inner = bipolar(dice);
        const Leaf high = linear(dice, beyondLogs);
        return endToEnd(inner.axis.release(), high.axis, {inner.leaves[0], high}, false);
    }
    default:
        return simple(dice);
    }
}

double Specimen::tolerance(double at) const
{
    const Axis& leaf = *leafAt(at).axis;
    double low = leaf.minValue(), high = leaf.maxValue();
    if (leaf.scaleMode() == Axis::Logarithmic) {
        low = std::log10(low);
        high = std::log10(high);
    }
    const double size = std::abs(low) + std::abs(high);
    return 64 * std::numeric_limits<double>::epsilon() * (1.0 + size / std::abs(high - low));
}

} // namespace tests
