#include "kestrane/plots/detail/SegmentCurve.h"

#include <boost/make_shared.hpp>

#include <typeinfo>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

SegmentCurve::SegmentCurve(const backend::PlotSegment& segment)
    : m_subsampler(segment.subsampler())
{
    if (!m_subsampler) {
        m_subsampler = boost::make_shared<Spline>(segment.begin, segment.count);
        segment.setSubsampler(m_subsampler);
    }
    algo::Subsampler& subsampler = *m_subsampler;
    m_ownSpline =
        typeid(subsampler) == typeid(Spline) ? static_cast<Spline*>(&subsampler) : nullptr;
}

std::optional<double> SegmentCurve::at(double index) const
{
    if (m_ownSpline && !m_ownSpline->covers(index))
        return std::nullopt;
    return (*this)[index];
}

double SegmentCurve::operator[](double index) const
{
    return (*m_subsampler)[index];
}

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
