#ifndef HOSTS_DATA_INSTEP_H
#define HOSTS_DATA_INSTEP_H

#include "hosts/data/Series.h"

#include <utility>

namespace hosts::data {

/// Two series, cut to where both have samples: segment by segment they begin at the same abscissa
/// and are equally long. They share the samples of the originals. O(segments).
///
/// @throws std::runtime_error if the abscissas of the two do not lie on one grid, or if they have
///         none in common
std::pair<Series, Series> inStep(const Series& first, const Series& second);

} // namespace hosts::data

#endif
