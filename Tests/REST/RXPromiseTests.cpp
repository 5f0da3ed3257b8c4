// SPDX-License-Identifier: Apache-2.0
// Settling, contexts, order, life.
#include "Controllers/REST/RXPromise.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Platform/StoreFixture.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <latch>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;

/// Runs blocks when told to, on the thread that tells it.
class ManualThread : public ThreadContext
{
public:
    void dispatchBlock(Task block) override { m_blocks.push_back(std::move(block)); }
    std::size_t runAll()
    {
        std::vector<Task> blocks = std::exchange(m_blocks, {});
        for (Task& block : blocks) {
            block();
        }
        return blocks.size();
    }

private:
    std::vector<Task> m_blocks;
};

TEST(RXPromiseTests, SettlesOnceAndForGood)
{
    const RXPromise<int> fulfilled;
    EXPECT_TRUE(fulfilled.isPending());
    EXPECT_FALSE(fulfilled.result().has_value());
    fulfilled.fulfillWithValue(1);
    fulfilled.fulfillWithValue(2);
    fulfilled.rejectWithReason("late");
    fulfilled.cancel();
    EXPECT_TRUE(fulfilled.isFulfilled());
    EXPECT_FALSE(fulfilled.isPending() || fulfilled.isRejected() || fulfilled.isCancelled());
    EXPECT_EQ(fulfilled.result()->value(), 1);

    const RXPromise<std::optional<std::string>> rejected;
    rejected.rejectWithReason("first");
    rejected.fulfillWithValue("late");
    rejected.cancel();
    EXPECT_TRUE(rejected.isRejected());
    EXPECT_EQ(rejected.result()->error().failureReason, "first");

    const RXPromise<void> cancelled;
    cancelled.cancel();
    cancelled.fulfillWithValue();
    EXPECT_TRUE(cancelled.isCancelled());
    EXPECT_EQ(cancelled.result()->error().domain, "RXPromise");

    const RXPromise<void> nothing;
    nothing.fulfillWithValue();
    EXPECT_TRUE(nothing.result()->ok());
}

TEST(RXPromiseTests, ReasonsBecomeErrorsAndErrorsStayAsTheyAre)
{
    const auto reasonOf = [](const auto& reject) {
        const RXPromise<int> promise;
        reject(promise);
        return promise.result()->error();
    };
    const Error given{"URLError", 28, "Timed out", "idle", std::make_shared<const Error>()};
    const Error kept = reasonOf([&](const auto& promise) { promise.rejectWithReason(given); });
    EXPECT_EQ(kept, given);
    EXPECT_EQ(kept.underlying, given.underlying);
    EXPECT_EQ(reasonOf([](const auto& promise) { promise.rejectWithReason("why"); }),
              (Error{"RXPromise", -1000, "", "why", nullptr}));
    EXPECT_EQ(reasonOf([](const auto& promise) { promise.rejectWithReason(std::string("text")); }),
              (Error{"RXPromise", -1000, "", "text", nullptr}));
    EXPECT_EQ(reasonOf([](const auto& promise) { promise.rejectWithReason(); }),
              (Error{"RXPromise", -1000, "", "", nullptr}));
}

TEST(RXPromiseTests, HandlersNeverRunOnTheStackThatSettlesOrRegisters)
{
    MainQueue::shared().adoptCurrentThread();
    const auto thread = std::make_shared<ManualThread>();
    const RXPromise<int> promise;
    int calls = 0;
    promise.thenOn(thread, [&](int) { ++calls; });
    promise.thenOnMain([&](int) { ++calls; });
    promise.fulfillWithValue(1);
    promise.thenOn(thread, [&](int) { ++calls; });
    promise.thenOnMain([&](int) { ++calls; });
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(thread->runAll(), 2U);
    MainQueue::shared().drain();
    EXPECT_EQ(calls, 4);
}

