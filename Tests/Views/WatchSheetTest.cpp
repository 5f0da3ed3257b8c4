// SPDX-License-Identifier: Apache-2.0
#include "Platform/MessageService.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Attention/WatchConsolesViewController.h"
#include "Views/Attention/WatchText.h"
#include "Views/Attention/WatchViewController.h"

namespace lodestar::testing
{
namespace
{

class ShownMessages final : public MessageService
{
public:
    bool isAvailable() const override { return available; }
    void show(const Message& message) override { shown.push_back(message.summary); }
    void setTapped(std::function<void()> /*tapped*/) override {}
    void setAvailabilityChanged(std::function<void()> /*changed*/) override {}
    bool available = false;
    std::vector<std::string> shown;
};

class WatchSheetTest : public ViewsTest
{
protected:
    WatchSheetTest()
    {
        auto service = std::make_unique<ShownMessages>();
        messages = service.get();
        MessageService::install(std::move(service));
        Watch::shared().setWords({}, [] { return Message{"test", {}}; });
        addCorvel("Harbour B", "b.example");
        addCorvel("Ridgeway\nLaboratory", "r.example");
        sheet->loadViewIfNeeded();
    }
    ~WatchSheetTest() override
    {
        Watch::shared().setSettings({});
        MessageService::install(nullptr);
    }
    void flip(SwitchOutlet* outlet) const
    {
        outlet->setOn(!outlet->isOn());
        sheet->takeSwitches();
    }

    ShownMessages* messages = nullptr;
    const std::shared_ptr<WatchViewController> sheet = makeController<WatchViewController>();
};

TEST_F(WatchSheetTest, EveryRowIsTheWatchsAndCountsAtOnce)
{
    EXPECT_FALSE(sheet->watchSwitch()->isOn());
    EXPECT_EQ(WatchText::state(), "off");
    EXPECT_EQ(sheet->everyLabel()->text(), "15 min");
    EXPECT_EQ(sheet->newEventsLabel()->text(), "none");
    EXPECT_EQ(sheet->consolesLabel()->text(), "all 2");
    EXPECT_EQ(sheet->fromLabel()->text() + sheet->untilLabel()->text(), "22:0006:30");
    EXPECT_TRUE(sheet->leftOutNote()->isHidden());

    for (SwitchOutlet* outlet :
         {sheet->watchSwitch(), sheet->worseSwitch(), sheet->betterSwitch(), sheet->quietSwitch()}) {
        flip(outlet);
    }
    sheet->chooseInterval();
    sheet->menu()->choose(4);
    sheet->chooseInterval();
    sheet->menu()->choose(sheet->menu()->cancelIndex());
    sheet->chooseNewEvents();
    sheet->menu()->choose(2);
    sheet->moveFrom(9);
    sheet->moveUntil(-27);
    WatchSettings chosen;
    chosen.on = chosen.better = chosen.quiet = true;
    chosen.worse = false;
    chosen.every = std::chrono::minutes(60);
    chosen.newEvents = WatchSettings::NewEvents::OpenCallHome;
    chosen.quietFrom = std::chrono::minutes(15);
    chosen.quietUntil = std::chrono::minutes(23 * 60 + 45);
    EXPECT_EQ(Watch::shared().settings(), chosen);
    EXPECT_EQ(WatchText::state(), "every 1 h");
    EXPECT_EQ(sheet->newEventsLabel()->text(), "open, call home");
    EXPECT_EQ(sheet->fromLabel()->text(), "00:15");
    EXPECT_EQ(sheet->quietNote()->text(),
              "Reading goes on. At 23:45 one message sums up the night, if anything got worse.");

    const auto consoles = makeController<WatchConsolesViewController>();
    consoles->loadViewIfNeeded();
    consoles->didSelectRowAtIndexPath(TableKind::Main, {0, 1});
    EXPECT_EQ(sheet->consolesLabel()->text(), "1 of 2");
    EXPECT_FALSE(consoles->cellForRowAtIndexPath(TableKind::Main, {0, 1}).value<WatchConsoleCell>().watched);
    consoles->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(sheet->consolesLabel()->text(), "0 of 2");
    deleteCorvelAtIndex(1);
    EXPECT_EQ(consoles->numberOfRowsInSection(TableKind::Main, 0), 1);
    consoles->didSelectRowAtIndexPath(TableKind::Main, {0, 1}); // it is gone
    consoles->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(sheet->consolesLabel()->text(), "all 1");
}

TEST_F(WatchSheetTest, ASystemWithoutMessagesIsToldAndOneThatComesIsUsed)
{
    EXPECT_FALSE(sheet->serviceNote()->isHidden());
    EXPECT_FALSE(sheet->testRow()->isEnabled());
    messages->available = true;
    NotificationCenter::defaultCenter().postNotification("WatchDidChange");
    EXPECT_TRUE(sheet->serviceNote()->isHidden());
    EXPECT_TRUE(sheet->testRow()->isEnabled());
    sheet->sendTestMessage();
    EXPECT_THAT(messages->shown, ElementsAre("test"));
    const std::vector<CorvelRef>& list = RESTHandler::sharedInstance().corvelList();
    EXPECT_EQ(WatchText::leftOut({list[1]}).remove(QChar(0x2068)).remove(QChar(0x2069)),
              "Ridgeway Laboratory is left out until you refresh it by hand: its certificate changed.");
}

} // namespace
} // namespace lodestar::testing
