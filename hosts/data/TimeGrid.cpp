#include "hosts/data/TimeGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hosts::data {

namespace {

/// In steps: a time so near to the grid is on it, however many decimals the file writes.
constexpr double LeastTolerance = 1e-3;
/// In steps: nearer to one place of the grid than to the next.
constexpr double MostTolerance = 0.49;
/// In typical steps: distances up to here are steps that rounding has stretched, not jumps.
constexpr double LongestStep = 1.5;
/// Places beyond are not exact in a double.
constexpr double MostPlaces = 9e15;

/// The powers of ten of the first digit that counts and of the last digit of a decimal number.
struct Places
{
    int first;
    int last;
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int exponentOf(std::string_view cell)
{
    const std::size_t e = cell.find_first_of("eE");
    int exponent = 0;
    for (std::size_t i = e; i < cell.size(); ++i)
        exponent = isDigit(cell[i]) ? std::min(exponent * 10 + (cell[i] - '0'), 999) : exponent;
    return e < cell.size() && cell.find('-', e) != cell.npos ? -exponent : exponent;
}

Places placesOf(std::string_view cell)
{
    int digits = 0;
    int decimals = 0;
    int leadingZeros = 0;
    bool isBehindPoint = false;
    for (const char c : cell.substr(0, cell.find_first_of("eE"))) {
        isBehindPoint = isBehindPoint || c == '.' || c == ',';
        if (!isDigit(c))
            continue;
        leadingZeros += leadingZeros == digits && c == '0' ? 1 : 0;
        ++digits;
        decimals += isBehindPoint ? 1 : 0;
    }
    const int last = exponentOf(cell) - decimals;
    return {last + std::max(digits - leadingZeros, 1) - 1, last};
}

} // namespace

TimeGrid::TimeGrid(double typicalStep)
    : m_typicalStep(typicalStep)
    , m_fastest(std::numeric_limits<double>::infinity())
{}

double TimeGrid::roundingUnit(std::string_view cell)
{
    const Places places = placesOf(cell);
    m_lastPlace = m_row == 0 ? places.last : std::min(m_lastPlace, places.last);
    m_significantDigits = std::max(m_significantDigits, places.first - places.last + 1);
    return std::pow(10.0, std::max(m_lastPlace, places.first + 1 - m_significantDigits));
}

double TimeGrid::step() const
{
    return m_place > 0 ? (m_last - m_grid.offset) / static_cast<double>(m_place) : m_typicalStep;
}

/// With the first time t0 and the places k0 = 0 < k1 < k2 ..., the step s fits the time tk when
/// |t0 + k s - tk| <= tolerance, that is when s lies between (tk - t0 - tolerance) / k and
/// (tk - t0 + tolerance) / k. The steps that fit all times are where these ranges meet.
TimeGrid::Verdict TimeGrid::put(double time, std::string_view cell)
{
    const double unit = roundingUnit(cell);
    const double step = this->step();
    const double steps = (time - m_last) / step;
    if (m_row == 0) {
        m_grid.offset = time;
    } else if (!(time > m_last)) {
        return NotAscending;
    } else if (!(steps <= MostPlaces) || !std::isfinite(time - m_grid.offset)) {
        return OffGrid;
    }
    const long long places = m_row == 0 || steps < LongestStep ? 1 : std::llround(steps);
    m_place += places;
    if (places != 1)
        m_grid.jumps.push_back({m_row, m_place});
    if (m_row > 0) {
        const double tolerance = std::clamp(unit, LeastTolerance * step, MostTolerance * step);
        const double k = static_cast<double>(m_place);
        m_slowest = std::max(m_slowest, (time - m_grid.offset - tolerance) / k);
        m_fastest = std::min(m_fastest, (time - m_grid.offset + tolerance) / k);
    }
    m_last = time;
    ++m_row;
    return m_slowest <= m_fastest ? Regular : OffGrid;
}

RowGrid TimeGrid::grid() const
{
    RowGrid result = m_grid;
    result.scale = std::clamp(step(), m_slowest, m_fastest);
    return result;
}

std::optional<double> typicalStep(const std::vector<double>& times)
{
    std::vector<double> steps;
    for (std::size_t i = 1; i < times.size(); ++i) {
        if (times[i] > times[i - 1])
            steps.push_back(times[i] - times[i - 1]);
    }
    if (steps.empty())
        return std::nullopt;
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    const double limit = *middle * LongestStep;
    // The mean of the usual steps is nearer to the truth than one step rounded to the decimals.
    const auto end =
        std::partition(steps.begin(), steps.end(), [limit](double step) { return step < limit; });
    double sum = 0.0;
    for (auto step = steps.begin(); step != end; ++step)
        sum += *step;
    return sum / static_cast<double>(end - steps.begin());
}

} // namespace hosts::data
