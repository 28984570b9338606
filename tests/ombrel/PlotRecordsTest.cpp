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
        EXPECT_FALSE(copy.empty());
        EXPECT_TRUE(copy.segments[0].xInfo == MetaInfo(5.0, 0.5));
        EXPECT_FALSE(copy.segments[0].xInfo == MetaInfo(5.0, 0.25));
        EXPECT_FALSE(copy.segments[0].xInfo == MetaInfo(4.0, 0.5));
        EXPECT_FALSE(copy.segments[0].xInfo ==
                     MetaInfo(5.0, 0.5, pelorin::ui::chart::Axis::Logarithmic));
        last = copy.segments[0].end - 1;
    }
    EXPECT_EQ(*last, 3.0);
}

TEST(PlotRecordsTest, ACopyOfASegmentTakesOverTheSubsamplerIntoASlotOfItsOwn)
{
    struct Curve : pelorin::algo::Subsampler
    {
        double operator[](const double&) override { return 0.0; }
        boost::shared_ptr<Subsampler> tail(long long) override { return {}; }
    };
    const auto one = boost::make_shared<Curve>(), other = boost::make_shared<Curve>();
    const PlotSegment source(boost::make_shared<SampleVector>(SampleVector{1.0}));
    EXPECT_FALSE(source.subsampler());
    EXPECT_EQ(&source.setSubsampler(one), &source);
    PlotSegment assigned(boost::make_shared<SampleVector>());
    assigned = source;
    for (const PlotSegment& copy : {PlotSegment(source), assigned}) {
        EXPECT_EQ(copy.subsampler(), one);
        EXPECT_EQ(copy.count, 1);
        copy.setSubsampler(other);
        EXPECT_EQ(source.subsampler(), one);
    }

    PlotSnapshot full({PlotSegment(boost::make_shared<SampleVector>())});
    const PlotSnapshot taken(std::move(full));
    EXPECT_TRUE(full.empty() && !taken.empty()) << "a segment without samples is one, too";
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
