#include "kestrane/plots/RegistryList.h"

#include "kestrane/backend/LazyRWMutex.h"

#include <QList>

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>
#include <tbb/queuing_mutex.h>

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

// The inside of a list. The list owns it, each queued change keeps it, and a registration takes
// hold of it while it dies; so whoever is inside its lock keeps it alive.
template<typename T>
class RegistryList<T>::Soul : public boost::enable_shared_from_this<Soul>
{
public:
    explicit Soul(Registry<T>* owner);
    virtual ~Soul();

    virtual Registration add(const T& item);
    void remove(const boost::shared_ptr<T>& item);
    void visit(const boost::function<void(const T&)>& visitor);
    void disown();

private:
    struct Change
    {
        bool added;
        boost::shared_ptr<T> item;
    };

    // All of these run with no reader in the lock.
    void carryOutAdding(const boost::shared_ptr<T>& item);
    void carryOutRemoval(const boost::shared_ptr<T>& item);
    void flushChanges();

    // Guarded by m_lock. An item is known by its address.
    QList<boost::shared_ptr<T>> m_items;
    QList<boost::shared_ptr<T>> m_removedItems; // Not yet reported,
    QList<Change> m_pendingChanges;             // and likewise.
    LazyRWMutex m_lock;

    Registry<T>* m_owner; // Null once the list has gone. Guarded by m_ownerLock, as is its use.
    tbb::queuing_mutex m_ownerLock;
};

template<typename T>
class RegistryList<T>::RegistrationImpl : public Registration::Impl
{
public:
    ~RegistrationImpl() override;

    void hold(const boost::shared_ptr<Soul>& soul, const boost::shared_ptr<T>& item) noexcept;

private:
    boost::weak_ptr<Soul> m_soul;
    boost::shared_ptr<T> m_item;
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
    const auto self = this->shared_from_this();
    const auto shared = boost::make_shared<T>(item);
    auto impl = std::make_unique<RegistrationImpl>();
    m_lock.pushWriterAction([self, shared] { self->carryOutAdding(shared); });
    // Last of all, so that an exception from above leaves nothing to be removed.
    impl->hold(self, shared);
    return Registration(std::move(impl));
}

template<typename T>
void RegistryList<T>::Soul::remove(const boost::shared_ptr<T>& item)
{
    const auto self = this->shared_from_this();
    m_lock.pushWriterAction([self, item] { self->carryOutRemoval(item); });
}

template<typename T>
void RegistryList<T>::Soul::visit(const boost::function<void(const T&)>& visitor)
{
    const ReadHold hold(m_lock);
    for (const boost::shared_ptr<T>& item : qAsConst(m_items))
        visitor(*item);
}

template<typename T>
void RegistryList<T>::Soul::disown()
{
    const tbb::queuing_mutex::scoped_lock guard(m_ownerLock);
    m_owner = nullptr;
}

template<typename T>
void RegistryList<T>::Soul::carryOutAdding(const boost::shared_ptr<T>& item)
{
    m_items.append(item);
    m_pendingChanges.append({true, item});
}

template<typename T>
void RegistryList<T>::Soul::carryOutRemoval(const boost::shared_ptr<T>& item)
{
    m_removedItems.append(item);
    m_items.removeAll(item);
    m_pendingChanges.append({false, item});
}

// Dropped items die here if nobody else holds them, behind all reports and before the guard. Where
// a hook throws, all changes stay to be reported again.
template<typename T>
void RegistryList<T>::Soul::flushChanges()
{
    const tbb::queuing_mutex::scoped_lock guard(m_ownerLock);
    if (!m_owner)
        return;
    const QList<Change> changes = m_pendingChanges;
    for (const Change& change : changes) {
        if (change.added)
            m_owner->itemAdded(*change.item);
        else
            m_owner->itemRemoved(*change.item);
    }
    m_pendingChanges.clear();
    m_removedItems.clear();
}

template<typename T>
RegistryList<T>::RegistrationImpl::~RegistrationImpl()
{
    if (const auto soul = m_soul.lock())
        soul->remove(m_item);
}

template<typename T>
void RegistryList<T>::RegistrationImpl::hold(const boost::shared_ptr<Soul>& soul,
                                             const boost::shared_ptr<T>& item) noexcept
{
    m_soul = soul;
    m_item = item;
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
