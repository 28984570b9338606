// A logarithm for a program of its own: as far off as other mathematical libraries may be, to
// either side, so that it does not ascend from one number to the next as that of the C library does
// here. The library finds it in the place of the usual one.
#include <cmath>
#include <cstdint>
#include <cstring>

extern "C" double log10(double x)
{
    constexpr int farthest = 16; // Units in the last place.
    const auto logarithm = static_cast<double>(std::log10(static_cast<long double>(x)));
    std::uint64_t bits;
    std::memcpy(&bits, &x, sizeof bits);
    const int error = static_cast<int>((bits * 0x9e3779b97f4a7c15u) >> 40) % (2 * farthest + 1);
    return std::isfinite(logarithm)
               ? logarithm + (error - farthest) * (std::nextafter(std::fabs(logarithm), 1e300) -
                                                   std::fabs(logarithm))
               : logarithm;
}
