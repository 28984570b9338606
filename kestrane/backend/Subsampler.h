#ifndef KESTRANE_BACKEND_SUBSAMPLER_H
#define KESTRANE_BACKEND_SUBSAMPLER_H

#include "kestrane/backend/OmbrelExport.h"

#include <boost/shared_ptr.hpp>

namespace pelorin {
namespace algo {

/// Answers the value of a run of samples between its samples.
///
/// Threads: an implementation may cache, so that one object serves one thread at a time.
///
/// @code
/// struct Steps : algo::Subsampler // The sample before a place, in place of a spline.
/// {
///     Steps(backend::SampleIterator first) : begin(first) {}
///     double operator[](const double& index) override { return begin[int(index)]; }
///     boost::shared_ptr<Subsampler> tail(long long start) override
///     {
///         return boost::make_shared<Steps>(begin + start);
///     }
///     backend::SampleIterator begin;
/// };
/// const backend::PlotSegment segment(
///     boost::make_shared<backend::SampleVector>(backend::SampleVector{1.0, 2.0, 4.0}));
/// segment.setSubsampler(boost::make_shared<Steps>(segment.begin));
/// (*segment.subsampler())[1.7]; // = 2
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT Subsampler
{
public:
    Subsampler();

    /// The value at the fractional sample index @p index.
    virtual double operator[](const double& index) = 0;

    virtual ~Subsampler();

    /// A new subsampler of the same kind over the samples from index @p start on.
    virtual boost::shared_ptr<Subsampler> tail(long long start) = 0;
};

} // namespace algo
} // namespace pelorin

#endif
