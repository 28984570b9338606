#ifndef TESTS_MISUSE_MISUSE_H
#define TESTS_MISUSE_MISUSE_H

#include "tests/support/Numbers.h"

#include <ostream>
#include <vector>

namespace tests {

/// Something that no host should do, with expectations of what comes of it.
struct Misuse
{
    const char* name;
    void (*act)();
};

inline void PrintTo(const Misuse& misuse, std::ostream* out)
{
    *out << misuse.name;
}

/// Does it in a process of its own, and expects that this ends, in little time and memory.
void expectToPass(const Misuse& misuse);

/// Those that are hard on arithmetic.
constexpr double hardNumbers[] = {NaN,     Infinity, -Infinity, Highest, Lowest, 1e300, 5e-324,
                                  -5e-324, 0.0,      -0.0,      1.0,     -1.0,   0.5};

/// Calls @p function with each pair of hard numbers.
template<typename Function>
void forHardPairs(const Function& function)
{
    for (const double a : hardNumbers) {
        for (const double b : hardNumbers)
            function(a, b);
    }
}

} // namespace tests

#endif
