#ifndef TESTS_SUPPORT_DICE_H
#define TESTS_SUPPORT_DICE_H

#include "tests/support/Numbers.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <random>
#include <utility>
#include <vector>

namespace tests {

/// Choices that depend on a seed alone, or on bytes, which a fuzzer can change one by one. Once
/// the bytes are used up, the choices go on as those of a seed, so that few bytes lead far.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {}
    explicit Dice(std::vector<std::uint8_t> bytes)
        : m_random(unsigned(bytes.size()))
        , m_bytes(std::move(bytes))
    {}

    int upTo(int last) { return int(word(last < 256 ? 1 : 4) % std::uint32_t(last + 1)); }
    double between(double low, double high)
    {
        // Fused, as compilers may make it of plain arithmetic, or may not.
        return std::fma(high - low, double(word(4)) / 4294967296.0, low);
    }
    double oneOf(std::initializer_list<double> values)
    {
        return values.begin()[upTo(int(values.size()) - 1)];
    }

    /// Any double, those that are hard on arithmetic often.
    double number()
    {
        switch (upTo(5)) {
        case 0:
            return oneOf({NaN, Infinity, -Infinity, Highest, Lowest, 5e-324, 1e-300, 0.0, -0.0});
        case 1:
            return upTo(255) - 128;
        case 2:
            return (upTo(255) - 128) / 16.0;
        case 3:
            return std::pow(10.0, upTo(40) - 20);
        case 4:
            return between(-1.0, 1.0);
        default:
            const std::uint64_t bits = std::uint64_t(word(4)) << 32;
            double result;
            std::memcpy(&result, &bits, sizeof result);
            return result;
        }
    }

private:
    std::uint32_t word(std::size_t size)
    {
        if (m_bytes.size() - m_used < size)
            return std::uint32_t(m_random());
        std::uint32_t result = 0;
        for (const std::size_t end = m_used + size; m_used < end; ++m_used)
            result = result << 8 | m_bytes[m_used];
        return result;
    }

    std::mt19937 m_random;
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_used = 0;
};

} // namespace tests

#endif
