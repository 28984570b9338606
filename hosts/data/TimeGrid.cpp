#include "hosts/data/TimeGrid.h"

#include "hosts/data/CellNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace hosts::data {

namespace {

/// In steps: a time so near to the grid is on it, however many decimals the file writes.
constexpr double LeastTolerance = 1e-3;
/// In steps: nearer to one place of the grid than to the next.
constexpr double MostTolerance = 0.49;
/// In typical steps: below are steps that rounding has stretched, above are jumps. Of a step of at
/// least two rounding units, rounding makes at most 3 / 2 steps; of two such steps, at least 4
/// / 2.5.
constexpr double LongestStep = 1.55;
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

/// The usual distance of @p times, NaN among them aside; 1 if they never ascend.
double typicalStepOf(const std::vector<double>& times)
{
    std::vector<double> steps;
    for (std::size_t i = 1; i < times.size(); ++i) {
        const double step = times[i] - times[i - 1];
        if (step > 0.0 && std::isfinite(step))
            steps.push_back(step);
    }
    if (steps.empty())
        return 1.0;
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>((steps.size() - 1) / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    // The mean of the usual steps is nearer to the truth than one step rounded to the decimals.
    const double longest = *middle * LongestStep;
    const auto end = std::partition(steps.begin(), steps.end(),
                                    [longest](double step) { return step < longest; });
    return std::accumulate(steps.begin(), end, 0.0) / static_cast<double>(end - steps.begin());
}

} // namespace

TimeGrid::TimeGrid(const std::vector<std::string>& firstCells, char decimalPoint)
    : m_fastest(std::numeric_limits<double>::infinity())
    , m_lastPlace(std::numeric_limits<int>::max())
{
    std::vector<double> times;
    for (const std::string& cell : firstCells) {
        times.push_back(cellNumber(cell, decimalPoint));
        if (!std::isnan(times.back()))
            roundingUnit(cell);
    }
    m_typicalStep = typicalStepOf(times);
}

double TimeGrid::roundingUnit(std::string_view cell)
{
    const Places places = placesOf(cell);
    m_lastPlace = std::min(m_lastPlace, places.last);
    m_significantDigits = std::max(m_significantDigits, places.first - places.last + 1);
    return std::pow(10.0, std::max(m_lastPlace, places.first + 1 - m_significantDigits));
}

double TimeGrid::meanStep() const
{
    return m_place > 0 ? (m_last - m_grid.offset) / static_cast<double>(m_place) : m_typicalStep;
}

/// With the first time t0 and the places k0 = 0 < k1 < k2 ..., the step s fits the time tk when
/// |t0 + k s - tk| <= tolerance, that is when s lies between (tk - t0 - tolerance) / k and
/// (tk - t0 + tolerance) / k. The steps that fit all times are where these ranges meet.
TimeGrid::Verdict TimeGrid::put(double time, std::string_view cell)
{
    if (m_row++ == 0) {
        m_grid.offset = m_last = time;
        return Regular;
    }
    if (!(time > m_last))
        return NotAscending;
    const double step = std::clamp(m_typicalStep, m_slowest, m_fastest);
    const double steps = (time - m_last) / step;
    if (!(steps <= MostPlaces) || !std::isfinite(time - m_grid.offset))
        return OffGrid;
    const long long place = m_place + (steps < LongestStep ? 1 : std::llround(steps));
    const double k = static_cast<double>(place);
    const double tolerance =
        std::clamp(roundingUnit(cell), LeastTolerance * step, MostTolerance * step);
    const double slowest = std::max(m_slowest, (time - m_grid.offset - tolerance) / k);
    const double fastest = std::min(m_fastest, (time - m_grid.offset + tolerance) / k);
    if (!(slowest <= fastest))
        return OffGrid;
    if (place > m_place + 1)
        m_grid.jumps.push_back({m_row - 1, place});
    m_slowest = slowest;
    m_fastest = fastest;
    m_last = time;
    m_place = place;
    return Regular;
}

RowGrid TimeGrid::grid() const
{
    RowGrid result = m_grid;
    result.scale = std::clamp(meanStep(), m_slowest, m_fastest);
    return result;
}

} // namespace hosts::data
