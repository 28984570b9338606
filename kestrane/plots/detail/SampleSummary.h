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

    /// Whether it is plain to see that no other sample of a range, nor the same one twice, lies
    /// beside the @p extremes of it, no farther than @p share of them. Long ranges are better
    /// searched by firstBeside().
    bool standApart(std::size_t begin, std::size_t end, const Extremes& extremes,
                    double share) const;

    /// The first of the samples from @p begin up to, not including, @p end that lies beside one of
    /// their @p extremes, no farther than @p share of it, but does not equal it; @p end if there is
    /// none. Blocks and groups without one are passed over, and once it has been seen that a block
    /// holds nothing beside its own extremes, that is kept.
    std::size_t firstBeside(std::size_t begin, std::size_t end, const Extremes& extremes,
                            double share);

    double operator[](std::size_t index) const { return m_samples[index]; }

    /// The largest of the absolute values; 0.0 if there are none.
    double magnitude() const;

    /// Whether no sample is NaN or infinite.
    bool isFinite() const { return m_isFinite; }

private:
    static constexpr std::size_t blockSize = 128;
    static constexpr std::size_t groupSize = 16; // In blocks.

    // Below low or above high.
    struct Beside
    {
        Extremes extremes;
        double low, high;

        bool mayBeIn(const Extremes& part) const { return part.min <= low || part.max >= high; }
    };

    std::size_t passOver(std::size_t begin, std::size_t end, const Beside& beside, double share);
    bool isLonely(std::size_t block, double share);
    std::size_t find(std::size_t begin, std::size_t end, const Beside& beside) const;

    void appendBlock(const Extremes& extremes);
    void overBlocks(std::size_t begin, std::size_t end, Extremes& extremes) const;

    const double* m_samples;
    std::vector<Extremes> m_blocks;    // Whole ones only.
    std::vector<Extremes> m_groups;    // Likewise.
    std::vector<signed char> m_lonely; // Of blocks: 1 if so, 0 if not, -1 if not yet known.
    Extremes m_whole;
    bool m_isFinite;
};

} // namespace detail
} // namespace algo
} // namespace pelorin

#endif
