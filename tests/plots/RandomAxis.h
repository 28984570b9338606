#ifndef TESTS_PLOTS_RANDOMAXIS_H
#define TESTS_PLOTS_RANDOMAXIS_H

#include "kestrane/axes/Axis.h"

#include <QSharedPointer>

#include <cstdint>
#include <random>
#include <vector>

namespace tests {

class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {}

    int upTo(int last) { return int(m_random() % std::uint32_t(last + 1)); }
    double between(double low, double high)
    {
        return low + (high - low) * (double(m_random()) / 4294967296.0);
    }
    double oneOf(const std::vector<double>& values)
    {
        return values[std::size_t(upTo(int(values.size()) - 1))];
    }

private:
    std::mt19937 m_random;
};

/// An axis of any kind, a host's own included: with holes, or with an end at which it throws.
QSharedPointer<const pelorin::ui::chart::Axis> randomAxis(Dice& dice);

} // namespace tests

#endif
