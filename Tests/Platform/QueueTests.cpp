// SPDX-License-Identifier: Apache-2.0
#include "Platform/Queues/DispatchQueue.h"
#include "Platform/Queues/OperationQueue.h"
#include "Platform/Queues/ThreadPool.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <future>
#include <latch>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
using Kind = DispatchQueue::Kind;

TEST(TaskTests, KeepsSmallAndLargeCallablesAndDestroysThemOnce)
{
    const auto token = std::make_shared<int>(0);
    std::array<char, 200> large{};
    Task small([token] { ++*token; });
    Task big([token, large] { *token += 1 + large[0]; });
    EXPECT_EQ(token.use_count(), 3);
    Task moved = std::move(small);
    big();
    moved();
    EXPECT_EQ(*token, 2);
    moved = std::move(big);
    EXPECT_EQ(token.use_count(), 2);
    moved.reset();
    EXPECT_EQ(token.use_count(), 1);
    EXPECT_FALSE(moved);
}

TEST(ThreadPoolTests, GrowsWhileEveryThreadBlocksAndShrinksWhenIdle)
{
    constexpr std::ptrdiff_t blockers = 16;
    std::latch everybodyIn(blockers);
    std::latch goOn(1);
    ThreadPool pool({2, 16, 1ms, 5ms});
    for (std::ptrdiff_t i = 0; i < blockers; ++i) {
        pool.submit([&] {
            everybodyIn.count_down();
            goOn.wait();
        });
    }
    everybodyIn.wait(); // returns only if all run at the same time
    EXPECT_EQ(pool.threadCount(), static_cast<std::size_t>(blockers));
    goOn.count_down();
    const auto limit = std::chrono::steady_clock::now() + 30s;
    while (pool.threadCount() > 2 && std::chrono::steady_clock::now() < limit) {
        std::this_thread::yield();
    }
    EXPECT_EQ(pool.threadCount(), 2U);
}

TEST(ThreadPoolTests, ABlockMayWaitForABlockThatItSubmitted)
{
    std::promise<int> outer;
    ThreadPool pool({1, 8, 1ms, 5ms});
    pool.submit([&] {
        std::promise<int> inner;
        pool.submit([&] { inner.set_value(7); });
        outer.set_value(inner.get_future().get());
    });
    EXPECT_EQ(outer.get_future().get(), 7);
}

TEST(ThreadPoolTests, DestructionRunsWhatWaits)
{
    std::atomic<int> ran = 0;
    for (int round = 0; round < 50; ++round) {
        ThreadPool pool({2, 4, 1ms, 5ms});
        for (int i = 0; i < 20; ++i) {
            pool.submit([&] { ++ran; });
        }
    }
    EXPECT_EQ(ran, 1000);
}

TEST(ThreadPoolTests, UrgentJobsAndWhatComesOfThemGoFirst)
{
    std::string order;
    {
        ThreadPool pool({1, 1, 5ms, 100ms});
        std::latch held(1);
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
        pool.submit([&order] { order += 'd'; });
        held.count_down();
    }
    EXPECT_EQ(order, "abcd");
}

TEST(ThreadPoolTests, TheProcessEndsWithBlocksInFlight)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endWithBlocks = [] {
        std::latch running(3);
        for (int i = 0; i < 3; ++i) {
            DispatchQueue::globalBackground().async([&running] {
                running.count_down();
                std::this_thread::sleep_for(60s);
            });
        }
        for (int i = 0; i < 1000; ++i) {
            DispatchQueue::globalBackground().async([] { std::this_thread::sleep_for(1ms); });
        }
        running.wait();
        std::exit(3); // NOLINT(concurrency-mt-unsafe): what is tested
    };
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EXIT(endWithBlocks(), ::testing::ExitedWithCode(3), "");
    EXPECT_LT(std::chrono::steady_clock::now() - start, 30s);
    const auto endFromABlock = [] {
        DispatchQueue::globalBackground().async([] { std::exit(4); }); // NOLINT(concurrency-mt-unsafe)
        std::this_thread::sleep_for(60s);
    };
    EXPECT_EXIT(endFromABlock(), ::testing::ExitedWithCode(4), "");
}

