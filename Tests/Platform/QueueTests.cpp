// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/MainQueue.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Queues/ThreadPool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <latch>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using Kind = DispatchQueue::Kind;

TEST(ThreadPoolTests, UrgentJobsAndWhatComesOfThemGoFirst)
{
    std::string order;
    std::latch held(1);
    std::latch done(1);
    ThreadPool pool({1, 1, 5ms, 100ms});
    pool.submit([&held] { held.wait(); });
    pool.submit([&order] { order += 'c'; });
    {
        const ThreadPool::UrgentScope urgent(true);
        const ThreadPool::UrgentScope changesNothing(false);
        pool.submit([&] {
            order += 'a';
            pool.submit([&order] { order += 'b'; });
        });
    }
    pool.submit([&] {
        order += 'd';
        done.count_down();
    });
    held.count_down();
    done.wait();
    EXPECT_EQ(order, "abcd");
}

TEST(DispatchQueueTests, ASerialQueueRunsOneBlockAtATimeInOrderAndSyncOnTheCaller)
{
    const DispatchQueue queue("serial", Kind::Serial);
    std::vector<int> order; // unguarded on purpose: the queue is the lock
    std::vector<int> expected;
    for (int i = 0; i < 1000; ++i) {
        queue.async([&order, i] { order.push_back(i); });
        expected.push_back(i);
    }
    std::thread::id where;
    queue.sync([&] { where = std::this_thread::get_id(); });
    EXPECT_EQ(where, std::this_thread::get_id());
    EXPECT_EQ(order, expected);
    {
        std::vector<std::jthread> threads(4);
        for (std::jthread& thread : threads) {
            thread = std::jthread([&] {
                for (int i = 0; i < 2000; ++i) {
                    queue.sync([&] { order.push_back(i); });
                    queue.async([&order, i] { order.push_back(i); });
                }
            });
        }
    }
    queue.sync([] {});
    EXPECT_EQ(order.size(), 17'000U);
}

TEST(DispatchQueueTests, ConcurrentBlocksOverlapHoweverManyBlockAndWaitingOnesOutliveTheirQueue)
{
    constexpr int blockers = 16; // more than there are threads at first
    std::latch together(2 * blockers + 1);
    std::promise<void> gate;
    std::latch last(2);
    {
        const DispatchQueue concurrent("concurrent", Kind::Concurrent);
        const OperationQueue operations;
        std::atomic<int> ended = 0;
        for (int i = 0; i < blockers; ++i) {
            concurrent.async([&] { together.arrive_and_wait(); });
            operations.addOperation([&] {
                together.arrive_and_wait();
                ++ended;
            });
        }
        concurrent.sync([&] { together.arrive_and_wait(); });
        operations.waitUntilAllOperationsAreFinished();
        EXPECT_EQ(ended, blockers);
        const DispatchQueue serial("dropped", Kind::Serial);
        const std::shared_future<void> opened = gate.get_future().share();
        serial.async([opened] { opened.wait(); });
        serial.async([&] { last.count_down(); });
        operations.addOperation([&, opened] {
            opened.wait();
            last.count_down();
        });
    }
    gate.set_value();
    last.wait();
}

class MainQueueTests : public ::testing::Test
{
protected:
    void SetUp() override { queue.adoptCurrentThread(); }
    MainQueue& queue = MainQueue::shared();
    std::vector<int> order;
};

TEST_F(MainQueueTests, DrainsInOrderWhatWasQueuedBeforeAlsoFromWithinABlock)
{
    queue.async([&] {
        queue.async([&] { order.push_back(3); });
        order.push_back(1);
    });
    queue.async([&] { order.push_back(2); });
    EXPECT_TRUE(queue.drain());
    EXPECT_EQ(order, (std::vector{1, 2}));
    queue.async([&] { EXPECT_TRUE(queue.runUntil([&] { return order.size() == 5; }, 10s)); });
    queue.async([&] { order.push_back(4); });
    queue.async([&] { order.push_back(5); });
    EXPECT_TRUE(queue.drain());
    EXPECT_EQ(order, (std::vector{1, 2, 3, 4, 5}));
    EXPECT_FALSE(queue.drain());
}

TEST_F(MainQueueTests, ATimeLimitLeavesBlocksToAHostThatComesBackUnwoken)
{
    int wakes = 0;
    queue.setWake([&] { ++wakes; });
    for (int i = 1; i <= 3; ++i) {
        queue.async([&, i] {
            std::this_thread::sleep_for(20ms);
            order.push_back(i);
            queue.async([&, i] { order.push_back(10 * i); });
        });
    }
    EXPECT_EQ(wakes, 1);
    EXPECT_TRUE(queue.drainFor(10ms)) << "the first block used up the time";
    EXPECT_EQ(order, std::vector{1});
    while (queue.drainFor(10ms)) {
    }
    EXPECT_EQ(order, (std::vector{1, 2, 3, 10, 20, 30}));
    EXPECT_EQ(wakes, 1) << "a host that comes back by itself is not woken";
    queue.async([] {});
    EXPECT_EQ(wakes, 2);
    queue.setWake(nullptr);
    queue.drain();
}

TEST_F(MainQueueTests, NobodyIsInARemovedWakeFunction)
{
    std::jthread other([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
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
    other.request_stop();
    other.join();
    queue.drain();
    EXPECT_FALSE(queue.drain());
}

TEST_F(MainQueueTests, DelayedBlocksRunInTheOrderOfTheirTimesAndNotBefore)
{
    // Far enough apart for a machine that takes a while between two of these lines.
    const auto start = std::chrono::steady_clock::now();
    queue.asyncAfter(400ms, [&] { order.push_back(3); });
    queue.asyncAfter(100ms, [&] { order.push_back(1); });
    queue.asyncAfter(100ms, [&] { order.push_back(2); });
    queue.async([&] { order.push_back(0); });
    EXPECT_TRUE(queue.runUntil([&] { return order.size() == 4; }, 10s));
    EXPECT_EQ(order, (std::vector{0, 1, 2, 3}));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 400ms);
    EXPECT_FALSE(queue.runUntil([] { return false; }, 5ms));
}

} // namespace
} // namespace lodestar
