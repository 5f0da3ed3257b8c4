// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Simulator/SimulatorProcess.h"
#include "Tests/Views/ViewsFixture.h"
#include "Views/Common/FeedListViewController.h"

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

template <typename Cell>
Cell cellAt(TableDataSource& list, int row, TableKind kind = TableKind::Main, int section = 0)
{
    return list.cellForRowAtIndexPath(kind, {section, row}).value<Cell>();
}

/// Screens on a stack, with scenes behind them that keep their inputs.
class ListTest : public ViewsTest
{
protected:
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
    /// A screen of the details of an element with that content.
    template <typename Detail>
    std::shared_ptr<Detail> openDetail(const std::string& xml, const std::shared_ptr<Detail>& detail)
    {
        detail->setRootXML(parse("<x>" + xml + "</x>"));
        return push(detail);
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
    /// As if the console's last whole fetch had brought one feed, with these entries.
    static void store(const CorvelRef& corvel, const std::string& type, const std::string& entries)
    {
        corvel->setRestData(feeds({{type, Feed(parse("<feed>" + entries + "</feed>"))}}));
        corvel->completedFetch = true;
    }
    /// A demonstration console with that feed.
    static CorvelRef addFetched(const std::string& type, const std::string& entries)
    {
        CorvelRef corvel = addCorvel("Harbour A", "127.0.0.1", true);
        store(corvel, type, entries);
        return corvel;
    }
    /// Its list, as it shows the feed.
    template <typename List>
    std::shared_ptr<List> openFetched(const std::string& type, const std::string& entries)
    {
        auto list = open<List>(addFetched(type, entries));
        EXPECT_TRUE(hasContent(*list));
        return list;
    }
    /// A simulated console.
    static CorvelRef addConsole(const simulator::SimulatorProcess& fleet, int console, const std::string& name)
    {
        CorvelRef corvel = addCorvel(name, fleet.address(console));
        corvel->setUsername(fleet.user());
        corvel->setPassword(fleet.password());
        return corvel;
    }
    /// A simulated console that has been logged on to and not yet fetched.
    static CorvelRef addLoggedOn(const simulator::SimulatorProcess& fleet)
    {
        const CorvelRef corvel = addConsole(fleet, 0, "Harbour A");
        const auto logon = RESTHandler::sharedInstance().login(corvel, CheckToken::Yes);
        EXPECT_TRUE(runUntil([&] { return logon.isFulfilled(); }));
        return corvel;
    }
    /// Keeps the rows that the table is told to deselect from now on.
    void watch(TableOutlet* table)
    {
        deselected.clear();
        QObject::connect(table, &TableOutlet::deselected, [this](int row) { deselected.push_back(row); });
    }
    static void searchFor(FeedListViewController& list, const char* text)
    {
        list.showSearchBar();
        list.searchBar()->setText(QString::fromLatin1(text));
    }
    /// The header of a screen, as "title/subtitle".
    template <typename Screen>
    static QString header(Screen& screen)
    {
        return screen.header()->titleLabel()->text() + "/" + screen.header()->subtitleLabel()->text();
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
    std::vector<int> deselected;
};

} // namespace lodestar::testing
