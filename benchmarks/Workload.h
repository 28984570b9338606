#ifndef BENCHMARKS_WORKLOAD_H
#define BENCHMARKS_WORKLOAD_H

#include <kestrane/axes/Axis.h>
#include <kestrane/backend/PlotSnapshot.h>

#include <QSharedPointer>

#include <boost/shared_ptr.hpp>

namespace benchmarks {

constexpr double columnWidth = 1.0 / 1000;
constexpr double symbolSpacing = 8.0;

/// A sine with noise on it, the same in each run; the last @p count is kept for the next call.
boost::shared_ptr<pelorin::backend::SampleVector> samples(long long count);

/// One segment of samples(), sample k at k.
pelorin::backend::PlotSnapshot snapshot(long long count);

/// An axis from @p from to @p from + @p length in 10 divisions.
QSharedPointer<const pelorin::ui::chart::Axis> linearAxis(double length, double from = 0.0);

/// Seconds of the fastest of several plain passes over the samples: what no algorithm that looks
/// at each of them can beat. The yardstick of all ratios.
double secondsOfPlainPass(const pelorin::backend::SampleVector& samples);

} // namespace benchmarks

#endif
