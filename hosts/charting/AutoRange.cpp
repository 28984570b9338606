#include "hosts/charting/AutoRange.h"

#include <kestrane/axes/LinearPlotAutoScaler.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace hosts::charting {

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::FixedPositionLinearAxis;
using pelorin::ui::chart::LinearPlotAutoScaler;

namespace {

constexpr double bandBottom = 0.04; // The data's room on the axis, in axis space.
constexpr double bandTop = 0.96;
constexpr double smallestScale = std::numeric_limits<double>::min();
constexpr int mostRounds = 8;

// One round brings the scale near, from wherever it was; the next ones settle it, since the shift
// of a round is reckoned in its old scale.
void fitToData(FixedPositionLinearAxis& axis, double low, double high)
{
    for (int round = 0; round < mostRounds; ++round) {
        const double bottom = axis.transform(Axis::Linear, low);
        const double top = axis.transform(Axis::Linear, high);
        const LinearPlotAutoScaler::Suggestion next = LinearPlotAutoScaler::suggest(
            axis.scale(), axis.offset(), bottom, top, axis.numMajorDivisions(), bandTop, bandBottom,
            0.5 * (bandTop - bandBottom), smallestScale, axis.offsetIsAdded(), true);
        const bool still = qFuzzyCompare(next.scale, axis.scale()) &&
                           std::abs(next.offset - axis.offset()) <= next.scale * 1e-6;
        axis.setOffsetAndScale(next.offset, next.scale);
        if (still)
            return;
    }
}

AxisDivision fittedDivision(double low, double high, int divisions, TickPlaces places)
{
    AxisDivision division;
    division.places = places;
    division.major = divisions;
    division.from = low;
    division.step = (high - low) / divisions;
    const auto axis = division.makeAxis();
    fitToData(*axis, low, high);
    if (places == TickPlaces::Moving)
        return AxisDivision::withStep(axis->minValue(), axis->maxValue(), axis->scale());
    // A twentieth of a division at most, which is less than the data's room, for shorter labels.
    const double tenths = std::round(axis->minValue() / axis->scale() * 10.0);
    return AxisDivision::withPlaces(tenths * axis->scale() / 10.0, axis->scale(), divisions);
}

// Less is better: an axis that the data fill, with steps that are easy to read, in about the wanted
// number.
double costOf(const AxisDivision& division, double extent, int wanted)
{
    const double shown = division.step * division.major * division.visible;
    return shown / extent + (AxisDivision::isRoundStep(division.step) ? 0.0 : 1.0) +
           0.05 * std::abs(shown / division.step - wanted);
}

} // namespace

AxisDivision autoRange(double low, double high, int wanted, TickPlaces places)
{
    std::tie(low, high) = AxisDivision::spread(low, high);
    AxisDivision best;
    double bestCost = std::numeric_limits<double>::infinity();
    for (int divisions = std::max(2, wanted - 3); divisions <= wanted + 3; ++divisions) {
        const AxisDivision division = fittedDivision(low, high, divisions, places);
        const double cost = costOf(division, high - low, wanted);
        if (cost < bestCost) {
            best = division;
            bestCost = cost;
        }
    }
    return best;
}

} // namespace hosts::charting
