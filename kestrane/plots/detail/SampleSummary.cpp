#include "kestrane/plots/detail/SampleSummary.h"

#include "kestrane/library/detail/WideVectors.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace pelorin {
namespace algo {
namespace detail {

namespace {

// What one look at some samples tells.
struct Look
{
    Extremes extremes;
    bool hasNaN = false;
};

KESTRANE_ALWAYS_INLINE void lookAtEach(const double* samples, std::size_t count, Look& look)
{
    for (std::size_t i = 0; i < count; ++i) {
        const double sample = samples[i];
        look.extremes.unite({sample, sample});
        look.hasNaN |= std::isnan(sample);
    }
}

// A choice by < gives its second operand where one is NaN, as Extremes::unite() does. Four vectors
// a turn keep the comparisons of several chains under way; the last turn may look again at what the
// one before it has seen.
template<typename Vectors>
KESTRANE_ALWAYS_INLINE void lookAt(const double* samples, std::size_t count, Look& look)
{
    using Lanes = typename Vectors::Lanes;
    constexpr std::size_t width = Vectors::width, stride = 4 * width;
    if (count < stride)
        return lookAtEach(samples, count, look);
    Lanes min[4], max[4];
    typename Vectors::Mask isNaN{};
    std::fill_n(min, 4, Lanes{} + look.extremes.min);
    std::fill_n(max, 4, Lanes{} + look.extremes.max);
    const auto takeTurn = [&](const double* turn) {
        for (std::size_t k = 0; k < 4; ++k) {
            Lanes value;
            std::memcpy(&value, turn + k * width, sizeof value);
            min[k] = value < min[k] ? value : min[k];
            max[k] = value > max[k] ? value : max[k];
            isNaN |= value != value;
        }
    };
    for (std::size_t i = 0; i + stride < count; i += stride)
        takeTurn(samples + i);
    takeTurn(samples + count - stride);
    for (std::size_t k = 1; k < 4; ++k) {
        min[0] = min[k] < min[0] ? min[k] : min[0];
        max[0] = max[k] > max[0] ? max[k] : max[0];
    }
    for (std::size_t lane = 0; lane < width; ++lane) {
        look.extremes.unite({min[0][lane], max[0][lane]});
        look.hasNaN |= isNaN[lane] != 0;
    }
}

// Whether no more than one number is not above low, and no more than one not below high.
template<typename Vectors>
KESTRANE_ALWAYS_INLINE bool areApart(const double* samples, std::size_t count, double low,
                                     double high)
{
    using Mask = typename Vectors::Mask;
    constexpr std::size_t width = Vectors::width;
    Mask lowCounts{}, highCounts{}; // Masks are 0 or -1 in each lane.
    std::size_t i = 0;
    for (; i + width <= count; i += width) {
        typename Vectors::Lanes value;
        std::memcpy(&value, samples + i, sizeof value);
        lowCounts -= value <= low;
        highCounts -= value >= high;
    }
    std::int64_t lowCount = 0, highCount = 0;
    for (std::size_t lane = 0; lane < width; ++lane) {
        lowCount += lowCounts[lane];
        highCount += highCounts[lane];
    }
    for (; i < count; ++i) {
        lowCount += samples[i] <= low;
        highCount += samples[i] >= high;
    }
    return lowCount <= 1 && highCount <= 1;
}

// The first number in [low.min, low.max] or [high.min, high.max], but none of the outer two; count
// if there is none.
template<typename Vectors>
KESTRANE_ALWAYS_INLINE std::size_t findBeside(const double* samples, std::size_t count,
                                              const Extremes& low, const Extremes& high)
{
    using Lanes = typename Vectors::Lanes;
    constexpr std::size_t width = Vectors::width, stride = 4 * width;
    typename Vectors::Mask found{};
    const auto takeTurn = [&](const double* turn) {
        for (std::size_t k = 0; k < stride; k += width) {
            Lanes value;
            std::memcpy(&value, turn + k, sizeof value);
            found |= ((value <= low.max) & (value != low.min)) |
                     ((value >= high.min) & (value != high.max));
        }
    };
    for (std::size_t i = 0; i + stride < count; i += stride)
        takeTurn(samples + i);
    if (count >= stride) {
        takeTurn(samples + count - stride);
        std::int64_t any = 0;
        for (std::size_t lane = 0; lane < width; ++lane)
            any |= found[lane];
        if (any == 0)
            return count;
    }
    const auto isFound = [&](double value) {
        return (value <= low.max && value != low.min) || (value >= high.min && value != high.max);
    };
    return static_cast<std::size_t>(std::find_if(samples, samples + count, isFound) - samples);
}

} // namespace

Extremes extremesOf(const double* values, std::size_t count)
{
    Extremes extremes;
    pelorin::detail::withWideVectors([&](auto vectors) {
        Look look;
        lookAt<decltype(vectors)>(values, count, look);
        extremes = look.extremes;
    });
    return extremes;
}

SampleSummary::SampleSummary(const double* samples, std::size_t count)
    : m_samples(samples)
    , m_isFinite(true)
{
    m_blocks.reserve(count / blockSize);
    m_groups.reserve(count / blockSize / groupSize);
    pelorin::detail::withWideVectors([&](auto vectors) {
        for (std::size_t begin = 0; begin < count; begin += blockSize) {
            const std::size_t size = std::min(blockSize, count - begin);
            Look look;
            lookAt<decltype(vectors)>(samples + begin, size, look);
            m_whole.unite(look.extremes);
            m_isFinite = m_isFinite && !look.hasNaN;
            if (size == blockSize)
                appendBlock(look.extremes);
        }
    });
    constexpr double infinity = std::numeric_limits<double>::infinity();
    m_isFinite =
        m_isFinite && (m_whole.isEmpty() || (m_whole.min > -infinity && m_whole.max < infinity));
}

void SampleSummary::appendBlock(const Extremes& extremes)
{
    m_blocks.push_back(extremes);
    if (m_blocks.size() % groupSize != 0)
        return;
    Extremes group;
    for (std::size_t i = m_blocks.size() - groupSize; i < m_blocks.size(); ++i)
        group.unite(m_blocks[i]);
    m_groups.push_back(group);
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

bool SampleSummary::standApart(std::size_t begin, std::size_t end, const Extremes& extremes,
                               double share) const
{
    if (end - begin > 2 * blockSize)
        return false;
    bool result = false;
    pelorin::detail::withWideVectors([&](auto vectors) {
        result =
            areApart<decltype(vectors)>(m_samples + begin, end - begin,
                                        extremes.min * (1.0 + share), extremes.max * (1.0 - share));
    });
    return result;
}

std::size_t SampleSummary::firstBeside(std::size_t begin, std::size_t end, const Extremes& extremes,
                                       double share)
{
    const Beside beside{extremes, extremes.min * (1.0 + share), extremes.max * (1.0 - share)};
    for (begin = passOver(begin, end, beside, share); begin < end;
         begin = passOver(begin, end, beside, share)) {
        const std::size_t next = std::min(end, (begin / blockSize + 1) * blockSize);
        const std::size_t found = find(begin, next, beside);
        if (found < next)
            return found;
        begin = next;
    }
    return end;
}

// To the first block that has to be looked into.
std::size_t SampleSummary::passOver(std::size_t begin, std::size_t end, const Beside& beside,
                                    double share)
{
    std::size_t block = begin / blockSize;
    const std::size_t lastBlock = std::min((end + blockSize - 1) / blockSize, m_blocks.size());
    while (block < lastBlock) {
        const std::size_t group = block / groupSize;
        if (block % groupSize == 0 && group < m_groups.size() && !beside.mayBeIn(m_groups[group])) {
            block += groupSize;
            continue;
        }
        const Extremes& own = m_blocks[block];
        if (beside.mayBeIn(own)) {
            const bool isWhole = begin <= block * blockSize && (block + 1) * blockSize <= end;
            const bool sharesExtremes = (own.min == beside.extremes.min || own.min > beside.low) &&
                                        (own.max == beside.extremes.max || own.max < beside.high);
            if (!isWhole || !sharesExtremes || !isLonely(block, share))
                break;
        }
        ++block;
    }
    return std::min(end, std::max(begin, block * blockSize));
}

// Whether the extremes of a block have nothing else beside them.
bool SampleSummary::isLonely(std::size_t block, double share)
{
    if (m_lonely.empty())
        m_lonely.assign(m_blocks.size(), -1);
    signed char& isLonely = m_lonely[block];
    if (isLonely < 0) {
        const Extremes& own = m_blocks[block];
        const std::size_t begin = block * blockSize, end = begin + blockSize;
        const Beside beside{own, own.min * (1.0 + share), own.max * (1.0 - share)};
        isLonely = find(begin, end, beside) == end ? 1 : 0;
    }
    return isLonely == 1;
}

std::size_t SampleSummary::find(std::size_t begin, std::size_t end, const Beside& beside) const
{
    std::size_t index = 0;
    pelorin::detail::withWideVectors([&](auto vectors) {
        index = findBeside<decltype(vectors)>(m_samples + begin, end - begin,
                                              {beside.extremes.min, beside.low},
                                              {beside.high, beside.extremes.max});
    });
    return begin + index;
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
