#ifndef TESTS_STRESS_THREADS_H
#define TESTS_STRESS_THREADS_H

#include <QtGlobal>

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <thread>
#include <vector>

namespace tests {

constexpr std::size_t threadCount = 8;

/// How long a scenario goes on at least: as many seconds as the environment has for
/// KESTRANE_SECONDS, else no longer than its rounds take.
inline int secondsToRun()
{
    return qEnvironmentVariableIntValue("KESTRANE_SECONDS");
}

/// Lets threads do something at once. One that never ends is the end of the process.
template<typename Work>
void runThreads(const Work& work)
{
    constexpr unsigned secondsToHang = 120;
    alarm(unsigned(secondsToRun()) + secondsToHang);
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&work, thread] { work(thread); });
    for (std::thread& thread : threads)
        thread.join();
    alarm(0);
}

/// Does something on a thread in so many rounds, or for as long as the scenario is to go on. Then
/// no round may have waited for a second.
template<typename Work>
void repeat(std::size_t rounds, const Work& work)
{
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(secondsToRun());
    Clock::duration longest{};
    for (std::size_t round = 0; round < rounds || Clock::now() < end; ++round) {
        const auto start = Clock::now();
        work(round);
        longest = std::max(longest, Clock::now() - start);
    }
    if (secondsToRun() > 0) {
        EXPECT_LT(longest, std::chrono::seconds(1));
    }
}

} // namespace tests

#endif
