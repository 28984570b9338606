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

TEST(IntersectableTest, TellsEachNotifyeeInOrderWhichPlotHasChanged)
{
    Plot plot;
    std::vector<int> called;
    const auto note = [&](int which) {
        return [&called, &plot, which](const Intersectable* caller) {
            EXPECT_EQ(caller, &plot);
            called.push_back(which);
        };
    };
    const Registration first = plot.notifyees().add(note(2));
    const Registration second = plot.notifyees().add(note(1));
    plot.fireUpdates();
    EXPECT_EQ(called, (std::vector<int>{2, 1}));
}

TEST(IntersectableTest, AnEmptyCallbackEndsThePassAndNothingElse)
{
    Plot plot;
    int before = 0;
    int behind = 0;
    const Registration first = plot.notifyees().add([&](const Intersectable*) { ++before; });
    Registration empty = plot.notifyees().add(Intersectable::Notifyee());
    const Registration last = plot.notifyees().add([&](const Intersectable*) { ++behind; });
    try {
        plot.fireUpdates();
        ADD_FAILURE() << "an empty callback was called";
    } catch (const boost::bad_function_call& error) {
        EXPECT_STREQ(error.what(), "call to empty boost::function");
    }
    empty = Registration();
    // A pass that had kept its hold would have held up the change.
    std::async(std::launch::async, [&] { plot.fireUpdates(); }).get();
    EXPECT_EQ(before, 2);
    EXPECT_EQ(behind, 1);
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
