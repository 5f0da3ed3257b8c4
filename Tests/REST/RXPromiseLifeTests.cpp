// SPDX-License-Identifier: Apache-2.0
// Who keeps what alive, and until when.
#include "Platform/Queues/MainQueue.h"
#include "Tests/REST/ManualThread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <latch>
#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace lodestar
{
namespace
{

using namespace std::chrono_literals;
TEST(RXPromiseLifeTests, AContextMayRegisterAndLetGoWhileItIsGivenABlock)
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

TEST(RXPromiseLifeTests, AChainRunsThoughNobodyHoldsIt)
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

TEST(RXPromiseLifeTests, CapturesGoAsSoonAsTheHandlerHasRunOrNeverWill)
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

TEST(RXPromiseLifeTests, AHandlerMayDestroyWhatHoldsThePromise)
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

TEST(RXPromiseLifeTests, LongChainsNeedNoDeepStack)
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
