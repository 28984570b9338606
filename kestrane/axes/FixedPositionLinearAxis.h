#ifndef KESTRANE_AXES_FIXEDPOSITIONLINEARAXIS_H
#define KESTRANE_AXES_FIXEDPOSITIONLINEARAXIS_H

#include "kestrane/axes/Axis.h"
#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

namespace detail {
struct AxisMap;
}

/// A linear axis of numMajorDivisions() equal divisions, each worth scale() logical units. The
/// divisions stand still; scrolling and scaling change the values that they show.
///
/// With full = numMajorDivisions * scale and shift = offset if offsetIsAdded, else -offset:
///
///     minValue = -anchor * full - shift      position(v) = (v + shift) * (1 / full) + anchor
///     maxValue = minValue + full             value(p)    = (p - anchor) * full - shift
///
/// so that the logical value -shift (offset itself, unless it is added) stands at axis position
/// anchor. Transforms are O(1); ticks are built on demand, once per change, in O(n).
///
/// Rounding: with an anchor of 0.0, position(v) is within 4 ulp of itself. On the axis, value(p) is
/// within 4 ulp of the larger of offset and full range, and so gives p again within twice that.
///
/// Every change emits, in this order: the signal of the parameter, minValueChanged() and
/// maxValueChanged() if they moved, ticksUpdated(), parametersChanged(), and after a gesture
/// axisChangedViaScalingOrScrolling().
///
/// Nothing is validated. A full range of 0 gives infinite or NaN positions, a negative scale turns
/// the axis round, and no divisions give no ticks.
///
/// @code
/// FixedPositionLinearAxis axis(0.5, 12.25); // Ten divisions of 0.5 from 12.25 on.
/// axis.maxValue();          // = 17.25
/// axis.majorTicks().size(); // = 10
/// @endcode
///
/// @image html ticks-fixed.png
/// @ingroup axes
class KESTRANE_EXPORT FixedPositionLinearAxis : public Axis
{
    Q_OBJECT
    Q_PROPERTY(int numMajorDivisions READ numMajorDivisions WRITE setNumMajorDivisions NOTIFY
                   numMajorDivisionsChanged)
    Q_PROPERTY(int numMinorDivisions READ numMinorDivisions WRITE setNumMinorDivisions NOTIFY
                   numMinorDivisionsChanged)
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY offsetChanged)
    Q_PROPERTY(double scale READ scale WRITE setScale NOTIFY scaleChanged)
    Q_PROPERTY(double anchor READ anchor WRITE setAnchor NOTIFY anchorChanged)
    Q_PROPERTY(
        bool offsetIsAdded READ offsetIsAdded WRITE setOffsetIsAdded NOTIFY offsetIsAddedChanged)

public:
    /// @param scale logical size of one major division
    /// @param offset the logical value at @p anchor, or its negative, see @p offsetIsAdded
    /// @param anchor axis position of the reference value
    /// @param offsetIsAdded true if values are shifted up by @p offset, false if down
    /// @param numMajorDivisions divisions of the whole axis
    /// @param numMinorDivisions intervals between minor ticks in one major division; 1 for none
    explicit FixedPositionLinearAxis(double scale = 1.0, double offset = 0.0, double anchor = 0.0,
                                     bool offsetIsAdded = false, int numMajorDivisions = 10,
                                     int numMinorDivisions = 1, QObject* parent = nullptr);
    ~FixedPositionLinearAxis() override;

    double minValue() const override;
    double maxValue() const override;

    /// n ticks for n divisions: there is one at axis position 0.0 and none at 1.0.
    QVector<Tick> majorTicks() override;
    QVector<Tick> minorTicks() override;

    double transform(ScaleMode mode, double value) const override;

    /// For Logarithmic the decimal logarithm of the value's size: its sign is lost, and 0.0 gives
    /// minus infinity.
    double inverseTransform(ScaleMode mode, double position) const override;

    ScaleMode scaleMode() const override;
    double smallestTickDistance(bool major) const override;
    double anchor() const override;
    boost::shared_ptr<const ScrollScaleState> scrollScaleState() const override;
    FixedPositionLinearAxis* clone() const override;

    /// True if @p other is a FixedPositionLinearAxis too, a LinearAxis included, and has the same
    /// six parameters, the doubles exactly; so never with a NaN among them.
    bool operator==(const Axis& other) const override;

    int numMajorDivisions() const;
    int numMinorDivisions() const;
    double offset() const;
    double scale() const;
    bool offsetIsAdded() const;

