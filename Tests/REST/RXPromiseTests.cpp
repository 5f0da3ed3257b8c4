// SPDX-License-Identifier: Apache-2.0
// Settling, contexts, order.
#include "Platform/Queues/MainQueue.h"
#include "Tests/REST/ManualThread.h"
#include "Tests/Support/StoreFixture.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <future>
#include <latch>
#include <optional>
#include <thread>

namespace lodestar
{
namespace
{

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
    while (!onMain) {
        MainQueue::shared().drain();
    }
    EXPECT_EQ(ExecutionContext::defaultConcurrentQueue().label(), "RXPromise.default_concurrent_queue");
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
TEST(RXPromiseTests, RegistrationOrderIsTheOrderOfRunning)
{
    const std::vector<ExecutionContext> contexts{
        ExecutionContext::defaultContext(), DispatchQueue("serial", DispatchQueue::Kind::Serial),
        OperationQueue("operations"), DispatchQueue("concurrent", DispatchQueue::Kind::Concurrent)};
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

TEST(RXPromiseTests, AHandlerThatItsContextLetsGoHoldsUpNoOther)
{
    const RXPromise<int> promise;
    std::promise<int> after;
    {
        const auto thread = std::make_shared<ManualThread>();
        promise.thenOn(thread, [](int) { ADD_FAILURE() << "the thread never ran"; });
        promise.then([&](int value) { after.set_value(value); });
        promise.fulfillWithValue(7);
    }
    EXPECT_EQ(after.get_future().get(), 7);
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

} // namespace
} // namespace lodestar
