#include "kestrane/plots/NeedlePlotAlgorithm.h"

#include "tests/support/Builders.h"
#include "tests/support/Numbers.h"

#include <gtest/gtest.h>

#include <future>
#include <stdexcept>

using namespace pelorin::backend;
using namespace pelorin::ui::chart;
using namespace tests;

using NeedleResult = NeedlePlotAlgorithm::NeedleResult;

static_assert(std::has_virtual_destructor_v<NeedlePlotAlgorithm>);
static_assert(std::is_nothrow_move_constructible_v<NeedleResult>);
static_assert(std::is_nothrow_move_assignable_v<NeedleResult>);

TEST(NeedlePlotAlgorithmTest, ANeedleASampleOrAColumn)
{
    const PlotSegment eight = segment({1, 2, 3, 4, 5, 6, 7, 8}, 0.0, 0.125);
    const PlotSegment three = segment({1, 2, 3});
    PlotSegment tooMany = three, wrapped = three;
    tooMany.count = 1LL << 31;
    wrapped.count = (1LL << 32) + 3;
    struct Row
    {
        const char* what;
        PlotSnapshot data;
        double axisLength, columnWidth;
        double first, last;
        std::vector<double> values;
    };
    // clang-format off
    const Row rows[] = {
        {"on each edge", snapshot({eight}), 1, 0.125, 0, 1, {2, 3, 4, 5, 6, 7, 8}},
        {"two a column", snapshot({eight}), 1, 0.25, 0, 1, {3, 5, 7, 8}},
        {"too sparse", snapshot({three}), 8, 0.125, 0, 0.375, {1, 2, 3}},
        {"all in one", snapshot({three}), 8, 0.5, 0, 0.375, {3}},
        {"two segments", snapshot({three, eight}), 8, 0.125, 0, 0.375, {1, 2, 3}},
        {"no segment", snapshot({}), 8, 0.125, 0, 0, {}},
        {"no sample", snapshot({segment({}, 4.0), three}), 8, 0.125, 0.5, 0.5, {NaN}},
        {"nor a place for one", snapshot({segment({}, Infinity)}), 8, 0.125, Infinity, Infinity, {}},
        {"NaN in a column", snapshot({segment({1, NaN, 3, 2})}), 8, 0.5, 0, 0.5, {3}},
        {"NaN gives way", snapshot({segment({4, 4, 4, NaN, 2, 5, 1}, 0.0, 0.0625)}), 1, 0.125, 0, 0.4375, {4, 2, 5}},
        {"NaN kept", snapshot({segment({1, NaN, 3})}), 8, 0.125, 0, 0.375, {1, NaN, 3}},
        {"a far start", snapshot({segment({1, 2, 3}, 2.0, 0.125)}), 1, 0.25, 2, 2.375, {NaN, 1, 2, 3}},
        {"a negative width", snapshot({segment({1, 2}, -1.0)}), -1, -0.25, 1, -1, {NaN, 2}},
        {"a width of NaN", snapshot({three}), 8, NaN, 0, 0.375, {1, 2, 3}},
        {"an endless one", snapshot({three}), 8, Infinity, 0, 0.375, {3}},
        {"too much to hold", snapshot({tooMany, eight}), 1, 0.25, 0, 1, {3, 5, 7, 8}},
        {"32 bits of it", snapshot({wrapped}), 8, 0.125, 0, 536870912.375, {1, 2, 3}},
    };
    // clang-format on
    for (const Row& row : rows) {
        NeedlePlotAlgorithm algorithm;
        algorithm.setSnapshot(row.data);
        const NeedleResult result = algorithm.createNeedles(linearAxis(row.axisLength).get(),
                                                            linearAxis().get(), row.columnWidth);
        EXPECT_EQ(result.firstPosition, row.first) << row.what;
        EXPECT_EQ(result.lastPosition, row.last) << row.what;
        EXPECT_TRUE(same(result.values, SampleVector(row.values.begin(), row.values.end())))
            << row.what << ": " << testing::PrintToString(result.values);
        EXPECT_EQ(result.values.capacity(), result.values.size()) << row.what;
    }
}

TEST(NeedlePlotAlgorithmTest, AResultStartsWithoutNeedles)
{
    const NeedleResult nothing;
    EXPECT_EQ(nothing.firstPosition, 0.0);
    EXPECT_EQ(nothing.lastPosition, 0.0);
    EXPECT_EQ(nothing.values.capacity(), 0u);

    const NeedleResult result(5, 0.25, 0.5);
    EXPECT_EQ(result.values.capacity(), 5u);
    EXPECT_TRUE(result.values.empty());
    EXPECT_EQ(result.firstPosition, 0.25);
    EXPECT_EQ(result.lastPosition, 0.5);
    try {
        NeedleResult(-1);
        FAIL() << "of no use";
    } catch (const std::length_error& error) {
        EXPECT_STREQ(error.what(), "vector too long");
    }
}

TEST(NeedlePlotAlgorithmTest, TheFirstSegmentThatDoesNotThrowCounts)
{
    NeedlePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment({1, 2, 9}), segment({3, 4}), segment({5})}));
    const HookedAxis upToEight([](double value) {
        if (value > 8.0)
            throw 1;
    });
    const auto axis = linearAxis(8.0);
    EXPECT_EQ(algorithm.createNeedles(axis.get(), &upToEight, 0.125).values, (SampleVector{3, 4}));
    const HookedAxis never([](double) { throw 1; });
    EXPECT_TRUE(algorithm.createNeedles(axis.get(), &never, 0.125).values.empty());
    EXPECT_EQ(algorithm.createNeedles(axis.get(), &never, 0.125).lastPosition, 0.0);
}

TEST(NeedlePlotAlgorithmTest, NewDataWaitForARequestAndRequestsForNothingDoNot)
{
    NeedlePlotAlgorithm algorithm;
    algorithm.setSnapshot(snapshot({segment({1})}));
    std::future<void> later;
    const auto axis = linearAxis();
    const HookedAxis slow([&](double) {
        EXPECT_TRUE(algorithm.createNeedles(nullptr, axis.get(), 0.125).values.empty());
        EXPECT_TRUE(algorithm.createNeedles(axis.get(), nullptr, 0.125).values.empty());
        EXPECT_TRUE(algorithm.createNeedles(axis.get(), axis.get(), -0.0).values.empty());
        later = std::async(std::launch::async, [&] { algorithm.setSnapshot({}); });
        EXPECT_EQ(later.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    });
    EXPECT_EQ(algorithm.createNeedles(axis.get(), &slow, 0.125).values.size(), 1u);
    later.get();
    EXPECT_TRUE(algorithm.createNeedles(axis.get(), axis.get(), 0.125).values.empty());
}
