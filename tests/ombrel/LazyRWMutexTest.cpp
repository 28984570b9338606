#include "kestrane/backend/LazyRWMutex.h"

#include <QStringList>

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <stdexcept>
#include <thread>
#include <type_traits>
#include <vector>

using pelorin::utilities::LazyRWMutex;

static_assert(!std::is_copy_constructible_v<LazyRWMutex>);
static_assert(!std::is_move_constructible_v<LazyRWMutex>);

namespace {

/// A lock that writes down what it carries out, in the log that it guards.
class LazyRWMutexTest : public testing::Test
{
protected:
    boost::function<void()> note(const char* text)
    {
        return [this, text] { m_log << text; };
    }

    QStringList m_log;
    boost::function<void()> m_atAfter = LazyRWMutex::_noop;
    LazyRWMutex m_lock{note("("), [this] {
                           m_log << ")";
                           m_atAfter();
                       }};
};

} // namespace

TEST_F(LazyRWMutexTest, WithoutReadersAnActionRunsBeforeThePushReturns)
{
    m_lock.pushWriterAction(note("1"));
    EXPECT_EQ(m_log.join(""), "(1)");
    m_lock.pushWriterAction(note("2"));
    EXPECT_EQ(m_log.join(""), "(1)(2)");
}

TEST_F(LazyRWMutexTest, ActionsRunInPushOrderAfterTheLastReader)
{
    std::promise<void> otherReads, mainHasLeft;
    std::thread other([&] {
        m_lock.lockForRead();
        otherReads.set_value();
        mainHasLeft.get_future().wait();
        EXPECT_EQ(m_log.join(""), "");
        m_lock.unlockForRead();
        m_lock.lockForRead();
        EXPECT_EQ(m_log.join(""), "(123)");
        m_lock.unlockForRead();
    });
    otherReads.get_future().wait();
    m_lock.lockForRead();
    m_lock.pushWriterAction(note("1"));
    m_lock.lockForRead();
    m_lock.pushWriterAction(note("2"));
    m_lock.unlockForRead();
    EXPECT_EQ(m_log.join(""), "");
    m_lock.unlockForRead();
    m_lock.pushWriterAction(note("3"));
    mainHasLeft.set_value();
    other.join();
}

TEST_F(LazyRWMutexTest, AThreadFindsItsOwnPushInForceWhenItReads)
{
    for (int round = 0; round < 50; ++round) {
        m_log.clear();
        std::promise<void> pushed;
        m_lock.lockForRead();
        std::thread other([&] {
            m_lock.pushWriterAction(note("1"));
            pushed.set_value();
            m_lock.lockForRead();
            EXPECT_EQ(m_log.join(""), "(1)");
            m_lock.unlockForRead();
        });
        pushed.get_future().wait();
        m_lock.lockForRead(); // A nested hold passes the queued action and the waiting reader.
        EXPECT_EQ(m_log.join(""), "");
        m_lock.unlockForRead();
        m_lock.unlockForRead();
        other.join();
    }
}

TEST_F(LazyRWMutexTest, WhatIsPushedMeanwhileMakesTheNextBatch)
{
    m_atAfter = [this] {
        if (m_log.count(")") == 1)
            m_lock.pushWriterAction(note("4"));
    };
    m_lock.lockForRead();
    m_lock.pushWriterAction([this] {
        m_log << "1";
        m_lock.pushWriterAction(note("3"));
    });
    m_lock.pushWriterAction(note("2"));
    m_lock.unlockForRead();
    EXPECT_EQ(m_log.join(""), "(12)(34)");
}

TEST_F(LazyRWMutexTest, APushWaitsForNoActionOfAnotherThread)
{
    m_lock.pushWriterAction([this] {
        std::thread([this] { m_lock.pushWriterAction(note("2")); }).join();
        m_log << "1";
    });
    EXPECT_EQ(m_log.join(""), "(1)(2)");
}

// A sound lock passes at any speed; a reader that comes in has ample time to be seen.
TEST_F(LazyRWMutexTest, NoReaderComesInBesideActionsAndAfter)
{
    std::promise<void> cameIn;
    const auto isOutside = [future = cameIn.get_future().share()] {
        return future.wait_for(std::chrono::milliseconds(20)) == std::future_status::timeout;
    };
    std::thread reader;
    m_atAfter = [&] { EXPECT_TRUE(isOutside()); };
    m_lock.pushWriterAction([&] {
        reader = std::thread([&] {
            m_lock.lockForRead();
            cameIn.set_value();
            m_lock.unlockForRead();
        });
        EXPECT_TRUE(isOutside());
    });
    reader.join();
}

