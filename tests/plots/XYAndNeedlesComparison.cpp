// The x/y plot and the needles against their plain rules, over data and axes of every kind.
#include "kestrane/plots/NeedlePlotAlgorithm.h"
#include "kestrane/plots/XYPlotAlgorithm.h"

#include "tests/plots/RandomAxis.h"
#include "tests/support/Builders.h"
#include "tests/support/Comparisons.h"

#include <gtest/gtest.h>

#include <optional>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

using NeedleResult = NeedlePlotAlgorithm::NeedleResult;

namespace {

struct Lists
{
    std::vector<Points> lines, symbols;
};

Lists plainXY(const PlotSnapshot& xData, const PlotSnapshot& yData, const Axis& xAxis,
              const Axis& yAxis, double columnWidth, double symbolSpacing)
{
    Lists lists;
    if (columnWidth == 0.0)
        return lists;
    for (std::size_t i = 0; i < xData.segments.size() && i < yData.segments.size(); ++i) {
        const PlotSegment &xs = xData.segments[i], &ys = yData.segments[i];
        double columnX = -1.0;
        bool collecting = true;
        Points line, symbols;
        std::vector<double> column;
        const auto flush = [&] {
            if (column.empty())
                return;
            const auto extremes = std::minmax_element(column.begin(), column.end());
            const double stops[] = {column.front(), *extremes.first, *extremes.second,
                                    column.back()};
            for (int k = 0; k < 4; ++k) {
                if (k == 0 || stops[k] != stops[k - 1])
                    line.emplace_back(columnX, stops[k]);
            }
            column.clear();
        };
        const auto closeLine = [&] {
            flush();
            if (line.size() == 1)
                line.emplace_back(line[0].first + columnWidth, line[0].second);
            if (!line.empty())
                lists.lines.push_back(std::exchange(line, {}));
            if (!symbols.empty())
                lists.symbols.push_back(std::exchange(symbols, {}));
        };
        for (auto k = 0; k < ys.end - ys.begin && k < xs.end - xs.begin; ++k) {
            const double x = xAxis.transform(xs.yScaleMode, xs.begin[k]);
            if (std::isnan(x)) {
                closeLine();
                continue;
            }
            if (columnX == -1.0)
                columnX = x;
            if (std::fabs(x - columnX) >= columnWidth) {
                flush();
                columnX = x;
            }
            const double y = yAxis.transform(ys.yScaleMode, ys.begin[k]);
            if (std::isnan(y)) {
                closeLine();
                continue;
            }
            if (collecting && !symbols.empty() &&
                columnWidth * symbolSpacing > x - symbols.back().first) {
                symbols.clear();
                collecting = false;
            } else if (collecting) {
                symbols.emplace_back(x, y);
            }
            column.push_back(y);
        }
        closeLine();
    }
    return lists;
}

NeedleResult plainNeedles(const PlotSegment& segment, const Axis& xAxis, const Axis& yAxis,
                          double columnWidth)
{
    const double offset = segment.xInfo.offset, scale = segment.xInfo.scale;
    const double first = xAxis.transform(Axis::Linear, 0.0 * scale + offset);
    const double last = xAxis.transform(Axis::Linear, double(segment.count) * scale + offset);
    NeedleResult result(int(segment.count), first, last);
    const bool thinned = columnWidth >= (last - first) * scale;
    double right = std::floor(first / columnWidth) * columnWidth;
    right = right > 1.0 ? 1.0 : right;
    right = (right > 0.0 ? right : 0.0) + columnWidth;
    std::vector<double> needles;
    double peak = NaN;
    for (auto k = 0; k < segment.end - segment.begin; ++k) {
        const double value = segment.begin[k];
        if (!thinned) {
            needles.push_back(value);
            continue;
        }
        const double position = xAxis.transform(Axis::Linear, double(k) * scale + offset);
        if (position > right || std::isnan(position)) {
            needles.push_back(peak);
            right += columnWidth;
            peak = value;
        } else if (!std::isnan(value) && !(peak >= value)) {
            peak = value;
        }
    }
    if (thinned)
        needles.push_back(peak);
    for (const double needle : needles)
        result.values.push_back(yAxis.transform(segment.yScaleMode, needle));
    return result;
}

NeedleResult plainNeedles(const PlotSnapshot& data, const Axis& xAxis, const Axis& yAxis,
                          double columnWidth)
{
    if (columnWidth == 0.0)
        return NeedleResult();
    for (const PlotSegment& segment : data.segments) {
        try {
            return plainNeedles(segment, xAxis, yAxis, columnWidth);
        } catch (...) {
        }
    }
    return NeedleResult();
}

// Samples that walk up or up and down, with repetitions and odd ones.
std::vector<double> samples(Dice& dice)
{
    const int oddOnes = dice.upTo(3) == 0 ? 2 : 0;
    const double back = dice.oneOf({0.0, -0.0625, -0.25});
    double value = dice.oneOf({0.0, -1.0, 1.0, dice.between(-2.0, 2.0)});
    std::vector<double> result(std::size_t(dice.oneOf({0, 1, 2, 5, 9, 40, 700})));
    for (double& sample : result) {
        value += dice.oneOf({0.0, 0.0625, 0.125, 0.25, back, dice.between(back, 0.2)});
        sample = dice.upTo(9) < oddOnes ? dice.oneOf({NaN, NaN, Infinity, -1.0, 0.0}) : value;
    }
    return result;
}

PlotSnapshot randomSnapshot(Dice& dice)
{
    const auto form = [&] { return dice.upTo(4) ? Axis::Linear : Axis::Logarithmic; };
    std::vector<PlotSegment> segments;
    for (int i = dice.upTo(4); i > 0; --i) {
        const double offset = dice.oneOf({0.0, 0.25, -1.0, dice.between(-2.0, 2.0)});
        const double step = dice.upTo(14) ? dice.oneOf({1.0, 0.125, 0.0625, 0.01, -0.125})
                                          : dice.oneOf({NaN, Infinity, 1e300});
        const auto xMode = form(), yMode = form();
        segments.push_back(segment(samples(dice), offset, step, xMode, yMode));
        if (dice.upTo(9) == 0)
            segments.back().count = dice.upTo(1) ? -1 : (1LL << 32) + 7;
    }
    return PlotSnapshot(segments);
}

// What a function gives, or nothing if it throws.
template<typename Function>
auto unlessItThrows(const Function& function) -> std::optional<decltype(function())>
{
    try {
        return function();
    } catch (...) {
        return std::nullopt;
    }
}

double columnWidth(Dice& dice)
{
    return dice.upTo(19) ? dice.oneOf({0.125, 0.1, 0.01, dice.between(0.0, 0.5)})
                         : dice.oneOf({NaN, Infinity, 2.0});
}

} // namespace

