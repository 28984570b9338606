#include "kestrane/backend/GridPosition.h"
#include "kestrane/backend/MultiDimensionalPlotSnapshot.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <boost/weak_ptr.hpp>

#include <algorithm>

using namespace pelorin::backend;

namespace {

template<typename T>
class GridRecordsTest : public testing::Test
{
protected:
    using Segment = MultiDimensionalPlotSegment<T, 2>;

    // Ten times the row and once the column: 4 columns, 3 rows.
    static boost::shared_ptr<const T[]> samples()
    {
        const auto result = boost::make_shared<T[]>(12);
        for (int k = 0; k < 12; ++k)
            result[k] = static_cast<T>(k / 4 * 10 + k % 4);
        return result;
    }

    // Sample by sample, and sorted as one block.
    static std::vector<T> read(const Segment& segment, bool asBlock)
    {
        std::vector<T> result;
        GridPosition<T> row(segment);
        if (asBlock)
            row.visitRows(segment.shape, [&](const T* first, long long count, long long stride) {
                for (long long k = 0; k < count; ++k)
                    result.push_back(first[k * stride]);
            });
        for (long long i1 = 0; i1 < segment.shape[1] && !asBlock; ++i1, row.move(1, 1)) {
            GridPosition<T> position = row;
            for (long long i0 = 0; i0 < segment.shape[0]; ++i0, position.move(0, 1))
                result.push_back(*position);
        }
        return result;
    }
};

using Kinds = testing::Types<double, unsigned int>;
TYPED_TEST_SUITE(GridRecordsTest, Kinds, );

} // namespace

TYPED_TEST(GridRecordsTest, OneMemoryServesManyGrids)
{
    const auto memory = this->samples();
    const std::array<MetaInfo, 2> info{MetaInfo(5.0, 0.5), MetaInfo()};
    const struct
    {
        const char* name;
        MultiDimensionalPlotSegment<TypeParam, 2> segment;
        std::vector<TypeParam> expected;
    } cases[] = {
        {"whole", {memory, info, {4, 3}}, {0, 1, 2, 3, 10, 11, 12, 13, 20, 21, 22, 23}},
        {"transposed",
         {memory, info, {3, 4}, {4, 1}},
         {0, 10, 20, 1, 11, 21, 2, 12, 22, 3, 13, 23}},
        {"part", {memory, info, {2, 2}, {1, 4}, 5}, {11, 12, 21, 22}},
        {"every other", {memory, info, {2, 2}, {2, 8}, 1}, {1, 3, 21, 23}},
        {"mirrored", {memory, info, {4, 1}, {-1, 4}, 11}, {23, 22, 21, 20}},
        {"none", {memory, info, {0, 3}}, {}},
        {"none in rows", {memory, info, {0, 3}, {1, 4}}, {}},
    };
    for (auto [name, segment, expected] : cases) {
        EXPECT_EQ(this->read(segment, false), expected) << name;
        auto copy = cases[0].segment;
        copy = segment;
        auto block = this->read(copy, true);
        EXPECT_TRUE(
            std::is_permutation(block.begin(), block.end(), expected.begin(), expected.end()))
            << name;
        EXPECT_EQ(segment.extents, segment.shape);
        EXPECT_TRUE(segment.metaInfo[0] == info[0] && segment.metaInfo[1] == info[1]);
    }
}

TYPED_TEST(GridRecordsTest, CopiesKeepTheirSegmentsAndSamples)
{
    using Snapshot = MultiDimensionalPlotSnapshot<TypeParam, 2>;
    EXPECT_TRUE(Snapshot().empty());
    auto memory = this->samples();
    const boost::weak_ptr<const TypeParam[]> watched = memory;
    Snapshot copy;
    {
        Snapshot snapshot({{memory, {}, {4, 3}}, {memory, {}, {2, 1}}});
        memory.reset();
        copy = snapshot;
        snapshot = Snapshot();
        EXPECT_TRUE(snapshot.empty() && snapshot.begin() == snapshot.end());
    }
    EXPECT_FALSE(copy.empty());
    ASSERT_EQ(copy.end() - copy.begin(), 2);
    EXPECT_EQ(this->read(copy.begin()[1], false), (std::vector<TypeParam>{0, 1}));
    copy = Snapshot();
    EXPECT_TRUE(watched.expired());
}
