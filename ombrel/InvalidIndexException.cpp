#include "kestrane/backend/InvalidIndexException.h"

namespace pelorin {
namespace utilities {

InvalidIndexException::InvalidIndexException(const InvalidIndexException& other) noexcept = default;

InvalidIndexException&
InvalidIndexException::operator=(const InvalidIndexException& other) noexcept = default;

// Being the first virtual function out of line, it makes the type live in this library alone.
InvalidIndexException::~InvalidIndexException() = default;

} // namespace utilities
} // namespace pelorin
