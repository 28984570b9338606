// What libFuzzer calls. The target is named by KESTRANE_FUZZ_TARGET; without one, all are listed.
#include "tests/fuzz/Target.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

using namespace tests;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    const char* const name = std::getenv("KESTRANE_FUZZ_TARGET");
    if (name && targets().count(name) != 0) {
        GTEST_FLAG_SET(throw_on_failure, true);
        return 0;
    }
    for (const auto& target : targets())
        std::cout << target.first << '\n';
    std::exit(name ? 1 : 0);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const Target target = targets().at(std::getenv("KESTRANE_FUZZ_TARGET"));
    Dice dice(std::vector<std::uint8_t>(bytes, bytes + size));
    target(dice);
    return 0;
}
