#ifndef KESTRANE_PLOTS_DETAIL_CURVATUREBATCH_H
#define KESTRANE_PLOTS_DETAIL_CURVATUREBATCH_H

#include <cstddef>

namespace pelorin {
namespace algo {
namespace detail {

/// The walks of SplineCurvature to two neighbouring coefficients each, at a dozen places side by
/// side: in the lanes of vectors, and in several of these, since one alone would wait for the end
/// of each of its steps. The results do not depend on how wide the processor's vectors are.
struct CurvatureBatch
{
    static constexpr std::size_t size = 12;
    static constexpr std::size_t farthestReach =
        1152; ///< Bounds of any size shrink to 0.0 by then.

    /// @param reach steps to the coefficients from either side; samples[lane][-reach] to
    ///        samples[lane][reach + 1] are read
    /// @param upwardStart,downwardStart what lies before the first steps is between minus this and
    ///        this
    /// @throws std::bad_alloc for a far reach
    void solve(std::size_t reach, double upwardStart, double downwardStart);

    const double* samples[size]; ///< The one of the first coefficient.
    double c[size][2];           ///< Void if not met.
    bool met[size];              ///< Whether two walks with the true value between them have met.
};

} // namespace detail
} // namespace algo
} // namespace pelorin

#endif
