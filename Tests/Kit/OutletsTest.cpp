// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Outlets.h"

#include "Kit/Core/UIFont+System.h"
#include "KitWindow.h"
#include "Platform/Queues/MainQueue.h"

#include <QEventLoop>
#include <QFontInfo>
#include <QTimer>
#include <gmock/gmock.h>

#include <chrono>
#include <thread>

namespace lodestar
{

TEST(MainLoopTest, ANestedLoopRunsTheBlocksBehindTheOneThatStartedIt)
{
    std::vector<std::string> order;
    QEventLoop first;
    QEventLoop second;
    MainQueue& queue = MainQueue::shared();
    const auto nest = [&](const char* name, QEventLoop& loop) {
        order.push_back(std::string(name) + " begins");
        loop.exec();
        order.push_back(std::string(name) + " ends");
    };
    queue.async([&] { nest("first", first); });
    queue.async([&] { nest("second", second); });
    // Queued before any drain, so that no new block wakes the loops: they must find it by themselves.
    queue.async([&] {
        order.emplace_back("third");
        second.quit();
        queue.async([&] { first.quit(); });
    });
    EXPECT_TRUE(waitFor([&] { return order.size() == 5; }));
    EXPECT_THAT(order, testing::ElementsAre("first begins", "second begins", "third", "second ends", "first ends"));
}

TEST(MainLoopTest, ABurstOfBlocksLeavesRoomForTheLoop)
{
    constexpr int burst = 100;
    int blocksRun = 0;
    for (int i = 0; i < burst; ++i) {
        MainQueue::shared().async([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
            ++blocksRun;
        });
    }
    int blocksRunAtTimer = burst;
    QTimer::singleShot(std::chrono::milliseconds(20), [&] { blocksRunAtTimer = blocksRun; });
    EXPECT_TRUE(waitFor([&] { return blocksRun == burst; }));
    EXPECT_LT(blocksRunAtTimer, burst);
}

TEST(OutletsTest, SettersTakeEffectAtOnceOnTheMainThreadAndInOrderLaterFromWorkers)
{
    LabelOutlet label;
    QStringList seen;
    QObject::connect(&label, &LabelOutlet::textChanged, [&] {
        EXPECT_TRUE(MainQueue::shared().isCurrent());
        seen << label.text();
    });
    label.setText("main");
    IndicatorOutlet indicator;
    auto field = std::make_unique<FieldOutlet>();
    QObject::connect(field.get(), &FieldOutlet::enabledChanged, [] { ADD_FAILURE() << "a change after its outlet"; });
    std::thread([&] {
        field->setEnabled(false);
        label.setText("first");
        label.setText("second");
        label.setText("second");
        label.setState(Role::State::Error);
        indicator.startAnimating();
    }).join();
    field.reset();
    EXPECT_EQ(label.text(), "main");
    EXPECT_TRUE(waitFor([&] { return indicator.isAnimating(); }));
    EXPECT_EQ(seen, QStringList({"main", "first", "second"}));
    EXPECT_EQ(label.state(), Role::State::Error);
}

TEST(OutletsTest, TheFaceIsTheOneRegularFaceInEveryWeight)
{
    UIFont::install();
    const QFont bold = UIFont::boldSystemFontOfSize(17);
    EXPECT_EQ(bold, UIFont::systemFontOfSize(17));
    EXPECT_EQ(bold.family(), "Avenir Book");
    EXPECT_EQ(bold.pixelSize(), 17);
    EXPECT_EQ(QFontInfo(bold).family(), "Lato");
    EXPECT_FALSE(QFontInfo(bold).bold());
    EXPECT_TRUE(QFontInfo(QFont("HelveticaNeue")).family().startsWith("Nimbus Sans"));
}

} // namespace lodestar