TEST(RXPromiseTests, EachContextRunsItsHandlers)
{
    MainQueue::shared().adoptCurrentThread();
    const DispatchQueue serial("serial", DispatchQueue::Kind::Serial);
    const OperationQueue operations("operations");
    std::promise<bool> onDefault;
    std::promise<bool> onSerial;
    std::promise<bool> onOperations;
    bool onMain = false;
    const RXPromise<void> promise;
    promise.then([&] { onDefault.set_value(ExecutionContext::defaultConcurrentQueue().isCurrent()); });
    promise.thenOn(serial, [&] { onSerial.set_value(serial.isCurrent()); });
    promise.thenOn(operations, [&] { onOperations.set_value(!MainQueue::shared().isCurrent()); });
    promise.thenOnMain([&] { onMain = MainQueue::shared().isCurrent(); });
    std::thread([&] { promise.fulfillWithValue(); }).join();
    EXPECT_TRUE(onDefault.get_future().get());
    EXPECT_TRUE(onSerial.get_future().get());
    EXPECT_TRUE(onOperations.get_future().get());
    EXPECT_FALSE(onMain);
    MainQueue::shared().drain();
    EXPECT_TRUE(onMain);
    EXPECT_EQ(ExecutionContext::defaultConcurrentQueue().label(), "RXPromise.default_concurrent_queue");
    EXPECT_EQ(ExecutionContext::defaultConcurrentQueue().kind(), DispatchQueue::Kind::Concurrent);
}

using RXPromiseStoreTests = test::StoreFixture;

TEST_F(RXPromiseStoreTests, AnObjectContextRunsHandlersWhereItIsUsed)
{
    MainQueue::shared().adoptCurrentThread();
    const std::unique_ptr<ObjectContext> context = open();
    bool onMain = false;
    const RXPromise<std::string> promise;
    promise.thenOn(*context, [&](const std::string& title) {
        onMain = MainQueue::shared().isCurrent();
        insert(*context, title);
    });
    std::thread([&] { promise.fulfillWithValue("from a worker"); }).join();
    EXPECT_TRUE(titles(fetch(*context)).empty());
    MainQueue::shared().drain();
    EXPECT_TRUE(onMain);
    EXPECT_EQ(titles(fetch(*context)), std::vector<std::string>{"from a worker"});
}

TEST(RXPromiseTests, HandlersOfDifferentPromisesRunAtTheSameTime)
{
    // Shared: a handler may still be looking at it when this test is over.
    const auto together = std::make_shared<std::latch>(3);
    const RXPromise<void> one;
    const RXPromise<void> two;
    one.then([together] { together->arrive_and_wait(); });
    two.then([together] { together->arrive_and_wait(); });
    one.fulfillWithValue();
    two.fulfillWithValue();
    together->arrive_and_wait();
    EXPECT_TRUE(together->try_wait());
}

TEST(RXPromiseTests, RegistrationOrderIsTheOrderOfRunning)
{
    const DispatchQueue serial("serial", DispatchQueue::Kind::Serial);
    for (int round = 0; round < 200; ++round) {
        const RXPromise<int> promise;
        std::vector<int> order; // unguarded on purpose: the serial queue is the lock
        for (int i = 0; i < 10; ++i) {
            promise.thenOn(serial, [&order, i](int) { order.push_back(i); });
        }
        std::thread settler([&] { promise.fulfillWithValue(1); });
        for (int i = 10; i < 20; ++i) {
            promise.thenOn(serial, [&order, i](int) { order.push_back(i); });
        }
        settler.join();
        serial.sync([&] {
            ASSERT_EQ(order.size(), 20U);
            for (int i = 0; i < 20; ++i) {
                ASSERT_EQ(order[static_cast<std::size_t>(i)], i);
            }
        });
    }
}

