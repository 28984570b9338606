#ifndef KESTRANE_PLOTS_NEEDLEPLOTALGORITHM_H
#define KESTRANE_PLOTS_NEEDLEPLOTALGORITHM_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/PlotSnapshot.h"
#include "kestrane/backend/Samples.h"
#include "kestrane/library/Export.h"

#include <QMutex>

namespace pelorin {
namespace ui {
namespace chart {

/// Turns regularly spaced samples into a stick plot, in axis space: a needle for each sample or,
/// where samples are too dense, one for each column, as high as its largest sample.
///
/// The abscissae of a segment count as plain values, whatever form its xInfo declares.
///
/// Threads: any, one at a time; a call waits for the one before it. The axes are the caller's to
/// keep still during a request.
///
/// @code
/// NeedlePlotAlgorithm plot;
/// plot.setSnapshot(backend::PlotSnapshot({backend::PlotSegment(
///     boost::make_shared<backend::SampleVector>(backend::SampleVector{2.0, 8.0, 4.0}))}));
/// LinearAxis x(1.0), y(1.0);
/// const NeedlePlotAlgorithm::NeedleResult needles = plot.createNeedles(&x, &y, 1.0 / 800);
/// needles.values[1]; // = 0.8
/// @endcode
///
/// @image html sunspots.png
/// @ingroup plots
class KESTRANE_EXPORT NeedlePlotAlgorithm
{
public:
    /// The needles of one segment. A value; a copy has values of its own, and a record that has
    /// been moved from has none.
    struct KESTRANE_EXPORT NeedleResult
    {
        /// A record without needles, with memory for @p capacity of them.
        /// @throws std::length_error for a negative capacity, std::bad_alloc
        NeedleResult(int capacity = 0, double firstPosition = 0.0, double lastPosition = 0.0);

        double firstPosition; ///< Position of the first sample, in x axis space.
        double lastPosition;  ///< Position one step behind the last sample, in x axis space.
        backend::SampleVector values; ///< Each needle's end in y axis space, from left to right.
    };

    NeedlePlotAlgorithm();
    virtual ~NeedlePlotAlgorithm();

    /// Replaces the data.
    void setSnapshot(backend::PlotSnapshot snapshot);

    /// The needles of the first segment for which nothing throws, in axis space.
    ///
    /// Needles are thinned out if
    ///
    ///     columnWidth >= (lastPosition - firstPosition) * step of the segment, in plain values
    ///
    /// and then are the largest sample of each column, compared before it is transformed. The
    /// first column ends at a multiple of the width on the visible axis and holds all samples to
    /// its left. A sample on the right edge of a column still belongs to it; one behind that edge,
    /// or without a position, starts the next column, however far it lies. NaN among others in a
    /// column doesn't count; a column of nothing else is a NaN needle, and so is a segment without
    /// samples. Not thinned out, each sample is a needle, NaN too.
    ///
    /// O(samples), with memory for a needle a sample meanwhile; the result has its exact size.
    ///
    /// @param columnWidth width of a column in x axis space, 1.0 / pixels as a rule. NaN keeps
    ///        every sample.
    /// @return a default-made record for a null axis, for a width of 0.0, both without waiting for
    ///         another request, and if there is no such segment
    NeedleResult createNeedles(const Axis* xAxis, const Axis* yAxis, double columnWidth);

private:
    QMutex m_mutex; // Guards m_snapshot.
    backend::PlotSnapshot m_snapshot;
};

} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
