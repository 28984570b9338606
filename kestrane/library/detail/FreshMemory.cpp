#include "kestrane/library/detail/FreshMemory.h"

#ifdef __linux__
#include <sys/mman.h>
#endif

#include <cstdint>

namespace pelorin {
namespace ui {
namespace chart {
namespace detail {

#if defined(__linux__) && defined(MADV_HUGEPAGE)

void preferLargePages(void* memory, std::size_t size)
{
    constexpr std::uintptr_t largePage = 2u << 20;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t first = (begin + largePage - 1) / largePage * largePage;
    const std::uintptr_t last = (begin + size) / largePage * largePage;
    if (first < last)
        madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
}

#else

void preferLargePages(void*, std::size_t) {}

#endif

} // namespace detail
} // namespace chart
} // namespace ui
} // namespace pelorin