TEST(DispatchQueueTests, ASerialQueueRunsOneBlockAtATimeInOrder)
{
    DispatchQueue queue("serial", Kind::Serial);
    std::vector<int> order; // unguarded on purpose: the queue is the lock
    for (int i = 0; i < 1000; ++i) {
        queue.async([&order, i] { order.push_back(i); });
    }
    queue.sync([] {});
    ASSERT_EQ(order.size(), 1000U);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(order[static_cast<std::size_t>(i)], i);
    }
    EXPECT_EQ(queue.label(), "serial");
}

TEST(DispatchQueueTests, SyncRunsOnTheCallerAndExcludesTheOthers)
{
    DispatchQueue queue("lock", Kind::Serial);
    std::thread::id where;
    queue.sync([&] { where = std::this_thread::get_id(); });
    EXPECT_EQ(where, std::this_thread::get_id());

    long counter = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 2000; ++i) {
                queue.sync([&] { ++counter; });
                queue.async([&] { ++counter; });
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    queue.sync([&] { EXPECT_EQ(counter, 16000); });
}

TEST(DispatchQueueTests, ConcurrentBlocksOverlapOnTheCallerToo)
{
    DispatchQueue queue("concurrent", Kind::Concurrent);
    std::latch together(3);
    for (int i = 0; i < 2; ++i) {
        queue.async([&] { together.arrive_and_wait(); });
    }
    queue.sync([&] { together.arrive_and_wait(); });
}

TEST(DispatchQueueTests, WaitingBlocksOutliveTheQueue)
{
    std::promise<void> gate;
    std::promise<int> last;
    {
        DispatchQueue queue("dropped", Kind::Serial);
        queue.async([future = gate.get_future().share()] { future.wait(); });
        queue.async([&] { last.set_value(1); });
    }
    gate.set_value();
    EXPECT_EQ(last.get_future().get(), 1);
}

TEST(DispatchQueueTests, KnowsWhetherItIsCurrent)
{
    DispatchQueue outer("outer", Kind::Serial);
    DispatchQueue inner("inner", Kind::Concurrent);
    EXPECT_FALSE(outer.isCurrent());
    std::promise<std::vector<bool>> answers;
    outer.async([&] {
        std::vector<bool> seen{outer.isCurrent(), inner.isCurrent()};
        inner.sync([&] {
            seen.push_back(outer.isCurrent());
            seen.push_back(inner.isCurrent());
        });
        seen.push_back(inner.isCurrent());
        answers.set_value(seen);
    });
    EXPECT_EQ(answers.get_future().get(), (std::vector{true, false, true, true, false}));
    const DispatchQueue copy = outer;
    EXPECT_TRUE(copy == outer);
    EXPECT_FALSE(copy == inner);
}

TEST(OperationQueueTests, OperationsOverlapAreWaitedForAndOutliveTheQueue)
{
    std::latch together(2);
    std::promise<void> gate;
    std::promise<int> last;
    {
        OperationQueue queue("completions");
        EXPECT_EQ(queue.name(), "completions");
        std::atomic<int> ended = 0;
        for (int i = 0; i < 2; ++i) {
            queue.addOperation([&] {
                together.arrive_and_wait();
                ++ended;
            });
        }
        queue.waitUntilAllOperationsAreFinished();
        EXPECT_EQ(ended, 2);
        queue.addOperation([&, future = gate.get_future().share()] {
            future.wait();
            last.set_value(5);
        });
    }
    gate.set_value();
    EXPECT_EQ(last.get_future().get(), 5);
}

} // namespace
} // namespace lodestar
