#ifndef KESTRANE_BACKEND_LAZYRWMUTEX_H
#define KESTRANE_BACKEND_LAZYRWMUTEX_H

#include "kestrane/backend/OmbrelExport.h"

#include <boost/function.hpp>

#include <condition_variable>
#include <cstdint>
#include <list>
#include <mutex>
#include <thread>

namespace pelorin {
namespace utilities {

/// A lock with readers, and with writers that hand over what they want to do instead of waiting.
///
/// A writer action runs when nobody reads: at once, on the thread that pushes it, or else on the
/// thread that gives up the last hold, or on the one that carries out actions at that moment.
/// What is queued then is carried out as a batch: before(), the actions, after(). What is pushed
/// meanwhile makes the next batch.
///
/// Laws:
///  1. Actions run one at a time, in the order in which they were pushed, and neither they nor
///     before() and after() run beside a reader of another thread or beside each other.
///  2. pushWriterAction() never waits for a reader or for an action of another thread. A thread
///     that carries out actions goes on while others push and nobody waits to read.
///  3. A thread that holds the lock can take it again at any time, whatever is queued.
///  4. When lockForRead() returns to a thread that did not hold the lock, the actions pushed
///     before that call have been carried out, and after() has run behind them.
///  5. No starvation: new readers wait behind queued actions, and the readers that wait for one
///     batch come before the next. Hence a thread that holds the lock must not wait for another
///     one that is about to take it.
///  6. Every action is followed by after() without a further call into the lock, given that
///     present readers give up their holds.
///
/// Inside before(), an action or after() the lock may be used as anywhere else: a push is queued,
/// and a hold is granted at once. A hold that is kept beyond that function ends the batch, and
/// what is queued waits for the end of that hold.
///
/// Exceptions: before(), actions and after() should not throw. What they throw reaches nobody,
/// since the thread that carries them out often has nothing to do with them: it is reported by
/// qWarning(), and all the rest is carried out as if nothing had happened. The lock itself throws
/// std::bad_alloc from lockForRead() and pushWriterAction(), with nothing changed.
///
/// Threads: all operations may be called from any thread. A hold belongs to the thread that took
/// it, which has to give it up before it ends. The lock may be destroyed when nobody uses it any
/// more, so never from inside an action, before() or after().
///
/// @code
/// using utilities::LazyRWMutex;
/// LazyRWMutex mutex(LazyRWMutex::_noop, LazyRWMutex::_noop);
/// int written = 0;
/// mutex.lockForRead();
/// mutex.pushWriterAction([&] { ++written; }); // Does not wait for the reader:
/// written;                                    // = 0
/// mutex.unlockForRead();                      // it is carried out behind it.
/// written;                                    // = 1
/// @endcode
///
/// @ingroup backend
class OMBREL_EXPORT LazyRWMutex
{
public:
    /// @param before runs once ahead of each batch of actions
    /// @param after runs once behind each batch of actions
    LazyRWMutex(const boost::function<void()>& before, const boost::function<void()>& after);

    LazyRWMutex(const LazyRWMutex&) = delete;
    LazyRWMutex& operator=(const LazyRWMutex&) = delete;
    ~LazyRWMutex();

    /// Takes the lock as one of any number of readers. O(n) for n threads that read.
    void lockForRead();

    /// Gives up one hold of this thread, which must have one, and carries out what is queued if it
    /// was the last of all.
    void unlockForRead();

    /// Hands over an action. If nobody reads and no thread carries out actions, this one does so
    /// before it returns. An action is destroyed when it has run, ahead of the next one.
    void pushWriterAction(const boost::function<void()>& action);

    /// An action that does nothing.
    static const boost::function<void()> _noop;

private:
    /// A thread that reads, or waits to do so while its depth is 0.
    struct Reader
    {
        std::thread::id thread;
        std::uint64_t pushedBefore; // how many actions have to be done ahead of it
        int depth;
    };
    using Readers = std::list<Reader>;
    using Actions = std::list<boost::function<void()>>;

    Readers::iterator findReader();
    void carryOutBatches(std::unique_lock<std::mutex>& guard);
    void carryOutBatch(std::unique_lock<std::mutex>& guard);
    void admitWaitingReaders();

    const boost::function<void()> m_before;
    const boost::function<void()> m_after;

    std::mutex m_mutex; // guards all below; never held while foreign code runs
    std::condition_variable m_admitted;
    Actions m_actions;
    std::uint64_t m_pushedCount = 0;
    std::uint64_t m_doneCount = 0;
    Readers m_readers;
    Readers m_waiting;
    std::thread::id m_worker; // the thread that carries out actions
};

} // namespace utilities
} // namespace pelorin

#endif
