#ifndef KESTRANE_PLOTS_REGISTRYLIST_H
#define KESTRANE_PLOTS_REGISTRYLIST_H

#include "kestrane/plots/Registry.h"

#include <boost/shared_ptr.hpp>

namespace pelorin {
namespace utilities {

/// A list of callbacks that any thread may add to and drop from at any time, also from inside a
/// callback that is running.
///
/// Nobody who adds or drops waits for a pass over the list. A change that comes during a pass, of
/// whatever thread, is queued, and is carried out by the thread that ends the last pass; one that
/// comes otherwise is carried out at once.
///
/// What this means for a callback:
///  1. It is called by every pass that begins after add() has returned and ends before its
///     Registration begins to die, and by none that begins after the Registration has died. A pass
///     that the same thread begins inside another one, or inside a hook, calls what was in the
///     list there.
///  2. A pass calls in the order of registration, and it calls all that were in the list when it
///     began: one that is added during the pass has to wait for the next one, and one that is
///     dropped during the pass is still called if its turn comes later.
///  3. A callback that is dropped on one thread may still be running, or be called once more, on
///     another thread. Who drops one must not destroy right away what it uses: let the callback
///     own that. Two threads may run one callback at the same time.
///  4. Each call of add() is a registration of its own, also with an equal callback.
///  5. Registrations and the list may die in either order, on any threads. What is dropped after
///     the death of the list has no effect. A callback must not own the list, which would have to
///     wait for itself when both die: let it hold a weak pointer to its plot.
///
/// A derived list may override itemAdded() and itemRemoved(). They are called when changes have
/// been carried out, one at a time, oldest first, on the thread that carried them out. They, and
/// the destructors of dropped callbacks, may add, drop and visit, which adds and drops for later;
/// they must not destroy the list. A hook should not throw: what it throws reaches nobody, and
/// all changes of its batch are reported again with the next one.
///
/// A thread in a callback, a hook or such a destructor must not wait for another one that begins a
/// pass.
///
/// add() costs O(1), the end of a registration O(callbacks). Where there is no memory for that end,
/// it is made up for with the next change or ahead of the next pass: law 1 holds all the same, but
/// the callback and its report go only then.
///
/// Instantiated for the callbacks of ui::chart::Intersectable.
///
/// @code
/// utilities::RegistryList<Intersectable::Notifyee> list;
/// {
///     const auto registration = list.add([](const Intersectable*) {});
/// } // Taken back here.
/// @endcode
///
/// @ingroup plots
template<typename T>
class RegistryList : public Registry<T>
{
public:
    RegistryList();

    /// Waits for hooks that are running.
    ~RegistryList() override;

    /// Registers a copy of @p item, made before this returns, behind all the others.
    /// @return the handle with which the registration ends
    /// @throws std::bad_alloc and what copying the item throws; then nothing is registered
    Registration add(const T& item) override;

protected:
    /// Does nothing.
    void itemAdded(const T& item) override;

    /// Does nothing.
    void itemRemoved(const T& item) override;

    /// One pass over the list: hands the items to @p visitor, oldest first. Visits may be nested.
    /// What @p visitor throws ends the pass. Throws std::bad_alloc ahead of it.
    void visit(const boost::function<void(const T&)>& visitor) const;

    /// Ends the calls of the hooks, after waiting for those that are running. The destructor of a
    /// derived list with hooks begins with it, since other threads may still drop items.
    void detach();

private:
    class Q_DECL_HIDDEN Soul;
    class Q_DECL_HIDDEN RegistrationImpl;
    friend class ui::chart::Intersectable; // Fires.

    boost::shared_ptr<Soul> m_soul;
};

extern template class KESTRANE_EXPORT
    RegistryList<boost::function<void(const ui::chart::Intersectable*)>>;

} // namespace utilities
} // namespace pelorin

#endif
