#ifndef KESTRANE_LIBRARY_DETAIL_WIDEVECTORS_H
#define KESTRANE_LIBRARY_DETAIL_WIDEVECTORS_H

#include <cstddef>
#include <cstdint>

/// Inlined whatever it takes, so that it is compiled for the vectors of the function around it.
#define KESTRANE_ALWAYS_INLINE inline __attribute__((always_inline))

namespace pelorin {
namespace detail {

/// Vectors of so many doubles. Their operators work lane by lane, as do comparisons and the choice
/// by ?: that the compilers turn into the processor's minimum and maximum.
template<std::size_t Width>
struct Vectors
{
    static constexpr std::size_t width = Width;
    typedef double Lanes __attribute__((vector_size(Width * sizeof(double))));
    typedef std::int64_t Mask __attribute__((vector_size(Width * sizeof(double))));
};

#if defined(__x86_64__) && !defined(KESTRANE_PLAIN_VECTORS)

template<typename Work>
__attribute__((target("avx2"), flatten)) void doWide(const Work& work)
{
    work(Vectors<4>());
}

/// Does some work, called with an object of the class Vectors, with the widest vectors that the
/// processor at hand has: all that it calls and inlines is compiled twice and chosen at run time.
/// The width changes no result: each lane does what a single number would do, and fused operations
/// stay out.
template<typename Work>
void withWideVectors(const Work& work)
{
    static const bool isWide = __builtin_cpu_supports("avx2") != 0;
    if (isWide)
        doWide(work);
    else
        work(Vectors<2>());
}

#else

template<typename Work>
void withWideVectors(const Work& work)
{
    work(Vectors<2>());
}

#endif

} // namespace detail
} // namespace pelorin

#endif
