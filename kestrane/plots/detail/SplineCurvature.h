#ifndef KESTRANE_PLOTS_DETAIL_SPLINECURVATURE_H
#define KESTRANE_PLOTS_DETAIL_SPLINECURVATURE_H

#include <cstddef>
#include <vector>

namespace pelorin {
namespace algo {
namespace detail {

struct CurvatureBatch;

/// The coefficients c[i] of SplineAlgorithm, bit for bit as two passes over all n samples give
/// them,
///
///     d[0] = 0,      d[i] = ((y[i-1] - 2 y[i]) + y[i+1]) - d[i-1] K       upwards,
///     c[n-1] = 0,    c[i] = (d[i] - c[i+1]) K                            downwards,
///
/// and yet from a few dozen samples around i. Each step, rounding included, never rises where the
/// value before it rises (and -0.0 counts as less than 0.0). So from two values that are sure to
/// have the true one between them, two walks keep it between them; and since a step shrinks their
/// distance by K, they meet, as a rule after less than 40 steps. Where they agree in all bits,
/// these are the bits of the true value, whatever lies farther away.
///
/// How long they take depends on the samples: up to some 1100 in stretches of zeros and straight
/// lines, and they never meet where the steps alternate between two neighbouring numbers, as they
/// may on a parabola or a pattern of a short period. Then the two passes are made after all, once,
/// and kept.
class SplineCurvature
{
public:
    /// @param samples finite, and no longer wanted when this object is gone
    /// @param magnitude the largest of the samples' absolute values
    SplineCurvature(const double* samples, std::size_t count, double magnitude);

    static constexpr std::size_t largestStretch = 256;

    /// c[@p first] and those after it, 2 to largestStretch of them. O(@p count) as a rule.
    void write(std::size_t first, std::size_t count, double* c);

    /// The two coefficients of each of some intervals, c[i] and c[i+1], any order. Several at a
    /// time, so that the processor need not wait for the end of each step.
    struct Pair
    {
        double c[2];
    };
    void writePairs(const int* intervals, std::size_t count, Pair* pairs);

private:
    bool solveStretch(std::size_t first, std::size_t count, double* c) const;
    std::size_t writeBatch(const int* intervals, std::size_t count, std::size_t reach, Pair* pairs);
    bool tryBatch(const int* intervals, std::size_t count, std::size_t reach,
                  CurvatureBatch& batch) const;
    void makePasses();

    const double* m_samples;
    std::size_t m_count;
    double m_magnitude;
    std::vector<double> m_all; // Empty until the passes are needed.
};

} // namespace detail
} // namespace algo
} // namespace pelorin

#endif
