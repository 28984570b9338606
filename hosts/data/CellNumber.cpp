#include "hosts/data/CellNumber.h"

#include <fast_float/fast_float.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace hosts::data {

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view spaces = " \t\r\n";
    const auto first = text.find_first_not_of(spaces);
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isEqualInAnyCase(std::string_view text, std::string_view lower)
{
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](char a, char b) { return lowerCase(a) == b; });
}

bool isMissing(std::string_view cell)
{
    constexpr std::array<std::string_view, 9> markers = {"",     "na", "n/a", "#n/a", "null",
                                                         "none", "-",  "--",  "."};
    return std::any_of(markers.begin(), markers.end(),
                       [cell](std::string_view marker) { return isEqualInAnyCase(cell, marker); });
}

/// NaN and infinity are numbers here, and so is one too large for a double.
std::optional<double> parse(std::string_view cell, char decimalPoint)
{
    const bool hasPlus = cell.size() > 1 && cell[0] == '+' && cell[1] != '-';
    cell.remove_prefix(hasPlus ? 1 : 0);
    const char* const end = cell.data() + cell.size();
    double number = NotANumber;
    const auto result = fast_float::from_chars_advanced(
        cell.data(), end, number,
        fast_float::parse_options(fast_float::chars_format::general, decimalPoint));
    const bool isNumber = result.ec != std::errc::invalid_argument && result.ptr == end;
    return isNumber ? std::optional<double>(number) : std::nullopt;
}

} // namespace

double cellNumber(std::string_view cell, char decimalPoint)
{
    const double number = parse(trimmed(cell), decimalPoint).value_or(NotANumber);
    return std::isfinite(number) ? number : NotANumber;
}

bool isText(std::string_view cell, char decimalPoint)
{
    cell = trimmed(cell);
    return !isMissing(cell) && !parse(cell, decimalPoint);
}

} // namespace hosts::data
