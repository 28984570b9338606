#ifndef HOSTS_CHARTING_AXISVIEW_H
#define HOSTS_CHARTING_AXISVIEW_H

#include "hosts/charting/AxisDivision.h"
#include "hosts/charting/TickMark.h"

#include <kestrane/axes/TickFormatter.h>

#include <QSharedPointer>
#include <QString>
#include <QVector>

#include <limits>

namespace hosts::charting {

/// One axis of a chart: the part of it that is shown, and how its ticks are labelled.
class AxisView
{
public:
    /// @param quantity a name that the QuantityManager knows, or empty for plain numbers
    /// @param reference NaN, or the value that labels give the distance from
    AxisView(const AxisDivision& division, const QString& quantity,
             double reference = std::numeric_limits<double>::quiet_NaN());

    QSharedPointer<pelorin::ui::chart::FixedPositionLinearAxis> axis() const { return m_axis; }

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

private:
    void appendMarks(const QVector<pelorin::ui::chart::Axis::Tick>& ticks, bool major,
                     QVector<TickMark>& marks) const;
    pelorin::ui::chart::Axis::Tick withCleanZero(const pelorin::ui::chart::Axis::Tick& tick) const;
    void adaptFormatter();

    QSharedPointer<pelorin::ui::chart::FixedPositionLinearAxis> m_axis;
    QSharedPointer<pelorin::ui::chart::TickFormatter> m_formatter;
    double m_visible;
    double m_reference;
};

} // namespace hosts::charting

#endif
