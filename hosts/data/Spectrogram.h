#ifndef HOSTS_DATA_SPECTROGRAM_H
#define HOSTS_DATA_SPECTROGRAM_H

#include "hosts/data/Grid.h"
#include "hosts/data/Series.h"

#include <optional>
#include <vector>

namespace hosts::data {

/// How a series is cut into stretches.
struct Stretches
{
    std::optional<long long> length; ///< In samples, 4 or more; else one that suits the series.
    double overlap = 0.75;           ///< The share of a stretch that the next one has too; 0 to 1.
};

/// How the spectrum of a series goes with time: amplitudes over the abscissas of the series (x)
/// and frequencies (y), in cycles to the unit of the abscissas.
///
/// Each stretch of samples has a column, around its middle, with a cell for each bin above 0,
/// around its frequency; StretchTransform tells of their amplitudes. Lengths are brought down to
/// fast ones. There are some thousand columns at the most: where a series is too long for that, a
/// column stands for several stretches and has the greatest amplitude of each bin.
///
/// A gap ends a grid; runs shorter than a stretch have none. O(samples), for a given overlap.
///
/// @throws std::runtime_error if there are not so many samples in a row as a stretch needs
std::vector<Grid> spectrogramOf(const Series& series, const Stretches& stretches);

} // namespace hosts::data

#endif
