#ifndef TESTS_FAULTS_FAULTS_H
#define TESTS_FAULTS_FAULTS_H

#include <exception>

namespace tests {

/// What may go wrong in a call: memory once, memory from some moment on, or the code of the host,
/// its axes and callbacks.
enum class Fault { Memory, MemoryFromThenOn, HostCode };

/// What the host's code throws.
struct HostError : std::exception
{
    const char* what() const noexcept override { return "the host's error"; }
};

/// Lets the @p nth occasion for @p fault, counted from 0, be a fault; a negative one is none.
void armFault(Fault fault, long nth);

/// Ends that.
void disarmFault();

/// Whether it came to the fault armed last.
bool faultHappened();

/// To be called wherever a host's code may throw.
void hostCode();

/// Allocations of the whole process so far.
long allocations();

/// Those less releases.
long liveAllocations();

} // namespace tests

#endif
