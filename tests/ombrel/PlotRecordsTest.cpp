#include "kestrane/backend/MinMaxAverageAlgorithm.h"
#include "kestrane/backend/PlotSnapshot.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <type_traits>
#include <utility>

using namespace pelorin;
using namespace pelorin::backend;

static_assert(std::is_nothrow_move_constructible_v<PlotSnapshot>);

namespace {

class Zero : public algo::Subsampler
{
public:
    double operator[](const double&) override { return 0.0; }
    boost::shared_ptr<Subsampler> tail(long long) override { return boost::make_shared<Zero>(); }
};

PlotSegment segmentOfThree()
{
    return PlotSegment(boost::make_shared<SampleVector>(SampleVector{1.0, 2.0, 3.0}));
}

} // namespace

TEST(PlotRecordsTest, SamplesLiveAsLongAsAnybodyReadsThem)
{
    SampleIterator place;
    {
        PlotSnapshot snapshot({segmentOfThree()});
        const PlotSnapshot copy = snapshot;
        EXPECT_TRUE(copy.segments[0].begin == snapshot.segments[0].begin);
        snapshot = PlotSnapshot();
        EXPECT_TRUE(snapshot.empty());
        place = copy.segments[0].end - 1;
        EXPECT_EQ(copy.segments[0].count, 3);
    }
    EXPECT_EQ(*place, 3.0);
}

TEST(PlotRecordsTest, ACopiedSegmentStartsWithTheSubsamplerAndThenHasItsOwn)
{
    const PlotSegment segment = segmentOfThree();
    EXPECT_EQ(segment.subsampler(), nullptr);
    const auto first = boost::make_shared<Zero>();
    EXPECT_EQ(&segment.setSubsampler(first), &segment);

    const PlotSegment copy = segment;
    EXPECT_EQ(copy.subsampler(), first);
    copy.setSubsampler(boost::make_shared<Zero>());
    EXPECT_NE(copy.subsampler(), first);
    EXPECT_EQ(segment.subsampler(), first);
}

TEST(PlotRecordsTest, ASnapshotIsEmptyWithoutSegmentsAndAfterItWasMoved)
{
    PlotSnapshot source({segmentOfThree()});
    EXPECT_FALSE(source.empty());
    const PlotSnapshot target = std::move(source);
    EXPECT_FALSE(target.empty());
    EXPECT_TRUE(PlotSnapshot().empty());
}

TEST(PlotRecordsTest, GridsDifferByOffsetStepAndMode)
{
    const MetaInfo grid(1.0, 2.0);
    EXPECT_TRUE(grid == MetaInfo(1.0, 2.0, ui::chart::Axis::Linear));
    EXPECT_FALSE(grid == MetaInfo(1.5, 2.0));
    EXPECT_FALSE(grid == MetaInfo(1.0, 2.5));
    EXPECT_FALSE(grid == MetaInfo(1.0, 2.0, ui::chart::Axis::Logarithmic));
}

TEST(PlotRecordsTest, AnAccumulatorForgetsAllAtReset)
{
    algo::MinMaxAverageAlgorithm values;
    EXPECT_EQ(values.count(), 0u);
    for (const double value : {-7.0, 9.0, -8.0, 2.0})
        values.put(value);
    values.reset();
    EXPECT_EQ(values.count(), 0u);

    for (const double value : {2.0, 5.0, 1.0, 4.0})
        values.put(value);
    EXPECT_EQ(values.count(), 4u);
    EXPECT_EQ(values.first(), 2.0);
    EXPECT_EQ(values.last(), 4.0);
    EXPECT_EQ(values.minVal(), 1.0);
    EXPECT_EQ(values.maxVal(), 5.0);
    EXPECT_EQ(values.average(), 3.0);
}
