// Threads that do to lists of callbacks whatever they may, with counts of what has to come of it.
// Plain variables stand wherever the list promises exclusion, for the thread sanitizer to see.
#include "kestrane/plots/Intersectable.h"

#include "tests/stress/Threads.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <deque>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace pelorin::ui::chart;
using namespace tests;
using pelorin::utilities::Registration;
using pelorin::utilities::RegistryList;

namespace {

struct Plot : Intersectable
{
    QList<Intersection> doIntersect(const Axis*, const Axis*, double) const override { return {}; }
    using Intersectable::fireUpdates;
};

/// A range of the numbers that one thread has given to its callbacks. It registers them in
/// ascending order and drops the oldest first.
struct Range
{
    int begin = 0;
    int end = 0;
};

/// How far a thread has come with its callbacks.
struct Progress
{
    std::atomic<int> addsBegun{0}, addsDone{0}, dropsBegun{0}, dropsDone{0};
};

class Participant
{
public:
    Participant(Plot& plot, std::array<Progress, threadCount>& progress, std::size_t self)
        : m_plot(plot)
        , m_progress(progress)
        , m_self(self)
    {}

    void run(std::size_t rounds)
    {
        repeat(rounds, [this](std::size_t round) {
            if (round % 2 == 0)
                add();
            if (round % 3 == 0 || m_registrations.size() > 100)
                drop();
            fire();
        });
        while (!m_registrations.empty())
            drop();
        fire();
        EXPECT_EQ(t_heard[m_self].end, 0);
    }

private:
    void add()
    {
        Progress& mine = m_progress[m_self];
        const int number = ++mine.addsBegun;
        m_registrations.push_back(
            m_plot.notifyees().add([this, number](const Intersectable*) { called(number); }));
        ++mine.addsDone;
    }

    void drop()
    {
        if (m_registrations.empty())
            return;
        ++m_progress[m_self].dropsBegun;
        m_registrations.pop_front();
        ++m_progress[m_self].dropsDone;
    }

    // Runs on the thread that fires, be it this participant's own or another one's.
    void called(int number)
    {
        Range& heard = t_heard[m_self];
        EXPECT_TRUE(heard.end == 0 || heard.end == number) << "each one once, in their order";
        if (heard.end == 0)
            heard.begin = number;
        heard.end = number + 1;
        if (std::this_thread::get_id() == m_thread && number % 4 == 0) {
            drop();
            add();
            add();
            drop();
        }
    }

    void fire()
    {
        std::array<Range, threadCount> certain; // Registered before and not dropped until now.
        for (std::size_t i = 0; i < threadCount; ++i)
            certain[i] = {m_progress[i].dropsDone + 1, m_progress[i].addsDone + 1};
        t_heard = {};
        m_plot.fireUpdates();
        for (std::size_t i = 0; i < threadCount; ++i)
            compare(t_heard[i], certain[i], m_progress[i], i == m_self);
    }

    static void compare(Range heard, const Range& before, const Progress& now, bool isOwn)
    {
        // What the thread itself does during its pass changes nothing of that pass.
        const int latestBegin = isOwn ? before.begin : now.dropsBegun + 1;
        const int latestEnd = isOwn ? before.end : now.addsBegun + 1;
        if (heard.end == 0)
            heard = {before.end, before.end}; // None at all.
        EXPECT_GE(heard.begin, before.begin);
        EXPECT_LE(heard.begin, latestBegin);
        EXPECT_GE(heard.end, before.end);
        EXPECT_LE(heard.end, latestEnd);
    }

    static thread_local std::array<Range, threadCount> t_heard; // By participant, in this pass.

    Plot& m_plot;
    std::array<Progress, threadCount>& m_progress;
    const std::size_t m_self;
    const std::thread::id m_thread = std::this_thread::get_id();
    std::deque<Registration> m_registrations;
};

thread_local std::array<Range, threadCount> Participant::t_heard;

/// A list that counts what it hears, without a lock of its own.
class CountingList : public RegistryList<Intersectable::Notifyee>
{
public:
    explicit CountingList(std::atomic<int>& deaths)
        : m_deaths(deaths)
    {}
    ~CountingList() override
    {
        detach();
        EXPECT_LE(m_removed, m_added);
        ++m_deaths;
    }
    void fire() const
    {
        visit([](const auto& callback) { callback(nullptr); });
    }

protected:
    void itemAdded(const Intersectable::Notifyee&) override { ++m_added; }
    void itemRemoved(const Intersectable::Notifyee&) override
    {
        std::this_thread::yield(); // Gives the list the chance to die.
        ++m_removed;
    }

private:
    std::atomic<int>& m_deaths;
    int m_added = 0;
    int m_removed = 0;
};

/// A place where threads exchange what they hold.
template<typename T>
class Slot
{
public:
    T exchange(T other)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        std::swap(m_held, other);
        return other;
    }

private:
    std::mutex m_mutex;
    T m_held;
};

} // namespace

TEST(CallbackStressTest, EveryPassCallsWhatWasThereOnceAndInOrder)
{
    Plot plot;
    std::array<Progress, threadCount> progress;
    std::vector<std::unique_ptr<Participant>> participants(threadCount);
    runThreads([&](std::size_t thread) {
        // Kept until all are done, since others may still call its callbacks.
        participants[thread] = std::make_unique<Participant>(plot, progress, thread);
        participants[thread]->run(300);
    });
    for (const Progress& each : progress) {
        EXPECT_GE(each.addsDone, 150);
        EXPECT_EQ(each.addsDone, each.dropsDone);
    }
}

TEST(CallbackStressTest, ListsAndRegistrationsDieInAnyOrderOnAnyThread)
{
    constexpr int rounds = 3000;
    std::atomic<int> births{0}, deaths{0};
    const auto token = std::make_shared<int>();
    {
        std::array<Slot<std::shared_ptr<CountingList>>, 3> lists;
        std::array<Slot<Registration>, 16> registrations;
        runThreads([&](std::size_t thread) {
            repeat(rounds, [&](std::size_t round) {
                auto& listSlot = lists[(round + thread) % lists.size()];
                auto& slot = registrations[(round * 7 + thread) % registrations.size()];
                std::shared_ptr<CountingList> list = listSlot.exchange(nullptr);
                if (!list || round % 2 == 0) {
                    list = std::make_shared<CountingList>(deaths);
                    ++births;
                }
                listSlot.exchange(list);
                slot.exchange(list->add([&slot, token](const Intersectable*) {
                    slot.exchange(Registration()); // Drops this callback or another one's.
                }));
                if (round % 4 == 0)
                    list->fire();
            });
        });
    }
    EXPECT_EQ(births, deaths);
    EXPECT_EQ(token.use_count(), 1);
}

TEST(CallbackStressTest, WhatACallbackThrowsComesOutOnceAndLeavesTheListFree)
{
    Plot plot;
    std::atomic<long> calls{0}, thrown{0}, caught{0};
    runThreads([&](std::size_t) {
        repeat(300, [&](std::size_t) {
            const Registration registration = plot.notifyees().add([&](const Intersectable*) {
                if (++calls % 5 == 0) {
                    ++thrown;
                    throw std::runtime_error("a callback's own");
                }
            });
            try {
                plot.fireUpdates();
            } catch (const std::runtime_error&) {
                ++caught;
            }
        });
    });
    EXPECT_GT(thrown, 0);
    EXPECT_EQ(thrown, caught);
    const long before = calls;
    plot.fireUpdates(); // All are gone.
    EXPECT_EQ(calls, before);
}
