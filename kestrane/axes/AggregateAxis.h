#ifndef KESTRANE_AXES_AGGREGATEAXIS_H
#define KESTRANE_AXES_AGGREGATEAXIS_H

#include "kestrane/axes/Axis.h"
#include "kestrane/library/Export.h"

#include <QMetaObject>
#include <QPointer>

#include <cmath>
#include <map>
#include <vector>

namespace pelorin {
namespace ui {
namespace chart {

/// Several axes laid end to end to make one. Each sub-axis has a stretch of this axis, from and to
/// in axis space; a value or position goes to the sub-axis in charge, and its answer is mapped onto
/// the stretch:
///
///     position(v) = (to - from) * sub.position(v) + from
///     value(p)    = sub.value((p - from) / (to - from))
///
/// In charge of a position is the sub-axis with the last start at or below it, in charge of a value
/// the one with the last minimum at or below it; where there is none, the first one; NaN goes to
/// the last. The upper side has a boundary. Whether the answer lies in the stretch is not looked
/// at. Of two sub-axes with the same minimum, values reach only the one that reported it last. A
/// mirrored axis reports as its source, so that its own minimum counts as it was when it was added.
///
/// minValue() is that of the first sub-axis, maxValue() that of the last. A gesture moves only the
/// sub-axis whose stretch, from inclusive and to exclusive, it grips.
///
/// Sub-axes are not owned and may be deleted at any time: what falls to a deleted one is NaN,
/// gestures and ticks pass it over, and no signal tells of it. Stretches are taken as they are;
/// they should be in order and not overlap.
///
/// Signals of the sub-axes are passed on as they come; minValueChanged() and maxValueChanged()
/// carry the limits of this axis, changed or not, and parametersChanged() this axis. transform()
/// and inverseTransform() cost O(log n) for n sub-axes and one call; ticks are merged at each call,
/// in O(t log t) for t ticks.
///
/// @code
/// LogAxis positive(0.001, 10.0);
/// MirroredAxis negative(&positive);
/// AggregateAxis bipolar; // Both signs over four decades, which meet in the middle.
/// bipolar.addAxis(&negative, 0.0, 0.5).addAxis(&positive, 0.5, 1.0);
/// bipolar.transform(Axis::Linear, 0.1);  // = 0.75
/// bipolar.transform(Axis::Linear, -0.1); // = 0.25
/// @endcode
///
/// @image html bipolar.png
/// @ingroup axes
class KESTRANE_EXPORT AggregateAxis : public Axis
{
    Q_OBJECT

public:
    explicit AggregateAxis(QObject* parent = nullptr);
    ~AggregateAxis() override;

    /// Gives @p axis the stretch from @p from to @p to; null changes nothing, nor does this axis
    /// itself or one that is made of it, which would have no end. A sub-axis that starts at the
    /// same place is replaced, but its signals are still passed on.
    ///
    /// Emits minValueChanged(), maxValueChanged(), parametersChanged() and ticksUpdated().
    /// @return this axis, for chaining
    /// @throws std::bad_alloc and what minValue() of @p axis throws, with nothing changed
    AggregateAxis& addAxis(Axis* axis, double from, double to);

    /// Takes @p axis out, wherever it stands; null takes out all that were deleted.
    ///
    /// Emits minValueChanged(), maxValueChanged() and parametersChanged(), whatever it found.
    /// @return this axis, for chaining
    AggregateAxis& removeAxis(Axis* axis);

    /// Takes all out, and emits what removeAxis() does.
    AggregateAxis& removeAllAxes();

    /// NaN if there is no sub-axis or the first was deleted.
    double minValue() const override;

    /// NaN if there is no sub-axis or the last was deleted.
    double maxValue() const override;

    /// The ticks of all sub-axes that lie in their stretches, ends included, highest rank first.
    /// Where two stretches meet there may be a tick of both.
    QVector<Tick> majorTicks() override;
    QVector<Tick> minorTicks() override;

    double transform(ScaleMode mode, double value) const override;
    double inverseTransform(ScaleMode mode, double position) const override;

    /// That of the first sub-axis; Linear if there is none.
    ScaleMode scaleMode() const override;

    /// That of the first sub-axis times the size of its stretch; 0.0 if there is none.
    double smallestTickDistance(bool major) const override;

    /// What setAnchor() was given, at first 0.5. Nothing in this axis depends on it.
    double anchor() const override;

    boost::shared_ptr<const ScrollScaleState> scrollScaleState() const override;

    /// An aggregate of clones of the sub-axes, which the new axis owns as its children. Deleted
    /// ones are left out, and the anchor is 0.5 again.
    AggregateAxis* clone() const override;

    /// True if @p other is made of the very same sub-axes on the same stretches; so never for a
    /// clone, unless it is empty.
    bool operator==(const Axis& other) const override;

public Q_SLOTS:
    void scrollAxis(double at, double by,
                    const boost::shared_ptr<const ScrollScaleState>& base =
                        boost::shared_ptr<const ScrollScaleState>(),
                    double bottomLimit = std::numeric_limits<double>::lowest(),
                    double topLimit = std::numeric_limits<double>::max(),
                    double pixelSize = 1e-18) override;
    void scaleAxis(double at, double by,
                   const boost::shared_ptr<const ScrollScaleState>& base =
                       boost::shared_ptr<const ScrollScaleState>(),
                   double bottomLimit = std::numeric_limits<double>::lowest(),
                   double topLimit = std::numeric_limits<double>::max(),
                   double pixelSize = 1e-18) override;

    /// Stores the anchor, and tells nobody.
    void setAnchor(double anchor);

private Q_SLOTS:
    // Files the sub-axis under its present minimum.
    void updateReverseMap(Axis* axis);

private:
    // A stretch and who fills it. The connections live as long as it does.
    struct SubAxisEntry
    {
        SubAxisEntry() = default;
        SubAxisEntry(const SubAxisEntry&) = delete;
        SubAxisEntry& operator=(const SubAxisEntry&) = delete;
        ~SubAxisEntry();

        void replaceBy(SubAxisEntry& other) noexcept;
        double toWhole(double position) const; // From the sub-axis's space to this axis's.

        QPointer<Axis> axis;
        double from = 0.0;
        double to = 0.0;
        std::vector<QMetaObject::Connection> connections;
    };

    // NaN comes first and equals itself: an aggregate that is empty has no other minimum, and
    // within another one it must not upset the order of the rest.
    struct KeyOrder
    {
        bool operator()(double a, double b) const
        {
            return a < b || (std::isnan(a) && !std::isnan(b));
        }
    };

    using Gesture = void (Axis::*)(double, double, const boost::shared_ptr<const ScrollScaleState>&,
                                   double, double, double);
    template<typename Value>
    using Map = std::map<double, Value, KeyOrder>;
    struct AggregateScrollScaleState;

    bool isPartOf(const Axis* axis) const;
    void connectTo(SubAxisEntry& entry);
    void emitLimitsAndParameters();
    QVector<Tick> handleTicks(bool major) const;
    void grip(Gesture gesture, double at, double by,
              const boost::shared_ptr<const ScrollScaleState>& base, double bottomLimit,
              double topLimit, double pixelSize);

    Map<SubAxisEntry> m_subAxes;     // By the start of the stretch.
    Map<SubAxisEntry*> m_reverseMap; // By the minimum as last seen.
    double m_anchor = 0.5;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
