#include "kestrane/backend/LazyRWMutex.h"

#include <QtGlobal>

#include <algorithm>
#include <exception>
#include <iterator>

namespace pelorin {
namespace utilities {

namespace {

void runReportingExceptions(const boost::function<void()>& action)
{
    try {
        action();
    } catch (const std::exception& error) {
        qWarning("LazyRWMutex: an exception ends here: %s", error.what());
    } catch (...) {
        qWarning("LazyRWMutex: an exception of unknown type ends here");
    }
}

} // namespace

const boost::function<void()> LazyRWMutex::_noop = [] {};

LazyRWMutex::LazyRWMutex(const boost::function<void()>& before,
                         const boost::function<void()>& after)
    : m_before(before)
    , m_after(after)
{}

LazyRWMutex::~LazyRWMutex()
{
    Q_ASSERT(m_readers.empty() && m_waiting.empty() && m_actions.empty());
}

void LazyRWMutex::lockForRead()
{
    std::unique_lock<std::mutex> guard(m_mutex);
    const auto own = findReader();
    if (own != m_readers.end()) {
        ++own->depth;
        return;
    }

    const auto self = std::this_thread::get_id();
    const bool isIdle = m_worker == std::thread::id() && m_actions.empty();
    if (isIdle || m_worker == self) {
        m_readers.push_back({self, m_pushedCount, 1});
        return;
    }

    const auto waiting = m_waiting.insert(m_waiting.end(), {self, m_pushedCount, 0});
    m_admitted.wait(guard, [waiting] { return waiting->depth > 0; });
}

void LazyRWMutex::unlockForRead()
{
    std::unique_lock<std::mutex> guard(m_mutex);
    const auto own = findReader();
    Q_ASSERT(own != m_readers.end());
    if (--own->depth > 0)
        return;
    m_readers.erase(own);
    carryOutBatches(guard);
}

void LazyRWMutex::pushWriterAction(const boost::function<void()>& action)
{
    Actions pushed(1, action); // A copy is foreign code: made, and free to throw, before the lock.
    std::unique_lock<std::mutex> guard(m_mutex);
    m_actions.splice(m_actions.end(), pushed);
    ++m_pushedCount;
    carryOutBatches(guard);
}

LazyRWMutex::Readers::iterator LazyRWMutex::findReader()
{
    return std::find_if(m_readers.begin(), m_readers.end(), [](const Reader& reader) {
        return reader.thread == std::this_thread::get_id();
    });
}

// Does nothing while others read or carry out actions: they will look at the queue themselves.
void LazyRWMutex::carryOutBatches(std::unique_lock<std::mutex>& guard)
{
    if (m_worker != std::thread::id())
        return;
    m_worker = std::this_thread::get_id();
    while (m_readers.empty() && !m_actions.empty()) {
        carryOutBatch(guard);
        admitWaitingReaders();
    }
    m_worker = std::thread::id();
}

void LazyRWMutex::carryOutBatch(std::unique_lock<std::mutex>& guard)
{
    const std::uint64_t batchEnd = m_pushedCount;
    guard.unlock();
    runReportingExceptions(m_before);
    guard.lock();
    while (m_doneCount < batchEnd && m_readers.empty()) {
        Actions next; // Spliced, since moving a boost::function can copy what it holds.
        next.splice(next.end(), m_actions, m_actions.begin());
        guard.unlock();
        runReportingExceptions(next.front());
        next.clear();
        guard.lock();
        ++m_doneCount;
    }
    guard.unlock();
    runReportingExceptions(m_after);
    guard.lock();
}

void LazyRWMutex::admitWaitingReaders()
{
    for (auto reader = m_waiting.begin(); reader != m_waiting.end();) {
        const auto next = std::next(reader);
        if (reader->pushedBefore <= m_doneCount) {
            reader->depth = 1;
            m_readers.splice(m_readers.end(), m_waiting, reader);
        }
        reader = next;
    }
    // Under the mutex, since whoever is admitted may go on to destroy this lock.
    m_admitted.notify_all();
}

} // namespace utilities
} // namespace pelorin
