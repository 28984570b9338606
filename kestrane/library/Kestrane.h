#ifndef KESTRANE_LIBRARY_KESTRANE_H
#define KESTRANE_LIBRARY_KESTRANE_H

#include "kestrane/library/Export.h"

#include <atomic>

/// The library as a whole. A host calls initialize() where it starts and deinitialize() when it is
/// done; the calls come in pairs, may be nested, and may come from any thread.
///
/// What needs it are queued connections and QVariant with the library's own types, which the first
/// user registers with Qt's meta-type system: Axis::ScaleMode, the base of a gesture and ColorMap.
/// All else works without it. They stay registered. Another thread that calls initialize() at the
/// same moment doesn't wait for that.
///
/// @code
/// Kestrane::initialize(); // At the start of the program, or of a plug-in.
/// // Axes, plots, requests.
/// Kestrane::deinitialize();
/// @endcode
///
/// @ingroup library
class KESTRANE_EXPORT Kestrane
{
public:
    static void initialize();

    /// Without a matching initialize() the count of users wraps around; it is not guarded.
    static void deinitialize();

    /// Makes the meta-types known to Qt, under the names by which QMetaType::type() finds them.
    /// Called by initialize(); a second call changes nothing.
    static void registerMetaTypes();

private:
    static std::atomic<unsigned int> _initCount;
};

#endif
