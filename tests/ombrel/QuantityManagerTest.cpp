#include "kestrane/backend/QuantityManager.h"

#include <gtest/gtest.h>

#include <thread>

using namespace pelorin::variables;

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
