#include "kestrane/backend/MinMaxAverageAlgorithm.h"
#include "kestrane/backend/PlotSnapshot.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

using namespace pelorin::backend;

static_assert(std::is_nothrow_move_constructible_v<PlotSnapshot>);

TEST(PlotRecordsTest, SamplesLiveAsLongAsAnybodyReadsThem)
{
    SampleIterator last;
    {
        const auto samples = boost::make_shared<SampleVector>(SampleVector{1.0, 2.0, 3.0});
        PlotSnapshot snapshot({PlotSegment(samples, MetaInfo(5.0, 0.5))});
        const PlotSnapshot copy = snapshot;
        snapshot = PlotSnapshot();
        EXPECT_TRUE(snapshot.empty());
        EXPECT_EQ(copy.segments.at(0).count, 3);
        EXPECT_TRUE(copy.segments[0].xInfo == MetaInfo(5.0, 0.5));
        last = copy.segments[0].end - 1;
    }
    EXPECT_EQ(*last, 3.0);
}

TEST(PlotRecordsTest, AnAccumulatorForgetsAllAtReset)
{
    pelorin::algo::MinMaxAverageAlgorithm values;
    for (const double value : {-7.0, 9.0, -8.0})
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
