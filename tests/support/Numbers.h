#ifndef TESTS_SUPPORT_NUMBERS_H
#define TESTS_SUPPORT_NUMBERS_H

#include <limits>

namespace tests {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Lowest = std::numeric_limits<double>::lowest();
constexpr double Highest = std::numeric_limits<double>::max();

} // namespace tests

#endif
