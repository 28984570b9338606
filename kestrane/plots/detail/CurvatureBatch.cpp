#include "kestrane/plots/detail/CurvatureBatch.h"

#include "kestrane/library/detail/WideVectors.h"
#include "kestrane/plots/detail/SplineRecurrence.h"

#include <memory>

namespace pelorin {
namespace algo {
namespace detail {

namespace {

template<typename Vectors>
struct Walks
{
    static constexpr std::size_t width = Vectors::width;
    static constexpr std::size_t depth = CurvatureBatch::size / width;
    using Lanes = typename Vectors::Lanes;

    Lanes low[depth], high[depth];

    KESTRANE_ALWAYS_INLINE void start(double bound)
    {
        for (std::size_t i = 0; i < depth; ++i) {
            low[i] = Lanes{} - bound;
            high[i] = Lanes{} + bound;
        }
    }

    KESTRANE_ALWAYS_INLINE void findMet(bool* met) const
    {
        for (std::size_t lane = 0; lane < CurvatureBatch::size; ++lane)
            met[lane] &=
                haveSameBits(low[lane / width][lane % width], high[lane / width][lane % width]);
    }
};

// The second differences of the samples, one step after the other.
template<typename Vectors>
class Differences
{
public:
    static constexpr std::size_t depth = CurvatureBatch::size / Vectors::width;
    using Lanes = typename Vectors::Lanes;

    KESTRANE_ALWAYS_INLINE Differences(const double* const* samples, std::ptrdiff_t first)
        : m_samples(samples)
        , m_next(first + 1)
    {
        for (std::size_t i = 0; i < depth; ++i) {
            load(i, first - 1, m_before[i]);
            load(i, first, m_here[i]);
        }
    }

    KESTRANE_ALWAYS_INLINE void take(Lanes* differences)
    {
        for (std::size_t i = 0; i < depth; ++i) {
            Lanes behind;
            load(i, m_next, behind);
            differences[i] = (m_before[i] - 2 * m_here[i]) + behind;
            m_before[i] = m_here[i];
            m_here[i] = behind;
        }
        ++m_next;
    }

private:
    KESTRANE_ALWAYS_INLINE void load(std::size_t i, std::ptrdiff_t index, Lanes& lanes) const
    {
        for (std::size_t lane = 0; lane < Vectors::width; ++lane)
            lanes[lane] = m_samples[i * Vectors::width + lane][index];
    }

    const double* const* const m_samples;
    std::ptrdiff_t m_next;
    Lanes m_before[depth], m_here[depth];
};

template<typename Vectors>
KESTRANE_ALWAYS_INLINE void solveLanes(CurvatureBatch& batch, std::size_t reach, double upwardStart,
                                       double downwardStart)
{
    constexpr std::size_t width = Vectors::width;
    constexpr std::size_t depth = CurvatureBatch::size / width;
    using Lanes = typename Vectors::Lanes;
    struct Step
    {
        Lanes lanes[depth];
    };
    // Of the first coefficient and right of it. No more on the stack than any thread has.
    constexpr std::size_t nearReach = 144;
    Step near[nearReach + 1];
    const std::unique_ptr<Step[]> far(reach > nearReach ? new Step[reach + 1] : nullptr);
    Step* const d = far ? far.get() : near;
    Lanes difference[depth];
    Differences<Vectors> differences(batch.samples, 1 - static_cast<std::ptrdiff_t>(reach));

    Walks<Vectors> up;
    up.start(upwardStart);
    for (std::size_t step = 0; step < reach; ++step) {
        differences.take(difference);
        for (std::size_t i = 0; i < depth; ++i) {
            const Lanes low = difference[i] - up.high[i] * K;
            up.high[i] = difference[i] - up.low[i] * K;
            up.low[i] = low;
        }
    }
    up.findMet(batch.met);
    for (std::size_t i = 0; i < depth; ++i)
        d[0].lanes[i] = up.low[i];
    for (std::size_t step = 1; step <= reach; ++step) {
        differences.take(difference);
        for (std::size_t i = 0; i < depth; ++i)
            d[step].lanes[i] = difference[i] - d[step - 1].lanes[i] * K;
    }

    Walks<Vectors> down;
    down.start(downwardStart);
    for (std::size_t step = reach; step > 0; --step) {
        for (std::size_t i = 0; i < depth; ++i) {
            const Lanes low = (d[step].lanes[i] - down.high[i]) * K;
            down.high[i] = (d[step].lanes[i] - down.low[i]) * K;
            down.low[i] = low;
        }
    }
    down.findMet(batch.met);
    for (std::size_t i = 0; i < depth; ++i) {
        const Lanes first = (d[0].lanes[i] - down.low[i]) * K;
        for (std::size_t lane = 0; lane < width; ++lane) {
            batch.c[i * width + lane][0] = first[lane];
            batch.c[i * width + lane][1] = down.low[i][lane];
        }
    }
}

} // namespace

void CurvatureBatch::solve(std::size_t reach, double upwardStart, double downwardStart)
{
    pelorin::detail::withWideVectors([&](auto vectors) {
        solveLanes<decltype(vectors)>(*this, reach, upwardStart, downwardStart);
    });
}

} // namespace detail
} // namespace algo
} // namespace pelorin
