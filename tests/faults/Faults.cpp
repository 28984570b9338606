#include "tests/faults/Faults.h"

#include <QObject>

#include <dlfcn.h>

#include <cerrno>
#include <cstddef>
#include <new>
#include <utility>

// The definitions below stand in front of those of the C library, of C++, Qt and TBB. Memory itself
// still comes from the C library, or from the address sanitizer.
#if defined(KESTRANE_ADDRESS_SANITIZER)
#define KESTRANE_OWN(function) __interceptor_##function
// It would count what the dynamic linker keeps; memory is counted here.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options()
{
    return "detect_leaks=0";
}
#else
#define KESTRANE_OWN(function) __libc_##function
#endif

extern "C" {
void* KESTRANE_OWN(malloc)(std::size_t size);
void* KESTRANE_OWN(calloc)(std::size_t count, std::size_t size);
void* KESTRANE_OWN(realloc)(void* memory, std::size_t size);
void KESTRANE_OWN(free)(void* memory);
}

namespace tests {

namespace {

bool armed = false;
Fault armedFault = Fault::Memory;
long countdown = 0;
bool happened = false;
long live = 0;
long made = 0;

bool isTurn()
{
    return armed && countdown-- == 0;
}

bool memoryFails()
{
    if (armedFault == Fault::HostCode)
        return false;
    if (isTurn())
        happened = true;
    return armed && happened && (countdown == -1 || armedFault == Fault::MemoryFromThenOn);
}

template<typename Allocate>
void* allocated(const Allocate& allocate)
{
    void* const memory = memoryFails() ? nullptr : allocate();
    ++made;
    if (memory)
        ++live;
    else
        errno = ENOMEM;
    return memory;
}

} // namespace

void armFault(Fault fault, long nth)
{
    armedFault = fault;
    countdown = nth;
    happened = false;
    armed = true;
}

void disarmFault()
{
    armed = false;
}

bool faultHappened()
{
    return happened;
}

void hostCode()
{
    if (armedFault == Fault::HostCode && isTurn()) {
        happened = true;
        throw HostError();
    }
}

long allocations()
{
    return made;
}

long liveAllocations()
{
    return live;
}

} // namespace tests

extern "C" {

__attribute__((visibility("default"))) void* malloc(std::size_t size) noexcept
{
    return tests::allocated([=] { return KESTRANE_OWN(malloc)(size); });
}

__attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size) noexcept
{
    return tests::allocated([=] { return KESTRANE_OWN(calloc)(count, size); });
}

__attribute__((visibility("default"))) void* realloc(void* memory, std::size_t size) noexcept
{
    tests::live -= memory != nullptr;
    void* const result = tests::allocated([=] { return KESTRANE_OWN(realloc)(memory, size); });
    tests::live += memory && !result && size; // Kept as it was.
    return result;
}

__attribute__((visibility("default"))) void free(void* memory) noexcept
{
    tests::live -= memory != nullptr;
    KESTRANE_OWN(free)(memory);
}

__attribute__((visibility("default"))) void* scalable_malloc(std::size_t size)
{
    return malloc(size);
}

__attribute__((visibility("default"))) void scalable_free(void* memory)
{
    free(memory);
}

} // extern "C"

void* operator new(std::size_t size)
{
    if (void* const memory = malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    free(memory);
}

// Qt 5.15 crashes where it finds no memory for a connection.
QMetaObject::Connection QObject::connectImpl(const QObject* sender, void** signal,
                                             const QObject* receiver, void** slot,
                                             QtPrivate::QSlotObjectBase* slotObject,
                                             Qt::ConnectionType type, const int* types,
                                             const QMetaObject* senderMetaObject)
{
    using Connect = decltype(&QObject::connectImpl);
    static const auto qtsOwn = reinterpret_cast<Connect>(
        dlsym(RTLD_NEXT, "_ZN7QObject11connectImplEPKS_PPvS1_S3_PN9QtPrivate15QSlotObjectBaseEN2Qt1"
                         "4ConnectionTypeEPKiPK11QMetaObject"));
    const bool wasArmed = std::exchange(tests::armed, false);
    const auto connection =
        qtsOwn(sender, signal, receiver, slot, slotObject, type, types, senderMetaObject);
    tests::armed = wasArmed;
    return connection;
}
