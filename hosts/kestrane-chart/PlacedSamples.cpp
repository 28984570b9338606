#include "hosts/kestrane-chart/PlacedSamples.h"

#include <kestrane/axes/FixedPositionLinearAxis.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace hosts::chart {

using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleVector;
using pelorin::ui::chart::Axis;
using pelorin::ui::chart::FixedPositionLinearAxis;

namespace {

constexpr double belowTheAxis = -0.02;

PlotSegment placedOn(const Axis& yAxis, const PlotSegment& segment)
{
    const auto positions = boost::make_shared<SampleVector>();
    positions->reserve(std::size_t(segment.count));
    std::transform(segment.begin, segment.end, std::back_inserter(*positions), [&](double sample) {
        const double position = yAxis.transform(segment.yScaleMode, sample);
        return std::isinf(position) ? belowTheAxis : position;
    });
    return PlotSegment(positions, segment.xInfo);
}

} // namespace

PlacedSamples PlacedSamples::of(const PlotSnapshot& snapshot, const QSharedPointer<Axis>& yAxis)
{
    if (yAxis->scaleMode() == Axis::Linear)
        return {snapshot, yAxis};
    std::vector<PlotSegment> segments;
    for (const PlotSegment& segment : snapshot.segments)
        segments.push_back(placedOn(*yAxis, segment));
    const auto unitAxis = QSharedPointer<FixedPositionLinearAxis>::create(1.0, 0.0, 0.0, false, 1);
    return {PlotSnapshot(std::move(segments)), unitAxis};
}

} // namespace hosts::chart
