#include "kestrane/plots/SplineAlgorithm.h"

#include "kestrane/backend/InvalidIndexException.h"
#include "kestrane/plots/detail/SampleSummary.h"
#include "kestrane/plots/detail/SplineCurvature.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace pelorin {
namespace algo {

namespace {

// Intervals that lie farther apart than this are solved one by one.
constexpr int largestStep = 6;
constexpr int stretchSize = detail::SplineCurvature::largestStretch;

std::size_t checkedCount(long long count)
{
    if (count > std::numeric_limits<int>::max())
        throw std::length_error("SplineAlgorithm: too many samples");
    return static_cast<std::size_t>(std::max(count, 0LL));
}

// The interval in which a fractional index lies; below 0.0, beyond all integers and for NaN one
// that no spline covers.
int intervalAt(double index)
{
    constexpr double limit = 2147483648.0; // 2^31
    return index >= 0.0 && index < limit ? static_cast<int>(index) : -1;
}

} // namespace

template<typename Iterator>
SplineAlgorithm<Iterator>::SplineAlgorithm(const Iterator& begin, long long count)
    : m_begin(begin)
    , m_count(count)
{
    const std::size_t size = checkedCount(count);
    const double* const samples = size > 0 ? &*begin : nullptr;
    m_summary = std::make_unique<detail::SampleSummary>(samples, size);
    // One that isn't finite spreads through both passes over all coefficients but the two ends.
    if (m_summary->isFinite() || size < 3)
        m_curvature =
            std::make_unique<detail::SplineCurvature>(samples, size, m_summary->magnitude());
}

template<typename Iterator>
SplineAlgorithm<Iterator>::SplineAlgorithm(const SplineAlgorithm& other)
    : SplineAlgorithm(other.m_begin, other.m_count)
{}

template<typename Iterator>
SplineAlgorithm<Iterator>& SplineAlgorithm<Iterator>::operator=(const SplineAlgorithm& other)
{
    return *this = SplineAlgorithm(other);
}

template<typename Iterator>
SplineAlgorithm<Iterator>::SplineAlgorithm(SplineAlgorithm&& other) = default;

template<typename Iterator>
SplineAlgorithm<Iterator>& SplineAlgorithm<Iterator>::operator=(SplineAlgorithm&& other) = default;

template<typename Iterator>
SplineAlgorithm<Iterator>::~SplineAlgorithm() = default;

template<typename Iterator>
double SplineAlgorithm<Iterator>::operator[](const double& index)
{
    if (!covers(index))
        throw utilities::InvalidIndexException(QStringLiteral("SplineAlgorithm::operator[]"), index,
                                               0.0, static_cast<double>(m_count) - 1.0);
    const int interval = intervalAt(index);
    if (interval != m_interval)
        selectInterval(interval);
    return m_cubic.at(index - interval);
}

template<typename Iterator>
bool SplineAlgorithm<Iterator>::covers(double index) const
{
    const int interval = intervalAt(index);
    return interval >= 0 && interval + 1LL < m_count;
}

template<typename Iterator>
boost::shared_ptr<Subsampler> SplineAlgorithm<Iterator>::tail(long long start)
{
    return boost::make_shared<SplineAlgorithm<Iterator>>(m_begin + start,
                                                         std::max(m_count, start) - start);
}

template<typename Iterator>
void SplineAlgorithm<Iterator>::evaluate(const double* indices, std::size_t count, double* values)
{
    if (count == 0)
        return;
    const double distance = indices[count - 1] - indices[0];
    if (m_curvature && distance > largestStep * static_cast<double>(count))
        return evaluateApart(indices, count, values);
    for (std::size_t i = 0; i < count; ++i) {
        const int interval = static_cast<int>(indices[i]);
        if (interval != m_interval)
            selectInterval(interval);
        values[i] = m_cubic.at(indices[i] - interval);
    }
}

template<typename Iterator>
void SplineAlgorithm<Iterator>::evaluateApart(const double* indices, std::size_t count,
                                              double* values)
{
    constexpr std::size_t atOnce = 60;
    int intervals[atOnce];
    detail::SplineCurvature::Pair pairs[atOnce];
    const double* const samples = &*m_begin;
    for (std::size_t done = 0; done < count; done += atOnce) {
        const std::size_t size = std::min(atOnce, count - done);
        std::copy_n(indices + done, size, intervals);
        m_curvature->writePairs(intervals, size, pairs);
        for (std::size_t i = 0; i < size; ++i) {
            const double* const y = samples + intervals[i];
            values[done + i] = Cubic::between(y[0], y[1], pairs[i].c[0], pairs[i].c[1])
                                   .at(indices[done + i] - intervals[i]);
        }
    }
}

template<typename Iterator>
void SplineAlgorithm<Iterator>::selectInterval(int interval)
{
    if (!m_curvature) {
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        m_cubic = {nan, nan, nan, nan};
        return;
    }
    const int end = m_stretchBegin + static_cast<int>(m_stretch.size());
    if (interval < m_stretchBegin || interval + 1 >= end)
        findStretch(interval);
    const double* const y = &*m_begin + interval;
    const double* const c = m_stretch.data() + (interval - m_stretchBegin);
    m_cubic = Cubic::between(y[0], y[1], c[0], c[1]);
    m_interval = interval;
}

// Goes on where the last one ended if it is asked near to that, and else is no longer than needed.
template<typename Iterator>
void SplineAlgorithm<Iterator>::findStretch(int interval)
{
    const int end = m_stretchBegin + static_cast<int>(m_stretch.size());
    const bool isNext = interval >= end - 1 && interval - end < largestStep;
    const int count = static_cast<int>(m_count);
    int begin = interval, size = 2;
    if (count <= stretchSize) {
        begin = 0;
        size = count;
    } else if (isNext) {
        size = std::min(stretchSize, count - begin);
    }
    std::vector<double> stretch = std::move(m_stretch); // Void until it is written.
    m_stretch.clear();
    stretch.resize(static_cast<std::size_t>(size));
    m_curvature->write(static_cast<std::size_t>(begin), stretch.size(), stretch.data());
    m_stretch = std::move(stretch);
    m_stretchBegin = begin;
}

// Between samples y0 and y1, with t from 0 to 1, the second derivative goes straight from 6 c0 to
// 6 c1. Integrated twice, with y0 at t = 0 and y1 at t = 1:
//
//     (c1 - c0) t^3 + 3 c0 t^2 + (y1 - y0 - c1 - 2 c0) t + y0
template<typename Iterator>
typename SplineAlgorithm<Iterator>::Cubic
SplineAlgorithm<Iterator>::Cubic::between(double y0, double y1, double c0, double c1)
{
    return {c1 - c0, c0 * 3.0, ((y1 - y0) - c1) - 2 * c0, y0};
}

template<typename Iterator>
double SplineAlgorithm<Iterator>::Cubic::at(double t) const
{
    return ((a * t + b) * t + c) * t + d;
}

template class SplineAlgorithm<backend::SampleIterator>;

} // namespace algo
} // namespace pelorin
