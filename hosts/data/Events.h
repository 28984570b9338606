#ifndef HOSTS_DATA_EVENTS_H
#define HOSTS_DATA_EVENTS_H

#include "hosts/data/Grid.h"
#include "hosts/data/Series.h"

#include <utility>
#include <vector>

namespace hosts::data {

/// Places in the plane that are to be counted.
using Events = std::vector<std::pair<double, double>>;

/// Each value of @p x with that of @p y; the two are in step, as inStep() makes them. O(samples).
Events eventsOf(const Series& x, const Series& y);

/// Each value of a series that another one follows, with the slope from there to the next.
/// O(samples).
Events valuesAndSlopes(const Series& series);

/// How events are counted in one direction.
struct Bins
{
    double from;
    double to;
    long long count;
    bool isLogarithmic = false; ///< Of equal quotients in place of equal widths; needs from > 0.
};

/// Bins that do right by @p values: where these are all multiples of some step, as measured ones
/// often are, each bin takes equally many multiples, and a bit of room is left around the range if
/// need be; else some bins would get more of them than their neighbours. O(n log n).
/// @param bins a range and a number to come near to
Bins binsThatSuit(std::vector<double> values, const Bins& bins);

/// Counts the events in each cell. A cell takes its lower edges, the last ones their upper edges
/// too; events outside count nowhere. O(events + cells).
Grid countEvents(const Events& events, const Bins& x, const Bins& y);

} // namespace hosts::data

#endif
