#ifndef KESTRANE_PLOTS_SPLINEALGORITHM_H
#define KESTRANE_PLOTS_SPLINEALGORITHM_H

#include "kestrane/backend/Samples.h"
#include "kestrane/backend/Subsampler.h"
#include "kestrane/library/Export.h"

#include <QVector>

namespace pelorin {
namespace algo {

/// A natural cubic spline through equally spaced samples, asked by fractional sample index.
///
/// The spline with unit spacing has, with c[i] a sixth of its second derivative at sample i,
///
///     c[i-1] + 4 c[i] + c[i+1] = y[i-1] - 2 y[i] + y[i+1],    c[0] = c[n-1] = 0
///
/// (de Boor, A Practical Guide to Splines, chapter IV). Elimination gives pivots 4, 3.75, ... that
/// settle at 2 + sqrt(3) within a dozen rows. Here every row takes the settled pivot, whose
/// inverse is K = 2 - sqrt(3), which makes the set-up two plain passes. The curve passes through
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
/// Set-up is O(count) in time and memory (one double per sample); a query is O(1), cheapest within
/// the interval of the last one. Samples are shared, not copied; at most INT_MAX of them.
///
/// Threads: a query moves a cache, so that one object serves one thread at a time.
///
/// Instantiated for backend::SampleIterator.
template<typename Iterator>
class SplineAlgorithm : public Subsampler
{
public:
    /// @throws std::length_error for more than INT_MAX samples, std::bad_alloc
    SplineAlgorithm(const Iterator& begin, long long count);
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
    void computeCurvature();
    void selectInterval(long long interval);

    QVector<double> m_curvature; // A sixth of the second derivative at each sample.
    Iterator m_begin;
    long long m_count;

    // The cubic of the interval last asked for, between samples m_intervalIndex and the next.
    bool m_intervalValid = false;
    long long m_intervalIndex = 0;
    double m_cubicA = 0.0;
    double m_cubicB = 0.0;
    double m_cubicC = 0.0;
    double m_cubicD = 0.0;
    Iterator m_cursor; // Sample m_intervalIndex.
};

extern template class KESTRANE_EXPORT SplineAlgorithm<backend::SampleIterator>;

} // namespace algo
} // namespace pelorin

#endif
