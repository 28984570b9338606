#include "hosts/charting/ColorScale.h"

#include "hosts/charting/Decimal.h"

#include <kestrane/colors/AutoComputeColorMapBuilder.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>

namespace hosts::charting {

using pelorin::ui::AutoComputeColorMapBuilder;

namespace {

constexpr double mostCount = 9e18;       // Nearly the largest that all conversions take.
constexpr double countsInStep = 1 << 20; // So finely are values told apart that are no counts.
constexpr double leastLogShare = 1e-6;   // Of the greatest value.
constexpr double rounding = 1e-9;
constexpr double leastStep = 1e-300;

std::size_t wholeCount(double count)
{
    return std::size_t(std::clamp(count, 0.0, mostCount));
}

double smallestStep(const QVector<double>& thresholds)
{
    if (thresholds.size() == 1)
        return std::max(std::abs(thresholds.first()), leastStep);
    double smallest = thresholds[1] - thresholds[0];
    for (int i = 2; i < thresholds.size(); ++i)
        smallest = std::min(smallest, thresholds[i] - thresholds[i - 1]);
    return smallest;
}

double roundStep(const ColorScale::Values& values, int classes)
{
    const double largest = std::max(std::abs(values.low), std::abs(values.high));
    const double wanted = (values.high - values.low) / classes;
    if (values.areCounts)
        return std::max(1.0, roundedUp(values.high / classes));
    const bool areApart = wanted > std::max(largest * rounding, leastStep);
    return roundedUp(areApart ? wanted : std::max(largest, leastStep));
}

// How many significant digits a number has, up to six.
int digitsOf(double value)
{
    int digits = 1;
    while (digits < 6 && QString::number(value, 'g', digits).toDouble() !=
                             QString::number(value, 'g', 6).toDouble())
        ++digits;
    return digits;
}

QString labelOf(double value, int digits)
{
    const bool isShortWhole = value == std::floor(value) && std::abs(value) < 1e6;
    return isShortWhole ? QString::number(value, 'f', 0) : QString::number(value, 'g', digits);
}

} // namespace

ColorScale ColorScale::of(const ColorScheme& scheme, const Values& values,
                          const QVector<double>& thresholds)
{
    ColorScale scale;
    scale.m_keepsCounts = values.areCounts && thresholds.first() >= 0.0;
    if (!scale.m_keepsCounts) {
        const double step = smallestStep(thresholds);
        scale.m_offset = thresholds.first() - step;
        scale.m_factor = countsInStep / step;
    }
    const QVector<QColor> colors = scheme.colors(int(thresholds.size()));
    auto builder = scale.m_map.build();
    for (int i = 0; i < colors.size(); ++i) {
        const double count = scale.countOf(thresholds[i]);
        builder.appendEntry(colors[i], wholeCount(scale.m_keepsCounts ? std::ceil(count) : count));
    }
    scale.m_thresholds = thresholds;
    return scale;
}

ColorScale ColorScale::logarithmic(const ColorScheme& scheme, const Values& values, int classes)
{
    ColorScale scale;
    scale.m_keepsCounts = values.areCounts;
    if (!values.areCounts) {
        const double low = std::max(values.low, values.high * leastLogShare);
        scale.m_factor = (1.0 + rounding) / low;
        scale.m_digits = 3;
    }
    scale.m_map = AutoComputeColorMapBuilder::buildAutoComputeMap(
        scheme.colors(classes), wholeCount(scale.countOf(values.high)));
    for (int i = 0; i < scale.m_map.numberOfClasses(); ++i)
        scale.m_thresholds.append(double(scale.m_map.thresholdAtIndex(i)) / scale.m_factor);
    return scale;
}

ColorScale ColorScale::linear(const ColorScheme& scheme, const Values& values, int classes)
{
    const double step = roundStep(values, classes);
    double first = std::floor(values.low / step + rounding);
    double end = std::max(std::ceil(values.high / step - rounding), first + 1.0);
    if (values.areCounts) { // The greatest one begins a class if it can.
        first = step > 1.0 ? 0.0 : 1.0;
        end = std::floor(values.high / step + rounding) + 1.0;
    } else if (scheme.isDiverging() && values.low < 0.0 && values.high > 0.0) {
        end = std::max(-first, end);
        first = -end;
    }
    QVector<double> thresholds;
    for (double k = first; k < end; ++k)
        thresholds.append(values.areCounts ? std::max(k * step, 1.0) : k * step);
    ColorScale scale = of(scheme, values, thresholds);
    scale.m_step = step;
    return scale;
}

ColorScale ColorScale::given(const ColorScheme& scheme, const Values& values,
                             const QVector<double>& thresholds)
{
    return of(scheme, values, thresholds);
}

// Equidistant thresholds have labels at round distances, of others there are few.
bool ColorScale::hasLabel(double threshold, int labels) const
{
    if (m_step == 0.0)
        return true;
    double distance = m_step;
    const auto isMultiple = [this](double d) {
        return std::abs(d / m_step - std::round(d / m_step)) < rounding;
    };
    while (distance * labels < m_step * m_thresholds.size() || !isMultiple(distance))
        distance = roundedUp(distance * 1.1);
    const double place = std::floor(threshold / m_step + rounding) * m_step / distance;
    return std::abs(place - std::round(place)) < rounding;
}

ColorBar ColorScale::bar(int labels) const
{
    std::map<std::size_t, int> classes; // The last of equal thresholds takes the values.
    for (int i = 0; i < m_map.numberOfClasses(); ++i)
        classes[m_map.thresholdAtIndex(i)] = i;
    if (classes.count(0) != 0 && classes.count(1) != 0)
        classes.erase(0); // 0 itself has no colour.
    ColorBar bar;
    for (const auto& [count, index] : classes) {
        const double place = double(bar.colors.size()) / double(classes.size());
        bar.colors.append(m_map.colorAtIndex(index));
        if (hasLabel(m_thresholds[index], labels))
            bar.marks.append({place, true, {labelOf(m_thresholds[index], m_digits)}});
    }
    std::stable_sort(bar.marks.begin(), bar.marks.end(), [](const auto& a, const auto& b) {
        return digitsOf(a.label.first().toDouble()) < digitsOf(b.label.first().toDouble());
    });
    return bar;
}

} // namespace hosts::charting
