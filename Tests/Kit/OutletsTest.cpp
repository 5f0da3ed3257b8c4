// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Outlets.h"

#include "Kit/Core/Menu.h"
#include "Kit/Core/UIFont+System.h"
#include "Platform/Queues/MainQueue.h"

#include <QFontInfo>
#include <QStringList>
#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace lodestar
{

namespace
{

void onWorker(const std::function<void()>& work)
{
    std::thread(work).join();
}

} // namespace

TEST(OutletsTest, SettersTakeEffectAtOnceOnTheMainThreadAndInOrderLaterFromWorkers)
{
    LabelOutlet label;
    QStringList seen;
    QObject::connect(&label, &LabelOutlet::textChanged, [&] {
        EXPECT_TRUE(MainQueue::shared().isCurrent());
        seen << label.text();
    });
    label.setText("main");
    EXPECT_EQ(label.text(), "main");

    IndicatorOutlet indicator;
    onWorker([&] {
        label.setText("first");
        label.setText("second");
        label.setText("second");
        label.setHidden(true);
        label.setState(Role::State::Error);
        indicator.startAnimating();
    });
    EXPECT_EQ(label.text(), "main");
    EXPECT_FALSE(indicator.isAnimating());
    EXPECT_TRUE(MainQueue::shared().runUntil([&] { return indicator.isAnimating(); }, std::chrono::seconds(5)));
    EXPECT_EQ(seen, QStringList({"main", "first", "second"}));
    EXPECT_TRUE(label.isHidden());
    EXPECT_EQ(label.state(), Role::State::Error);
}

TEST(OutletsTest, AChangeForAnOutletThatHasGoneIsDropped)
{
    auto field = std::make_unique<FieldOutlet>();
    int told = 0;
    QObject::connect(field.get(), &FieldOutlet::enabledChanged, [&] { ++told; });
    onWorker([&] { field->setEnabled(false); });
    field.reset();
    bool later = false;
    MainQueue::shared().async([&] { later = true; });
    EXPECT_TRUE(MainQueue::shared().runUntil([&] { return later; }, std::chrono::seconds(5)));
    EXPECT_EQ(told, 0);
}

TEST(OutletsTest, AMenuAnswersOnceAndMayShowTheNextFromItsHandler)
{
    MenuOutlet menu;
    std::vector<int> answers;
    const std::vector<MenuChoice> choices{{"OK", true}, {"Cancel"}};
    menu.present("First", "why", choices, 1, [&](int index) {
        answers.push_back(index);
        menu.present("Second", {}, choices, -1, [&](int next) { answers.push_back(10 + next); });
    });
    EXPECT_TRUE(menu.isPresented());
    menu.choose(7);
    EXPECT_TRUE(answers.empty());
    menu.choose(0);
    EXPECT_EQ(menu.title(), "Second");
    EXPECT_TRUE(menu.isPresented());
    menu.dismiss();
    menu.choose(1);
    EXPECT_EQ(answers, std::vector<int>{0});
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
    EXPECT_TRUE(QFontInfo(UIFont::fontWithName("HelveticaNeue", 12)).family().startsWith("Nimbus Sans"));
}

} // namespace lodestar
