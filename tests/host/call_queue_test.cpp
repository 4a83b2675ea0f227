#include "bridge/call_queue.h"

#include <gtest/gtest.h>

#include <vector>

TEST(CallQueue, RunsACallAtOnceWhenNoneIsRunning) {
    CallQueue calls;
    bool ran = false;
    calls.run([&] { ran = true; });
    EXPECT_TRUE(ran);
}

TEST(CallQueue, HoldsACallBackUntilTheRunningOneIsDone) {
    CallQueue calls;
    std::vector<int> order;
    calls.run([&] {
        calls.run([&] { order.push_back(2); });
        calls.run([&] {
            calls.run([&] { order.push_back(4); });
            order.push_back(3);
        });
        order.push_back(1);
    });
    EXPECT_EQ(order, (std::vector{1, 2, 3, 4}));
}
