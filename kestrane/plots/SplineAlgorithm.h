#ifndef KESTRANE_PLOTS_SPLINEALGORITHM_H
#define KESTRANE_PLOTS_SPLINEALGORITHM_H

#include "kestrane/backend/Samples.h"
#include "kestrane/backend/Subsampler.h"
#include "kestrane/library/Export.h"

#include <memory>
#include <vector>

namespace pelorin {

namespace ui {
namespace chart {
namespace detail {
class RangeWalk;
} // namespace detail
} // namespace chart
} // namespace ui

namespace algo {

namespace detail {
class SampleSummary;
class SplineCurvature;
} // namespace detail

/// A natural cubic spline through equally spaced samples, asked by fractional sample index.
///
/// The spline with unit spacing has, with c[i] a sixth of its second derivative at sample i,
///
///     c[i-1] + 4 c[i] + c[i+1] = y[i-1] - 2 y[i] + y[i+1],    c[0] = c[n-1] = 0
///
/// (de Boor, A Practical Guide to Splines, chapter IV). Elimination gives pivots 4, 3.75, ... that
/// settle at 2 + sqrt(3) within a dozen rows. Here every row takes the settled pivot, whose
/// inverse is K = 2 - sqrt(3), which makes the solution two plain passes. The curve passes through
/// every sample all the same; near the first ones it is not quite the exact natural spline.
///
/// Laws:
///  1. At a whole index below count - 1 the value is that sample, exactly, where the samples are
///     finite and neither their doubles nor their differences overflow.
///  2. The value depends on the index only, not on what has been asked before.
///
/// Three or more samples of which one isn't finite, or whose doubles or second differences
/// overflow, give NaN everywhere.
///
/// Rounding: a value is within 16 ulp of the largest sample of what the two passes give exactly.
///
/// Set-up is one pass that finds the extremes of the samples by blocks, and keeps 2 % of their
/// memory. A query is O(1), cheapest within the interval of the last one and then beside it: the
/// coefficients are found from the samples around it, exactly as the two passes give them. Only
/// where that cannot be (some parabolas and patterns of a short period, samples beyond 1e307) are
/// the passes made, once, and one double per sample kept. Samples are shared, not copied; at most
/// INT_MAX of them.
///
/// Threads: a query moves a cache, so that one object serves one thread at a time.
///
/// Instantiated for backend::SampleIterator.
///
/// @code
/// auto samples = boost::make_shared<backend::SampleVector>(backend::SampleVector{0.0, 2.0, 4.0});
/// algo::SplineAlgorithm<backend::SampleIterator> spline(backend::PlotSegment(samples).begin, 3);
/// spline[0.5]; // = 1
/// @endcode
///
/// @ingroup plots
template<typename Iterator>
class SplineAlgorithm : public Subsampler
{
public:
    /// @throws std::length_error for more than INT_MAX samples, std::bad_alloc
    SplineAlgorithm(const Iterator& begin, long long count);
    SplineAlgorithm(const SplineAlgorithm& other);
    SplineAlgorithm(SplineAlgorithm&& other);
    SplineAlgorithm& operator=(const SplineAlgorithm& other);
    SplineAlgorithm& operator=(SplineAlgorithm&& other);
    ~SplineAlgorithm() override;

    /// The value at a fractional index from 0 up to, not including, count - 1.
    /// @throws utilities::InvalidIndexException outside that range and for NaN; nothing changes
    double operator[](const double& index) override;

    /// Whether operator[] has a value at @p index.
    bool covers(double index) const;

    /// A new spline over the samples from @p start on, 0 <= start <= count, with natural ends of
    /// its own: near @p start it is another curve.
    boost::shared_ptr<Subsampler> tail(long long start) override;

private:
    friend class ui::chart::detail::RangeWalk;

    struct Cubic
    {
        double a, b, c, d;

        static Cubic between(double y0, double y1, double c0, double c1);
        double at(double t) const;
    };

    // What operator[] gives for some indices, all of them covered and none below the one before.
    void evaluate(const double* indices, std::size_t count, double* values);
    void evaluateApart(const double* indices, std::size_t count, double* values);

    void selectInterval(int interval);
    void findStretch(int interval);

    Iterator m_begin;
    long long m_count;
    std::unique_ptr<detail::SampleSummary> m_summary;
    std::unique_ptr<detail::SplineCurvature> m_curvature; // Null where all values are NaN.

    std::vector<double> m_stretch; // The coefficients found last, from sample m_stretchBegin on.
    int m_stretchBegin = 0;

    Cubic m_cubic{}; // Of the interval last asked for.
    int m_interval = -1;
};

extern template class KESTRANE_EXPORT SplineAlgorithm<backend::SampleIterator>;

} // namespace algo
} // namespace pelorin

#endif
