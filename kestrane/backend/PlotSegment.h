#ifndef KESTRANE_BACKEND_PLOTSEGMENT_H
#define KESTRANE_BACKEND_PLOTSEGMENT_H

#include "kestrane/backend/MetaInfo.h"
#include "kestrane/backend/OmbrelExport.h"
#include "kestrane/backend/Samples.h"
#include "kestrane/backend/Subsampler.h"

#include <boost/shared_ptr.hpp>

namespace pelorin {
namespace backend {

/// One run of samples on a regular grid. It stands alone: nothing joins the last sample of one
/// segment to the first of the next.
///
/// A segment shares its samples; a copy reads the same ones. Nobody writes to a sample that a
/// segment reads.
///
/// Threads: a segment has no lock of its own. A copy has its own place for a subsampler, so that
/// copies can be used on different threads as long as no subsampler has been set before copying.
///
/// @code
/// auto samples = boost::make_shared<backend::SampleVector>(backend::SampleVector{1.0, 2.0, 4.0});
/// const backend::PlotSegment all(samples, backend::MetaInfo(10.0, 0.5)); // x = 10, 10.5, 11
/// const backend::PlotSegment rest(all.begin + 1, all.end, backend::MetaInfo(10.5, 0.5));
/// rest.count; // = 2
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT PlotSegment
{
public:
    /// A segment of all samples of @p samples, which must not be null.
    /// @param xInfo where the samples lie: sample k at k * scale + offset
    /// @param yScaleMode the form in which the sample values are written
    explicit PlotSegment(const boost::shared_ptr<SampleVector>& samples,
                         const MetaInfo& xInfo = MetaInfo(),
                         ui::chart::Axis::ScaleMode yScaleMode = ui::chart::Axis::Linear);

    /// A segment of the samples from @p begin up to, not including, @p end.
    PlotSegment(const SampleIterator& begin, const SampleIterator& end,
                const MetaInfo& xInfo = MetaInfo(),
                ui::chart::Axis::ScaleMode yScaleMode = ui::chart::Axis::Linear);

    /// Reads the same samples and takes over the subsampler that @p other has at this moment.
    PlotSegment(const PlotSegment& other);
    PlotSegment& operator=(const PlotSegment& other);
    ~PlotSegment();

    /// The subsampler last set, or null.
    boost::shared_ptr<algo::Subsampler> subsampler() const;

    /// Keeps @p subsampler for subsampler(), which is derived data: hence const.
    /// @return this segment
    const PlotSegment& setSubsampler(boost::shared_ptr<algo::Subsampler> subsampler) const;

    SampleIterator begin; ///< The first sample.
    SampleIterator end;   ///< One behind the last sample.
    MetaInfo xInfo;
    ui::chart::Axis::ScaleMode yScaleMode;
    long long count; ///< Number of samples, end - begin.

private:
    mutable boost::shared_ptr<algo::Subsampler> m_subsampler;
};

} // namespace backend
} // namespace pelorin

#endif
