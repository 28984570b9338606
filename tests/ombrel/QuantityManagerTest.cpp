#include "kestrane/backend/QuantityManager.h"

#include <gtest/gtest.h>

#include <thread>

using namespace pelorin::variables;

TEST(QuantityTest, ComparesItsNameAndEachFieldOfItsUnits)
{
    const Quantity::Unit unit{"V", true, 2.0, 3.0, "US"};
    const Quantity voltage("U", {unit});
    EXPECT_TRUE(voltage == Quantity("U", {{"V", true, 2.0, 3.0, "US"}}));
    Quantity::Unit others[] = {unit, unit, unit, unit, unit};
    others[0].symbol = "W";
    others[1].takesPrefix = false;
    others[2].scale = 2.5;
    others[3].offset = -3.0;
    others[4].system.clear();
    for (const Quantity::Unit& other : others)
        EXPECT_TRUE(voltage != Quantity("U", {other})) << (&other - others);
    EXPECT_TRUE(voltage != Quantity("I", {unit}) && voltage != Quantity("U"));
}

TEST(QuantityManagerTest, LearnsAndReplacesWhileOthersAsk)
{
    QuantityManager manager;
    EXPECT_EQ(manager.quantity("Voltage"), Quantity("Voltage"));
    const int known = manager.names().size();
    const Quantity before = manager.quantity("voltage");
    const auto teach = [&manager](const QString& name) {
        for (int k = 0; k < 1000; ++k) {
            const Quantity channel(name, {{"V", true, 1.0, double(k), ""}});
            manager.add(channel);
            EXPECT_EQ(manager.quantity(name), channel);
        }
    };
    std::thread threads[] = {std::thread(teach, "1"), std::thread(teach, "2"),
                             std::thread(teach, "3"), std::thread(teach, "voltage")};
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(manager.names().size(), known + 3);
    EXPECT_EQ(before.units().value(0).offset, 0.0);
}
