#ifndef TESTS_LAWS_SPECIMEN_H
#define TESTS_LAWS_SPECIMEN_H

#include "kestrane/axes/Axis.h"

#include "tests/support/Dice.h"

#include <memory>
#include <utility>
#include <vector>

namespace tests {

/// A simple axis that gestures reach in the end, and the limits that it is to be held to.
struct Leaf
{
    pelorin::ui::chart::Axis* axis;
    std::pair<double, double> limits;
};

/// An axis of any kind on which values ascend, with parameters as hosts have them. It owns all
/// below it.
struct Specimen
{
    static Specimen any(Dice& dice);

    /// Without axes below it, linear or logarithmic.
    static Specimen simple(Dice& dice);

    /// The leaf under that place.
    const Leaf& leafAt(double at) const { return leaves[leaves.size() == 2 && at >= 0.5 ? 1 : 0]; }

    /// What rounding, of values and of positions, may do to a position on the leaf under a place.
    double tolerance(double at) const;

    std::unique_ptr<pelorin::ui::chart::Axis> axis;
    std::vector<Leaf> leaves;
    bool takesLogarithms = true; ///< There are no negative values.
};

} // namespace tests

#endif
