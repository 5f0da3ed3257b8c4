// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/MainLoop.h"
#include "Platform/Queues/MainQueue.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace lodestar
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Runs Qt's loop until the condition holds; the loop is woken by nothing but the blocks under test and a long timer.
bool spinUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    }
    return condition();
}

TEST(MainLoopTests, BlocksFromAnyThreadRunInOrderOnTheMainThread)
{
    const MainLoop loop;
    std::vector<int> order;
    bool onMain = true;
    std::thread([&] {
        for (int i = 0; i < 1000; ++i) {
            MainQueue::shared().async([&order, &onMain, i] {
                order.push_back(i);
                onMain &= MainQueue::shared().isCurrent();
            });
        }
    }).join();
    EXPECT_THAT(order, IsEmpty());
    EXPECT_TRUE(spinUntil([&] { return order.size() == 1000; }));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_TRUE(onMain);
    bool fired = false;
    MainQueue::shared().asyncAfter(std::chrono::milliseconds(5), [&] { fired = true; });
    EXPECT_TRUE(spinUntil([&] { return fired; }));
}

TEST(MainLoopTests, ANestedLoopRunsTheBlocksBehindTheOneThatStartedIt)
{
    const MainLoop loop;
    std::vector<std::string> order;
    QEventLoop first;
    QEventLoop second;
    MainQueue& queue = MainQueue::shared();
    queue.async([&] {
        order.emplace_back("first begins");
        first.exec();
        order.emplace_back("first ends");
    });
    queue.async([&] {
        order.emplace_back("second begins");
        second.exec();
        order.emplace_back("second ends");
    });
    // Queued before any drain, so that no new block wakes the loops: they must find it by themselves.
    queue.async([&] {
        order.emplace_back("third");
        second.quit();
        queue.async([&] { first.quit(); });
    });
    EXPECT_TRUE(spinUntil([&] { return order.size() == 5; }));
    EXPECT_THAT(order, ElementsAre("first begins", "second begins", "third", "second ends", "first ends"));
}
} // namespace

} // namespace lodestar

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
