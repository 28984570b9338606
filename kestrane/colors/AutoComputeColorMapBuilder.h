#ifndef KESTRANE_COLORS_AUTOCOMPUTECOLORMAPBUILDER_H
#define KESTRANE_COLORS_AUTOCOMPUTECOLORMAPBUILDER_H

#include "kestrane/colors/ColorMap.h"
#include "kestrane/library/Export.h"

#include <QColor>
#include <QVector>

#include <cstddef>

namespace pelorin {
namespace ui {

/// Makes colour maps whose thresholds rise geometrically from 1 on, for counts up to an expected
/// largest one.
///
/// With n colours and x = 0.85 * maximum, class i begins at x^(i / n), truncated; of two colours
/// the second begins at x itself. Thresholds that truncation makes equal stay so: where the maximum
/// is small against the number of colours, the last colour of each threshold shows. With a maximum
/// below 2 all counts from 1 on have the first colour.
///
/// No colours give an empty map, one colour takes all counts from 1 on. The unmatched colour is
/// always transparent.
///
/// Threads: there is no state. O(n log n).
///
/// @code
/// const ui::ColorMap map = ui::AutoComputeColorMapBuilder::buildAutoComputeMap(
///     QVector<QColor>{Qt::blue, Qt::green, Qt::red}, 1000);
/// map.thresholdAtIndex(2); // = 89
/// @endcode
///
/// @ingroup colors
class KESTRANE_EXPORT AutoComputeColorMapBuilder
{
public:
    /// @param colors in the order of rising counts
    /// @param maximum the largest expected count; larger ones have the last colour too
    static ColorMap buildAutoComputeMap(const QVector<QColor>& colors, std::size_t maximum);

    /// With the colours of @p colorMap; its thresholds and its unmatched colour play no part.
    static ColorMap buildAutoComputeMap(const ColorMap& colorMap, std::size_t maximum);
};

} // namespace ui
} // namespace pelorin

#endif
