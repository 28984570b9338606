#include "kestrane/axes/LinearPlotAutoScaler.h"

#include <cmath>

namespace pelorin {
namespace ui {
namespace chart {

namespace {

double roundedUpToOneDigit(double x)
{
    const double power = std::pow(10.0, std::floor(std::log10(x)));
    return std::ceil(x / power) * power;
}

} // namespace

LinearPlotAutoScaler::Suggestion
LinearPlotAutoScaler::suggest(double scale, double offset, double dataBottom, double dataTop,
                              int numDivisions, double targetTop, double targetBottom,
                              double minimumExtent, double extentFloor, bool offsetIsAdded,
                              bool force)
{
    if (std::isnan(dataTop) || std::isnan(dataBottom) || std::isnan(scale) || std::isnan(offset))
        return {scale, offset};

    const double span = dataTop - dataBottom;
    const double band = targetTop - targetBottom;
    const bool wellPlaced =
        !(dataTop > targetTop) && !(dataBottom < targetBottom) && !(span < minimumExtent);
    if (wellPlaced && !force)
        return {scale, offset};

    const double extent = extentFloor > span ? extentFloor : span;
    double newScale = scale;
    if (!(extent > minimumExtent && band >= extent)) {
        double x = extent * scale / band;
        if (!(x > extentFloor)) // Not the same as a maximum: NaN gives way to the floor.
            x = extentFloor;
        if (!std::isnan(x))
            newScale = roundedUpToOneDigit(x);
    }

    double shift = (extent * 0.5 + dataBottom) - (band * 0.5 + targetBottom);
    if (offsetIsAdded)
        shift = -shift;
    const double newOffset =
        (scale - newScale) * (numDivisions * 0.5) + (shift * scale * numDivisions + offset);
    return {newScale, newOffset};
}

} // namespace chart
} // namespace ui
} // namespace pelorin