TEST(RXPromiseTests, ManyThreadsSettleAndRegisterAndEachHandlerRunsOnce)
{
    for (int round = 0; round < 100; ++round) {
        const RXPromise<int> promise;
        std::latch start(4);
        std::latch handled(40);
        std::atomic<int> sum = 0;
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                start.arrive_and_wait();
                for (int i = 0; i < 10; ++i) {
                    promise.then([&](int value) {
                        sum += value;
                        handled.count_down();
                    });
                    if (i == 5) {
                        promise.fulfillWithValue(t + 1);
                    }
                }
            });
        }
        for (auto& thread : threads) {
            thread.join();
        }
        handled.wait();
        EXPECT_EQ(sum, 40 * promise.result()->value());
    }
}

TEST(RXPromiseTests, NothingRegisteredDuringSettlementIsLostWithTheHandle)
{
    constexpr int rounds = 2000;
    std::atomic<int> ran = 0;
    for (int round = 0; round < rounds; ++round) {
        const RXPromise<int> source;
        auto derived = std::make_optional(source.then([](int value) { return value; }));
        source.fulfillWithValue(1);
        for (int i = 0; i < 3; ++i) {
            derived->then([&ran](int value) { ran += value; });
        }
        derived.reset();
    }
    const auto limit = std::chrono::steady_clock::now() + 30s;
    while (ran < 3 * rounds && std::chrono::steady_clock::now() < limit) {
        std::this_thread::yield();
    }
    ASSERT_EQ(ran, 3 * rounds);
}

TEST(RXPromiseTests, AContextMayRegisterAndLetGoWhileItIsGivenABlock)
{
    class Registering final : public ManualThread
    {
    public:
        void dispatchBlock(Task block) override
        {
            ManualThread::dispatchBlock(std::move(block));
            if (derived.has_value()) {
                derived->thenOn(next, [this](int value) { seen += value; });
                derived.reset();
            }
        }
        std::optional<RXPromise<int>> derived;
        std::shared_ptr<ManualThread> next = std::make_shared<ManualThread>();
        int seen = 0;
    };
    const auto before = std::make_shared<ManualThread>();
    const auto registering = std::make_shared<Registering>();
    {
        const RXPromise<int> source;
        registering->derived = source.thenOn(before, [](int value) { return value; });
        registering->derived->thenOn(registering, [&](int value) { registering->seen += value; });
        source.fulfillWithValue(1);
    }
    EXPECT_EQ(before->runAll(), 1U) << "settles the derived promise, whose only handle goes meanwhile";
    registering->runAll();
    registering->next->runAll();
    EXPECT_EQ(registering->seen, 2);
}

TEST(RXPromiseTests, QueuesAreKnownByTheirLabels)
{
    const RXPromise<int> promise;
    EXPECT_EQ(promise.handlerQueueLabel(), "") << "made on first registration";
    const auto derived = promise.thenOnMain([](int) {});
    const std::string label = promise.handlerQueueLabel();
    void* identity = nullptr;
    ASSERT_EQ(std::sscanf(label.c_str(), "RXPromise.handler_queue-%p", &identity), 1) << label;
    EXPECT_NE(identity, nullptr);
    EXPECT_EQ(RXPromise<int>(promise).handlerQueueLabel(), label) << "a copy is the same promise";
    EXPECT_TRUE(derived.isDerivedFrom(promise));
    EXPECT_FALSE(promise.isDerivedFrom(derived));
    EXPECT_FALSE(RXPromise<int>().isDerivedFrom(RXPromise<int>()));

    using promise::SharedSyncQueue;
    EXPECT_EQ(SharedSyncQueue::label, "RXPromise.shared_sync_queue");
    EXPECT_EQ(SharedSyncQueue::getSpecific("RXPromise.queue_id"), nullptr);
    const bool inside = SharedSyncQueue::sync([&] {
        return promise.isPending() && SharedSyncQueue::getSpecific("RXPromise.queue_id") != nullptr &&
               SharedSyncQueue::getSpecific("other") == nullptr;
    });
    EXPECT_TRUE(inside) << "a block within a block runs at once, on the same queue";
    EXPECT_EQ(SharedSyncQueue::getSpecific("RXPromise.queue_id"), nullptr);
}

