#include "kestrane/plots/detail/SampleSummary.h"

#include <algorithm>
#include <cmath>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace pelorin {
namespace algo {
namespace detail {

namespace {

constexpr std::size_t groupSize = 16; // In blocks.

// What one look at some samples tells.
struct Look
{
    Extremes extremes;
    bool hasNaN = false;
};

void lookAtEach(const double* samples, std::size_t count, Look& look)
{
    for (std::size_t i = 0; i < count; ++i) {
        const double sample = samples[i];
        look.extremes.unite({sample, sample});
        look.hasNaN |= std::isnan(sample);
    }
}

#ifdef __SSE2__

// The processor's minimum and maximum give their second operand where one is NaN, which is what
// Extremes::unite() does. Eight samples a turn keep the additions of four chains under way.
Look lookAt(const double* samples, std::size_t count)
{
    constexpr std::size_t stride = 8;
    Look look;
    if (count < stride) {
        lookAtEach(samples, count, look);
        return look;
    }
    __m128d min[4], max[4], nan = _mm_setzero_pd();
    std::fill_n(min, 4, _mm_set1_pd(look.extremes.min));
    std::fill_n(max, 4, _mm_set1_pd(look.extremes.max));
    std::size_t i = 0;
    for (; i + stride <= count; i += stride) {
        __m128d value[4];
        for (int k = 0; k < 4; ++k) {
            value[k] = _mm_loadu_pd(samples + i + 2 * k);
            min[k] = _mm_min_pd(value[k], min[k]);
            max[k] = _mm_max_pd(value[k], max[k]);
        }
        nan = _mm_or_pd(nan, _mm_or_pd(_mm_cmpunord_pd(value[0], value[1]),
                                       _mm_cmpunord_pd(value[2], value[3])));
    }
    for (int k = 0; k < 4; ++k) {
        double low[2], high[2];
        _mm_storeu_pd(low, min[k]);
        _mm_storeu_pd(high, max[k]);
        look.extremes.unite({low[0], high[0]});
        look.extremes.unite({low[1], high[1]});
    }
    look.hasNaN = _mm_movemask_pd(nan) != 0;
    lookAtEach(samples + i, count - i, look);
    return look;
}

#else

Look lookAt(const double* samples, std::size_t count)
{
    Look look;
    lookAtEach(samples, count, look);
    return look;
}

#endif

} // namespace

Extremes extremesOf(const double* values, std::size_t count)
{
    return lookAt(values, count).extremes;
}

SampleSummary::SampleSummary(const double* samples, std::size_t count)
    : m_samples(samples)
    , m_isFinite(true)
{
    m_blocks.reserve(count / blockSize);
    m_groups.reserve(count / blockSize / groupSize);
    for (std::size_t begin = 0; begin < count; begin += blockSize) {
        const std::size_t size = std::min(blockSize, count - begin);
        const Look look = lookAt(samples + begin, size);
        m_whole.unite(look.extremes);
        m_isFinite = m_isFinite && !look.hasNaN;
        if (size < blockSize)
            break;
        m_blocks.push_back(look.extremes);
        if (m_blocks.size() % groupSize != 0)
            continue;
        Extremes group;
        for (std::size_t i = m_blocks.size() - groupSize; i < m_blocks.size(); ++i)
            group.unite(m_blocks[i]);
        m_groups.push_back(group);
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    m_isFinite =
        m_isFinite && (m_whole.isEmpty() || (m_whole.min > -infinity && m_whole.max < infinity));
}

double SampleSummary::magnitude() const
{
    return m_whole.isEmpty() ? 0.0 : std::max(std::fabs(m_whole.min), std::fabs(m_whole.max));
}

Extremes SampleSummary::over(std::size_t begin, std::size_t end) const
{
    const std::size_t firstBlock = (begin + blockSize - 1) / blockSize;
    const std::size_t lastBlock = std::min(end / blockSize, m_blocks.size());
    if (firstBlock >= lastBlock)
        return extremesOf(m_samples + begin, end - begin);
    Extremes extremes = extremesOf(m_samples + begin, firstBlock * blockSize - begin);
    overBlocks(firstBlock, lastBlock, extremes);
    extremes.unite(extremesOf(m_samples + lastBlock * blockSize, end - lastBlock * blockSize));
    return extremes;
}

void SampleSummary::overBlocks(std::size_t begin, std::size_t end, Extremes& extremes) const
{
    const std::size_t firstGroup = (begin + groupSize - 1) / groupSize;
    const std::size_t lastGroup = end / groupSize;
    const bool hasGroups = firstGroup < lastGroup;
    const std::size_t middle = hasGroups ? firstGroup * groupSize : end;
    for (std::size_t i = begin; i < middle; ++i)
        extremes.unite(m_blocks[i]);
    if (!hasGroups)
        return;
    for (std::size_t i = firstGroup; i < lastGroup; ++i)
        extremes.unite(m_groups[i]);
    for (std::size_t i = lastGroup * groupSize; i < end; ++i)
        extremes.unite(m_blocks[i]);
}

} // namespace detail
} // namespace algo
} // namespace pelorin
