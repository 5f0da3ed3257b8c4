// SPDX-License-Identifier: Apache-2.0
// What a derived promise becomes.
#include "Controllers/REST/RXPromise.h"
#include "Platform/Queues/MainQueue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <numeric>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace lodestar
{
namespace
{

class RXPromiseChainTests : public ::testing::Test
{
protected:
    void SetUp() override { MainQueue::shared().adoptCurrentThread(); }

    /// What the promise settles as, once it has.
    template <typename T>
    static Result<T> outcome(const RXPromise<T>& promise)
    {
        EXPECT_TRUE(MainQueue::shared().runUntil([&] { return !promise.isPending(); }, std::chrono::seconds(30)));
        return promise.result().value_or(Error{"pending", 0, "", "", nullptr});
    }
    template <typename T>
    static std::string reason(const RXPromise<T>& promise)
    {
        const Result<T> result = outcome(promise);
        return result.ok() ? "fulfilled" : result.error().failureReason;
    }
    static RXPromise<int> fulfilled(int value)
    {
        RXPromise<int> promise;
        promise.fulfillWithValue(value);
        return promise;
    }
    static RXPromise<int> rejected(std::string_view why)
    {
        RXPromise<int> promise;
        promise.rejectWithReason(why);
        return promise;
    }
    static RXPromise<int> cancelled()
    {
        RXPromise<int> promise;
        promise.cancel();
        return promise;
    }
    static Error error(std::string why) { return {"test", 7, "", std::move(why), nullptr}; }
};

TEST_F(RXPromiseChainTests, WhatAHandlerReturnsIsTheOutcome)
{
    EXPECT_EQ(outcome(fulfilled(1).then([](int v) { return std::to_string(v); })).value(), "1");
    EXPECT_EQ(outcome(fulfilled(1).then([](int) { return error("e"); })).error(), error("e"));
    EXPECT_EQ(outcome(fulfilled(1).then([](int v) { return Result<int>(v + 1); })).value(), 2);
    EXPECT_EQ(outcome(fulfilled(1).then([](int) { return Result<int>(error("r")); })).error(), error("r"));
    EXPECT_TRUE(outcome(fulfilled(1).then([](int) {})).ok());
    EXPECT_TRUE(outcome(fulfilled(1).then([](int) { return Result<void>(); })).ok());
    EXPECT_EQ(outcome(fulfilled(1).then([](const int& v) { return fulfilled(v + 5); })).value(), 6);
    EXPECT_EQ(reason(fulfilled(1).then([](int) { return rejected("inner"); })), "inner");
}

TEST_F(RXPromiseChainTests, AFailureHandlerTurnsARejectionIntoAnOutcome)
{
    int successes = 0;
    const auto end = rejected("root")
                         .thenOnMain([&](int v) { return ++successes + v; })
                         .thenOnMain([&](int) { return std::to_string(++successes); })
                         .thenOnMain([](const std::string&) { return std::string("not here"); },
                                     [](const Error& e) { return "recovered from " + e.failureReason; })
                         .thenOnMain([](const std::string& s) { return s + "!"; });
    EXPECT_EQ(outcome(end).value(), "recovered from root!");
    EXPECT_EQ(successes, 0);
    EXPECT_TRUE(outcome(rejected("why").then([](int) {}, [](const Error&) {})).ok());
    EXPECT_EQ(outcome(rejected("why").then(nullptr, [](const Error&) { return fulfilled(3); })).value(), 3);
    EXPECT_EQ(outcome(rejected("why").then(nullptr, [](const Error&) { return error("o"); })).error(), error("o"));
    EXPECT_EQ(outcome(fulfilled(4).then(nullptr, [](const Error&) { return 0; })).value(), 4);
    const RXPromise<int> unmatched;
    const auto passed = unmatched.then([](int) { return 1; }).then(nullptr);
    unmatched.rejectWithReason(error("kept"));
    EXPECT_EQ(outcome(passed).error(), error("kept")) << "an error of one's own passes on unchanged";
}

TEST_F(RXPromiseChainTests, AReturnedPromiseIsWaitedForUnlessItIsTheOneThatWaits)
{
    for (const bool settleFirst : {true, false}) {
        RXPromise<int> inner;
        const RXPromise<int> outer;
        const auto derived = outer.thenOnMain([&](int) { return inner; });
        const auto end = derived.thenOnMain([](int v) { return v + 1; }, [](const Error&) { return -1; });
        if (settleFirst) {
            inner.fulfillWithValue(10);
        }
        outer.fulfillWithValue(0);
        MainQueue::shared().drain();
        EXPECT_EQ(derived.isPending(), !settleFirst);
        std::thread([&] { inner.fulfillWithValue(10); }).join();
        EXPECT_EQ(outcome(end).value(), 11);
    }
    const auto cancelledInside = fulfilled(1).thenOnMain([](int) { return cancelled(); });
    EXPECT_EQ(reason(cancelledInside), "cancelled");
    EXPECT_TRUE(cancelledInside.isCancelled()) << "it settles as the returned promise settled";

    const RXPromise<int> source;
    const auto self = std::make_shared<std::optional<RXPromise<int>>>();
    *self = source.thenOnMain([self](int) { return **self; });
    source.fulfillWithValue(1);
    EXPECT_FALSE(outcome(**self).ok());
    EXPECT_EQ(self.use_count(), 1);
}

TEST_F(RXPromiseChainTests, CancellationReachesWhatIsDerived)
{
    int successes = 0;
    const RXPromise<int> source;
    const auto unhandled = source.thenOnMain([&](int v) { return ++successes + v; });
    const auto second = unhandled.thenOnMain([&](int) { ++successes; });
    const auto recovering = source.thenOnMain(nullptr, [](const Error&) { return 5; });
    const auto failing = source.thenOnMain(nullptr, [](const Error&) { return error("e"); });
    source.cancel();
    EXPECT_EQ(reason(second), "cancelled");
    EXPECT_EQ(reason(recovering), "") << "a value is no reason";
    EXPECT_EQ(outcome(failing).error(), error("e"));
    EXPECT_TRUE(unhandled.isCancelled() && second.isCancelled() && recovering.isCancelled() && failing.isCancelled());
    EXPECT_EQ(successes, 0);

    const RXPromise<int> parent;
    int ran = 0;
    const auto early = parent.thenOnMain([&](int v) { return ran = v; });
    early.cancel();
    parent.fulfillWithValue(1);
    MainQueue::shared().drain();
    EXPECT_EQ(ran, 1) << "the registering handler still runs";
    EXPECT_TRUE(early.isCancelled());
}

TEST_F(RXPromiseChainTests, AllKeepsTheOrderOfTheInputsAndOnARejectionNoneOfThem)
{
    EXPECT_TRUE(RXPromise<int>::all({}).result()->value().empty());
    std::vector<RXPromise<std::size_t>> inputs(100);
    const auto all = RXPromise<std::size_t>::all(inputs);
    const auto settle = [&](std::size_t from) {
        for (std::size_t i = from; i < inputs.size(); i += 2) {
            inputs[inputs.size() - 1 - i].fulfillWithValue(inputs.size() - 1 - i);
        }
    };
    std::thread other([&] { settle(2); });
    settle(1);
    other.join();
    EXPECT_TRUE(all.isPending());
    inputs.back().fulfillWithValue(99);
    std::vector<std::size_t> expected(inputs.size());
    std::iota(expected.begin(), expected.end(), 0U);
    EXPECT_EQ(outcome(all).value(), expected);

    std::vector<RXPromise<std::shared_ptr<int>>> shared(4);
    const auto token = std::make_shared<int>(0);
    const auto rejecting = RXPromise<std::shared_ptr<int>>::all(shared);
    shared[0].fulfillWithValue(token);
    shared[3].rejectWithReason("third");
    shared[1].rejectWithReason("first");
    EXPECT_EQ(reason(rejecting), "third");
    shared[0] = RXPromise<std::shared_ptr<int>>();
    EXPECT_EQ(token.use_count(), 1) << "an input that never settles keeps the values of the others";

    const auto withCancelled = RXPromise<int>::all({fulfilled(1), cancelled()});
    EXPECT_EQ(reason(withCancelled), "cancelled");
    EXPECT_TRUE(withCancelled.isRejected());
}

} // namespace
} // namespace lodestar