TEST(RXPromiseTests, AChainRunsThoughNobodyHoldsIt)
{
    const auto thread = std::make_shared<ManualThread>();
    std::string seen;
    {
        auto root = std::make_optional<RXPromise<int>>();
        root->thenOn(thread, [](int value) { return value + 1; }).thenOn(thread, [&](int value) {
            seen = std::to_string(value);
        });
        root->fulfillWithValue(1);
        root.reset();
    }
    while (thread->runAll() > 0) {
    }
    EXPECT_EQ(seen, "2");
}

TEST(RXPromiseTests, CapturesGoAsSoonAsTheHandlerHasRunOrNeverWill)
{
    const auto thread = std::make_shared<ManualThread>();
    const auto token = std::make_shared<int>(0);
    {
        const RXPromise<int> promise;
        const auto derived = promise.thenOn(
            thread, [token](int) { return 1; }, [token](const Error&) { return 2; });
        EXPECT_EQ(token.use_count(), 3);
        promise.fulfillWithValue(1);
        thread->runAll();
        EXPECT_EQ(token.use_count(), 1) << "while both promises are still held";
        EXPECT_EQ(derived.result()->value(), 1);
    }
    std::optional<RXPromise<int>> held;
    {
        const RXPromise<int> promise;
        held = promise.thenOn(thread, [token](int) { return RXPromise<int>(); });
    }
    EXPECT_EQ(token.use_count(), 1) << "the promise can never be settled any more";
    EXPECT_TRUE(held->isPending());
    {
        // The block waits in a queue that never runs it.
        const DispatchQueue suspended("suspended", DispatchQueue::Kind::Serial);
        suspended.suspend();
        const RXPromise<int> promise;
        promise.thenOn(suspended, [token](int) {});
        promise.fulfillWithValue(1);
    }
    EXPECT_EQ(token.use_count(), 1);
    {
        const RXPromise<std::shared_ptr<int>> promise;
        promise.fulfillWithValue(token);
        EXPECT_EQ(token.use_count(), 2);
    }
    EXPECT_EQ(token.use_count(), 1) << "the value goes with the promise";
}

TEST(RXPromiseTests, AHandlerMayDestroyWhatHoldsThePromise)
{
    struct Operation {
        RXPromise<int> promise;
    };
    for (int i = 0; i < 500; ++i) {
        auto* const operation = new Operation;
        std::promise<void> gone;
        operation->promise.then([&gone, operation](int) {
            delete operation;
            gone.set_value();
        });
        operation->promise.fulfillWithValue(1);
        gone.get_future().wait();
    }
    // As soon as the state can be seen, too.
    for (int i = 0; i < 500; ++i) {
        auto operation = std::make_unique<Operation>();
        std::latch settling(1);
        std::thread settler([promise = &operation->promise, &settling] {
            settling.count_down();
            promise->rejectWithReason("over");
        });
        settling.wait();
        while (operation->promise.isPending()) {
            std::this_thread::yield();
        }
        operation.reset();
        settler.join();
    }
}

TEST(RXPromiseTests, LongChainsNeedNoDeepStack)
{
    constexpr int length = 100000;
    const RXPromise<int> root;
    RXPromise<int> last = root;
    for (int i = 0; i < length; ++i) {
        last = last.thenOnMain([](int value) { return value; });
    }
    const auto token = std::make_shared<int>(0);
    { // held by its first promise alone, a chain goes with it
        const RXPromise<int> first;
        RXPromise<int> end = first;
        for (int i = 0; i < length; ++i) {
            end = end.thenOnMain([token](int value) { return value; });
        }
    }
    EXPECT_EQ(token.use_count(), 1);
    MainQueue::shared().adoptCurrentThread();
    root.fulfillWithValue(7);
    EXPECT_TRUE(MainQueue::shared().runUntil([&] { return !last.isPending(); }, 60s));
    EXPECT_EQ(last.result()->value(), 7);
}

} // namespace
} // namespace lodestar
