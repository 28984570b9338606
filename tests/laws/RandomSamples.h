#ifndef TESTS_LAWS_RANDOMSAMPLES_H
#define TESTS_LAWS_RANDOMSAMPLES_H

#include "tests/support/Dice.h"

#include <vector>

namespace tests {

using Samples = std::vector<double>;

/// Between -1.0 and 1.0, some dozens most often.
inline Samples randomSamples(Dice& dice, int least = 1)
{
    Samples samples(std::size_t(least + dice.upTo(dice.upTo(3) ? 40 : 600)));
    for (double& sample : samples)
        sample = dice.between(-1.0, 1.0);
    return samples;
}

} // namespace tests

#endif
