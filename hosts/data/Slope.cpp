#include "hosts/data/Slope.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>
#include <vector>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::backend::SampleVector;

namespace {

PlotSegment slopeOf(const PlotSegment& segment)
{
    const double step = segment.xInfo.scale;
    const auto slopes = boost::make_shared<SampleVector>();
    slopes->reserve(std::size_t(segment.count - 1));
    std::transform(segment.begin + 1, segment.end, segment.begin, std::back_inserter(*slopes),
                   [step](double next, double sample) { return (next - sample) / step; });
    return PlotSegment(slopes, MetaInfo(segment.xInfo.offset + step / 2.0, step));
}

} // namespace

Series slopeOf(const Series& series)
{
    std::vector<PlotSegment> slopes;
    for (const PlotSegment& segment : series.snapshot.segments) {
        if (segment.count > 1)
            slopes.push_back(slopeOf(segment));
    }
    if (slopes.empty())
        throw std::runtime_error(series.name.toStdString() +
                                 ": a slope needs two samples in a row");
    return {series.name, PlotSnapshot(std::move(slopes))};
}

} // namespace hosts::data
