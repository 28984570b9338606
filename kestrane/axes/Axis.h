#ifndef KESTRANE_AXES_AXIS_H
#define KESTRANE_AXES_AXIS_H

#include "kestrane/library/Export.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QVector>

#include <boost/shared_ptr.hpp>

#include <limits>
#include <type_traits>

namespace pelorin {
namespace ui {
namespace chart {

/// The mapping between measured values and a line of length 1, with the ticks along it and the
/// gestures that move it. It knows no pixels and draws nothing.
///
/// Two spaces:
///  - logical space holds the measured quantity; the axis covers minValue() to maxValue();
///  - axis space is 0.0 at minValue() and 1.0 at maxValue(), however long the axis is on screen.
///    Positions outside 0.0 to 1.0 are legal and lie outside the visible range.
///
/// Laws, for every axis whose parameters are finite and whose range is not empty:
///  1. transform(m, inverseTransform(m, p)) is p up to rounding, for both modes m, where the
///     value at p can be written in that mode.
///  2. minValue() lies at position 0.0 and maxValue() at 1.0, up to rounding.
///  3. NaN given to transform() or inverseTransform() yields NaN.
///  4. A gesture with a base gives the same result however many intermediate calls were made, as
///     long as no limit stops one of them.
///
/// Nothing here throws or validates by itself: bad numbers travel on as numbers. Where memory for
/// ticks, a state or a clone is short, that call throws std::bad_alloc and the axis stays as it is;
/// setters and gestures take no memory. What a listener throws comes out of the call that emitted
/// the signal, when the change is complete and the signals behind it have been emitted.
///
/// Threads: an axis has no lock and emits its signals from the calling thread. The const
/// operations only read; majorTicks() and minorTicks() may rebuild a cache, so that an axis that
/// is shared between threads has to be guarded by its user.
///
/// @code
/// LinearAxis volts(0.5, -2.5); // Any kind of axis.
/// volts.transform(Axis::Linear, 0.0);        // = 0.5
/// volts.inverseTransform(Axis::Linear, 1.0); // = 2.5
/// const auto base = volts.scrollScaleState(); // A drag by a tenth of the axis to the left.
/// volts.scrollAxis(0.5, 0.1, base);
/// volts.minValue(); // = -2
/// volts.majorTicks().first().rank() >= volts.majorTicks().last().rank(); // = 1
/// @endcode
///
/// @ingroup axes
class KESTRANE_EXPORT Axis : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double minValue READ minValue NOTIFY minValueChanged STORED false DESIGNABLE false)
    Q_PROPERTY(double maxValue READ maxValue NOTIFY maxValueChanged STORED false DESIGNABLE false)
    Q_PROPERTY(ScaleMode scaleMode READ scaleMode CONSTANT)

public:
    /// The kind of an axis, and the form in which a caller writes a value: the value itself
    /// (Linear) or its decimal logarithm (Logarithmic).
    enum ScaleMode { Linear = 1, Logarithmic = 0 };
    Q_ENUM(ScaleMode)

    /// One division mark of an axis. Only its rank can change after construction.
    class KESTRANE_EXPORT Tick
    {
    public:
        /// An invalid tick: both positions 0.0, rank -100.0.
        Tick() = default;

        /// A valid tick.
        /// @param logicalPosition the value that its label shows, in logical space
        /// @param axisPosition its place, in axis space
        /// @param rank importance: the higher comes first
        /// @param secondaryLogicalPositions further values shown at the same place
        /// @param invisible true for a tick that is not to be drawn
        Tick(double logicalPosition, double axisPosition, double rank,
             const QList<double>& secondaryLogicalPositions, bool invisible);

        bool isValid() const { return m_valid; }
        bool isInvisible() const { return m_invisible; }
        double logicalPosition() const { return m_logicalPosition; }
        double axisPosition() const { return m_axisPosition; }
        double rank() const { return m_rank; }
        const QList<double>& secondaryLogicalPositions() const
        {
            return m_secondaryLogicalPositions;
        }

        void setRank(double rank) { m_rank = rank; }

        /// True when both ticks are valid and their axis positions are equal as doubles; nothing
        /// else counts. So an invalid tick equals nothing, itself included.
        bool operator==(const Tick& other) const;

    private:
        bool m_valid = false;
        bool m_invisible = false;
        double m_logicalPosition = 0.0;
        double m_axisPosition = 0.0;
        double m_rank = -100.0;
        QList<double> m_secondaryLogicalPositions;
    };

    /// All that a gesture needs to know of the axis it began on. Each kind of axis has its own,
    /// seen by nobody else.
    class KESTRANE_EXPORT ScrollScaleState
    {
    public:
        virtual ~ScrollScaleState() = 0;
    };

    /// The logical value at axis position 0.0.
    virtual double minValue() const = 0;

    /// The logical value at axis position 1.0.
    virtual double maxValue() const = 0;

    /// The major ticks, highest rank first. May rebuild a cache.
    virtual QVector<Tick> majorTicks() = 0;

