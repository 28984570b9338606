#include "kestrane/backend/QuantityManager.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace pelorin::variables;

TEST(QuantityTest, EqualsAnotherOnlyByNameAndUnits)
{
    const Quantity torque("torque", {{"Nm", true, 1.0, 0.0, "SI"}});
    EXPECT_EQ(torque, Quantity("torque", {{"Nm", true, 1.0, 0.0, "SI"}}));
    EXPECT_NE(torque, Quantity("energy", torque.units()));
    EXPECT_NE(torque, Quantity("torque"));
    EXPECT_NE(torque, Quantity("torque", {{"Nm", true, 1.0, 0.5, "SI"}}));
    EXPECT_EQ(Quantity(), Quantity(""));
    EXPECT_EQ(QString(torque), "torque");
}

TEST(QuantityManagerTest, AnUnknownNameGivesAQuantityOfThatNameWithoutAUnit)
{
    const QuantityManager manager;
    EXPECT_EQ(manager.quantity("Voltage"), Quantity("Voltage"));
    EXPECT_EQ(manager.quantity(""), Quantity());
}

TEST(QuantityManagerTest, LearnsAndReplacesWhileOthersAsk)
{
    QuantityManager manager;
    const int known = manager.names().size();
    const Quantity before = manager.quantity("voltage");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&manager, i] {
            for (int k = 0; k < 200; ++k) {
                const QString name = QString("channel %1").arg(i);
                manager.add(Quantity(name, {{QString::number(k), false, 1.0, 0.0, ""}}));
                EXPECT_EQ(manager.quantity(name).units().value(0).symbol, QString::number(k));
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    manager.add(Quantity("voltage"));

    EXPECT_EQ(manager.names().size(), known + 4);
    EXPECT_EQ(manager.quantity("voltage"), Quantity("voltage"));
    EXPECT_EQ(before.units().value(0).symbol, "V");
}
