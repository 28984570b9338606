#include "kestrane/plots/detail/SplineCurvature.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace pelorin {
namespace algo {
namespace detail {

namespace {

// The settled pivot, 2 - sqrt(3), to the 15 decimals that all results are defined by.
constexpr double K = 0.267949192431123;

// In steps: far enough for ordinary samples, and the farthest that is tried.
constexpr std::size_t nearReach = 40;
constexpr std::size_t farReach = 1280;

constexpr std::size_t largestStretch = 256;

// Beyond this a step may overflow.
constexpr double largestMagnitude = 1e307;

// With samples up to m, |y[i-1] - 2 y[i] + y[i+1]| <= 4 m; so |d| <= 4 m / (1 - K) < 6 m and
// |c| <= 6 m K / (1 - K) < 3 m, with room for the rounding.
constexpr double upwardBound = 6.0;
constexpr double downwardBound = 3.0;

constexpr std::size_t batchSize = 4;

double secondDifference(const double* y)
{
    return (y[-1] - 2 * y[0]) + y[1];
}

bool haveSameBits(double a, double b)
{
    std::uint64_t aBits, bBits;
    std::memcpy(&aBits, &a, sizeof a);
    std::memcpy(&bBits, &b, sizeof b);
    return aBits == bBits;
}

// Where the walks to some coefficients begin.
struct Stretch
{
    std::size_t count;    // The coefficients.
    std::size_t left;     // Steps upwards to the first of them,
    std::size_t right;    // steps downwards to the last.
    double upwardStart;   // What lies before the first step is between minus this and this,
    double downwardStart; // or 0.0 exactly if this is negative.
};

template<std::size_t Lanes>
struct Walks
{
    double low[Lanes], high[Lanes];

    explicit Walks(double bound)
    {
        std::fill_n(low, Lanes, bound < 0.0 ? 0.0 : -bound);
        std::fill_n(high, Lanes, bound < 0.0 ? 0.0 : bound);
    }

    void findMet(bool* met) const
    {
        for (std::size_t lane = 0; lane < Lanes; ++lane)
            met[lane] = met[lane] && haveSameBits(low[lane], high[lane]);
    }
};

// Walks of several lanes side by side; that of a lane goes to the coefficients from the sample at
// y on. A lane whose walks do not meet is not met, and its coefficients are void.
template<std::size_t Lanes, std::size_t Room>
void solve(const Stretch& stretch, const double* const (&y)[Lanes], double* const (&c)[Lanes],
           bool (&met)[Lanes])
{
    double d[Room][Lanes];
    Walks<Lanes> up(stretch.upwardStart);
    for (std::ptrdiff_t i = 1 - static_cast<std::ptrdiff_t>(stretch.left); i <= 0; ++i) {
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            const double difference = secondDifference(y[lane] + i);
            const double low = difference - up.high[lane] * K;
            up.high[lane] = difference - up.low[lane] * K;
            up.low[lane] = low;
        }
    }
    up.findMet(met);
    std::copy_n(up.low, Lanes, d[0]);
    const std::size_t end = stretch.count + stretch.right - 1;
    for (std::size_t i = 1; i < end; ++i) {
        for (std::size_t lane = 0; lane < Lanes; ++lane)
            d[i][lane] = secondDifference(y[lane] + i) - d[i - 1][lane] * K;
    }

    Walks<Lanes> down(stretch.downwardStart);
    for (std::size_t i = end; i-- >= stretch.count;) {
        for (std::size_t lane = 0; lane < Lanes; ++lane) {
            const double low = (d[i][lane] - down.high[lane]) * K;
            down.high[lane] = (d[i][lane] - down.low[lane]) * K;
            down.low[lane] = low;
        }
    }
    down.findMet(met);
    for (std::size_t lane = 0; lane < Lanes; ++lane) {
        double* const own = c[lane];
        own[stretch.count - 1] = down.low[lane];
        for (std::size_t i = stretch.count - 1; i-- > 0;)
            own[i] = (d[i][lane] - own[i + 1]) * K;
    }
}

} // namespace

SplineCurvature::SplineCurvature(const double* samples, std::size_t count, double magnitude)
    : m_samples(samples)
    , m_count(count)
    , m_magnitude(magnitude)
{
    if (!(magnitude <= largestMagnitude))
        makePasses();
}

void SplineCurvature::write(std::size_t first, std::size_t count, double* c)
{
    // The natural ends are no results of a step.
    if (count > 0 && first == 0) {
        *c++ = 0.0;
        ++first;
        --count;
    }
    if (count > 0 && first + count == m_count)
        c[--count] = 0.0;
    if (count == 0)
        return;
    while (m_all.empty() && count > 0) {
        const std::size_t size = std::min(count, largestStretch);
        if (!solveStretch(first, size, c)) {
            makePasses();
            break;
        }
        first += size;
        count -= size;
        c += size;
    }
    if (count > 0)
        std::copy_n(m_all.data() + first, count, c);
}

// Tries from ever farther away.
bool SplineCurvature::solveStretch(std::size_t first, std::size_t count, double* c) const
{
    const double* const y[] = {m_samples + first};
    double* const target[] = {c};
    const std::size_t toStart = first, toEnd = m_count - first - count;
    for (std::size_t reach = nearReach; reach <= farReach; reach *= 2) {
        const bool fromStart = toStart <= reach, fromEnd = toEnd <= reach;
        const Stretch stretch{count, std::min(toStart, reach), std::min(toEnd, reach),
                              fromStart ? -1.0 : upwardBound * m_magnitude,
                              fromEnd ? -1.0 : downwardBound * m_magnitude};
        bool met[] = {true};
        solve<1, largestStretch + farReach>(stretch, y, target, met);
        if (met[0])
            return true;
    }
    return false;
}

void SplineCurvature::writePairs(const int* intervals, std::size_t count, Pair* pairs)
{
    std::size_t done = 0;
    for (; m_all.empty() && done + batchSize <= count; done += batchSize)
        writeBatch(intervals + done, pairs + done);
    for (; done < count; ++done)
        write(static_cast<std::size_t>(intervals[done]), 2, pairs[done].c);
}

void SplineCurvature::writeBatch(const int* intervals, Pair* pairs)
{
    const double* y[batchSize];
    double* c[batchSize];
    bool met[batchSize];
    for (std::size_t lane = 0; lane < batchSize; ++lane) {
        const auto first = static_cast<std::size_t>(intervals[lane]);
        met[lane] = first > nearReach && first + 2 + nearReach < m_count;
        // A lane near one of the ends walks where it may, to no avail.
        y[lane] = m_samples + (met[lane] ? first : nearReach + 1);
        c[lane] = pairs[lane].c;
    }
    if (m_count > 2 * nearReach + 3)
        solve<batchSize, nearReach + 2>(
            {2, nearReach, nearReach, upwardBound * m_magnitude, downwardBound * m_magnitude}, y, c,
            met);
    for (std::size_t lane = 0; lane < batchSize; ++lane) {
        if (!met[lane])
            write(static_cast<std::size_t>(intervals[lane]), 2, pairs[lane].c);
    }
}

// Those of the definition, over all samples.
void SplineCurvature::makePasses()
{
    m_all.assign(m_count, 0.0);
    if (m_count < 3)
        return;
    double* const c = m_all.data();
    for (std::size_t i = 1; i <= m_count - 2; ++i)
        c[i] = secondDifference(m_samples + i) - c[i - 1] * K;
    for (std::size_t i = m_count - 2; i >= 1; --i)
        c[i] = (c[i] - c[i + 1]) * K;
}

} // namespace detail
} // namespace algo
} // namespace pelorin
