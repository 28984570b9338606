#ifndef KESTRANE_COLORS_DETAIL_COLORLOOKUP_H
#define KESTRANE_COLORS_DETAIL_COLORLOOKUP_H

#include "kestrane/colors/ColorMap.h"

#include <cstddef>
#include <vector>

namespace pelorin {
namespace ui {
namespace detail {

/// What ColorMap::mapToColor() does, for many counts: its classes are those of the map when it was
/// made, numbered from 1 in the order of their thresholds. Class 0 takes what no other one takes.
///
/// Where thresholds are small, a table tells the class of each count. Else they are cut into
/// buckets by the leading bits of a double, so that a bucket is as fine as its counts are small. A
/// table tells the class that a bucket begins in; what is left is a search in that bucket, of as
/// many steps for each count: without a branch, since no processor can foresee the ways of counts.
class ColorLookup
{
public:
    explicit ColorLookup(const ColorMap& map);

    /// The classes of the whole parts of some counts, which are neither negative nor NaN.
    void classesOf(const double* counts, std::size_t size, unsigned* classes) const;

    /// The colour of each class.
    const QColor* colors() const { return m_colors.data(); }

private:
    void makeTable();
    void makeBuckets();
    std::size_t bucketOf(double count) const;
    void lookUp(const double* counts, std::size_t size, unsigned* classes) const;
    template<typename Steps>
    void search(Steps steps, const double* counts, std::size_t size, unsigned* classes) const;

    std::vector<QColor> m_colors;
    std::vector<double> m_thresholds;     // Ascending, behind them some that nothing reaches.
    std::vector<unsigned> m_classOfCount; // Up to the last threshold, or nothing.
    std::vector<unsigned> m_firstClasses; // What the thresholds of the buckets before take.
    int m_shift = 0;
    long long m_firstKey = 0;
    int m_steps = 0;
};

} // namespace detail
} // namespace ui
} // namespace pelorin

#endif
