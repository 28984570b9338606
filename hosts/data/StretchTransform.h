#ifndef HOSTS_DATA_STRETCHTRANSFORM_H
#define HOSTS_DATA_STRETCHTRANSFORM_H

#include <kestrane/backend/PlotSegment.h>

#include <complex>
#include <memory>
#include <vector>

template<typename>
class kissfft;

namespace hosts::data {

/// The one-sided spectrum of a stretch of samples under a Hann window, of which the mean is taken
/// off and whose amplitudes are put right for the window:
///  1. A sine of amplitude a on a bin reads a there, and half of that on the two bins beside.
///  2. A constant reads 0.
class StretchTransform
{
public:
    /// The longest stretch of no more than @p samples, at least 4, that is quick to transform: an
    /// even length without prime factors above 5.
    static long long fastLength(long long samples);

    /// What to count as 1 so that no square of a sample of @p run overflows or vanishes.
    static double unitFor(const pelorin::backend::PlotSegment& run);

    /// @param length as fastLength() gives it
    StretchTransform(long long length, double unit);
    ~StretchTransform();

    long long length() const { return (long long)(m_samples.size()); }
    double unit() const { return m_unit; }

    /// The squared amplitudes, in squared units, of the bins from the first above 0 up to half the
    /// sampling rate. Valid until the next call.
    const std::vector<double>& powers(const pelorin::backend::SampleIterator& begin);

private:
    std::unique_ptr<kissfft<double>> m_fft;
    std::vector<double> m_window;
    std::vector<double> m_samples;
    std::vector<std::complex<double>> m_bins;
    std::vector<double> m_powers;
    double m_unit;
};

} // namespace hosts::data

#endif
