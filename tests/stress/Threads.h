#ifndef TESTS_STRESS_THREADS_H
#define TESTS_STRESS_THREADS_H

#include <cstddef>
#include <thread>
#include <vector>

namespace tests {

constexpr std::size_t threadCount = 8;

template<typename Work>
void runThreads(const Work& work)
{
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&work, thread] { work(thread); });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace tests

#endif
