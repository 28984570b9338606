#include "hosts/charting/StraightLines.h"

#include <kestrane/axes/LogAxis.h>
#include <kestrane/backend/InvalidIndexException.h>

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>

namespace hosts::charting {

namespace {

using namespace pelorin::backend;
using pelorin::ui::chart::LogAxis;
using pelorin::utilities::InvalidIndexException;

TEST(StraightLinesTest, AreStraightOnTheAxisAndEndBelowItWhereThereIsNoPlace)
{
    const SampleVector samples = {1.0, 100.0, -5.0};
    StraightLines lines(PlotSegment(boost::make_shared<SampleVector>(samples)),
                        QSharedPointer<LogAxis>::create(1.0, 100.0));
    EXPECT_DOUBLE_EQ(lines[0.0], 1.0);
    EXPECT_DOUBLE_EQ(lines[0.25], std::sqrt(10.0));
    EXPECT_DOUBLE_EQ(lines[1.0], 100.0);
    EXPECT_GT(lines[1.9], 1.0);
    EXPECT_LT(lines[1.99], 1.0);
    EXPECT_DOUBLE_EQ((*lines.tail(1))[0.5], lines[1.5]);
    for (const double index : {-0.1, 2.0, std::nan("")})
        EXPECT_THROW(lines[index], InvalidIndexException) << index;
}

} // namespace

} // namespace hosts::charting