Q_SIGNALS:
    void numMajorDivisionsChanged(int numDivs);
    void numMinorDivisionsChanged(int numDivs);
    void offsetChanged(double offset);
    void scaleChanged(double scale);
    void anchorChanged(double anchor);
    void offsetIsAddedChanged(bool offsetIsAdded);

public Q_SLOTS:
    // A setter of one parameter ignores a value that equals the present one (doubles within a
    // relative 1e-12), and ignores NaN as well as any value while NaN is stored.
    void setNumMajorDivisions(int numDivisions);
    void setNumMinorDivisions(int numDivisions);
    void setOffset(double offset);
    void setScale(double scale);

    /// Stores both values, NaN as well, and always emits ticksUpdated() and parametersChanged().
    void setOffsetAndScale(double offset, double scale);

    void setAnchor(double anchor);
    void setOffsetIsAdded(bool offsetIsAdded);

    /// Moves offset() by @p by full ranges. @p at and @p pixelSize play no part. The limits bound
    /// offset() as if it were not added; where they conflict the top limit wins.
    void scrollAxis(double at, double by,
                    const boost::shared_ptr<const ScrollScaleState>& base =
                        boost::shared_ptr<const ScrollScaleState>(),
                    double bottomLimit = std::numeric_limits<double>::lowest(),
                    double topLimit = std::numeric_limits<double>::max(),
                    double pixelSize = 1e-18) override;

    /// Changes scale() so that, with anchor 0.0, the value gripped at @p at ends up at @p at -
    /// @p by; the value at anchor() stays. @p bottomLimit plays no part; @p topLimit is held
    /// against minValue() as it is now, also with a base.
    void scaleAxis(double at, double by,
                   const boost::shared_ptr<const ScrollScaleState>& base =
                       boost::shared_ptr<const ScrollScaleState>(),
                   double bottomLimit = std::numeric_limits<double>::lowest(),
                   double topLimit = std::numeric_limits<double>::max(),
                   double pixelSize = 1e-18) override;

protected:
    /// Brings all derived values in step with the parameters and tells of the change.
    void updateInternalValues();

    /// Marks the ticks as out of date and emits ticksUpdated().
    void invalidateTicks();

    /// Rebuilds the ticks if they are out of date. Called by majorTicks() and minorTicks().
    virtual void updateTicks();

private:
    friend class LinearAxis; // Places the ticks of this class elsewhere.
    friend struct detail::AxisMap;
    struct FPLScrollScaleState;

    detail::AxisMap linearMap() const;
    void updateMinimum();
    void updateMaximum();

    // Makes the two lists, which are ranked, the present ticks.
    void storeTicks(const QVector<Tick>& major, const QVector<Tick>& minor);

    int m_numMajorDivisions;
    int m_numMinorDivisions;
    double m_offset;
    double m_scale;
    double m_anchor;
    bool m_offsetIsAdded;

    double m_signedOffset = 0.0;
    double m_minValue = std::numeric_limits<double>::max();
    double m_maxValue = std::numeric_limits<double>::lowest();
    double m_fullRange = 0.0;
    double m_inverseRange = 0.0;

    QVector<Tick> m_majorTicks;
    QVector<Tick> m_minorTicks;
    bool m_ticksDirty = true;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
