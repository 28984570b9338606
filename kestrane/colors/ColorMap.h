#ifndef KESTRANE_COLORS_COLORMAP_H
#define KESTRANE_COLORS_COLORMAP_H

#include "kestrane/library/Export.h"

#include <QColor>
#include <QMetaType>
#include <QVector>

#include <cstddef>

namespace pelorin {
namespace ui {

namespace detail {
class ColorLookup;
}

/// Turns a count into a colour, as the cells of a two-dimensional histogram need it.
///
/// A class of the map is a colour with a threshold, the smallest count that it takes. It ends
/// before the next larger threshold, and the class with the largest threshold is open upwards:
/// with thresholds 1, 10 and 100, counts fall into [1, 10), [10, 100) and [100, all). A count that
/// no class takes has the unmatched colour; 0 is always such a count, whatever the thresholds.
/// Of classes with equal thresholds the last one appended takes the counts, the others none.
///
/// A plain value: a copy is O(1) and shares its elements until one of the two changes. A moved-from
/// map has no classes and keeps its unmatched colour.
///
/// Threads: there is no lock. The const operations only read, so that any number of threads may
/// ask one map while nobody changes it.
///
/// @code
/// ui::ColorMap map(Qt::white);
/// map.build().appendEntry(Qt::blue, 1).appendEntry(Qt::red, 100);
/// map.mapToColor(99).name().toStdString(); // = #0000ff
/// map.mapToColor(0).name().toStdString();  // = #ffffff
/// @endcode
///
/// @ingroup colors
class KESTRANE_EXPORT ColorMap
{
public:
    /// Appends classes to a map, which finds them once the builder has ended:
    /// @code
    /// ui::ColorMap map;
    /// map.build().appendEntry(Qt::blue, 1).appendEntry(Qt::red, 10); // Ended at the semicolon.
    /// @endcode
    /// Until then the map lists the new classes but still looks counts up among the old ones.
    ///
    /// Only ColorMap makes builders. A builder must end before its map does, and before a function
    /// that holds both returns the map. A moved-from builder does nothing when it ends, and takes
    /// no more classes.
    class KESTRANE_EXPORT Builder
    {
    public:
        Builder(Builder&& other) noexcept;

        /// Sorts the map's classes for lookup; O(n log n) for all n of them.
        /// @throws std::bad_alloc if memory is short, unless an exception is on its way already;
        ///         either way the map is as it was before this builder
        ~Builder() noexcept(false);

        /// Appends a class; thresholds may come in any order. Amortized O(1).
        /// @return this builder, for a chain; a name that is to outlive the expression has to
        ///         be a Builder, not a reference
        /// @throws std::bad_alloc if memory is short, with nothing appended
        Builder&& appendEntry(QColor color, std::size_t threshold);

    private:
        friend class ColorMap;

        explicit Builder(ColorMap& map);
        Builder(ColorMap& map, QColor color, std::size_t threshold);

        ColorMap* m_map; // Null once moved from.

        // The map's classes before this builder.
        QVector<QColor> m_oldColors;
        QVector<std::size_t> m_oldThresholds;
    };

    /// A map without classes; by default it draws nothing.
    ColorMap(const QColor& unmatchedColor = QColor(Qt::transparent));

    ColorMap(const ColorMap& other);
    ColorMap(ColorMap&& other) noexcept;

    /// A copy of @p other with scaled thresholds. The first one in the list stays as it is; each
    /// later one is multiplied by @p factor in double and truncated, to 0 when the product is
    /// negative or NaN and to the largest count when it is beyond that. Thresholds may meet or
    /// change their order thereby; the classes stay listed as they were. O(n log n).
    ColorMap(const ColorMap& other, double factor);

    ~ColorMap();

    ColorMap& operator=(const ColorMap& other);
    ColorMap& operator=(ColorMap&& other) noexcept;

    /// Starts to append classes to those that the map has.
    Builder build();

    /// The same as build().appendEntry(color, threshold).
    Builder appendEntry(QColor color, std::size_t threshold);

    /// True when no class takes @p value: 0, less than the smallest threshold, or no classes.
    /// O(log n).
    bool isUnmatched(std::size_t value) const;

    /// The colour of the class with the largest threshold that isn't above @p value, or the
    /// unmatched colour. O(log n), without allocation.
    QColor mapToColor(std::size_t value) const;

    QColor unmatchedColor() const;

    /// The classes as they were appended, those that take no counts among them.
    int numberOfClasses() const;

    /// @param index 0 to numberOfClasses() - 1, not checked; the order is that of appending
    QColor colorAtIndex(int index) const;
    std::size_t thresholdAtIndex(int index) const;
    QVector<QColor> colors() const;

protected:
    /// Makes the lookup agree with the list of classes. O(n log n).
    /// @throws std::bad_alloc if memory is short, with the lookup as it was
    void rebuildLookupTable();

private:
    friend class detail::ColorLookup;

    int classOf(std::size_t value) const;

    QColor m_unmatchedColor;
    QVector<QColor> m_colors;
    QVector<std::size_t> m_thresholds;

    // For lookup: the thresholds, ascending and each one once, and the colours that they lead to.
    QVector<std::size_t> m_sortedThresholds;
    QVector<QColor> m_sortedColors;
};

} // namespace ui
} // namespace pelorin

Q_DECLARE_METATYPE(pelorin::ui::ColorMap)

#endif
