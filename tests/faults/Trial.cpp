#include "tests/faults/Trial.h"

#include <QtGlobal>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tests {

namespace {

constexpr unsigned secondsToHang = 10;
constexpr Fault faults[] = {Fault::Memory, Fault::MemoryFromThenOn, Fault::HostCode};
constexpr const char* faultNames[] = {"memory once", "memory from then on", "the host's code"};

/// A call, what there is to see then, and the same again.
struct Story
{
    Story(const Operation& operation, Fault fault, long nth)
    {
        const Subject subject = operation.make(fault, nth);
        first = subject.act();
        happened = faultHappened();
        afterFirst = subject.read();
        second = subject.act();
        afterSecond = subject.read();
    }

    std::optional<std::string> first, second;
    std::string afterFirst, afterSecond;
    bool happened;
};

struct Twins
{
    explicit Twins(const Operation& operation)
        : before(operation.make(Fault::Memory, -1).read())
        , story(operation, Fault::Memory, -1)
    {}

    std::string before;
    Story story;
};

const char* finding(const Story& story, const Twins& twins, Answer answer)
{
    const Story& whole = twins.story;
    const bool nothingDone = story.afterFirst == twins.before && story.second == whole.first &&
                             story.afterSecond == whole.afterFirst;
    const bool done = story.afterFirst == whole.afterFirst && story.second == whole.second &&
                      story.afterSecond == whole.afterSecond;
    if (!story.second)
        return "the next call fails";
    if (!nothingDone && !done)
        return "what is left is neither as before nor as after";
    if (story.first && story.first != whole.first && answer == Answer::Whole)
        return "the result is another one";
    return story.first && !done && answer == Answer::Whole ? "nothing is done, and no word of it"
                                                           : nullptr;
}

enum Exit { Good, Bad, NotReached };

Exit tryPoint(const Operation& operation, const Twins& twins, Fault fault, long nth)
{
    const char* found = nullptr;
    bool happened = false;
    const long live = liveAllocations();
    {
        const Story story(operation, fault, nth);
        happened = story.happened;
        found = finding(story, twins, operation.answer);
    }
    const long leaked = liveAllocations() - live;
    if (!found && leaked != 0)
        found = "not all memory is given back";
    if (found)
        std::fprintf(stderr, "%s (%ld pieces of memory left)\n", found, leaked);
    return found ? Bad : happened ? Good : NotReached;
}

#if defined(KESTRANE_COVERAGE) // Counts are written down at an orderly end.
constexpr auto leave = std::exit;
#else
constexpr auto leave = _exit;
#endif

/// Where the operation comes upon the fault for the nth time, in a process of its own.
/// @return whether it does so at all
bool tryInChild(const Operation& operation, const Twins& twins, Fault fault, long nth)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(secondsToHang);
        leave(tryPoint(operation, twins, fault, nth));
    }
    int status = 0;
    waitpid(child, &status, 0);
    const bool isGood = WIFEXITED(status) && WEXITSTATUS(status) != Bad;
    EXPECT_TRUE(isGood) << operation.name << " and " << faultNames[int(fault)] << ", occasion "
                        << nth << ", "
                        << (WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : "wrong");
    return !WIFEXITED(status) || WEXITSTATUS(status) != NotReached;
}

} // namespace

// Without KESTRANE_ALL_FAULTS all of the first occasions, and ever fewer of those behind them.
void walk(const std::vector<Operation>& operations)
{
    const bool all = qEnvironmentVariableIsSet("KESTRANE_ALL_FAULTS");
    long points = 0;
    for (const Operation& operation : operations) {
        Twins{operation}; // What is made once in a process is made here.
        const Twins twins(operation);
        for (const Fault fault : faults)
            for (long nth = 0; tryInChild(operation, twins, fault, nth); ++points)
                nth += all ? 1 : 1 + nth / 12;
    }
    std::printf("%ld faults in %zu operations\n", points, operations.size());
    EXPECT_GT(points, long(operations.size()));
}

} // namespace tests