TEST_F(LazyRWMutexTest, AnActionMayReadAndKeepItsHold)
{
    m_lock.lockForRead();
    m_lock.pushWriterAction([this] {
        m_lock.lockForRead();
        m_lock.lockForRead();
        m_log << "1";
        m_lock.unlockForRead();
        m_lock.unlockForRead();
    });
    m_lock.pushWriterAction([this] {
        m_lock.lockForRead();
        m_log << "2";
    });
    m_lock.pushWriterAction(note("3"));
    m_lock.unlockForRead();
    EXPECT_EQ(m_log.join(""), "(12)");
    m_lock.pushWriterAction(note("4"));
    m_lock.unlockForRead();
    EXPECT_EQ(m_log.join(""), "(12)(34)");
}

TEST_F(LazyRWMutexTest, AnActionDiesBeforeTheNextAndItsDeathMayPush)
{
    m_lock.lockForRead();
    boost::shared_ptr<void> held(this, [this](void*) {
        m_log << "dies";
        m_lock.pushWriterAction(note("3"));
    });
    m_lock.pushWriterAction([this, held] { m_log << "1"; });
    m_lock.pushWriterAction(note("2"));
    held.reset();
    m_lock.unlockForRead();
    EXPECT_EQ(m_log.join(" "), "( 1 dies 2 ) ( 3 )");
}

namespace {
QStringList warnings;
}

TEST_F(LazyRWMutexTest, AnExceptionIsReportedAndStopsNothing)
{
    warnings.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { warnings << text; });
    m_atAfter = [] { throw 5; };
    m_lock.lockForRead();
    m_lock.pushWriterAction([] { throw std::runtime_error("no room"); });
    m_lock.pushWriterAction(note("2"));
    m_lock.pushWriterAction(boost::function<void()>());
    EXPECT_NO_THROW(m_lock.unlockForRead());
    EXPECT_NO_THROW(m_lock.pushWriterAction(note("3")));
    qInstallMessageHandler(previous);

    EXPECT_EQ(m_log.join(""), "(2)(3)");
    ASSERT_EQ(warnings.size(), 4);
    EXPECT_TRUE(warnings[0].contains("no room"));
}

// The actions never come to an end by themselves: the reader has to get in between two batches.
TEST_F(LazyRWMutexTest, AReaderIsNotStarvedByActions)
{
    std::promise<void> begun;
    std::atomic<bool> hasRead{false};
    std::thread reader([&] {
        begun.get_future().wait();
        m_lock.lockForRead();
        hasRead = true;
        m_lock.unlockForRead();
    });
    m_atAfter = [&] {
        if (!hasRead)
            m_lock.pushWriterAction(LazyRWMutex::_noop);
    };
    m_lock.pushWriterAction([&] { begun.set_value(); });
    reader.join();
    EXPECT_TRUE(hasRead);
}

TEST_F(LazyRWMutexTest, ActionsAreNotStarvedByReaders)
{
    std::atomic<bool> isDone{false};
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i) {
        readers.emplace_back([&] {
            while (!isDone) {
                m_lock.lockForRead();
                std::this_thread::yield();
                m_lock.unlockForRead();
            }
        });
    }
    m_lock.pushWriterAction([&] { isDone = true; });
    for (std::thread& reader : readers)
        reader.join();
}

// Plain variables, so that the thread sanitizer sees whatever the lock fails to keep apart.
TEST(LazyRWMutexStressTest, KeepsOrderAndExclusionUnderManyThreads)
{
    constexpr int threadCount = 6;
    constexpr int rounds = 1000;
    std::atomic<int> readers{0};
    std::map<int, int> lastOf; // thread -> number of its last action
    long doneCount = 0;
    long reportedCount = 0;
    LazyRWMutex lock(LazyRWMutex::_noop, [&] {
        EXPECT_EQ(readers, 0);
        reportedCount = doneCount;
    });

    const auto run = [&](int thread) {
        for (int i = 1; i <= rounds; ++i) {
            const bool isNested = (i + thread) % 3 == 0;
            if (isNested) {
                lock.lockForRead();
                ++readers;
            }
            lock.pushWriterAction([&, thread, i] {
                EXPECT_EQ(lastOf[thread], i - 1);
                std::this_thread::yield(); // Gives a reader the chance to come in.
                EXPECT_EQ(readers, 0);
                lastOf[thread] = i;
                ++doneCount;
            });
            lock.lockForRead();
            ++readers;
            EXPECT_EQ(doneCount, reportedCount);
            EXPECT_TRUE(isNested || lastOf.at(thread) == i);
            for (int hold = isNested ? 2 : 1; hold > 0; --hold) {
                --readers;
                lock.unlockForRead();
            }
        }
    };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back(run, thread);
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(doneCount, long(threadCount) * rounds);
    EXPECT_EQ(reportedCount, doneCount);
}
