#include "kestrane/colors/detail/ColorLookup.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace pelorin {
namespace ui {
namespace detail {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// A table is made for each request, so that it may take no longer than few cells do.
constexpr double mostTabulatedCounts = 2048.0;

// The smallest double whose whole part reaches a threshold. 0 is no count of any class.
double smallestCount(std::size_t threshold)
{
    const auto count = static_cast<double>(std::max<std::size_t>(threshold, 1));
    const bool isBelow = count < 0x1p64 && static_cast<std::size_t>(count) < threshold;
    return isBelow ? std::nextafter(count, infinity) : count;
}

// In the order of the values, as long as none is negative.
long long bitsOf(double value)
{
    static_assert(sizeof(long long) == sizeof(double));
    long long bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

} // namespace

ColorLookup::ColorLookup(const ColorMap& map)
    : m_colors{map.m_unmatchedColor}
{
    m_colors.insert(m_colors.end(), map.m_sortedColors.begin(), map.m_sortedColors.end());
    for (const std::size_t threshold : map.m_sortedThresholds)
        m_thresholds.push_back(smallestCount(threshold));
    if (m_thresholds.empty() || m_thresholds.back() < mostTabulatedCounts)
        makeTable();
    else
        makeBuckets();
}

void ColorLookup::makeTable()
{
    unsigned before = 0;
    for (const double threshold : m_thresholds)
        m_classOfCount.resize(static_cast<std::size_t>(threshold), before++);
    m_classOfCount.push_back(before);
}

// At most eight buckets for each class, so that even among many of equal width few share one.
void ColorLookup::makeBuckets()
{
    const std::size_t classes = m_thresholds.size();
    const long long first = bitsOf(m_thresholds.front()), last = bitsOf(m_thresholds.back());
    while (static_cast<std::size_t>((last - first) >> m_shift) > 8 * classes)
        ++m_shift;
    m_firstKey = first >> m_shift;
    m_firstClasses.resize(static_cast<std::size_t>((last >> m_shift) - m_firstKey) + 1);

    std::vector<unsigned> sizes(m_firstClasses.size());
    for (const double threshold : m_thresholds)
        ++sizes[bucketOf(threshold)];
    unsigned before = 0;
    for (std::size_t bucket = 0; bucket < sizes.size(); before += sizes[bucket++])
        m_firstClasses[bucket] = before;

    const unsigned most = *std::max_element(sizes.begin(), sizes.end());
    while (most >> m_steps != 0)
        ++m_steps;
    m_thresholds.resize(classes + (std::size_t(1) << m_steps), std::nan(""));
}

std::size_t ColorLookup::bucketOf(double count) const
{
    const auto last = static_cast<long long>(m_firstClasses.size()) - 1;
    const long long bucket = (bitsOf(count) >> m_shift) - m_firstKey;
    return static_cast<std::size_t>(std::min(std::max(bucket, 0LL), last));
}

void ColorLookup::classesOf(const double* counts, std::size_t size, unsigned* classes) const
{
    if (!m_classOfCount.empty())
        lookUp(counts, size, classes);
    else if (m_steps == 1) // As a constant, since a loop costs more than one step of it.
        search(std::integral_constant<int, 1>(), counts, size, classes);
    else
        search(m_steps, counts, size, classes);
}

void ColorLookup::lookUp(const double* counts, std::size_t size, unsigned* __restrict classes) const
{
    const unsigned* const classOfCount = m_classOfCount.data();
    const auto last = static_cast<double>(m_classOfCount.size() - 1);
    for (std::size_t k = 0; k < size; ++k)
        classes[k] = classOfCount[static_cast<int>(std::min(counts[k], last))];
}

template<typename Steps>
void ColorLookup::search(Steps steps, const double* counts, std::size_t size,
                         unsigned* __restrict classes) const
{
    for (std::size_t k = 0; k < size; ++k) {
        unsigned found = m_firstClasses[bucketOf(counts[k])];
        for (int step = steps; step-- > 0;) // Bits in a sum, as no compiler makes a branch of it.
            found += unsigned(m_thresholds[found + (1u << step) - 1] <= counts[k]) << step;
        classes[k] = found;
    }
}

} // namespace detail
} // namespace ui
} // namespace pelorin
