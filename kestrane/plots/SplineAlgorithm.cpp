#include "kestrane/plots/SplineAlgorithm.h"

#include "kestrane/backend/InvalidIndexException.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace pelorin {
namespace algo {

namespace {

// The settled pivot, 2 - sqrt(3), to the 15 decimals that all results are defined by.
constexpr double K = 0.267949192431123;

int entriesFor(long long count)
{
    if (count > std::numeric_limits<int>::max())
        throw std::length_error("SplineAlgorithm: too many samples");
    return static_cast<int>(std::max(count, 0LL));
}

// The interval in which a fractional index lies. What is no 32-bit number, NaN included, becomes
// the lowest one, which no spline covers.
int intervalAt(double index)
{
    const double whole = std::floor(index);
    const bool fits =
        whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(whole) : std::numeric_limits<int>::min();
}

} // namespace

template<typename Iterator>
SplineAlgorithm<Iterator>::SplineAlgorithm(const Iterator& begin, long long count)
    : m_curvature(entriesFor(count), 0.0)
    , m_begin(begin)
    , m_count(count)
    , m_cursor(begin)
{
    computeCurvature();
}

template<typename Iterator>
SplineAlgorithm<Iterator>::~SplineAlgorithm() = default;

template<typename Iterator>
double SplineAlgorithm<Iterator>::operator[](const double& index)
{
    if (!covers(index))
        throw utilities::InvalidIndexException(QStringLiteral("SplineAlgorithm::operator[]"), index,
                                               0.0, static_cast<double>(m_count - 1));
    const int interval = intervalAt(index);
    const double t = index - interval;
    if (!m_intervalValid || interval != m_intervalIndex)
        selectInterval(interval);
    return ((m_cubicA * t + m_cubicB) * t + m_cubicC) * t + m_cubicD;
}

template<typename Iterator>
bool SplineAlgorithm<Iterator>::covers(double index) const
{
    const int interval = intervalAt(index);
    return interval >= 0 && interval < m_count - 1;
}

template<typename Iterator>
boost::shared_ptr<Subsampler> SplineAlgorithm<Iterator>::tail(long long start)
{
    return boost::make_shared<SplineAlgorithm<Iterator>>(m_begin + start,
                                                         std::max(m_count - start, 0LL));
}

template<typename Iterator>
void SplineAlgorithm<Iterator>::computeCurvature()
{
    const int n = m_curvature.size();
    if (n < 3)
        return; // The natural ends are all there is.

    double* c = m_curvature.data();
    // The iterator is moved and never copied in these loops: a copy counts an owner of the samples.
    Iterator sample = m_begin;
    double previous = *sample;
    double present = *++sample;
    for (int i = 1; i <= n - 2; ++i) {
        const double next = *++sample;
        c[i] = ((previous - 2 * present) + next) - c[i - 1] * K;
        previous = present;
        present = next;
    }
    for (int i = n - 2; i >= 1; --i)
        c[i] = (c[i] - c[i + 1]) * K;
}

// Between samples y0 and y1, with t from 0 to 1, the second derivative goes straight from 6 c0 to
// 6 c1. Integrated twice, with y0 at t = 0 and y1 at t = 1:
//
//     (c1 - c0) t^3 + 3 c0 t^2 + (y1 - y0 - c1 - 2 c0) t + y0
template<typename Iterator>
void SplineAlgorithm<Iterator>::selectInterval(long long interval)
{
    m_intervalValid = true;
    m_cursor += static_cast<std::ptrdiff_t>(interval - m_intervalIndex);
    m_intervalIndex = interval;

    const double y0 = *m_cursor;
    const double y1 = *++m_cursor;
    --m_cursor;
    const double* c = m_curvature.constData() + interval;
    m_cubicA = c[1] - c[0];
    m_cubicB = c[0] * 3.0;
    m_cubicC = ((y1 - y0) - c[1]) - 2 * c[0];
    m_cubicD = y0;
}

template class SplineAlgorithm<backend::SampleIterator>;

} // namespace algo
} // namespace pelorin
