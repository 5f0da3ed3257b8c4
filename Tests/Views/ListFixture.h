// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Controllers/REST/RESTHandler.h"
#include "Platform/URLLoading/ServerTrust.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Common/FeedListViewController.h"
#include "Views/Common/Scenes.h"

#include <any>

namespace lodestar::testing
{

/// A feed's entry.
inline std::string entry(const std::string& type, const std::string& inner)
{
    return "<entry><published>2026-07-03T10:25:00.000Z</published><content><" + type + ">" + inner + "</" + type +
           "></content></entry>";
}

inline std::string system(const std::string& name, const std::string& state, const std::string& led = "false",
                          const std::string& rest = "")
{
    return entry("ManagedSystem", "<SystemName>" + name + "</SystemName><State>" + state +
                                      "</State><PhysicalSystemAttentionLEDState>" + led +
                                      "</PhysicalSystemAttentionLEDState>" + rest);
}

/// The lines' numbers; each is to be of level 2, without a tag.
inline std::vector<int> lineNumbers(const std::vector<LoggedLine>& lines)
{
    std::vector<int> numbers;
    for (const LoggedLine& line : lines) {
        EXPECT_EQ(line.level, 2);
        EXPECT_EQ(line.tag, 0);
        numbers.push_back(line.line);
    }
    return numbers;
}

/// Screens on a stack, with scenes behind them that keep their inputs.
class ListTest : public ViewsTest
{
protected:
    void TearDown() override
    {
        openedWith.reset();
        navigation.reset();
        ViewsTest::TearDown();
    }

    template <typename Controller>
    std::shared_ptr<Controller> push(std::shared_ptr<Controller> screen)
    {
        navigation = makeController<NavigationController>(makeController<ViewController>());
        navigation->loadViewIfNeeded();
        navigation->beginAppearance();
        navigation->pushViewController(screen, Animated::No);
        return screen;
    }
    template <typename Controller>
    std::shared_ptr<Controller> open(const CorvelRef& corvel)
    {
        auto screen = makeController<Controller>();
        screen->setCorvel(corvel);
        return push(screen);
    }
    /// Bare screens stand where these scenes will.
    template <typename... Input>
    void registerScenes(Scene<Input>... scene)
    {
        (Storyboard::main().registerScene(
             scene,
             [this, scene](Input input) {
                 openedScene = scene.identifier;
                 openedWith = std::move(input);
                 return makeController<ViewController>();
             },
             QUrl()),
         ...);
    }
    /// What the last of those scenes was opened with.
    template <typename Input>
    Input input() const
    {
        return std::any_cast<Input>(openedWith);
    }
    /// Back to the screen, to open the next.
    void goBack() const { navigation->popViewController(Animated::No); }
    /// A console whose last whole fetch ended with these feeds.
    static CorvelRef addFetched(const std::map<std::string, Feed>& byType)
    {
        const CorvelRef corvel = addCorvel("Harbour A", "127.0.0.1", true);
        corvel->setRestData(feeds(byType));
        corvel->completedFetch = true;
        return corvel;
    }
    /// A simulated console that has been logged on to and not yet fetched.
    static CorvelRef addLoggedOn(const simulator::SimulatorProcess& fleet)
    {
        ServerTrust::shared().forgetAll();
        const CorvelRef corvel = addCorvel("Harbour A", fleet.address(0));
        corvel->setUsername(fleet.user());
        corvel->setPassword(fleet.password());
        const auto logon = RESTHandler::sharedInstance().login(corvel, CheckToken::Yes);
        EXPECT_TRUE(runUntil([&] { return logon.isFulfilled(); }));
        return corvel;
    }
    static bool hasContent(FeedListViewController& list)
    {
        return runUntil([&] { return !list.tableView()->isHidden(); });
    }
    static bool hasNoContent(FeedListViewController& list)
    {
        return runUntil([&] { return !list.noDataLabel()->isHidden(); });
    }

    std::shared_ptr<NavigationController> navigation;
    std::any openedWith;
    std::string openedScene;
};

} // namespace lodestar::testing
