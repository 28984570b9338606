#include "kestrane/plots/RegistryList.h"

#include "kestrane/backend/LazyRWMutex.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>
#include <tbb/queuing_mutex.h>

#include <algorithm>
#include <atomic>
#include <list>
#include <memory>
#include <mutex>
#include <utility>

namespace pelorin {
namespace utilities {

namespace {

class ReadHold
{
public:
    explicit ReadHold(LazyRWMutex& lock)
        : m_lock(lock)
    {
        m_lock.lockForRead();
    }
    ReadHold(const ReadHold&) = delete;
    ReadHold& operator=(const ReadHold&) = delete;
    ~ReadHold() { m_lock.unlockForRead(); }

private:
    LazyRWMutex& m_lock;
};

} // namespace

// The inside of a list. The list owns it, each action in the lock keeps it, and a registration
// takes hold of it while it dies; so whoever is inside its lock keeps it alive.
//
// add() takes all the memory that a registration will ever need, as nodes of lists; from then on
// these only move. What may still be missing is memory for the action that carries out a removal:
// then the removal waits in the queue for the next action, and a pass sees to it that there is one.
template<typename T>
class RegistryList<T>::Soul : public boost::enable_shared_from_this<Soul>
{
public:
    explicit Soul(Registry<T>* owner);
    virtual ~Soul();

    virtual Registration add(const T& item);
    void visit(const boost::function<void(const T&)>& visitor);
    void disown();

    using Items = std::list<boost::shared_ptr<T>>;
    struct Change
    {
        bool isAddition;
        boost::shared_ptr<T> item;
        Items place; // Of an addition, until it is carried out.
    };
    using Changes = std::list<Change>;

    void remove(Changes& removal) noexcept; // One of them.

private:
    void queue(Changes& change) noexcept;
    bool takeBack(const boost::shared_ptr<T>& added) noexcept;
    void pushAction();

    // Both run with no reader in the lock.
    void carryOutQueued();
    void flushChanges();

    std::mutex m_queueLock; // Held for a moment only.
    Changes m_queued;       // Guarded by m_queueLock.
    std::atomic<bool> m_isActionMissing{false};

    // Guarded by m_lock. An item is known by its address.
    Items m_items;
    Changes m_pendingChanges; // Carried out and not yet reported.
    LazyRWMutex m_lock;

    Registry<T>* m_owner; // Null once the list has gone. Guarded by m_ownerLock, as is its use.
    tbb::queuing_mutex m_ownerLock;
};

template<typename T>
class RegistryList<T>::RegistrationImpl : public Registration::Impl
{
public:
    ~RegistrationImpl() override;

    explicit RegistrationImpl(const boost::shared_ptr<T>& item)
        : m_removal{{false, item, {}}}
    {}

    void hold(const boost::shared_ptr<Soul>& soul) noexcept { m_soul = soul; }

private:
    boost::weak_ptr<Soul> m_soul;
    typename Soul::Changes m_removal;
};

template<typename T>
RegistryList<T>::Soul::Soul(Registry<T>* owner)
    : m_lock(LazyRWMutex::_noop, [this] { flushChanges(); })
    , m_owner(owner)
{}

template<typename T>
RegistryList<T>::Soul::~Soul() = default;

template<typename T>
Registration RegistryList<T>::Soul::add(const T& item)
{
    const auto shared = boost::make_shared<T>(item);
    auto impl = std::make_unique<RegistrationImpl>(shared);
    Changes adding{{true, shared, {shared}}};
    queue(adding);
    try {
        pushAction();
    } catch (...) {
        if (takeBack(shared)) // Unless another action has carried it out.
            throw;
    }
    // Last of all, so that an exception from above leaves nothing to be removed.
    impl->hold(this->shared_from_this());
    return Registration(std::move(impl));
}

template<typename T>
void RegistryList<T>::Soul::remove(Changes& removal) noexcept
{
    queue(removal);
    try {
        pushAction();
    } catch (...) {
        m_isActionMissing = true;
    }
}

template<typename T>
void RegistryList<T>::Soul::queue(Changes& change) noexcept
{
    const std::lock_guard<std::mutex> guard(m_queueLock);
    m_queued.splice(m_queued.end(), change);
}

template<typename T>
bool RegistryList<T>::Soul::takeBack(const boost::shared_ptr<T>& added) noexcept
{
    Changes taken; // Goes after the guard, since foreign code may go with it.
    const std::lock_guard<std::mutex> guard(m_queueLock);
    const auto found = std::find_if(m_queued.begin(), m_queued.end(),
                                    [&](const Change& change) { return change.item == added; });
    if (found != m_queued.end())
        taken.splice(taken.end(), m_queued, found);
    return !taken.empty();
}

template<typename T>
void RegistryList<T>::Soul::pushAction()
{
    m_lock.pushWriterAction([self = this->shared_from_this()] { self->carryOutQueued(); });
}

template<typename T>
void RegistryList<T>::Soul::visit(const boost::function<void(const T&)>& visitor)
{
    if (m_isActionMissing)
        pushAction();
    const ReadHold hold(m_lock);
    for (const boost::shared_ptr<T>& item : m_items)
        visitor(*item);
}

template<typename T>
void RegistryList<T>::Soul::disown()
{
    const tbb::queuing_mutex::scoped_lock guard(m_ownerLock);
    m_owner = nullptr;
}

template<typename T>
void RegistryList<T>::Soul::carryOutQueued()
{
    Changes changes;
    {
        const std::lock_guard<std::mutex> guard(m_queueLock);
        changes.swap(m_queued);
        m_isActionMissing = false;
    }
    for (Change& change : changes) {
        if (change.isAddition)
            m_items.splice(m_items.end(), change.place);
        else
            m_items.remove(change.item);
    }
    m_pendingChanges.splice(m_pendingChanges.end(), changes);
}

// Dropped items die here if nobody else holds them, behind all reports and before the guard. Where
// a hook throws, all changes stay to be reported again.
template<typename T>
void RegistryList<T>::Soul::flushChanges()
{
    const tbb::queuing_mutex::scoped_lock guard(m_ownerLock);
    if (!m_owner)
        return;
    for (const Change& change : m_pendingChanges) {
        if (change.isAddition)
            m_owner->itemAdded(*change.item);
        else
            m_owner->itemRemoved(*change.item);
    }
    m_pendingChanges.clear();
}

template<typename T>
RegistryList<T>::RegistrationImpl::~RegistrationImpl()
{
    const boost::shared_ptr<T> item = m_removal.front().item; // Goes last of all.
    if (const auto soul = m_soul.lock())
        soul->remove(m_removal);
}

template<typename T>
Registry<T>::~Registry() = default;

template<typename T>
RegistryList<T>::RegistryList()
    : m_soul(boost::make_shared<Soul>(this))
{}

template<typename T>
RegistryList<T>::~RegistryList()
{
    detach();
}

template<typename T>
Registration RegistryList<T>::add(const T& item)
{
    return m_soul->add(item);
}

template<typename T>
void RegistryList<T>::itemAdded(const T&)
{}

template<typename T>
void RegistryList<T>::itemRemoved(const T&)
{}

template<typename T>
void RegistryList<T>::visit(const boost::function<void(const T&)>& visitor) const
{
    const auto soul = m_soul; // The visitor may destroy this list.
    soul->visit(visitor);
}

template<typename T>
void RegistryList<T>::detach()
{
    m_soul->disown();
}

template class Registry<boost::function<void(const ui::chart::Intersectable*)>>;
template class RegistryList<boost::function<void(const ui::chart::Intersectable*)>>;

} // namespace utilities
} // namespace pelorin
