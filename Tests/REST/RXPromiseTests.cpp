// SPDX-License-Identifier: Apache-2.0
// Settling, contexts, order, and who keeps what alive until when.
#include "Controllers/REST/RXPromise.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Support/StoreFixture.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <latch>
#include <optional>
#include <thread>
#include <utility>

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
    EXPECT_TRUE(fulfilled.isPending() && !fulfilled.result());
    fulfilled.fulfillWithValue(1);
    fulfilled.fulfillWithValue(2);
    fulfilled.rejectWithReason("late");
    fulfilled.cancel();
    EXPECT_TRUE(fulfilled.isFulfilled() && !fulfilled.isPending());
    EXPECT_EQ(fulfilled.result()->value(), 1);

    const RXPromise<std::optional<std::string>> rejected;
    rejected.rejectWithReason();
    rejected.fulfillWithValue("late");
    rejected.cancel();
    EXPECT_TRUE(rejected.isRejected());
    EXPECT_EQ(rejected.result()->error(), (Error{"RXPromise", -1000, "", "", nullptr}));

    const RXPromise<void> cancelled;
    cancelled.cancel();
    cancelled.fulfillWithValue();
    EXPECT_TRUE(cancelled.isCancelled());
    EXPECT_EQ(cancelled.result()->error().domain, "RXPromise");
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
    MainQueue::shared().drain();
    EXPECT_EQ(calls, 0) << "the thread's handler comes first";
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(thread->runAll(), 1U);
        MainQueue::shared().drain();
        EXPECT_EQ(calls, 2 * i);
    }
}

using RXPromiseStoreTests = test::StoreFixture;

TEST_F(RXPromiseStoreTests, EachContextRunsItsHandlers)
{
    MainQueue::shared().adoptCurrentThread();
    const std::unique_ptr<ObjectContext> context = open();
    const DispatchQueue serial("serial", DispatchQueue::Kind::Serial);
    const OperationQueue operations;
    std::promise<bool> onDefault;
    std::promise<bool> onSerial;
    std::promise<bool> onOperations;
    const RXPromise<std::string> promise;
    promise.then([&](auto&) { onDefault.set_value(ExecutionContext::defaultConcurrentQueue().isCurrent()); });
    promise.thenOn(serial, [&](auto&) { onSerial.set_value(serial.isCurrent()); });
    promise.thenOn(operations, [&](auto&) { onOperations.set_value(!MainQueue::shared().isCurrent()); });
    promise.thenOnMain(
        [&](auto& title) { insert(*context, title + (MainQueue::shared().isCurrent() ? " on main" : "")); });
    promise.thenOn(*context, [&](auto& title) { insert(*context, title); });
    std::thread([&] { promise.fulfillWithValue("title"); }).join();
    EXPECT_TRUE(onDefault.get_future().get() && onSerial.get_future().get() && onOperations.get_future().get());
    EXPECT_TRUE(MainQueue::shared().runUntil([&] { return fetch(*context).size() == 2; }, 30s));
    EXPECT_EQ(titles(fetch(*context)), (std::vector<std::string>{"title on main", "title"}));
}

TEST(RXPromiseTests, RegistrationOrderIsTheOrderOfRunning)
{
    const std::vector<ExecutionContext> contexts{ExecutionContext::defaultContext(),
                                                 DispatchQueue("serial", DispatchQueue::Kind::Serial), OperationQueue(),
                                                 DispatchQueue("concurrent", DispatchQueue::Kind::Concurrent)};
    constexpr int handlers = 24;
    // One context for all handlers of a round, and in the last kind of round another for each.
    for (std::size_t round = 0; round < 1000; ++round) {
        const std::size_t kind = round % (contexts.size() + 1);
        const RXPromise<int> promise;
        std::vector<int> order; // unguarded on purpose: the promise is the lock
        std::latch handled(handlers);
        const auto add = [&](int i) {
            const std::size_t context = kind < contexts.size() ? kind : static_cast<std::size_t>(i) % contexts.size();
            promise.thenOn(contexts[context], [&order, &handled, i](int) {
                order.push_back(i);
                handled.count_down();
            });
        };
        for (int i = 0; i < handlers / 2; ++i) {
            add(i);
        }
        std::thread settler([&] { promise.fulfillWithValue(1); });
        for (int i = handlers / 2; i < handlers; ++i) {
            add(i);
        }
        settler.join();
        handled.wait();
        ASSERT_EQ(order.size(), static_cast<std::size_t>(handlers));
        ASSERT_TRUE(std::is_sorted(order.begin(), order.end())) << "round " << round;
    }
}

TEST(RXPromiseTests, QueuesAndOriginsAreToldApart)
{
    const RXPromise<int> promise;
    const auto derived = promise.thenOnMain([](int) {});
    EXPECT_TRUE(promise.handlerQueueLabel().starts_with("RXPromise.handler_queue-0x"));
    EXPECT_TRUE(derived.isDerivedFrom(promise) && !promise.isDerivedFrom(derived));
    EXPECT_TRUE(promise::SharedSyncQueue::sync([&] { return promise.isPending(); })) << "a block within a block";
}

TEST(RXPromiseTests, ChainsRunUnheldAndCapturesGoAsSoonAsTheHandlerHasRunOrNeverWill)
{
    const auto thread = std::make_shared<ManualThread>();
    const auto token = std::make_shared<int>(0);
    int seen = 0;
    {
        // A chain runs though nobody holds it.
        const RXPromise<int> root;
        root.thenOn(thread, [](int value) { return value + 1; }).thenOn(thread, [&](int value) { seen = value; });
        root.fulfillWithValue(1);
    }
    while (thread->runAll() > 0) {
    }
    EXPECT_EQ(seen, 2);
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
        // The block waits for a thread that never runs it, and the next handler for the block.
        const auto idle = std::make_shared<ManualThread>();
        const RXPromise<int> promise;
        promise.thenOn(idle, [token](int) {});
        promise.thenOn(thread, [&](int value) { seen = value; });
        promise.fulfillWithValue(7);
    }
    EXPECT_EQ(token.use_count(), 1);
    thread->runAll();
    EXPECT_EQ(seen, 7);
    {
        const RXPromise<std::shared_ptr<int>> promise;
        promise.fulfillWithValue(token);
        EXPECT_EQ(token.use_count(), 2);
    }
    EXPECT_EQ(token.use_count(), 1) << "the value goes with the promise";
}

TEST(RXPromiseTests, WhatHoldsAPromiseMayGoInAHandlerAndAsSoonAsTheStateCanBeSeen)
{
    for (int i = 0; i < 1000; ++i) {
        const bool inHandler = i % 2 == 0;
        auto holder = std::make_unique<RXPromise<int>>();
        std::promise<void> handled;
        holder->then([&](int) {
            if (inHandler) {
                holder.reset();
            }
            handled.set_value();
        });
        std::thread settler([promise = holder.get()] { promise->fulfillWithValue(1); });
        if (!inHandler) {
            while (holder->isPending()) {
                std::this_thread::yield();
            }
            holder.reset();
        }
        ASSERT_EQ(handled.get_future().wait_for(10s), std::future_status::ready);
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
