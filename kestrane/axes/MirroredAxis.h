#ifndef KESTRANE_AXES_MIRROREDAXIS_H
#define KESTRANE_AXES_MIRROREDAXIS_H

#include "kestrane/axes/Axis.h"
#include "kestrane/library/Export.h"

#include <QPointer>

namespace pelorin {
namespace ui {
namespace chart {

/// Another axis, its source, in mirror image: the source's value v stands here as -v, its position
/// p at 1.0 - p. A source of 1 to 100 gives an axis from -100 at position 0.0 to -1 at 1.0.
///
/// With the source behind it in an AggregateAxis it makes one axis of both signs, also of a
/// logarithmic source, which reaches neither 0 nor negative values by itself:
///
///      -100     -10    -1|1      10      100
///        +-------+-------+-------+-------+
///           the mirror       the source
///
/// A gesture here moves the source, which is not owned and may be deleted at any time. Without one
/// all values and positions are 0.0, NaN asked for included, the lists of ticks stay as they were
/// last, and gestures do nothing.
///
/// All operations cost what they cost on the source, except for the ticks, which are kept: they
/// are rebuilt inside the source's ticksUpdated(), before that signal is emitted here, or if that
/// fails, when somebody asks for them. The
/// source's other signals are passed on as they come, with minimum and maximum exchanged;
/// parametersChanged() carries the source and not this axis.
///
/// @code
/// LogAxis positive(0.001, 1.0);
/// MirroredAxis negative(&positive); // -1 to -0.001, follows its source.
/// negative.transform(Axis::Linear, -1.0); // = 0
/// @endcode
///
/// @ingroup axes
class KESTRANE_EXPORT MirroredAxis : public Axis
{
    Q_OBJECT

public:
    /// @param source null for an axis without one
    explicit MirroredAxis(Axis* source, QObject* parent = nullptr);
    ~MirroredAxis() override;

    double minValue() const override;
    double maxValue() const override;

    /// First the joint tick, at position 1.0 with the highest rank of all, 2500.0: its value is
    /// the source's minimum, and unless that is 0.0 the mirrored value is its secondary one. Then
    /// the source's ticks in their order, without those at the place of the tick before.
    QVector<Tick> majorTicks() override;
    QVector<Tick> minorTicks() override;

    /// Both hand on the mode as it is. So for Logarithmic it is the logarithm that changes its
    /// sign, not the value.
    double transform(ScaleMode mode, double value) const override;
    double inverseTransform(ScaleMode mode, double position) const override;

    /// That of the source, as are the next two.
    ScaleMode scaleMode() const override;
    double smallestTickDistance(bool major) const override;

    /// The source's own anchor: it is not mirrored.
    double anchor() const override;

    /// The source's state.
    boost::shared_ptr<const ScrollScaleState> scrollScaleState() const override;

    /// A mirror of a clone of the source, which the new axis owns as its child.
    MirroredAxis* clone() const override;

    /// True if @p other mirrors an axis that equals the source, or if neither has a source.
    bool operator==(const Axis& other) const override;

public Q_SLOTS:
    // Both grip the source at its own place of the position gripped here. The limits are logical
    // values of the source.
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

private Q_SLOTS:
    void onTicksUpdated();

private:
    friend class AggregateAxis; // Looks whether it would hold itself.

    void updateTicks();
    static QVector<Tick> tickHelper(const QVector<Tick>& ticks);
    Tick jointTick() const;

    QPointer<Axis> m_source;
    QVector<Tick> m_majorTicks;
    QVector<Tick> m_minorTicks;
    bool m_ticksStale = false;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
