#include "kestrane/colors/AutoComputeColorMapBuilder.h"

#include <cmath>

namespace pelorin {
namespace ui {

ColorMap AutoComputeColorMapBuilder::buildAutoComputeMap(const QVector<QColor>& colors,
                                                         std::size_t maximum)
{
    const int n = colors.size();
    // An integer quotient: 2 for two colours and 1 for more. Below two there is no factor between
    // thresholds, and any exponent will do.
    const int exponent = n < 2 ? 0 : n / (n - 1);
    const double x = static_cast<double>(maximum) * 0.85;
    const double a = std::pow(x, static_cast<double>(exponent));
    const double base = std::pow(a, 1.0 / n);

    ColorMap map(Qt::transparent);
    { // The builder has to end before the map is returned.
        ColorMap::Builder builder = map.build();
        for (int i = 0; i < n; ++i) {
            const double threshold = std::pow(base, static_cast<double>(i));
            builder.appendEntry(colors.at(i), static_cast<std::size_t>(threshold));
        }
    }
    return map;
}

ColorMap AutoComputeColorMapBuilder::buildAutoComputeMap(const ColorMap& colorMap,
                                                         std::size_t maximum)
{
    return buildAutoComputeMap(colorMap.colors(), maximum);
}

} // namespace ui
} // namespace pelorin