    /// The minor ticks, highest rank first. May rebuild a cache.
    virtual QVector<Tick> minorTicks() = 0;

    /// The axis position of a value, which may lie outside 0.0 to 1.0.
    /// @param mode the form in which @p value is written
    virtual double transform(ScaleMode mode, double value) const = 0;

    /// The value at an axis position, written in the form @p mode.
    virtual double inverseTransform(ScaleMode mode, double position) const = 0;

    /// The kind of this axis.
    virtual ScaleMode scaleMode() const = 0;

    /// The logical distance of neighbouring major ticks (@p major true) or minor ticks.
    virtual double smallestTickDistance(bool major) const = 0;

    /// The axis position that this axis treats as its reference point.
    virtual double anchor() const = 0;

    /// A snapshot to hand back as @c base to scrollAxis() and scaleAxis() while a gesture lasts.
    virtual boost::shared_ptr<const ScrollScaleState> scrollScaleState() const = 0;

    /// A new axis of the same class and parameters, without a parent; the caller owns it.
    virtual Axis* clone() const = 0;

    /// True for the same kind of axis with the same parameters; each class says which.
    virtual bool operator==(const Axis& other) const = 0;

    /// The negation of operator==().
    virtual bool operator!=(const Axis& other) const;

Q_SIGNALS:
    /// Anything that changes the mapping or the ticks has changed; the argument is this axis.
    void parametersChanged(pelorin::ui::chart::Axis*);

    void minValueChanged(double minVal);
    void maxValueChanged(double maxVal);

    /// Tick lists read so far are out of date. Emitted at invalidation, not at the rebuild.
    void ticksUpdated();

    /// A gesture really changed the axis; the last signal of that gesture call.
    void axisChangedViaScalingOrScrolling();

public Q_SLOTS:
    /// Moves the visible range.
    /// @param at axis position at which the gesture grips the axis
    /// @param by distance that the grip has moved, in axis space, positive towards position 0.0;
    ///        a positive distance moves the visible range towards larger values
    /// @param base the state when the gesture began, from which @p at and @p by count; null, or
    ///        the state of another class of axis, stands for the present state
    /// @param bottomLimit smallest logical value that the axis may show
    /// @param topLimit largest logical value that the axis may show
    /// @param pixelSize size of one pixel in axis space
    virtual void scrollAxis(double at, double by,
                            const boost::shared_ptr<const ScrollScaleState>& base =
                                boost::shared_ptr<const ScrollScaleState>(),
                            double bottomLimit = std::numeric_limits<double>::lowest(),
                            double topLimit = std::numeric_limits<double>::max(),
                            double pixelSize = 1e-18) = 0;

    /// Changes the size of the visible range. The arguments are those of scrollAxis();
    /// @p pixelSize is the smallest length of the dragged span.
    virtual void scaleAxis(double at, double by,
                           const boost::shared_ptr<const ScrollScaleState>& base =
                               boost::shared_ptr<const ScrollScaleState>(),
                           double bottomLimit = std::numeric_limits<double>::lowest(),
                           double topLimit = std::numeric_limits<double>::max(),
                           double pixelSize = 1e-18) = 0;

    /// Tells listeners to read the axis again: emits parametersChanged() and nothing else.
    virtual void update();

protected Q_SLOTS:
    void emitParametersChanged();

    /// Emits minValueChanged(), then parametersChanged() if @p withParamChange is true.
    void emitMinValChanged(bool withParamChange = true);

    /// Emits maxValueChanged(), then parametersChanged() if @p withParamChange is true.
    void emitMaxValChanged(bool withParamChange = true);

protected:
    explicit Axis(QObject* parent);

    /// Ranks ticks that stand in ascending order of position and sorts them, highest rank first.
    ///
    /// The ends of the list come first, then its middle, its quarter points and so on, so that a
    /// host that labels ticks in rank order spreads the labels evenly whatever room it has. A
    /// tick whose rank is not 0.0 keeps it. Major ticks get 1500.0 more, which puts each of them
    /// above every minor tick. O(n log n) for n ticks.
    void updateRanking(QVector<Tick>& ticks, bool isMajor);
};

#if __cplusplus >= 202002L
/// The comparisons above for axes of any two classes. Since C++20 takes a comparison the other way
/// round too, it could not choose between those of two classes.
template<typename A, typename B>
std::enable_if_t<std::is_base_of_v<Axis, A> && std::is_base_of_v<Axis, B>, bool>
operator==(const A& axis, const B& other)
{
    return axis.operator==(static_cast<const Axis&>(other));
}

template<typename A, typename B>
std::enable_if_t<std::is_base_of_v<Axis, A> && std::is_base_of_v<Axis, B>, bool>
operator!=(const A& axis, const B& other)
{
    return axis.operator!=(static_cast<const Axis&>(other));
}
#endif

} // namespace chart
} // namespace ui
} // namespace pelorin

/// Lets the base of a gesture travel in QVariant and through queued connections.
Q_DECLARE_METATYPE(boost::shared_ptr<const pelorin::ui::chart::Axis::ScrollScaleState>)

#endif
