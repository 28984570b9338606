#ifndef BENCHMARKS_TARGETS_SAMPLEREDRAW_H
#define BENCHMARKS_TARGETS_SAMPLEREDRAW_H

#include "benchmarks/targets/Contest.h"

#include <kestrane/backend/Samples.h>
#include <kestrane/plots/SamplePlotAlgorithm.h>

#include <QSharedPointer>

#include <boost/shared_ptr.hpp>

namespace targets {

using Samples = boost::shared_ptr<pelorin::backend::SampleVector>;

/// A sample plot of its own, and the axes it is asked with: samples at 1, 2, 3 and so on, all of
/// them in view.
struct SampleRedraw
{
    QSharedPointer<const pelorin::ui::chart::Axis> xAxis;
    QSharedPointer<const pelorin::ui::chart::Axis> yAxis;
    pelorin::ui::chart::SamplePlotAlgorithm plot;

    explicit SampleRedraw(long long count, bool logX = false, bool logY = false);

    std::pair<QVector<QVector<QPointF>>, QVector<QVector<QPointF>>> operator()();

    /// Hands over a snapshot that no plot has seen.
    void renew(const Samples& samples);
};

/// @name Contestants, which refer to what they are made from
/// @{
Contestant onceNew(SampleRedraw& redraw, const Samples& samples); ///< Of a new snapshot each time.
Contestant again(SampleRedraw& redraw);                           ///< Of the one it has.
Contestant pass(const Samples& samples);                          ///< plainPass().
/// @}

} // namespace targets

#endif
