#include "hosts/charting/StraightLines.h"

#include <kestrane/backend/InvalidIndexException.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <cstddef>

namespace hosts::charting {

using pelorin::algo::Subsampler;
using pelorin::backend::PlotSegment;
using pelorin::backend::PlotSnapshot;
using pelorin::ui::chart::Axis;
using pelorin::utilities::InvalidIndexException;

namespace {

constexpr double belowTheAxis = -0.02;

} // namespace

StraightLines::StraightLines(const PlotSegment& segment, const QSharedPointer<Axis>& axis)
    : m_segment(segment)
    , m_axis(axis)
{}

double StraightLines::operator[](const double& index)
{
    const double last = double(m_segment.count - 1);
    if (!(index >= 0.0 && index < last))
        throw InvalidIndexException(QStringLiteral("StraightLines"), index, 0.0, last);
    const auto sample = static_cast<long long>(index);
    const double share = index - double(sample);
    const double position = positionOf(sample) * (1.0 - share) + positionOf(sample + 1) * share;
    return m_axis->inverseTransform(m_segment.yScaleMode, position);
}

double StraightLines::positionOf(long long sample) const
{
    const double value = m_segment.begin[std::ptrdiff_t(sample)];
    const double position = m_axis->transform(m_segment.yScaleMode, value);
    return std::isinf(position) ? belowTheAxis : position;
}

boost::shared_ptr<Subsampler> StraightLines::tail(long long start)
{
    const PlotSegment rest(m_segment.begin + std::ptrdiff_t(start), m_segment.end, m_segment.xInfo,
                           m_segment.yScaleMode);
    return boost::make_shared<StraightLines>(rest, m_axis);
}

PlotSnapshot StraightLines::whereTheySuit(const PlotSnapshot& snapshot,
                                          const QSharedPointer<Axis>& axis)
{
    PlotSnapshot joined = snapshot;
    if (axis->scaleMode() == Axis::Logarithmic) {
        for (const PlotSegment& segment : joined.segments)
            segment.setSubsampler(boost::make_shared<StraightLines>(segment, axis));
    }
    return joined;
}

} // namespace hosts::charting
