#ifndef TESTS_PLOTS_PLAINSAMPLEPLOT_H
#define TESTS_PLOTS_PLAINSAMPLEPLOT_H

#include "kestrane/axes/Axis.h"
#include "kestrane/backend/PlotSnapshot.h"

#include "tests/support/Builders.h"

#include <utility>
#include <vector>

namespace tests {

/// The rules of the sample plot and of its spline, written down as plainly as they can be told,
/// with an exception at the end of a curve: the judge of every faster way.
std::pair<std::vector<Points>, std::vector<Points>>
plainSamplePlot(const pelorin::backend::PlotSnapshot& snapshot, const Axis& xAxis,
                const Axis& yAxis, double columnWidth, double symbolSpacing);

} // namespace tests

#endif
