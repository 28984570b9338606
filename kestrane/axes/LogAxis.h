#ifndef KESTRANE_AXES_LOGAXIS_H
#define KESTRANE_AXES_LOGAXIS_H

#include "kestrane/axes/Axis.h"
#include "kestrane/library/Export.h"

namespace pelorin {
namespace ui {
namespace chart {

namespace detail {
struct AxisMap;
}

/// A logarithmic axis from smallest() at axis position 0.0 to largest() at 1.0.
///
/// With decades = log10(largest / smallest), one decade takes 1 / decades of the axis:
///
///     position(v) = log10(v) / decades - log10(smallest) / decades
///     value(p)    = 10 ^ ((p + log10(smallest) / decades) * decades)
///
/// Major ticks stand on the powers of ten, minor ticks on 2 to 9 times these. Each decade has them
/// all, so the first major tick may lie before position 0.0 and the last one beyond 1.0.
/// Transforms are O(1) and allocate nothing; ticks are built on demand, once per change, in
/// O(n), and there are at most 10000 minor ones.
///
/// Rounding: on the axis, position(v) is within 4 ulp of the larger of 1.0 and the position of the
/// value 1.0. From 1e-12 to 1e18, value(p) is within 100 ulp of itself and ticks are within 16.
///
/// A change emits ticksUpdated() first, then the signal of each limit followed by its counterpart
/// (smallestChanged(), minValueChanged(), largestChanged(), maxValueChanged()), then
/// parametersChanged(), and after a gesture axisChangedViaScalingOrScrolling(). All values are in
/// step before the first of these.
///
/// Nothing is validated. A limit that is negative or NaN gives NaN positions; a smallest() of 0.0
/// keeps the decades as they were and gives infinite ones; a largest() below smallest() turns the
/// axis round; equal limits keep the size of a decade as it was.
///
/// @code
/// LogAxis hertz(10.0, 1000.0);
/// hertz.transform(Axis::Linear, 100.0);    // = 0.5
/// hertz.transform(Axis::Logarithmic, 2.0); // = 0.5
/// hertz.majorTicks().size();               // = 3
/// @endcode
///
/// @image html spectrum-log.png
/// @ingroup axes
class KESTRANE_EXPORT LogAxis : public Axis
{
    Q_OBJECT
    Q_PROPERTY(double smallest READ smallest WRITE setSmallest NOTIFY smallestChanged)
    Q_PROPERTY(double largest READ largest WRITE setLargest NOTIFY largestChanged)

public:
    /// @param smallest the value at position 0.0; one within a relative 1e-12 of 1.0 counts as 1.0
    /// @param largest the value at position 1.0, likewise
    explicit LogAxis(double smallest = 1.0, double largest = 10.0, QObject* parent = nullptr);
    ~LogAxis() override;

    double minValue() const override;
    double maxValue() const override;

    /// The powers of ten from the last one at or below smallest() on. The one beyond largest()
    /// is among them if 9 tenths of it are not beyond.
    QVector<Tick> majorTicks() override;

    /// 2 to 9 times the powers of ten, from position 0.0 to the value largest(). Their values are
    /// powers, 10 ^ (log10(2) + 3), and can be off from 2000 in the last digits.
    QVector<Tick> minorTicks() override;

    /// Minus infinity for a value of 0.0 or less that is written as Linear.
    double transform(ScaleMode mode, double value) const override;
    double inverseTransform(ScaleMode mode, double position) const override;

    ScaleMode scaleMode() const override;

    /// From the first power of ten in the range to the next (@p major true), or from the power of
    /// ten at or below smallest() to twice that; never more than the whole range.
    double smallestTickDistance(bool major) const override;

    /// The axis position of the first power of ten that is not below smallest().
    double anchor() const override;

    boost::shared_ptr<const ScrollScaleState> scrollScaleState() const override;
    LogAxis* clone() const override;

    /// True if @p other is a LogAxis too and has exactly the same limits; so never with NaN.
    bool operator==(const Axis& other) const override;

    double smallest() const;
    double largest() const;

Q_SIGNALS:
    void smallestChanged(double val);
    void largestChanged(double val);

public Q_SLOTS:
    // A setter ignores a value within a relative 1e-12 of the present one.
    void setSmallest(double smallest);
    void setLargest(double largest);

    /// Moves both limits by the factor of @p by axis lengths. @p at and @p pixelSize play no part.
    /// A limit that is reached on the way narrows the range. Only if both limits move is anything
    /// changed, so an axis that stands at one of the bounds stays there.
    void scrollAxis(double at, double by,
                    const boost::shared_ptr<const ScrollScaleState>& base =
                        boost::shared_ptr<const ScrollScaleState>(),
                    double bottomLimit = std::numeric_limits<double>::lowest(),
                    double topLimit = std::numeric_limits<double>::max(),
                    double pixelSize = 1e-18) override;

    /// Keeps smallest() and moves largest() so that the value gripped at @p at ends up at @p at -
    /// @p by. A grip that is dragged to position 0.0 or beyond takes largest() to @p topLimit.
    /// @p bottomLimit and @p pixelSize play no part.
    void scaleAxis(double at, double by,
                   const boost::shared_ptr<const ScrollScaleState>& base =
                       boost::shared_ptr<const ScrollScaleState>(),
                   double bottomLimit = std::numeric_limits<double>::lowest(),
                   double topLimit = std::numeric_limits<double>::max(),
                   double pixelSize = 1e-18) override;

protected:
    /// Emits smallestChanged(), minValueChanged(), and parametersChanged() if @p withParamChange.
    void emitSmallestChanged(bool withParamChange);

    /// Emits largestChanged(), maxValueChanged(), and parametersChanged() if @p withParamChange.
    void emitLargestChanged(bool withParamChange);

private:
    friend struct detail::AxisMap;
    struct LogScrollScaleState;

    void updateScale();
    void updateTicks();
    void invalidateTicks();

    detail::AxisMap mapOf(ScaleMode mode) const;

    double m_smallest = 1.0;
    double m_largest = 1.0;
    double m_positionScale = 1.0; // Axis positions per decade.
    double m_decades = 1.0;
    double m_positionOffset = 1.0; // The axis position of the value 1.0.

    QVector<Tick> m_majorTicks;
    QVector<Tick> m_minorTicks;
    bool m_ticksInvalid = true;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
