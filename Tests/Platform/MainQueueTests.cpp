// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/MainQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;

class MainQueueTests : public ::testing::Test
{
protected:
    void SetUp() override { queue.adoptCurrentThread(); }
    void TearDown() override
    {
        queue.setWake(nullptr);
        queue.drain();
    }
    MainQueue& queue = MainQueue::shared();
};

TEST_F(MainQueueTests, DrainsInOrderAndLeavesWhatItsBlocksQueue)
{
    std::vector<int> order;
    queue.async([&] {
        order.push_back(1);
        queue.async([&] { order.push_back(3); });
    });
    queue.async([&] { order.push_back(2); });
    EXPECT_TRUE(queue.drain());
    EXPECT_EQ(order, (std::vector{1, 2}));
    EXPECT_TRUE(queue.drain());
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
    EXPECT_FALSE(queue.drain());
}

TEST_F(MainQueueTests, ABlockThatDrainsRunsThoseBehindItOnce)
{
    std::vector<int> order;
    queue.async([&] {
        order.push_back(1);
        EXPECT_TRUE(queue.runUntil([&] { return order.size() == 3; }, 10s));
    });
    queue.async([&] { order.push_back(2); });
    queue.async([&] { order.push_back(3); });
    queue.drain();
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST_F(MainQueueTests, RunIsImmediateOnlyOnTheMainThread)
{
    std::thread::id where;
    queue.run([&] { where = std::this_thread::get_id(); });
    EXPECT_EQ(where, std::this_thread::get_id());

    std::atomic<bool> ran = false;
    bool ranOnWorker = true;
    bool workerIsMain = true;
    std::thread([&] {
        workerIsMain = queue.isCurrent();
        queue.run([&] { ran = queue.isCurrent(); });
        ranOnWorker = ran;
    }).join();
    EXPECT_FALSE(workerIsMain);
    EXPECT_FALSE(ranOnWorker);
    queue.drain();
    EXPECT_TRUE(ran);
}
TEST_F(MainQueueTests, NobodyIsInARemovedWakeFunction)
{
    std::atomic<bool> stop = false;
    std::thread other([&] {
        while (!stop) {
            queue.async([] {});
            std::this_thread::yield();
        }
    });
    for (int i = 0; i < 300; ++i) {
        auto host = std::make_unique<std::atomic<int>>(0);
        queue.setWake([target = host.get()] { ++*target; });
        queue.drain();
        queue.setWake(nullptr);
    }
    stop = true;
    other.join();
    queue.drain();
    EXPECT_FALSE(queue.drain());
}

TEST_F(MainQueueTests, DelayedBlocksRunInTheOrderOfTheirTimesAndNotBefore)
{
    // Far enough apart for a machine that takes a while between two of these lines.
    std::vector<int> order;
    const auto start = std::chrono::steady_clock::now();
    std::chrono::steady_clock::duration last{};
    queue.asyncAfter(400ms, [&] {
        order.push_back(3);
        last = std::chrono::steady_clock::now() - start;
    });
    queue.asyncAfter(100ms, [&] { order.push_back(1); });
    queue.asyncAfter(100ms, [&] { order.push_back(2); });
    queue.async([&] { order.push_back(0); });
    EXPECT_TRUE(queue.runUntil([&] { return order.size() == 4; }, 10s));
    EXPECT_EQ(order, (std::vector{0, 1, 2, 3}));
    EXPECT_GE(last, 400ms);
    EXPECT_FALSE(queue.runUntil([] { return false; }, 5ms));
}

} // namespace
} // namespace lodestar
