#include "tests/misuse/Misuse.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace tests {

namespace {

// A second, and 64 MB; more of both where sanitizers are at work.
#if !defined(__OPTIMIZE__)
constexpr unsigned secondsAllowed = 20;
constexpr long kilobytesAllowed = 512 * 1024;
#else
constexpr unsigned secondsAllowed = 1;
constexpr long kilobytesAllowed = 64 * 1024;
#endif

long mostKilobytes()
{
    struct rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

int run(const Misuse& misuse)
{
    struct rlimit processor = {secondsAllowed, secondsAllowed + 1};
    setrlimit(RLIMIT_CPU, &processor);
    const long before = mostKilobytes();
    misuse.act();
    const long taken = mostKilobytes() - before;
    EXPECT_LE(taken, kilobytesAllowed);
    std::fflush(stdout);
    return testing::Test::HasFailure() ? 1 : 0;
}

} // namespace

void expectToPass(const Misuse& misuse)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(60); // One that waits for ever uses no processor.
        _exit(run(misuse));
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << misuse.name << ": " << (WIFSIGNALED(status) ? "signal " : "exit status ")
        << (WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status));
}

} // namespace tests
