#ifndef KESTRANE_BACKEND_MINMAXAVERAGEALGORITHM_H
#define KESTRANE_BACKEND_MINMAXAVERAGEALGORITHM_H

#include "kestrane/backend/OmbrelExport.h"

#include <cstdint>

namespace pelorin {
namespace algo {

/// Accumulates values, none of them NaN, down to their first, last, smallest, largest and mean.
/// All operations are O(1). All but put(), reset() and count() are asked only while count() is
/// not 0.
///
/// @code
/// algo::MinMaxAverageAlgorithm column;
/// for (const double value : {3.0, 1.0, 5.0})
///     column.put(value);
/// column.minVal();  // = 1
/// column.average(); // = 3
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT MinMaxAverageAlgorithm
{
public:
    /// An empty accumulator.
    MinMaxAverageAlgorithm();

    void put(double value);

    /// Back to empty.
    void reset();

    /// Number of values put since the last reset, modulo 2^32.
    unsigned long count() const;

    double first() const;
    double last() const;
    double minVal() const;
    double maxVal() const;

    /// The arithmetic mean: the sum of the values, in order, by their number.
    double average() const;

private:
    std::uint64_t m_count = 0;
    double m_first = 0.0;
    double m_last = 0.0;
    double m_min = 0.0;
    double m_max = 0.0;
    double m_sum = 0.0;
};

} // namespace algo
} // namespace pelorin

#endif
