#include "benchmarks/targets/Limits.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace targets {

namespace {

constexpr std::size_t step = 8;

} // namespace

Extremes plainPass(const double* samples, std::size_t count)
{
    Extremes result{samples[0], samples[0]};
    std::size_t i = 0;
#ifdef __SSE2__
    // Four vectors of two, since one would wait for its own last result and not for the memory.
    __m128d min[step / 2], max[step / 2];
    std::fill_n(min, step / 2, _mm_set1_pd(result.min));
    std::fill_n(max, step / 2, _mm_set1_pd(result.max));
    for (; i + step <= count; i += step) {
        for (std::size_t lane = 0; lane < step / 2; ++lane) {
            const __m128d two = _mm_loadu_pd(samples + i + 2 * lane);
            min[lane] = _mm_min_pd(min[lane], two);
            max[lane] = _mm_max_pd(max[lane], two);
        }
    }
    for (std::size_t lane = 0; lane < step / 2; ++lane) {
        double low[2], high[2];
        _mm_storeu_pd(low, min[lane]);
        _mm_storeu_pd(high, max[lane]);
        result.min = std::min({result.min, low[0], low[1]});
        result.max = std::max({result.max, high[0], high[1]});
    }
#endif
    for (; i < count; ++i) {
        result.min = std::min(result.min, samples[i]);
        result.max = std::max(result.max, samples[i]);
    }
    return result;
}

} // namespace targets
