#ifndef HOSTS_DATA_SLOPE_H
#define HOSTS_DATA_SLOPE_H

#include "hosts/data/Series.h"

namespace hosts::data {

/// How fast a series changes: of any two samples in a row the difference over their distance, half
/// way between them.
///
/// Nothing is said across a gap, so that a segment has one value less than before and one of a
/// single sample none. O(samples).
///
/// @throws std::runtime_error if no two samples stand in a row
Series slopeOf(const Series& series);

} // namespace hosts::data

#endif
