#ifndef HOSTS_CHARTING_BIPOLARAXIS_H
#define HOSTS_CHARTING_BIPOLARAXIS_H

#include <kestrane/axes/AggregateAxis.h>

namespace pelorin {
namespace ui {
namespace chart {
class LogAxis;
}
} // namespace ui
} // namespace pelorin

namespace hosts::charting {

/// Values of both signs on logarithmic scales: a LogAxis in the upper half of the axis and its
/// mirror image in the lower one.
///
///      -100     -10    -1|1      10      100
///        +-------+-------+-------+-------+
///       0.0     0.25    0.5     0.75    1.0
///
/// There is no place for the values nearer to zero than the joint, zero itself included: an
/// AggregateAxis asks one of its sub-axes, whose answer lies outside its stretch or is infinite.
/// For a signal that swings through zero that would be a stroke through the whole picture, so this
/// class puts them on the joint, which is the anchor too. All else is as AggregateAxis does it.
class BipolarAxis : public pelorin::ui::chart::AggregateAxis
{
public:
    /// @param joint the least magnitude, positive
    /// @param outer the greatest one; more than @p joint
    BipolarAxis(double joint, double outer);

    double transform(ScaleMode mode, double value) const override;

    /// One with halves of its own.
    BipolarAxis* clone() const override;

private:
    pelorin::ui::chart::LogAxis* m_upper; // A child, as is its mirror.
};

} // namespace hosts::charting

#endif
