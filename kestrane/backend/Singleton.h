#ifndef KESTRANE_BACKEND_SINGLETON_H
#define KESTRANE_BACKEND_SINGLETON_H

namespace pelorin {
namespace utilities {

/// The way to the one object of a class in a process.
///
/// A class that has such an object declares the specialisation of instance() in its own header
/// and defines it in its own library. No other library holds a copy of that function, so that all
/// of them get the same object, however they were built.
///
/// Threads: instance() may be called from any thread. The object is made at the first call and
/// never destroyed, so that what dies while the process ends can still use it.
///
/// @code
/// auto& quantities = utilities::Singleton<variables::QuantityManager>::instance();
/// quantities.names().contains("time"); // = 1
/// @endcode
///
/// @ingroup backend
template<typename T>
class Singleton
{
public:
    Singleton() = delete;

    static T& instance();
};

} // namespace utilities
} // namespace pelorin

#endif
