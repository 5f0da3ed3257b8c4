// SPDX-License-Identifier: Apache-2.0
// Settling, contexts, order, and who keeps what alive until when.
#include "Controllers/REST/RXPromise.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Support/StoreFixture.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
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
    EXPECT_TRUE(fulfilled.isFulfilled());
    EXPECT_FALSE(fulfilled.isPending() || fulfilled.isRejected() || fulfilled.isCancelled());
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
    bool onMain = false;
    const RXPromise<std::string> promise;
    promise.then([&](auto&) { onDefault.set_value(ExecutionContext::defaultConcurrentQueue().isCurrent()); });
    promise.thenOn(serial, [&](auto&) { onSerial.set_value(serial.isCurrent()); });
    promise.thenOn(operations, [&](auto&) { onOperations.set_value(!MainQueue::shared().isCurrent()); });
    promise.thenOnMain([&](auto&) { onMain = MainQueue::shared().isCurrent(); });
    promise.thenOn(*context, [&](const std::string& title) { insert(*context, title); });
    std::thread([&] { promise.fulfillWithValue("from a worker"); }).join();
    EXPECT_TRUE(onDefault.get_future().get() && onSerial.get_future().get() && onOperations.get_future().get());
    EXPECT_FALSE(onMain);
    EXPECT_TRUE(MainQueue::shared().runUntil([&] { return fetch(*context).size() == 1; }, 30s));
    EXPECT_TRUE(onMain);
    EXPECT_EQ(titles(fetch(*context)), std::vector<std::string>{"from a worker"});
    EXPECT_EQ(ExecutionContext::defaultConcurrentQueue().label(), "RXPromise.default_concurrent_queue");
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
        // The block waits for a thread that never runs it.
        const auto idle = std::make_shared<ManualThread>();
        const RXPromise<int> promise;
        promise.thenOn(idle, [token](int) {});
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
        ASSERT_EQ(gone.get_future().wait_for(10s), std::future_status::ready);
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
        EXPECT_TRUE(operation->promise.isRejected());
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