void tests::compareXYPlots(Dice& dice, Seen& seen)
{
    const auto xAxis = randomAxis(dice), yAxis = randomAxis(dice);
    const double width = columnWidth(dice), spacing = dice.oneOf({0.5, 0.0, 1.0, -1.0, NaN});
    const PlotSnapshot x = randomSnapshot(dice), y = randomSnapshot(dice);
    XYPlotAlgorithm plot;
    plot.setSnapshot(x, y);
    const auto actual =
        unlessItThrows([&] { return plot.createSegments(xAxis, yAxis, width, spacing); });
    const auto expected =
        unlessItThrows([&] { return plainXY(x, y, *xAxis, *yAxis, width, spacing); });
    ASSERT_EQ(actual.has_value(), expected.has_value());
    seen.add(*xAxis, *yAxis);
    seen.of["throws"] += !expected;
    if (!expected)
        return;
    ASSERT_TRUE(same(exact(actual->first), expected->lines));
    ASSERT_TRUE(same(exact(actual->second), expected->symbols));
    seen.of["lines"] += expected->lines.size();
    seen.of["symbols"] += expected->symbols.size();
}

void tests::compareNeedles(Dice& dice, Seen& seen)
{
    const auto xAxis = randomAxis(dice), yAxis = randomAxis(dice);
    const double positive = columnWidth(dice), width = dice.upTo(9) ? positive : -positive;
    const PlotSnapshot data = randomSnapshot(dice);
    NeedlePlotAlgorithm plot;
    plot.setSnapshot(data);
    const auto actual = plot.createNeedles(xAxis.get(), yAxis.get(), width);
    const auto expected = plainNeedles(data, *xAxis, *yAxis, width);
    ASSERT_TRUE(same(actual.firstPosition, expected.firstPosition));
    ASSERT_TRUE(same(actual.lastPosition, expected.lastPosition));
    ASSERT_TRUE(same(actual.values, expected.values));
    seen.of["needles"] += expected.values.size();
}
