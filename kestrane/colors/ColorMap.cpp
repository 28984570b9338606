#include "kestrane/colors/ColorMap.h"

#include "kestrane/colors/detail/TruncatedToCount.h"
#include "kestrane/library/detail/OwnCopy.h"

#include <QMap>

#include <exception>
#include <utility>

namespace pelorin {
namespace ui {

ColorMap::Builder::Builder(ColorMap& map)
    : m_map(&map)
    , m_oldColors(map.m_colors)
    , m_oldThresholds(map.m_thresholds)
{}

ColorMap::Builder::Builder(ColorMap& map, QColor color, std::size_t threshold)
    : Builder(map)
{
    appendEntry(color, threshold);
}

ColorMap::Builder::Builder(Builder&& other) noexcept
    : m_map(std::exchange(other.m_map, nullptr))
    , m_oldColors(std::move(other.m_oldColors))
    , m_oldThresholds(std::move(other.m_oldThresholds))
{}

ColorMap::Builder::~Builder() noexcept(false)
{
    if (!m_map)
        return;
    try {
        m_map->rebuildLookupTable();
    } catch (...) {
        m_map->m_colors.swap(m_oldColors);
        m_map->m_thresholds.swap(m_oldThresholds);
        if (std::uncaught_exceptions() == 0) // A second one on its way would end the program.
            throw;
    }
}

ColorMap::Builder&& ColorMap::Builder::appendEntry(QColor color, std::size_t threshold)
{
    if (!m_map)
        return std::move(*this);
    m_map->m_colors.append(color);
    try {
        m_map->m_thresholds.append(threshold);
    } catch (...) {
        m_map->m_colors.removeLast();
        throw;
    }
    return std::move(*this);
}

ColorMap::ColorMap(const QColor& unmatchedColor)
    : m_unmatchedColor(unmatchedColor)
{}

ColorMap::ColorMap(const ColorMap& other, double factor)
    : m_unmatchedColor(other.m_unmatchedColor)
    , m_colors(other.m_colors)
    , m_thresholds(chart::detail::ownCopy(other.m_thresholds))
{
    for (int i = 1; i < m_thresholds.size(); ++i)
        m_thresholds[i] =
            detail::truncatedToCount(static_cast<double>(m_thresholds.at(i)) * factor);
    rebuildLookupTable();
}

ColorMap::ColorMap(const ColorMap& other) = default;
ColorMap::ColorMap(ColorMap&& other) noexcept = default;
ColorMap::~ColorMap() = default;
ColorMap& ColorMap::operator=(const ColorMap& other) = default;
ColorMap& ColorMap::operator=(ColorMap&& other) noexcept = default;

ColorMap::Builder ColorMap::build()
{
    return Builder(*this);
}

ColorMap::Builder ColorMap::appendEntry(QColor color, std::size_t threshold)
{
    return Builder(*this, color, threshold);
}

bool ColorMap::isUnmatched(std::size_t value) const
{
    return classOf(value) < 0;
}

QColor ColorMap::mapToColor(std::size_t value) const
{
    const int index = classOf(value);
    return index < 0 ? m_unmatchedColor : m_sortedColors[index];
}

QColor ColorMap::unmatchedColor() const
{
    return m_unmatchedColor;
}

int ColorMap::numberOfClasses() const
{
    return m_colors.size();
}

QColor ColorMap::colorAtIndex(int index) const
{
    return m_colors[index];
}

std::size_t ColorMap::thresholdAtIndex(int index) const
{
    return m_thresholds[index];
}

QVector<QColor> ColorMap::colors() const
{
    return m_colors;
}

// The last class that begins at or below a count, or -1. Without a branch in the search, since no
// processor can foresee the ways of counts.
int ColorMap::classOf(std::size_t value) const
{
    if (value == 0 || m_sortedThresholds.isEmpty())
        return -1;
    const std::size_t* const begin = m_sortedThresholds.constData();
    const std::size_t* place = begin;
    for (int size = m_sortedThresholds.size(); size > 1;) {
        const int half = size / 2;
        place = place[half] <= value ? place + half : place;
        size -= half;
    }
    return *place <= value ? static_cast<int>(place - begin) : -1;
}

void ColorMap::rebuildLookupTable()
{
    QMap<std::size_t, QColor> table;
    for (int i = 0; i < m_thresholds.size(); ++i)
        table.insert(m_thresholds.at(i), m_colors.at(i)); // Of equal ones the last stays.
    QVector<std::size_t> thresholds;
    QVector<QColor> colors;
    thresholds.reserve(table.size());
    colors.reserve(table.size());
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry) {
        thresholds.append(entry.key());
        colors.append(entry.value());
    }
    m_sortedThresholds.swap(thresholds);
    m_sortedColors.swap(colors);
}

} // namespace ui
} // namespace pelorin
