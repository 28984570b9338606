#ifndef HOSTS_CHARTING_AXISVIEW_H
#define HOSTS_CHARTING_AXISVIEW_H

#include "hosts/charting/ShownAxis.h"
#include "hosts/charting/TickMark.h"

#include <kestrane/axes/TickFormatter.h>

#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <limits>

namespace hosts::charting {

/// One axis of a chart: the part of it that is shown, and how its ticks are labelled.
///
/// On a linear axis the major ticks have labels, with one prefix for all. On a logarithmic one the
/// minor ones have labels too, since there may be no others, and each label has its own prefix.
class AxisView
{
public:
    /// @param quantity a name that the QuantityManager knows, or empty for plain numbers
    /// @param reference NaN, or the value that labels give the distance from
    AxisView(const ShownAxis& shown, const QString& quantity,
             double reference = std::numeric_limits<double>::quiet_NaN());

    QSharedPointer<pelorin::ui::chart::Axis> axis() const { return m_axis; }

    /// The axis position at the end of the plot.
    double visible() const { return m_visible; }

    /// The place in the plot of an axis position: 0.0 at its start, 1.0 at its end.
    double place(double axisPosition) const { return axisPosition / m_visible; }

    /// The value at the start of the plot.
    double from() const;

    /// The value at the end of the plot.
    double to() const;

    /// The visible ticks, highest rank first.
    QVector<TickMark> marks() const;

    /// A value in one line as the labels write it.
    /// @param share which part of a division the digits have to tell apart, or of the value on a
    ///        logarithmic axis
    QString textOf(double value, double share = 1e-3) const;

private:
    using Ticks = QVector<pelorin::ui::chart::Axis::Tick>;

    Ticks visibleTicks(bool major) const;
    QVector<double> labelledValues() const;
    bool isLogarithmic() const;
    pelorin::ui::chart::Axis::Tick withCleanZero(const pelorin::ui::chart::Axis::Tick& tick,
                                                 double allowance) const;
    void adaptFormatter(const QVector<double>& values);

    QSharedPointer<pelorin::ui::chart::Axis> m_axis;
    QSharedPointer<pelorin::ui::chart::TickFormatter> m_formatter;
    double m_visible;
    double m_reference;
};

} // namespace hosts::charting

#endif
