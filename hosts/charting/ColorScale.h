#ifndef HOSTS_CHARTING_COLORSCALE_H
#define HOSTS_CHARTING_COLORSCALE_H

#include "hosts/charting/ColorBar.h"
#include "hosts/charting/ColorScheme.h"

#include <kestrane/colors/ColorMap.h>

#include <QVector>

namespace hosts::charting {

/// How values become colours: a colour map for whole counts, and what turns any values into such.
///
/// Laws:
///  1. Counts stay as they are: 0 has no colour, and the thresholds are whole numbers.
///  2. Of other values the greater has no smaller count, and a value that is no smaller than a
///     threshold is in its class. Those below the lowest threshold have no colour.
class ColorScale
{
public:
    /// What the values are.
    struct Values
    {
        double low;     ///< The least one that is to have a colour.
        double high;    ///< The greatest.
        bool areCounts; ///< All are whole numbers from 0 on.
    };

    /// Classes whose thresholds rise by a factor, up to values.high.
    /// @param values low > 0; it counts no more than a millionth of high
    static ColorScale logarithmic(const ColorScheme& scheme, const Values& values, int classes);

    /// Classes of equal width between round thresholds. A diverging scheme has its middle at 0 if
    /// there are values on both sides.
    /// @param classes the number to come near to
    static ColorScale linear(const ColorScheme& scheme, const Values& values, int classes);

    /// @param thresholds finite and ascending, one or more
    static ColorScale given(const ColorScheme& scheme, const Values& values,
                            const QVector<double>& thresholds);

    double countOf(double value) const { return (value - m_offset) * m_factor; }

    /// Whether counts stay as they are.
    bool keepsCounts() const { return m_keepsCounts; }

    const pelorin::ui::ColorMap& map() const { return m_map; }

    /// The classes that have values, with their thresholds below them.
    /// @param labels how many labels there is room for, about
    ColorBar bar(int labels) const;

private:
    ColorScale() = default;
    static ColorScale of(const ColorScheme& scheme, const Values& values,
                         const QVector<double>& thresholds);
    bool hasLabel(double threshold, int labels) const;

    double m_offset = 0.0;
    double m_factor = 1.0;
    bool m_keepsCounts = false;
    pelorin::ui::ColorMap m_map;
    QVector<double> m_thresholds; ///< Those of the map as values, in its order.
    double m_step = 0.0;          ///< The distance of equidistant ones.
    int m_digits = 6;             ///< In a label.
};

} // namespace hosts::charting

#endif
