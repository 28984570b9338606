#include "hosts/data/Events.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace hosts::data {

using pelorin::backend::MetaInfo;
using pelorin::backend::PlotSegment;
using pelorin::ui::chart::Axis;

namespace {

constexpr double sameShare = 1e-9;       // Of the range: values nearer than that are one.
constexpr double stepTolerance = 1e-3;   // Of a step.
constexpr std::size_t mostSteps = 20000; // With so many different values none stands out.

// The step that all values are multiples of, from the least on; none if there is none.
std::optional<double> commonStep(const std::vector<double>& ascending, double range)
{
    std::vector<double> distances;
    double last = ascending.front();
    double step = range;
    for (const double value : ascending) {
        if (value - last <= range * sameShare)
            continue;
        distances.push_back(value - ascending.front());
        step = std::min(step, value - last);
        last = value;
        if (distances.size() > mostSteps)
            return std::nullopt;
    }
    const bool areMultiples =
        std::all_of(distances.begin(), distances.end(), [step](double distance) {
            const double steps = distance / step;
            return std::abs(steps - std::round(steps)) < stepTolerance;
        });
    return areMultiples ? std::optional<double>(step) : std::nullopt;
}

/// Finds the bin of a value.
class BinFinder
{
public:
    explicit BinFinder(const Bins& bins)
        : m_bins(bins)
        , m_from(scaled(bins.from))
        , m_to(scaled(bins.to))
    {}

    MetaInfo info() const
    {
        return {m_from, (m_to - m_from) / double(m_bins.count),
                m_bins.isLogarithmic ? Axis::Logarithmic : Axis::Linear};
    }

    std::optional<long long> find(double value) const
    {
        if (!(value >= m_bins.from && value <= m_bins.to))
            return std::nullopt;
        const double place = (scaled(value) - m_from) / (m_to - m_from) * double(m_bins.count);
        return std::clamp((long long)(place), 0LL, m_bins.count - 1);
    }

private:
    double scaled(double value) const { return m_bins.isLogarithmic ? std::log10(value) : value; }

    Bins m_bins;
    double m_from;
    double m_to;
};

} // namespace

Events eventsOf(const Series& x, const Series& y)
{
    Events events;
    auto ySegment = y.snapshot.segments.begin();
    for (const PlotSegment& segment : x.snapshot.segments) {
        auto value = (ySegment++)->begin;
        for (auto sample = segment.begin; sample != segment.end; ++sample, ++value)
            events.emplace_back(*sample, *value);
    }
    return events;
}

Events valuesAndSlopes(const Series& series)
{
    Events events;
    for (const PlotSegment& segment : series.snapshot.segments) {
        for (long long i = 0; i + 1 < segment.count; ++i) {
            const double value = segment.begin[i];
            events.emplace_back(value, (segment.begin[i + 1] - value) / segment.xInfo.scale);
        }
    }
    return events;
}

Bins binsThatSuit(std::vector<double> values, const Bins& bins)
{
    const double range = bins.to - bins.from;
    if (bins.isLogarithmic || values.empty())
        return bins;
    std::sort(values.begin(), values.end());
    const std::optional<double> step = commonStep(values, range);
    const double width = range / double(bins.count);
    if (!step || *step * double(bins.count) * 50.0 < range)
        return bins;
    // The bins' edges are half way between the multiples.
    const double binWidth = *step * std::max(1.0, std::round(width / *step));
    const double edge = values.front() - *step / 2.0;
    const double from = edge - std::ceil((edge - bins.from) / binWidth) * binWidth;
    const double count = std::ceil((bins.to - from) / binWidth);
    return {from, from + count * binWidth, (long long)(count)};
}

Grid countEvents(const Events& events, const Bins& x, const Bins& y)
{
    const BinFinder xBins(x);
    const BinFinder yBins(y);
    Grid grid({xBins.info(), yBins.info()}, {x.count, y.count});
    for (const auto& [xValue, yValue] : events) {
        const std::optional<long long> i = xBins.find(xValue);
        const std::optional<long long> j = yBins.find(yValue);
        if (i && j)
            grid.at(*i, *j) += 1.0;
    }
    return grid;
}

} // namespace hosts::data
