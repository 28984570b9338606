#include "hosts/kestrane-chart/SurfacePlot.h"

#include <algorithm>

namespace hosts::chart {

using charting::AxisView;

namespace {

constexpr int pixelsPerColorLabel = 36;

} // namespace

SurfacePlot::SurfacePlot(const Recordings& recordings, const Options& options)
    : Plot({}, options)
    , m_data(SurfaceData::of(recordings, options, wantedXDivisions(), wantedYDivisions()))
{}

double SurfacePlot::pixelSize(const AxisView& axis, int pixels)
{
    return axis.visible() / pixels;
}

int SurfacePlot::wantedColorLabels() const
{
    return std::max(2, options().size.height() / pixelsPerColorLabel);
}

} // namespace hosts::chart
