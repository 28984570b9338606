#ifndef KESTRANE_PLOTS_INTERSECTABLE_H
#define KESTRANE_PLOTS_INTERSECTABLE_H

#include "kestrane/axes/Axis.h"
#include "kestrane/library/Export.h"
#include "kestrane/plots/Intersection.h"
#include "kestrane/plots/RegistryList.h"

#include <QList>

#include <boost/function.hpp>

namespace pelorin {
namespace ui {
namespace chart {

/// A plot that can say where it crosses a vertical line, and that tells whoever wants to know when
/// its answer may have changed. A host's plot classes derive from it.
///
/// Threads: notifyees() and fireUpdates() may be used from any thread while this object lives.
///
/// @code
/// struct Curve : Intersectable
/// {
///     QList<Intersection> doIntersect(const Axis* x, const Axis* y, double at) const override
///     {
///         return plot.doIntersect(x, y, at);
///     }
///     void setSnapshot(const backend::PlotSnapshot& snapshot)
///     {
///         plot.setSnapshot(snapshot);
///         fireUpdates();
///     }
///     SamplePlotAlgorithm plot;
/// };
/// Curve curve;
/// int updates = 0;
/// const auto registration = curve.notifyees().add([&](const Intersectable*) { ++updates; });
/// curve.setSnapshot(backend::PlotSnapshot());
/// updates; // = 1
/// @endcode
///
/// @ingroup plots
class KESTRANE_EXPORT Intersectable
{
public:
    /// What is told that an answer may have changed; the argument is the plot that says so.
    using Notifyee = boost::function<void(const Intersectable*)>;

    /// Those to be told. RegistryList says what may happen on which thread; above all, a callback
    /// that is dropped on one thread may still be running, or be called once more, on another.
    utilities::RegistryList<Notifyee>& notifyees();

    /// The crossings of this plot with the vertical line at @p position, in axis space of
    /// @p xAxis. A plot of samples hands on SamplePlotAlgorithm::doIntersect().
    virtual QList<Intersection> doIntersect(const Axis* xAxis, const Axis* yAxis,
                                            double position) const = 0;

protected:
    Intersectable();
    virtual ~Intersectable() = 0;

    /// Calls every callback, in the order of registration, with this object. What callbacks add
    /// and drop meanwhile counts from the next call on. A callback may call this again, and it may
    /// destroy this object if no callback comes behind it.
    ///
    /// While changes are queued, it waits for them and for the passes of other threads that hold
    /// them up. O(callbacks), plus the changes that are queued meanwhile.
    ///
    /// @throws boost::bad_function_call for an empty callback, and what a callback throws; either
    ///         way the callbacks behind it are not called, and the list is free again;
    ///         std::bad_alloc ahead of all callbacks
    void fireUpdates() const;

private:
    utilities::RegistryList<Notifyee> m_notifyees;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
