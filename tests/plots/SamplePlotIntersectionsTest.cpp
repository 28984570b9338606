#include "kestrane/plots/SamplePlotAlgorithm.h"
#include "kestrane/plots/SplineAlgorithm.h"

#include "kestrane/backend/InvalidIndexException.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <functional>
#include <future>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

static_assert(std::is_nothrow_move_assignable_v<Intersection>);

namespace {

using Curve = std::function<double(double)>;

// A backend's curve, which answers everywhere unless told otherwise.
PlotSegment withCurve(PlotSegment segment, const Curve& curve)
{
    struct Subsampler : pelorin::algo::Subsampler
    {
        double operator[](const double& index) override { return answer(index); }
        boost::shared_ptr<pelorin::algo::Subsampler> tail(long long) override { return {}; }
        Curve answer;
    };
    const auto subsampler = boost::make_shared<Subsampler>();
    subsampler->answer = curve;
    return segment.setSubsampler(subsampler);
}

Curve constant(double value)
{
    return [value](double) { return value; };
}

// Position and value of each crossing; positions of the x axis are v / 8.
Points crossings(const SamplePlotAlgorithm& algorithm, double position, const Axis* yAxis)
{
    Points result;
    for (const auto& crossing : algorithm.doIntersect(linearAxis(8.0).get(), yAxis, position))
        result.emplace_back(crossing.position, crossing.value);
    return result;
}

// An axis that does something else than an axis does when it is asked for a value.
struct OddAxis : LinearAxis
{
    explicit OddAxis(const std::function<void()>& odd)
        : LinearAxis(8.0, 0.0, 0.0, false, 1)
        , atInverse(odd)
    {}
    double inverseTransform(ScaleMode mode, double position) const override
    {
        atInverse();
        return LinearAxis::inverseTransform(mode, position);
    }
    std::function<void()> atInverse;
};

} // namespace

// A y axis from 0 to 2 halves each value.
TEST(SamplePlotIntersectionsTest, AtMostOneCrossingASegmentInTheirOrder)
{
    constexpr auto Log = Axis::Logarithmic;
    const PlotSegment tent = segment({0.0, 1.0, 0.0}, 0.0, 4.0);
    const PlotSegment late = segment({0.25, 0.75}, 4.0, 4.0);
    const double slope = 0.7009618943233;
    struct Row
    {
        const char* what;
        PlotSnapshot data;
        double position;
        Points crossings;
    };
    // clang-format off
    const Row rows[] = {
        {"between samples", snapshot({tent}), 0.25, {{slope / 2, slope}}},
        {"on the first sample", snapshot({tent}), 0.0, {{0.0, 0.0}}},
        {"on the last one", snapshot({tent}), 1.0, {}},
        {"before the first one of the first", snapshot({late, tent}), 0.25, {{slope / 2, slope}}},
        {"two that overlap", snapshot({late, tent}), 0.75, {{0.25, 0.5}, {slope / 2, slope}}},
        {"a lone sample", snapshot({segment({1.0})}), 0.0, {}},
        {"no sample", snapshot({segment({})}), 0.0, {}},
        {"no segment", snapshot({}), 0.0, {}},
        {"nowhere", snapshot({tent}), NaN, {}},
        {"far away", snapshot({tent}), -Infinity, {}},
        {"descending samples", snapshot({segment({0.25, 0.75}, 8.0, -4.0)}), 0.75, {{0.25, 0.5}}},
        {"x in decades", snapshot({segment({0.25, 0.75}, -1.0, 2.0, Log)}), 0.125, {{0.25, 0.5}}},
        {"x too small for that", snapshot({segment({0.25, 0.75}, 0.0, 2.0, Log)}), 0.0625, {}},
        {"y in decades", snapshot({segment({2.0, 2.0}, 0.0, 4.0, Axis::Linear, Log)}), 0.25, {{50.0, 2.0}}},
        {"a NaN sample", snapshot({segment({0.5, NaN, 0.5, 0.5}), tent}), 0.25, {{slope / 2, slope}}},
        {"a place too far", snapshot({segment({400.0, 400.0}, 0.0, 4.0, Axis::Linear, Log)}), 0.25, {}},
        {"an infinite value at a finite place",
         snapshot({withCurve(segment({1.0, 1.0}, 0.0, 4.0, Axis::Linear, Log), constant(-Infinity))}), 0.25, {}},
        {"a curve of a backend", snapshot({withCurve(tent, constant(1.5))}), 0.25, {{0.75, 1.5}}},
        {"that goes on behind the samples", snapshot({withCurve(tent, constant(1.5))}), 1.0, {}},
        {"and before them", snapshot({withCurve(late, constant(1.5))}), 0.25, {}},
    };
    // clang-format on
    for (const Row& row : rows) {
        SamplePlotAlgorithm algorithm;
        algorithm.setSnapshot(row.data);
        const Points found = crossings(algorithm, row.position, linearAxis(2.0).get());
        ASSERT_EQ(found.size(), row.crossings.size()) << row.what;
        for (std::size_t i = 0; i < found.size(); ++i) {
            EXPECT_NEAR(found[i].first, row.crossings[i].first, 1e-13) << row.what;
            EXPECT_NEAR(found[i].second, row.crossings[i].second, 1e-13) << row.what;
        }
    }
}

