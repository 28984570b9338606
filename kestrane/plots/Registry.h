#ifndef KESTRANE_PLOTS_REGISTRY_H
#define KESTRANE_PLOTS_REGISTRY_H

#include "kestrane/backend/Registration.h"
#include "kestrane/library/Export.h"

#include <boost/function.hpp>
#include <boost/noncopyable.hpp>

namespace pelorin {

namespace ui {
namespace chart {
class Intersectable;
} // namespace chart
} // namespace ui

namespace utilities {

template<typename T>
class RegistryList;

/// A place where items can be registered, and which hears of its own changes.
///
/// Instantiated for the callbacks of ui::chart::Intersectable.
///
/// @code
/// struct Counted : utilities::RegistryList<Intersectable::Notifyee>
/// {
///     ~Counted() override { detach(); }
///     void itemAdded(const Intersectable::Notifyee&) override { ++count; }
///     void itemRemoved(const Intersectable::Notifyee&) override { --count; }
///     int count = 0;
/// } listeners;
/// utilities::Registry<Intersectable::Notifyee>& registry = listeners;
/// auto registration = registry.add([](const Intersectable*) {});
/// listeners.count; // = 1
/// registration = utilities::Registration();
/// listeners.count; // = 0
/// @endcode
///
/// @ingroup plots
template<typename T>
class Registry : private boost::noncopyable
{
public:
    virtual ~Registry();

    /// Registers a copy of @p item for as long as the returned handle lives.
    virtual Registration add(const T& item) = 0;

protected:
    /// Called for each item that has been registered, in the order of registration.
    virtual void itemAdded(const T& item) = 0;

    /// Called for each item whose registration has ended, in the order of the ends.
    virtual void itemRemoved(const T& item) = 0;

private:
    friend class RegistryList<T>; // Reports the changes.
};

extern template class KESTRANE_EXPORT
    Registry<boost::function<void(const ui::chart::Intersectable*)>>;

} // namespace utilities
} // namespace pelorin

#endif
