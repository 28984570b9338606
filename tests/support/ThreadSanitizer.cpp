// Qt and TBB are not built with the thread sanitizer, which therefore cannot see that QMutex orders
// the threads that lock it, nor that an allocator orders those that free memory and get it again.
// These definitions stand in front of theirs. They tell the sanitizer what a lock and an unlock
// mean, and leave the work to Qt; memory comes from an allocator that the sanitizer knows.
#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KESTRANE_THREAD_SANITIZER
#endif
#endif
#if defined(__SANITIZE_THREAD__)
#define KESTRANE_THREAD_SANITIZER
#endif

#if defined(KESTRANE_THREAD_SANITIZER)

#include <QMutex>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <cstdlib>

namespace {

using Operation = void (*)(QMutex*);

Operation qtsOwn(const char* symbol)
{
    return reinterpret_cast<Operation>(dlsym(RTLD_NEXT, symbol));
}

} // namespace

void QMutex::lock() noexcept
{
    static const Operation own = qtsOwn("_ZN6QMutex4lockEv");
    own(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static const Operation own = qtsOwn("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    own(this);
}

extern "C" {

// Who drops the last object of a thread that has ended drops what Qt keeps of that thread, by a
// count whose order the sanitizer cannot see either.
__attribute__((visibility("default"))) const char* __tsan_default_suppressions()
{
    return "race:QWaitCondition::~QWaitCondition\n";
}

__attribute__((visibility("default"))) void* scalable_malloc(std::size_t size)
{
    return std::malloc(size);
}

__attribute__((visibility("default"))) void scalable_free(void* memory)
{
    std::free(memory);
}

} // extern "C"

#endif