TEST(SamplePlotIntersectionsTest, TheSplineIsBuiltOnceAndKept)
{
    const auto samples = boost::make_shared<SampleVector>(SampleVector{0.0, 1.0, 0.0});
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({PlotSegment(samples)}));
    const long withoutSpline = samples.use_count();
    crossings(algorithm, 5.0, linearAxis().get());
    const long withSpline = samples.use_count();
    EXPECT_GT(withSpline, withoutSpline);
    crossings(algorithm, 0.0, linearAxis().get());
    algorithm.createSegments(linearAxis(8.0), linearAxis(), 0.125, 1.0);
    EXPECT_EQ(samples.use_count(), withSpline);
}

TEST(SamplePlotIntersectionsTest, WhatOthersThrowPassesAndLeavesTheAlgorithmFree)
{
    const PlotSegment tent = segment({0.0, 1.0, 0.0}, 0.0, 4.0);
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({withCurve(tent, [](double) -> double { throw 1; })}));
    EXPECT_THROW(crossings(algorithm, 0.25, linearAxis().get()), int);

    const PlotSegment cut = tent;
    cut.setSubsampler(
        boost::make_shared<pelorin::algo::SplineAlgorithm<SampleIterator>>(cut.begin, 1));
    algorithm.setSnapshot(snapshot({cut}));
    EXPECT_THROW(crossings(algorithm, 0.25, linearAxis().get()),
                 pelorin::utilities::InvalidIndexException);

    const OddAxis throwing([] { throw 1.0; });
    EXPECT_THROW(algorithm.doIntersect(&throwing, &throwing, 0.25), double);
    algorithm.setSnapshot(snapshot({tent}));
    EXPECT_EQ(crossings(algorithm, 0.25, linearAxis().get()).size(), 1u);
}

TEST(SamplePlotIntersectionsTest, ANullAxisGivesNothingOnceTheRequestBeforeIsDone)
{
    SamplePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment({0.0, 1.0, 0.0})}));
    std::future<bool> later;
    const OddAxis slow([&] {
        later = std::async(std::launch::async, [&] {
            return algorithm.doIntersect(nullptr, linearAxis().get(), 0.0).isEmpty() &&
                   algorithm.doIntersect(linearAxis().get(), nullptr, 0.0).isEmpty();
        });
        EXPECT_EQ(later.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    });
    EXPECT_EQ(algorithm.doIntersect(&slow, &slow, 0.0).size(), 1);
    EXPECT_TRUE(later.get());
}
