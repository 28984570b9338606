#include "kestrane/library/Kestrane.h"
#include "kestrane/axes/LinearAxis.h"
#include "kestrane/colors/ColorMap.h"
#include "tests/support/QtVersions.h"

#include <QCoreApplication>
#include <QMetaType>
#include <QVariant>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

using namespace pelorin::ui::chart;
using State = boost::shared_ptr<const Axis::ScrollScaleState>;

TEST(KestraneTest, RegistersItsTypesByNameOnce)
{
    const char* const names[] = {
        "pelorin::ui::chart::Axis::ScaleMode",
        "boost::shared_ptr<const pelorin::ui::chart::Axis::ScrollScaleState>",
        "pelorin::ui::ColorMap",
    };
    Kestrane::initialize();
    std::vector<int> ids;
    for (const char* name : names) {
        ids.push_back(tests::metaTypeId(name));
        EXPECT_NE(ids.back(), int(QMetaType::UnknownType)) << name;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Later ones have no such flag.
        EXPECT_TRUE(QMetaType(ids.back()).flags() & QMetaType::WasDeclaredAsMetaType) << name;
#endif
    }
    EXPECT_TRUE(ids[0] < ids[1] && ids[1] < ids[2]);
    EXPECT_EQ(QMetaType(ids[0]).metaObject(), &Axis::staticMetaObject);
    EXPECT_TRUE(QMetaType(ids[0]).flags() & QMetaType::IsEnumeration);

    Kestrane::initialize();
    Kestrane::deinitialize();
    Kestrane::deinitialize();
    Kestrane::initialize();
    for (std::size_t i = 0; i < ids.size(); ++i)
        EXPECT_EQ(tests::metaTypeId(names[i]), ids[i]);
    EXPECT_EQ(qMetaTypeId<Axis::ScaleMode>(), ids[0]);
    EXPECT_EQ(qMetaTypeId<State>(), ids[1]);
    EXPECT_EQ(qMetaTypeId<pelorin::ui::ColorMap>(), ids[2]);
    Kestrane::deinitialize();
}

TEST(KestraneTest, AnAxisAndTheBaseOfAGestureTravel)
{
    Kestrane::initialize();
    LinearAxis axis(2.0);
    const State state = axis.scrollScaleState();
    const int id = qMetaTypeId<State>();
    {
        const QVariant copy = tests::variantOf(id, &state);
        EXPECT_EQ(static_cast<const State*>(copy.constData())->get(), state.get());
        EXPECT_EQ(state.use_count(), 2);
    }
    EXPECT_EQ(state.use_count(), 1);
    EXPECT_EQ(static_cast<const State*>(tests::variantOf(id, nullptr).constData())->get(), nullptr);

    Axis* heard = nullptr;
    QObject context;
    const auto hear = [&](Axis* changed) { heard = changed; };
    QObject::connect(&axis, &Axis::parametersChanged, &context, hear, Qt::QueuedConnection);
    EXPECT_NE(tests::metaTypeId("pelorin::ui::chart::Axis *"), int(QMetaType::UnknownType));
    axis.setOffset(1.0);
    EXPECT_EQ(heard, nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, &axis);
    Kestrane::deinitialize();
}

TEST(KestraneTest, AnyThreadMayComeAndGo)
{
    std::vector<std::thread> users;
    for (int i = 0; i < 4; ++i) {
        users.emplace_back([] {
            for (int round = 0; round < 200; ++round) {
                Kestrane::initialize();
                Kestrane::deinitialize();
            }
        });
    }
    for (std::thread& user : users)
        user.join();
    EXPECT_NE(tests::metaTypeId("pelorin::ui::chart::Axis::ScaleMode"),
              int(QMetaType::UnknownType));
}
