#ifndef KESTRANE_BACKEND_SAMPLES_H
#define KESTRANE_BACKEND_SAMPLES_H

#include <boost/shared_container_iterator.hpp>
#include <tbb/scalable_allocator.h>

#include <vector>

namespace pelorin {
namespace backend {

/// Measured values, contiguous in memory.
using SampleVector = std::vector<double, tbb::scalable_allocator<double>>;

/// A place in a SampleVector that keeps the vector alive. Iterators compare by place alone.
using SampleIterator = boost::iterators::shared_container_iterator<SampleVector>;

} // namespace backend
} // namespace pelorin

#endif
