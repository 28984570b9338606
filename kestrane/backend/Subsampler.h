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
