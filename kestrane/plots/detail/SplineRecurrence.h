#ifndef KESTRANE_PLOTS_DETAIL_SPLINERECURRENCE_H
#define KESTRANE_PLOTS_DETAIL_SPLINERECURRENCE_H

#include <cstdint>
#include <cstring>

namespace pelorin {
namespace algo {
namespace detail {

/// The settled pivot, 2 - sqrt(3), to the 15 decimals that all results are defined by.
constexpr double K = 0.267949192431123;

/// Tells -0.0 from 0.0.
inline bool haveSameBits(double a, double b)
{
    std::uint64_t aBits, bBits;
    std::memcpy(&aBits, &a, sizeof a);
    std::memcpy(&bBits, &b, sizeof b);
    return aBits == bBits;
}

} // namespace detail
} // namespace algo
} // namespace pelorin

#endif
