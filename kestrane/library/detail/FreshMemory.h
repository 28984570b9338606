#ifndef KESTRANE_LIBRARY_DETAIL_FRESHMEMORY_H
#define KESTRANE_LIBRARY_DETAIL_FRESHMEMORY_H

#include <cstddef>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

/// Asks for large pages for memory that is about to be written for the first time. Such a write
/// costs as much as many samples' work, once a page. Changes nothing where there is too little
/// memory for one, or the system has none.
void preferLargePages(void* memory, std::size_t size);

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin

#endif
