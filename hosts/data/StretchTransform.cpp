#include "hosts/data/StretchTransform.h"

#include <kissfft.hh>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace hosts::data {

using pelorin::backend::PlotSegment;
using pelorin::backend::SampleIterator;

namespace {

bool isFast(long long length)
{
    for (const long long factor : {2, 3, 5}) {
        while (length % factor == 0)
            length /= factor;
    }
    return length == 1;
}

std::vector<double> hannWindow(std::size_t length)
{
    const double turn = 2.0 * std::acos(-1.0) / double(length);
    std::vector<double> window(length);
    for (std::size_t i = 0; i < length; ++i)
        window[i] = 0.5 - 0.5 * std::cos(turn * double(i));
    return window;
}

} // namespace

// Even, as the transform of real numbers takes them in pairs.
long long StretchTransform::fastLength(long long samples)
{
    long long length = samples / 2 * 2;
    while (!isFast(length))
        length -= 2;
    return length;
}

double StretchTransform::unitFor(const PlotSegment& run)
{
    const double largest =
        std::accumulate(run.begin, run.end, 0.0, [](double so_far, double sample) {
            return std::max(so_far, std::abs(sample));
        });
    return largest > 0.0 ? largest : 1.0;
}

StretchTransform::StretchTransform(long long length, double unit)
    : m_fft(std::make_unique<kissfft<double>>(std::size_t(length / 2), false))
    , m_window(hannWindow(std::size_t(length)))
    , m_samples(std::size_t(length))
    , m_bins(std::size_t(length / 2))
    , m_powers(std::size_t(length / 2))
    , m_unit(unit)
{}

StretchTransform::~StretchTransform() = default;

// Each bin but that of half the sampling rate has a twin of negative frequency, which holds the
// other half of its amplitude. The first number is paired with the last: it is no bin.
const std::vector<double>& StretchTransform::powers(const SampleIterator& begin)
{
    std::transform(begin, begin + length(), m_samples.begin(),
                   [this](double sample) { return sample / m_unit; });
    const double mean = std::accumulate(m_samples.begin(), m_samples.end(), 0.0) / double(length());
    for (std::size_t i = 0; i < m_samples.size(); ++i)
        m_samples[i] = (m_samples[i] - mean) * m_window[i];
    m_fft->transform_real(m_samples.data(), m_bins.data());
    const double windowSum = double(length()) / 2.0;
    for (std::size_t bin = 1; bin < m_bins.size(); ++bin)
        m_powers[bin - 1] = std::norm(m_bins[bin] * 2.0 / windowSum);
    m_powers.back() = std::norm(m_bins[0].imag() / windowSum);
    return m_powers;
}

} // namespace hosts::data
