#include "kestrane/backend/LazyRWMutex.h"

#include <QStringList>

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <map>

using pelorin::utilities::LazyRWMutex;

static_assert(!std::is_copy_constructible_v<LazyRWMutex>);

namespace {

/// A lock that writes down what it carries out, in the log that it guards.
class LazyRWMutexTest : public testing::Test
{
protected:
    void read(const boost::function<void()>& reading)
    {
        m_lock.lockForRead();
        reading();
        m_lock.unlockForRead();
    }

    void push(const boost::function<void()>& action) { m_lock.pushWriterAction(action); }

    boost::function<void()> note(const char* text)
    {
        return [this, text] { m_log += text; };
    }

    std::string m_log;
    boost::function<void()> m_atAfter = LazyRWMutex::_noop;
    LazyRWMutex m_lock{note("("), [this] {
                           m_log += ")";
                           m_atAfter();
                       }};
};

} // namespace

TEST_F(LazyRWMutexTest, ActionsRunInPushOrderAndWhatIsPushedMeanwhileInTheNextBatch)
{
    push(note("1"));
    EXPECT_EQ(m_log, "(1)");
    m_atAfter = [this] {
        if (m_log == "(1)(23)")
            push(note("5"));
    };
    read([this] {
        push([this] {
            std::thread([this] { push(note("4")); }).join();
            m_log += "2";
        });
        read([this] { push(note("3")); });
        EXPECT_EQ(m_log, "(1)");
    });
    EXPECT_EQ(m_log, "(1)(23)(45)");
}

// A sound lock passes at any speed; a reader that comes in early has ample time to be seen. The
// actions never come to an end by themselves: the reader has to get in between two batches.
TEST_F(LazyRWMutexTest, AReaderComesInBetweenBatchesAndNotBesideActionsOrAfter)
{
    std::promise<void> cameIn;
    const auto isOutside = [future = cameIn.get_future().share()](int milliseconds) {
        return future.wait_for(std::chrono::milliseconds(milliseconds)) ==
               std::future_status::timeout;
    };
    std::thread reader;
    m_atAfter = [&] {
        EXPECT_TRUE(m_log != "()" || isOutside(20));
        if (isOutside(0))
            push(LazyRWMutex::_noop);
    };
    push([&] {
        reader = std::thread([&] { read([&] { cameIn.set_value(); }); });
        EXPECT_TRUE(isOutside(20));
    });
    reader.join();
}

TEST_F(LazyRWMutexTest, AnActionMayReadAndKeepItsHold)
{
    read([this] {
        push([this] { read([this] { read(note("1")); }); });
        push([this] {
            m_lock.lockForRead();
            m_log += "2";
        });
        push(note("3"));
    });
    EXPECT_EQ(m_log, "(12)");
    push(note("4"));
    m_lock.unlockForRead();
    EXPECT_EQ(m_log, "(12)(34)");
}

TEST_F(LazyRWMutexTest, AnActionDiesBeforeTheNextAndItsDeathMayPush)
{
    read([this] {
        const boost::shared_ptr<void> held(this, [this](void*) {
            m_log += " dies ";
            push(note("3"));
        });
        push([this, held] { m_log += "1"; });
        push(note("2"));
    });
    EXPECT_EQ(m_log, "(1 dies 2)(3)");
}

TEST_F(LazyRWMutexTest, AnExceptionIsReportedAndStopsNothing)
{
    static QStringList warnings;
    warnings.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { warnings << text; });
    m_atAfter = [this] { throw m_log; };
    read([this] {
        push([] { throw std::runtime_error("no room"); });
        push(note("2"));
    });
    qInstallMessageHandler(previous);

    EXPECT_EQ(m_log, "(2)");
    ASSERT_EQ(warnings.size(), 2);
    EXPECT_TRUE(warnings[0].contains("no room"));
}

// Plain variables, so that the thread sanitizer sees whatever the lock fails to keep apart.
TEST(LazyRWMutexStressTest, KeepsOrderAndExclusionUnderManyThreads)
{
    std::atomic<int> readers{0};
    std::map<int, int> lastOf; // thread -> number of its last action
    int doneCount = 0;
    int reportedCount = 0;
    LazyRWMutex lock(LazyRWMutex::_noop, [&] {
        EXPECT_EQ(readers, 0);
        reportedCount = doneCount;
    });
    const auto read = [&](const auto& reading) {
        lock.lockForRead();
        ++readers;
        EXPECT_EQ(doneCount, reportedCount);
        reading();
        --readers;
        lock.unlockForRead();
    };
    const auto push = [&](int thread, int i) {
        lock.pushWriterAction([&, thread, i] {
            EXPECT_EQ(lastOf[thread], i - 1);
            std::this_thread::yield(); // Gives a reader the chance to come in.
            EXPECT_EQ(readers, 0);
            lastOf[thread] = i;
            ++doneCount;
        });
    };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 6; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 1; i <= 1000; ++i) {
                if (i % 3 == 0)
                    read([&] { read([&] { push(thread, i); }); });
                else
                    push(thread, i);
                read([&] { EXPECT_EQ(lastOf.at(thread), i); });
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(reportedCount, 6 * 1000);
}
