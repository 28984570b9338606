#ifndef KESTRANE_PLOTS_DETAIL_SAMPLESUMMARY_H
#define KESTRANE_PLOTS_DETAIL_SAMPLESUMMARY_H

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace pelorin {
namespace algo {
namespace detail {

/// The smallest and the largest of some values; what there is of NaN among them doesn't count.
struct Extremes
{
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return min > max; }

    void unite(const Extremes& other)
    {
        min = other.min < min ? other.min : min;
        max = other.max > max ? other.max : max;
    }
};

/// Those of some values, in one pass.
Extremes extremesOf(const double* values, std::size_t count);

/// The extremes of a run of samples by blocks and by groups of blocks, made in one pass over the
/// samples. It answers for any range of them by reading less than two blocks of samples, two groups
/// of blocks, and one group in 2048 samples:
///
///     samples  ................................................................
///     blocks   [------][------][------][------][------][------][------][------]
///     groups   [------------------------------][------------------------------]
///     a range        ==[======][==============================][======]==
///
/// It takes 1.7 % of the memory of the samples, which it reads but does not own.
class SampleSummary
{
public:
    /// O(@p count).
    SampleSummary(const double* samples, std::size_t count);

    /// Of the samples from @p begin up to, not including, @p end. Of two zeros that differ in sign
    /// either may be given.
    Extremes over(std::size_t begin, std::size_t end) const;

    /// Calls @p visit for each sample of a range that is not greater than @p low, or not less than
    /// @p high; blocks without one are passed over.
    template<typename Visit>
    void visitBeyond(std::size_t begin, std::size_t end, double low, double high,
                     const Visit& visit) const;

    /// The largest of the absolute values; 0.0 if there are none.
    double magnitude() const;

    /// Whether no sample is NaN or infinite.
    bool isFinite() const { return m_isFinite; }

private:
    static constexpr std::size_t blockSize = 128;

    void overBlocks(std::size_t begin, std::size_t end, Extremes& extremes) const;

    const double* m_samples;
    std::vector<Extremes> m_blocks; // Whole ones only.
    std::vector<Extremes> m_groups; // Likewise.
    Extremes m_whole;
    bool m_isFinite;
};

template<typename Visit>
void SampleSummary::visitBeyond(std::size_t begin, std::size_t end, double low, double high,
                                const Visit& visit) const
{
    while (begin < end) {
        const std::size_t block = begin / blockSize;
        const std::size_t blockEnd = std::min(end, (block + 1) * blockSize);
        const bool isWhole = block < m_blocks.size();
        if (!isWhole || m_blocks[block].min <= low || m_blocks[block].max >= high) {
            for (std::size_t i = begin; i < blockEnd; ++i) {
                if (m_samples[i] <= low || m_samples[i] >= high)
                    visit(m_samples[i]);
            }
        }
        begin = blockEnd;
    }
}

} // namespace detail
} // namespace algo
} // namespace pelorin

#endif
