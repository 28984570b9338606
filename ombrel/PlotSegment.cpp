#include "kestrane/backend/PlotSegment.h"

#include <utility>

namespace pelorin {
namespace backend {

PlotSegment::PlotSegment(const boost::shared_ptr<SampleVector>& samples, const MetaInfo& xInfo_,
                         ui::chart::Axis::ScaleMode yScaleMode_)
    : PlotSegment(SampleIterator(samples->begin(), samples),
                  SampleIterator(samples->end(), samples), xInfo_, yScaleMode_)
{}

PlotSegment::PlotSegment(const SampleIterator& begin_, const SampleIterator& end_,
                         const MetaInfo& xInfo_, ui::chart::Axis::ScaleMode yScaleMode_)
    : begin(begin_)
    , end(end_)
    , xInfo(xInfo_)
    , yScaleMode(yScaleMode_)
    , count(end_ - begin_)
{}

PlotSegment::PlotSegment(const PlotSegment& other) = default;

PlotSegment& PlotSegment::operator=(const PlotSegment& other) = default;

PlotSegment::~PlotSegment() = default;

boost::shared_ptr<algo::Subsampler> PlotSegment::subsampler() const
{
    return m_subsampler;
}

const PlotSegment& PlotSegment::setSubsampler(boost::shared_ptr<algo::Subsampler> subsampler) const
{
    m_subsampler = std::move(subsampler);
    return *this;
}

} // namespace backend
} // namespace pelorin
