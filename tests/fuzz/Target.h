#ifndef TESTS_FUZZ_TARGET_H
#define TESTS_FUZZ_TARGET_H

#include "tests/support/Dice.h"

#include <map>
#include <string>

namespace tests {

/// Something to try with any bytes. It says with GoogleTest's expectations what must hold.
using Target = void (*)(Dice&);

/// All that are linked into this program, by name.
std::map<std::string, Target>& targets();

} // namespace tests

/// Defines a target: FUZZ_TARGET(Name) { ... dice ... }
#define FUZZ_TARGET(name)                                                                          \
    static void fuzz##name(tests::Dice& dice);                                                     \
    static const bool is##name##Listed = tests::targets().emplace(#name, fuzz##name).second;       \
    static void fuzz##name([[maybe_unused]] tests::Dice& dice)

#endif
