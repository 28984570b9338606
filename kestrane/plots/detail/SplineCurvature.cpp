#include "kestrane/plots/detail/SplineCurvature.h"

#include "kestrane/library/detail/FreshMemory.h"
#include "kestrane/plots/detail/CurvatureBatch.h"
#include "kestrane/plots/detail/SplineRecurrence.h"

#include <algorithm>
#include <utility>

namespace pelorin {
namespace algo {
namespace detail {

namespace {

// In steps: far enough for ordinary samples, and the farthest that is tried.
constexpr std::size_t nearReach = 40;
constexpr std::size_t farReach = 1280;
constexpr std::size_t nearestBatchReach = 36;

// Beyond this a step may overflow.
constexpr double largestMagnitude = 1e307;

// With samples up to m, |y[i-1] - 2 y[i] + y[i+1]| <= 4 m; so |d| <= 4 m / (1 - K) < 6 m and
// |c| <= 6 m K / (1 - K) < 3 m, with room for the rounding.
constexpr double upwardBound = 6.0;
constexpr double downwardBound = 3.0;

double secondDifference(const double* y)
{
    return (y[-1] - 2 * y[0]) + y[1];
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

struct Walks
{
    double low, high;

    explicit Walks(double bound)
        : low(bound < 0.0 ? 0.0 : -bound)
        , high(bound < 0.0 ? 0.0 : bound)
    {}

    bool haveMet() const { return haveSameBits(low, high); }
};

// To the coefficients from the sample at y on. They are void, and the result false, if the walks do
// not meet.
bool solve(const Stretch& stretch, const double* y, double* c)
{
    double d[SplineCurvature::largestStretch + farReach];
    Walks up(stretch.upwardStart);
    for (std::ptrdiff_t i = 1 - static_cast<std::ptrdiff_t>(stretch.left); i <= 0; ++i) {
        const double difference = secondDifference(y + i);
        const double low = difference - up.high * K;
        up.high = difference - up.low * K;
        up.low = low;
    }
    d[0] = up.low;
    const std::size_t end = stretch.count + stretch.right - 1;
    for (std::size_t i = 1; i < end; ++i)
        d[i] = secondDifference(y + i) - d[i - 1] * K;

    Walks down(stretch.downwardStart);
    for (std::size_t i = end; i-- >= stretch.count;) {
        const double low = (d[i] - down.high) * K;
        down.high = (d[i] - down.low) * K;
        down.low = low;
    }
    c[stretch.count - 1] = down.low;
    for (std::size_t i = stretch.count - 1; i-- > 0;)
        c[i] = (d[i] - c[i + 1]) * K;
    return up.haveMet() && down.haveMet();
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
    if (first == 0) {
        *c++ = 0.0;
        ++first;
        --count;
    }
    if (first + count == m_count)
        c[--count] = 0.0;
    if (count == 0)
        return;
    if (m_all.empty() && !solveStretch(first, count, c))
        makePasses();
    if (!m_all.empty())
        std::copy_n(m_all.data() + first, count, c);
}

// Tries from ever farther away.
bool SplineCurvature::solveStretch(std::size_t first, std::size_t count, double* c) const
{
    const std::size_t toStart = first, toEnd = m_count - first - count;
    for (std::size_t reach = nearReach; reach <= farReach; reach *= 2) {
        const bool fromStart = toStart <= reach, fromEnd = toEnd <= reach;
        const Stretch stretch{count, std::min(toStart, reach), std::min(toEnd, reach),
                              fromStart ? -1.0 : upwardBound * m_magnitude,
                              fromEnd ? -1.0 : downwardBound * m_magnitude};
        if (solve(stretch, m_samples + first, c))
            return true;
    }
    return false;
}

void SplineCurvature::writePairs(const int* intervals, std::size_t count, Pair* pairs)
{
    std::size_t reach = nearestBatchReach;
    for (std::size_t done = 0; done < count;) {
        const std::size_t size = std::min(count - done, CurvatureBatch::size);
        reach = writeBatch(intervals + done, size, reach, pairs + done);
        done += size;
    }
}

// Tries from ever farther away. The result is how far that was, and where the next batch begins.
std::size_t SplineCurvature::writeBatch(const int* intervals, std::size_t count, std::size_t reach,
                                        Pair* pairs)
{
    CurvatureBatch batch;
    while (!tryBatch(intervals, count, reach, batch) && 2 * reach <= CurvatureBatch::farthestReach)
        reach *= 2;
    for (std::size_t lane = 0; lane < count; ++lane) {
        if (batch.met[lane])
            std::copy_n(batch.c[lane], 2, pairs[lane].c);
        else
            write(static_cast<std::size_t>(intervals[lane]), 2, pairs[lane].c);
    }
    return reach;
}

// Whether it is of no use to try again from farther away.
bool SplineCurvature::tryBatch(const int* intervals, std::size_t count, std::size_t reach,
                               CurvatureBatch& batch) const
{
    std::fill_n(batch.met, CurvatureBatch::size, false);
    if (!m_all.empty() || m_count < 2 * reach + 4)
        return true;
    bool fits[CurvatureBatch::size];
    for (std::size_t lane = 0; lane < CurvatureBatch::size; ++lane) {
        const auto first = static_cast<std::size_t>(intervals[std::min(lane, count - 1)]);
        fits[lane] = first > reach && first + 2 + reach < m_count;
        // A lane near one of the ends walks where it may, to no avail.
        batch.samples[lane] = m_samples + (fits[lane] ? first : reach + 1);
    }
    std::copy_n(fits, CurvatureBatch::size, batch.met);
    batch.solve(reach, upwardBound * m_magnitude, downwardBound * m_magnitude);
    return std::equal(fits, fits + CurvatureBatch::size, batch.met);
}

// Those of the definition, over all samples.
void SplineCurvature::makePasses()
{
    std::vector<double> all;
    all.reserve(m_count);
    ui::chart::detail::preferLargePages(all.data(), m_count * sizeof(double));
    all.assign(m_count, 0.0);
    m_all = std::move(all);
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
