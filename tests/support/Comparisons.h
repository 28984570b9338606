#ifndef TESTS_SUPPORT_COMPARISONS_H
#define TESTS_SUPPORT_COMPARISONS_H

#include "kestrane/axes/Axis.h"

#include "tests/support/Dice.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace tests {

/// What comparisons came across, for the test that they did compare something.
struct Seen
{
    std::map<std::string, std::size_t> of;
    std::set<std::pair<std::string, std::string>> axes;

    void add(const pelorin::ui::chart::Axis& x, const pelorin::ui::chart::Axis& y)
    {
        axes.emplace(x.metaObject()->className(), y.metaObject()->className());
    }
};

// Each of these makes plots of data and axes of any kind in the library's way and by the plain
// rules, and expects the same bits. They stand beside their differential tests.

void compareSamplePlots(Dice& dice, Seen& seen);
void compareXYPlots(Dice& dice, Seen& seen);
void compareNeedles(Dice& dice, Seen& seen);

enum class Surface { Histogram, Needles, Both };

/// A sequence of calls: what changes between two decides which cells are used again.
void compareSurfaces(Dice& dice, Surface surface, Seen& seen);

} // namespace tests

#endif
