#include "hosts/charting/AxisView.h"

#include <kestrane/backend/QuantityManager.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace hosts::charting {

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::TickFormatter;
using pelorin::utilities::Singleton;
using pelorin::variables::Quantity;
using pelorin::variables::QuantityManager;

namespace {

// What rounding may do to a tick, as a share of the axis or of a division.
constexpr double roundingAllowance = 1e-9;

constexpr double exactShare = 1e-6; // Of a division; a smaller one is not worth a digit.

constexpr int mostDigits = 15;
constexpr int manyDigits = 7; // From here on a power of ten behind them makes nothing clearer.

// The fewest digits with which every value is written as near as its tolerance.
int digitsFor(const QVector<double>& values, const std::function<double(double)>& tolerance)
{
    for (int digits = 1; digits < mostDigits; ++digits) {
        const bool enough = std::all_of(values.cbegin(), values.cend(), [&](double value) {
            const double written = QString::number(value, 'g', digits).toDouble();
            return std::abs(written - value) <= tolerance(value);
        });
        if (enough)
            return digits;
    }
    return mostDigits;
}

// Exact if that takes few digits, else to a hundredth of a step.
int digitsForSteps(const QVector<double>& values, double step)
{
    constexpr int fewDigits = 6;
    const int enough = digitsFor(values, [step](double) { return step * 0.01; });
    const int exact = digitsFor(values, [step](double) { return step * exactShare; });
    return exact <= std::max(fewDigits, enough + 1) ? exact : enough;
}

// One, but for a limit that is no tick and has a label all the same.
int digitsForDecades(const QVector<double>& values)
{
    return digitsFor(values, [](double value) { return std::abs(value) * 1e-6; });
}

// The least and the greatest magnitude.
std::pair<double, double> magnitudes(const QVector<double>& values)
{
    std::pair<double, double> range = {std::numeric_limits<double>::infinity(), 0.0};
    for (const double value : values)
        range = {std::min(range.first, std::abs(value)), std::max(range.second, std::abs(value))};
    return range;
}

// One prefix for a whole axis, that of its largest number: "0 ms, 500 ms, 1000 ms" reads better
// than "0 s, 500 ms, 1 s".
int prefixFor(double largest, const Quantity& quantity)
{
    const double inUnit = largest * quantity.units().first().scale;
    return std::clamp(3 * int(std::floor(std::log10(inUnit) / 3.0)), -24, 24);
}

// Nobody counts in kiloseconds.
bool isBeyondPrefixes(double largest, const Quantity& quantity)
{
    return QString(quantity) == QLatin1String("time") && largest >= 1e3;
}

} // namespace

AxisView::AxisView(const ShownAxis& shown, const QString& quantity, double reference)
    : m_axis(shown.axis)
    , m_formatter(QSharedPointer<TickFormatter>::create())
    , m_visible(shown.visible)
    , m_reference(reference)
{
    m_formatter->setQuantity(quantity);
    adaptFormatter(labelledValues());
}

double AxisView::from() const
{
    return m_axis->minValue();
}

double AxisView::to() const
{
    return m_axis->inverseTransform(Axis::Linear, m_visible);
}

QVector<TickMark> AxisView::marks() const
{
    QVector<TickMark> marks;
    for (const bool major : {true, false}) {
        for (const Axis::Tick& tick : visibleTicks(major)) {
            QStringList label;
            if (major || isLogarithmic())
                label =
                    m_formatter->formatTick(withCleanZero(tick, roundingAllowance), m_reference);
            marks.append({std::min(place(tick.axisPosition()), 1.0), major, label});
        }
    }
    return marks;
}

QString AxisView::textOf(double value, double share) const
{
    const Axis::Tick tick = withCleanZero(Axis::Tick(value, 0.0, 0, {}, false), exactShare);
    const double shown = tick.logicalPosition() - (std::isnan(m_reference) ? 0.0 : m_reference);
    const double step = isLogarithmic() ? std::abs(shown) : m_axis->smallestTickDistance(true);
    const int digits = m_formatter->significantDigits();
    m_formatter->setSignificantDigits(
        digitsFor({shown}, [&](double) { return step * share * 0.5; }));
    const QString text = m_formatter->formatTick(tick, m_reference).first();
    m_formatter->setSignificantDigits(digits);
    return text;
}

AxisView::Ticks AxisView::visibleTicks(bool major) const
{
    Ticks ticks = major ? m_axis->majorTicks() : m_axis->minorTicks();
    const double end = m_visible * (1.0 + roundingAllowance);
    const auto isHidden = [end](const Axis::Tick& tick) {
        return tick.isInvisible() || !(tick.axisPosition() >= 0.0 && tick.axisPosition() <= end);
    };
    ticks.erase(std::remove_if(ticks.begin(), ticks.end(), isHidden), ticks.end());
    return ticks;
}

QVector<double> AxisView::labelledValues() const
{
    const double reference = std::isnan(m_reference) ? 0.0 : m_reference;
    Ticks ticks = visibleTicks(true);
    if (isLogarithmic())
        ticks += visibleTicks(false);
    QVector<double> values;
    for (const Axis::Tick& tick : std::as_const(ticks))
        values.append(withCleanZero(tick, roundingAllowance).logicalPosition() - reference);
    return values;
}

bool AxisView::isLogarithmic() const
{
    return m_axis->scaleMode() == Axis::Logarithmic;
}

// The tick whose label is to be zero may be off by rounding, which a label shows in all its digits.
Axis::Tick AxisView::withCleanZero(const Axis::Tick& tick, double allowance) const
{
    const double zero = std::isnan(m_reference) ? 0.0 : m_reference;
    const double step = m_axis->smallestTickDistance(true);
    const bool isZero = std::abs(tick.logicalPosition() - zero) < allowance * step;
    return Axis::Tick(isZero ? zero : tick.logicalPosition(), tick.axisPosition(), tick.rank(),
                      tick.secondaryLogicalPositions(), tick.isInvisible());
}

void AxisView::adaptFormatter(const QVector<double>& values)
{
    const int digits = isLogarithmic() ? digitsForDecades(values)
                                       : digitsForSteps(values, m_axis->smallestTickDistance(true));
    const auto [smallest, largest] = magnitudes(values);
    m_formatter->setSignificantDigits(digits);
    const Quantity quantity =
        Singleton<QuantityManager>::instance().quantity(m_formatter->quantity());
    if (!quantity.units().isEmpty() && quantity.units().first().takesPrefix) {
        if (isBeyondPrefixes(largest, quantity))
            m_formatter->setOptions(TickFormatter::NoPrefix);
        else if (largest > 0.0 && !isLogarithmic())
            m_formatter->setPreferredPrefix(prefixFor(largest, quantity));
    } else if (digits >= manyDigits) {
        m_formatter->setLimitRangeCount(mostDigits / 3);
    } else if (largest >= 1e6 || (isLogarithmic() ? smallest : largest) < 1e-3) {
        m_formatter->setOptions(TickFormatter::Scientific);
    }
}

} // namespace hosts::charting
