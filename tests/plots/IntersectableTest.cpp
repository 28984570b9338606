#include "kestrane/plots/Intersectable.h"

#include <boost/optional.hpp>
#include <gtest/gtest.h>

#include <future>

using namespace pelorin::ui::chart;
using pelorin::utilities::Registration;

static_assert(!std::is_copy_constructible_v<Intersectable>);

namespace {

struct Plot : Intersectable
{
    QList<Intersection> doIntersect(const Axis*, const Axis*, double) const override { return {}; }
    using Intersectable::fireUpdates;
};

} // namespace

TEST(IntersectableTest, TellsWhichPlotHasChangedUpToAnEmptyCallback)
{
    Plot plot;
    std::string called;
    const auto note = [&](char which) {
        return [&called, &plot, which](const Intersectable* caller) {
            EXPECT_EQ(caller, &plot);
            called += which;
        };
    };
    const Registration first = plot.notifyees().add(note('b'));
    const Registration second = plot.notifyees().add(note('a'));
    Registration empty = plot.notifyees().add(Intersectable::Notifyee());
    const Registration last = plot.notifyees().add(note('c'));
    try {
        plot.fireUpdates();
        ADD_FAILURE() << "an empty callback was called";
    } catch (const boost::bad_function_call& error) {
        EXPECT_STREQ(error.what(), "call to empty boost::function");
    }
    EXPECT_EQ(std::exchange(called, {}), "ba");
    empty = Registration();
    // A pass that had kept its hold would have held up the change.
    std::async(std::launch::async, [&] { plot.fireUpdates(); }).get();
    EXPECT_EQ(called, "bac");
}

TEST(IntersectableTest, TheLastCallbackMayDestroyThePlot)
{
    boost::optional<Plot> plot{boost::in_place_init};
    const auto token = std::make_shared<int>();
    Registration registration;
    registration = plot->notifyees().add([&, token](const Intersectable*) {
        plot = boost::none;
        registration = Registration();
        EXPECT_EQ(token.use_count(), 2);
    });
    plot->fireUpdates();
    EXPECT_EQ(token.use_count(), 1);
}
