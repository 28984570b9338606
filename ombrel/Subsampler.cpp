#include "kestrane/backend/Subsampler.h"

namespace pelorin {
namespace algo {

Subsampler::Subsampler() = default;

Subsampler::~Subsampler() = default;

} // namespace algo
} // namespace pelorin
