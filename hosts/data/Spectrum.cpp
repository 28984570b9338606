#include "hosts/data/Spectrum.h"

#include <boost/make_shared.hpp>
#include <kissfft.hh>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleIterator;
using pelorin::backend::SampleVector;

namespace {

constexpr long long shortestRun = 4;
constexpr long long longestStretch = 65536;

bool isFast(long long length)
{
    for (const long long factor : {2, 3, 5}) {
        while (length % factor == 0)
            length /= factor;
    }
    return length == 1;
}

// Even, as the transform of real numbers takes them in pairs.
long long stretchLength(long long samples)
{
    long long length = std::min(samples, longestStretch) / 2 * 2;
    while (!isFast(length))
        length -= 2;
    return length;
}

std::vector<double> hannWindow(std::size_t length)
{
    const double turn = 2.0 * std::acos(-1.0) / double(length);
    std::vector<double> window(length);
    for (std::size_t i = 0; i < length; ++i)
        window[i] = 0.5 - 0.5 * std::cos(turn * double(i));
    return window;
}

double largestMagnitude(const PlotSegment& run)
{
    return std::accumulate(run.begin, run.end, 0.0, [](double largest, double sample) {
        return std::max(largest, std::abs(sample));
    });
}

/// Adds up the squared amplitudes of stretches of one length.
class Stretches
{
public:
    /// @param unit what counts as 1, so that no square overflows or vanishes
    Stretches(std::size_t length, double unit)
        : m_fft(length / 2, false)
        , m_window(hannWindow(length))
        , m_samples(length)
        , m_bins(length / 2)
        , m_powers(length / 2)
        , m_unit(unit)
    {}

    void take(const SampleIterator& begin)
    {
        const auto length = std::ptrdiff_t(m_samples.size());
        std::transform(begin, begin + length, m_samples.begin(),
                       [this](double sample) { return sample / m_unit; });
        const double mean =
            std::accumulate(m_samples.begin(), m_samples.end(), 0.0) / double(length);
        for (std::size_t i = 0; i < m_samples.size(); ++i)
            m_samples[i] = (m_samples[i] - mean) * m_window[i];
        m_fft.transform_real(m_samples.data(), m_bins.data());
        addPowers();
        ++m_count;
    }

    boost::shared_ptr<SampleVector> amplitudes() const
    {
        const auto amplitudes = boost::make_shared<SampleVector>();
        for (const double power : m_powers)
            amplitudes->push_back(m_unit * std::sqrt(power / m_count));
        return amplitudes;
    }

private:
    // Each bin but that of half the sampling rate has a twin of negative frequency, which holds the
    // other half of its amplitude. The first number is paired with the last: it is no bin.
    void addPowers()
    {
        const double windowSum = double(m_samples.size()) / 2.0;
        for (std::size_t bin = 1; bin < m_bins.size(); ++bin)
            m_powers[bin - 1] += std::norm(m_bins[bin] * 2.0 / windowSum);
        m_powers.back() += std::norm(m_bins[0].imag() / windowSum);
    }

    kissfft<double> m_fft;
    std::vector<double> m_window;
    std::vector<double> m_samples;
    std::vector<std::complex<double>> m_bins;
    std::vector<double> m_powers; ///< From the first bin above 0 on.
    double m_unit;
    double m_count = 0.0;
};

PlotSegment spectrumOf(const PlotSegment& run)
{
    const long long length = stretchLength(run.count);
    const double largest = largestMagnitude(run);
    Stretches stretches(std::size_t(length), largest > 0.0 ? largest : 1.0);
    for (long long first = 0; first + length <= run.count; first += length / 2)
        stretches.take(run.begin + first);
    const double step = 1.0 / (double(length) * run.xInfo.scale);
    return PlotSegment(stretches.amplitudes(), MetaInfo(step, step));
}

} // namespace

Series spectrumOf(const Series& series)
{
    const auto& segments = series.snapshot.segments;
    const auto longest = std::max_element(
        segments.begin(), segments.end(),
        [](const PlotSegment& a, const PlotSegment& b) { return a.count < b.count; });
    if (longest == segments.end() || longest->count < shortestRun)
        throw std::runtime_error(series.name.toStdString() +
                                 ": a spectrum needs four samples in a row");
    return {series.name, PlotSnapshot({spectrumOf(*longest)})};
}

} // namespace hosts::data
