#ifndef TESTS_FAULTS_TRIAL_H
#define TESTS_FAULTS_TRIAL_H

#include "tests/faults/Bits.h"
#include "tests/faults/Faults.h"

#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tests {

/// What a call gives where it comes upon a fault.
enum class Answer {
    Whole,   ///< It throws, or the fault makes no difference.
    Partial, ///< What it has got so far, as documented.
};

/// A call, and what there is to see of the objects that it works on.
struct Subject
{
    std::function<std::optional<std::string>()> act; ///< The result; nothing if it throws.
    std::function<std::string()> read;
};

/// A row: a name that begins with the operation it is about, and how to make a new subject.
struct Operation
{
    std::string name;
    std::function<Subject(Fault, long nth)> make; ///< The first call of act comes upon the fault.
    Answer answer = Answer::Whole;
};

/// Runs a call with a fault armed; only the call itself, not the writing down of its result.
template<typename Call>
std::optional<std::string> callArmed(Fault fault, long nth, const Call& call)
{
    try {
        armFault(fault, nth);
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            disarmFault();
            return std::string();
        } else {
            const auto result = call();
            disarmFault();
            return Bits::of(result);
        }
    } catch (const std::bad_alloc&) {
    } catch (const HostError&) {
    }
    disarmFault();
    return std::nullopt;
}

/// @param act takes a Scene, which has a read() for all that there is to see of it
template<typename Scene, typename Act>
Operation row(const std::string& name, const Act& act, Answer answer = Answer::Whole)
{
    const auto make = [act](Fault fault, long nth) {
        const auto scene = std::make_shared<Scene>();
        const auto armedOnce = std::make_shared<long>(nth);
        return Subject{[=] {
                           const long turn = std::exchange(*armedOnce, -1);
                           return callArmed(fault, turn, [&] { return act(*scene); });
                       },
                       [=] { return scene->read(); }};
    };
    return {name, make, answer};
}

/// Lets each occasion for each fault be one, in a process of its own, and expects that nothing
/// crashes, hangs or leaks, that all there is to see is as before or as after the call, and that
/// the next call does what it does where nothing ever failed.
void walk(const std::vector<Operation>& operations);

} // namespace tests

#endif
