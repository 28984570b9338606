#include "hosts/charting/AxisView.h"

#include <kestrane/backend/QuantityManager.h>

#include <algorithm>
#include <cmath>

namespace hosts::charting {

using pelorin::ui::chart::Axis;
using pelorin::ui::chart::TickFormatter;
using pelorin::utilities::Singleton;
using pelorin::variables::Quantity;
using pelorin::variables::QuantityManager;

namespace {

// What rounding may do to a tick, as a share of the axis or of a division.
constexpr double roundingAllowance = 1e-9;

constexpr int mostDigits = 15;
constexpr int manyDigits = 7; // From here on a power of ten behind them makes nothing clearer.

// The fewest digits with which every value is written as near as that.
int digitsFor(const QVector<double>& values, double tolerance)
{
    for (int digits = 1; digits < mostDigits; ++digits) {
        const bool enough = std::all_of(values.cbegin(), values.cend(), [&](double value) {
            return std::abs(QString::number(value, 'g', digits).toDouble() - value) <= tolerance;
        });
        if (enough)
            return digits;
    }
    return mostDigits;
}

// Exact if that takes few digits, else to a hundredth of a step.
int digitsForLabels(const QVector<double>& values, double step)
{
    constexpr int fewDigits = 6;
    const int enough = digitsFor(values, step * 0.01);
    const int exact = digitsFor(values, step * 1e-6);
    return exact <= std::max(fewDigits, enough + 1) ? exact : enough;
}

double largestOf(const QVector<double>& values)
{
    double largest = 0.0;
    for (const double value : values)
        largest = std::max(largest, std::abs(value));
    return largest;
}

// One prefix for a whole axis, that of its largest number: "0 ms, 500 ms, 1000 ms" reads better
// than "0 s, 500 ms, 1 s". Nobody counts in kiloseconds.
int prefixFor(double largest, const Quantity& quantity)
{
    const double inUnit = largest * quantity.units().first().scale;
    const int exponent = 3 * int(std::floor(std::log10(inUnit) / 3.0));
    return std::clamp(exponent, -24, QString(quantity) == QLatin1String("time") ? 0 : 24);
}

} // namespace

AxisView::AxisView(const AxisDivision& division, const QString& quantity, double reference)
    : m_axis(division.makeAxis())
    , m_formatter(QSharedPointer<TickFormatter>::create())
    , m_visible(division.visible)
    , m_reference(reference)
{
    m_formatter->setQuantity(quantity);
    adaptFormatter();
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
    appendMarks(m_axis->majorTicks(), true, marks);
    appendMarks(m_axis->minorTicks(), false, marks);
    return marks;
}

void AxisView::appendMarks(const QVector<Axis::Tick>& ticks, bool major,
                           QVector<TickMark>& marks) const
{
    for (const Axis::Tick& tick : ticks) {
        if (tick.isInvisible() || tick.axisPosition() > m_visible * (1.0 + roundingAllowance))
            continue;
        QStringList label;
        if (major)
            label = m_formatter->formatTick(withCleanZero(tick), m_reference);
        marks.append({std::min(place(tick.axisPosition()), 1.0), major, label});
    }
}

// The tick whose label is to be zero may be off by rounding, which a label shows in all its digits.
Axis::Tick AxisView::withCleanZero(const Axis::Tick& tick) const
{
    const double zero = std::isnan(m_reference) ? 0.0 : m_reference;
    const bool isZero =
        std::abs(tick.logicalPosition() - zero) < roundingAllowance * m_axis->scale();
    return Axis::Tick(isZero ? zero : tick.logicalPosition(), tick.axisPosition(), tick.rank(),
                      tick.secondaryLogicalPositions(), tick.isInvisible());
}

void AxisView::adaptFormatter()
{
    QVector<double> values;
    for (const Axis::Tick& tick : m_axis->majorTicks())
        values.append(withCleanZero(tick).logicalPosition() -
                      (std::isnan(m_reference) ? 0.0 : m_reference));
    const int digits = digitsForLabels(values, m_axis->scale());
    const double largest = largestOf(values);
    m_formatter->setSignificantDigits(digits);
    const Quantity quantity =
        Singleton<QuantityManager>::instance().quantity(m_formatter->quantity());
    if (!quantity.units().isEmpty() && quantity.units().first().takesPrefix) {
        if (largest > 0.0)
            m_formatter->setPreferredPrefix(prefixFor(largest, quantity));
    } else if (digits >= manyDigits) {
        m_formatter->setLimitRangeCount(mostDigits / 3);
    } else if (largest >= 1e6 || largest < 1e-3) {
        m_formatter->setOptions(TickFormatter::Scientific);
    }
}

} // namespace hosts::charting
