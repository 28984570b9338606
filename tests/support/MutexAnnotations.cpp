// Qt is not built with the thread sanitizer, which therefore cannot see that QMutex orders the
// threads that lock it. These definitions stand in front of Qt's own, tell the sanitizer what a
// lock and an unlock mean, and leave the work to Qt.
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

#endif
