#ifndef HOSTS_DATA_SPECTRUM_H
#define HOSTS_DATA_SPECTRUM_H

#include "hosts/data/Series.h"

namespace hosts::data {

/// The one-sided amplitude spectrum of a series: its abscissas are frequencies, in cycles to the
/// unit of the series' own; its values are amplitudes, in the unit of its values.
///
/// The longest run without a gap counts. Its mean is taken off and a Hann window laid over it, and
/// the amplitudes are put right for the window:
///  1. A sine of amplitude a on a bin reads a there, and half of that on the two bins beside.
///  2. A constant reads 0.
///
/// Bins go from the first above 0 up to half the sampling rate, and there are no more than 32,768
/// of them: a longer run is cut into stretches that overlap by half, and their powers are averaged
/// (Welch, "The use of fast Fourier transform for the estimation of power spectra", 1967). To be
/// quick, a stretch is shortened to an even length without prime factors above 5: by a fifth at the
/// most, from 144 samples on by a tenth.
///
/// O(samples), in memory for one stretch.
///
/// @throws std::runtime_error if there are not four samples in a row
Series spectrumOf(const Series& series);

} // namespace hosts::data

#endif
