// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/AttentionFixture.h"
#include "Views/Attention/AttentionFilterController.h"
#include "Views/Attention/FoldedListController.h"
#include "Views/Corvels/CorvelListViewController.h"

namespace lodestar::testing
{
namespace
{

using Look = AttentionNowController::Look;

TEST_F(AttentionTest, EveryRowSaysWhatIsWrongAndOpensIt)
{
    everyoneAnswered();
    picture.fleet.answeredInFull = 0;
    picture.fleet.offline = picture.fleet.incomplete = 1;
    picture.findings.beforeOffline = 3;
    addAll();
    show();
    open();
    EXPECT_EQ(screen->look(), Look::Rows);
    EXPECT_EQ(screen->summaryLabel()->text(), "9 things need attention, 5 events are open");
    EXPECT_EQ(screen->completenessLabel()->text(), "0 of 2 consoles answered in full, 2 min ago");
    EXPECT_EQ(screen->completenessMark()->imageName(), "state_incomplete");
    EXPECT_FALSE(screen->completenessMark()->isHidden());
    EXPECT_THAT(rows(), ElementsAre("Errors 4", "  helios-04: System incomplete, LED on | 03:12 | Harbour B",
                                    "  helios-03: System in error, X417-2208 | 03:12 | Harbour B",
                                    "  vios-2b: IO server in error | 03:12 | Harbour B",
                                    "  <b>ledger</b> : Partition in error | yesterday | Harbour B", "Not answering 2",
                                    "  Ridgeway: Offline, connection refused | 03:12 | ",
                                    "  Harbour B: Partitions and groups not read | 2 min ago | ",
                                    "3 things needed attention there before.", "Warnings 3",
                                    "  batch-night-2: Partition stopped, ran until 09:26 | 2 min ago | Harbour B",
                                    "  helios-02: LED on, system operating | Mon | Harbour B",
                                    "  Payroll: 1 of 16 resources in error | 03:12 | Harbour B", "Open events 5",
                                    "  Fan 1042: #1042, X211-0040, call home | 03:12 | Harbour B",
                                    "  Fan 1041: #1041, X211-0040, 6 times | 03:12 | Harbour B",
                                    "  Fan 1040: #1040, X211-0040 | 03:12 | Harbour B", "  Show all 5"));
    EXPECT_EQ(cell(0, 0).accessibleText, "helios-04, system incomplete, attention LED on, Harbour B, since 03:12");
    EXPECT_THAT((std::vector{cell(0, 0).badge, cell(0, 1).badge, cell(1, 0).badge, cell(1, 1).badge, cell(2, 0).badge,
                             cell(2, 1).badge, cell(2, 2).badge, cell(3, 0).badge}),
                ElementsAre("ms_botherror", "ms_stateerror", "at_offline", "at_incomplete", "at_stopped", "ms_lederror",
                            "rg_green", "at_event"));
    EXPECT_EQ(tap(0, 0), "managedSystemInfo helios-04");
    EXPECT_EQ(tap(0, 2), "viosDetail vios-2b");
    EXPECT_EQ(tap(1, 0), "connectionView Ridgeway");
    EXPECT_EQ(tap(1, 1), "connectionView Harbour B");
    EXPECT_EQ(tap(2, 0), "logicalPartitionsDetail batch-night-2");
    EXPECT_EQ(tap(2, 2), "resourceGroupsView Harbour B");
    EXPECT_EQ(tap(3, 1), "serviceableEventsDetail Fan 1041");

    EXPECT_TRUE(cell(1, 0).rightButtons.isEmpty());
    EXPECT_THAT(cell(2, 0).rightButtons, ElementsAre(SwipeButton{"Expected", Role::Button::Standard}));
    screen->expectStop(0, 0);
    EXPECT_EQ(Toasts::shared().text(), "");
    screen->expectStop(2, 0);
    EXPECT_EQ(Toasts::shared().text(), "Marked as expected until it runs again");

    EXPECT_EQ(tap(3, 3), "");
    EXPECT_THAT(rows().back(), StartsWith("  Fan 1038"));
    // A row stays until the next picture; its console may have gone meanwhile.
    deleteCorvelAtIndex(1);
    EXPECT_EQ(tap(1, 0), "");
}

TEST_F(AttentionTest, WhatBeganTogetherIsOneRowAndItsListFollowsTheFleet)
{
    everyoneAnswered();
    for (int i = 0; i < 54; ++i) {
        addStopped("part-" + std::to_string(i), harbour);
    }
    show();
    open();
    ASSERT_THAT(rows(),
                ElementsAre("Warnings 54", "  54 partitions: Stopped, ran until 09:26 | 2 min ago | Harbour B"));
    screen->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    auto* const folded = qobject_cast<FoldedListController*>(navigation->topViewController());
    ASSERT_NE(folded, nullptr);
    EXPECT_EQ(header(*folded), "54 partitions/Stopped, ran until 09:26");
    EXPECT_EQ(folded->tableView()->rows(), 54);
    EXPECT_EQ(cellAt<FindingCell>(*folded, 1).name, "part-1");

    // One runs again and another one stops: the list holds those of the row alone.
    picture.findings.list.erase(picture.findings.list.begin() + 1);
    addStopped("later", ridgeway);
    show();
    EXPECT_EQ(folded->tableView()->rows(), 53);
    EXPECT_EQ(cellAt<FindingCell>(*folded, 1).name, "part-2");
    folded->didSelectRowAtIndexPath(TableKind::Main, {0, 1});
    EXPECT_EQ(input<XMLElement>().attribute("name"), "part-2");
    goBack();
    picture.findings.list.clear();
    show();
    EXPECT_EQ(folded->tableView()->rows(), 0);
    goBack();
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(screen->look(), Look::Clear);
}

TEST_F(AttentionTest, RowsOfAGreatManyFindingsAreMadeElsewhereAndTheLastChoiceCounts)
{
    everyoneAnswered();
    for (int i = 0; i < 2500; ++i) {
        addSystem("s-" + std::to_string(i), harbour);
    }
    addOffline(ridgeway);
    show();
    open();
    FindingFilter filter;
    filter.kinds = {FindingSubject::Console};
    tab->setFilter(filter);
    tab->setFilter({});
    ASSERT_TRUE(runUntil([this] { return !rows().empty(); }));
    EXPECT_THAT(rows(), ElementsAre("Errors 2,500", "  2,500 systems: System in error | 03:12 | Harbour B",
                                    "Not answering 1", "  Ridgeway: Offline, connection refused | 03:12 | "));
    tab->setFilter(filter);
    EXPECT_TRUE(runUntil([this] { return rows().front() == "Not answering 1"; }));
}

TEST_F(AttentionTest, WithoutRowsOnlyAFullAndFreshReadingLooksCalm)
{
    picture.fleet = {};
    show();
    open();
    EXPECT_EQ(screen->look(), Look::Waiting);
    const struct {
        std::function<void()> prepare;
        Look look;
        const char* text;
        Role::State state;
    } cases[] = {
        {[] {}, Look::Clear, "2 of 2 consoles answered in full, 2 min ago", Role::State::None},
        {[this] { picture.fleet.from = now - 3h; }, Look::Unknown, "2 of 2 consoles answered in full, read 3 h ago",
         Role::State::Alert},
        {[this] {
             picture.fleet.answeredInFull = 0;
             picture.fleet.notTried = 2;
             picture.fleet.from = {};
         },
         Look::Unknown, "0 of 2 consoles answered in full", Role::State::Alert},
        {[this] {
             picture.fleet.answeredInFull = picture.fleet.offline = 1;
             addOffline(ridgeway);
         },
         Look::Unknown, "1 of 2 consoles did not answer. What they would report is not known.", Role::State::None},
        {[this] { picture.fleet.updating = picture.fleet.underWay = 2; }, Look::Clear, "updating... 0 of 2",
         Role::State::None},
        {[this] { addSystem("helios-03", harbour); }, Look::Rows, nullptr, Role::State::None},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text != nullptr ? each.text : "rows");
        picture.findings = {};
        everyoneAnswered();
        each.prepare();
        show();
        EXPECT_EQ(screen->look(), each.look);
        if (each.text != nullptr) {
            EXPECT_EQ(screen->noDataLabel()->text(), each.text);
            EXPECT_EQ(screen->noDataLabel()->state(), each.state);
        }
        EXPECT_EQ(screen->updatingIndicator()->isAnimating(), picture.fleet.underWay > 0);
    }
    // What is not known to be good is not called so.
    picture.findings = {};
    add(FindingRank::OpenEvent, FindingSubject::Event, ObjectType::ServiceableEvent, "Fan", harbour);
    show();
    EXPECT_EQ(screen->summaryLabel()->text(), "No faults, 1 event is open");
    picture.fleet.from = now - 3h;
    show();
    EXPECT_EQ(screen->summaryLabel()->text(), "1 event is open");
    EXPECT_EQ(screen->completenessMark()->imageName(), "state_alert");

    deleteEveryCorvel();
    picture = {};
    show();
    EXPECT_EQ(screen->look(), Look::NoConsoles);
}

TEST_F(AttentionTest, TouchedRowsStayAndNewErrorsAreSpokenOnceAReading)
{
    everyoneAnswered();
    addSystem("helios-03", harbour);
    show();
    open();
    QStringList said;
    QObject::connect(screen, &AttentionNowController::announced, [&] { said << screen->announcement(); });
    const auto change = [&](auto how) {
        how();
        show();
    };
    screen->tableView()->setTouched(true);
    change([&] { picture.findings.list.clear(); });
    EXPECT_THAT(rows(), ElementsAre("Errors 1", HasSubstr("helios-03")));
    EXPECT_EQ(tap(0, 0), "managedSystemInfo helios-03");
    screen->tableView()->setTouched(false);
    EXPECT_EQ(tap(0, 0), "managedSystemInfo helios-03") << "the finger that leaves is not done yet";
    drain();
    EXPECT_TRUE(rows().empty());

    // The rows come while the reading runs; the voice waits for its end.
    change([&] {
        picture.fleet.underWay = 2;
        picture.fleet.updating = 1;
        addSystem("helios-03", harbour);
    });
    EXPECT_EQ(rows().size(), 2U);
    EXPECT_TRUE(said.isEmpty());
    change([&] { everyoneAnswered(); });
    EXPECT_THAT(said, ElementsAre("helios-03, System in error, Harbour B, since 03:12"));
    change([&] {
        addSystem("helios-05", harbour);
        addSystem("helios-06", harbour);
    });
    ASSERT_EQ(said.size(), 2);
    EXPECT_EQ(plain(said.back()), "2 things need attention: helios-05 and helios-06");
    change([] {});
    EXPECT_EQ(said.size(), 2);

    // Ages are written anew, but rows that nobody sees do not follow.
    AgeClock::setNow(now + 24h);
    EXPECT_EQ(cell(0, 0).age, "yesterday");
    tab->segmentedControl()->setSelectedSegmentIndex(1);
    EXPECT_TRUE(tab->changes()->isInWindow() && !screen->isInWindow());
    change([&] { picture.findings.list.clear(); });
    EXPECT_EQ(rows().size(), 4U);
    tab->segmentedControl()->setSelectedSegmentIndex(0);
    EXPECT_TRUE(rows().empty());
}

TEST_F(AttentionTest, TheSheetShowsWhatIsChosenAtOnceAndADeletedConsoleIsChosenNoMore)
{
    everyoneAnswered();
    addAll();
    show();
    open();
    tab->openFilter();
    auto* const sheet = qobject_cast<AttentionFilterController*>(tab->semiModal()->controller());
    ASSERT_NE(sheet, nullptr);
    const auto consoles = [&] {
        std::vector<std::string> lines;
        for (int row = 0; row < sheet->consoles()->rowCount(); ++row) {
            const auto field = [&](int role) { return sheet->consoles()->data(sheet->consoles()->index(row), role); };
            lines.push_back((field(ConsoleChoices::Name).toString() + " " + field(ConsoleChoices::Count).toString() +
                             (field(ConsoleChoices::Chosen).toBool() ? " x" : ""))
                                .toStdString());
        }
        return lines;
    };
    EXPECT_EQ(sheet->kindNames().join(' ') + sheet->kindCounts().join(' '),
              "Consoles Systems IO servers Partitions Groups Events2 3 1 2 1 5");
    EXPECT_THAT(consoles(), ElementsAre("All 2 consoles 14 x", "Harbour B 13", "Ridgeway 1"));
    sheet->setByConsole(true);
    EXPECT_FALSE(tab->isFiltered());
    EXPECT_EQ(rows().front(), "Harbour B 13");
    EXPECT_EQ(cell(0, 0).console, "");
    sheet->toggleKind(1);
    sheet->toggleKind(2);
    EXPECT_TRUE(tab->isFiltered());
    EXPECT_THAT(rows(), ElementsAre("Harbour B 4", HasSubstr("helios-04"), HasSubstr("helios-03"), HasSubstr("vios-2b"),
                                    HasSubstr("helios-02"), "10 more things are not shown."));
    EXPECT_EQ(screen->filterLabel()->text(), "Systems, IO servers");
    EXPECT_EQ(screen->notShownLabel()->text(), "10 more things are not shown.");
    sheet->toggleConsole(2);
    EXPECT_THAT(consoles(), ElementsAre("All 2 consoles 14", "Harbour B 13", "Ridgeway 1 x"));
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(screen->look(), Look::Rows);
    EXPECT_EQ(plain(screen->filterLabel()->text()), "Systems, IO servers, Ridgeway");
    sheet->setSearchText(" HARB");
    EXPECT_THAT(consoles(), ElementsAre("Harbour B 13"));
    sheet->toggleConsole(0);
    EXPECT_EQ(rows().size(), 6U);

    sheet->setSearchText("");
    deleteCorvelAtIndex(0);
    std::erase_if(picture.findings.list, [this](const Finding& each) { return each.corvel == harbour; });
    show();
    EXPECT_THAT(consoles(), ElementsAre("All 1 console 1", "Ridgeway 1 x"));
    EXPECT_EQ(tab->filter().consoles, std::set<const Corvel*>{ridgeway.get()});
    sheet->reset();
    EXPECT_FALSE(tab->isFiltered());
    EXPECT_EQ(rows().front(), "Not answering 1");
    sheet->done();
    EXPECT_EQ(tab->semiModal(), nullptr);
}

TEST_F(AttentionTest, TheTabCountsWithoutBeingOpenedAndIsReachedFromOthers)
{
    const auto list = makeController<CorvelListViewController>();
    tab = makeController<AttentionViewController>();
    auto tabs = makeController<TabBarController>(
        std::vector<TabBarItem>{{"Corvels", "tab_consoles", makeController<NavigationController>(list)},
                                {"Attention", "tab_attention", makeController<NavigationController>(tab)}});
    countAttention(*tabs, 1);
    std::vector<std::string> badges;
    for (const int count : {0, 1, 99, 100, 0}) {
        picture.findings.list.clear();
        for (int i = 0; i < count; ++i) {
            addSystem(std::to_string(i), harbour);
        }
        add(FindingRank::OpenEvent, FindingSubject::Event, ObjectType::ServiceableEvent, "Fan", harbour);
        show();
        badges.push_back((tabs->badgeAt(1) + "/" + tabs->spokenAt(1)).toStdString());
    }
    EXPECT_THAT(badges, ElementsAre("/Attention", "1/Attention, 1 thing", "99/Attention, 99 things",
                                    "99+/Attention, 100 things", "/Attention"));
    EXPECT_EQ(tabs->badgeAt(0), "");
    EXPECT_FALSE(tab->isViewLoaded());

    tabs->loadViewIfNeeded();
    tabs->beginAppearance();
    showAttentionOf(*list, ridgeway);
    EXPECT_EQ(tabs->selectedIndex(), 1);
    EXPECT_EQ(tab->filter().consoles, std::set<const Corvel*>{ridgeway.get()});
    EXPECT_TRUE(tab->now()->isInWindow());
    tab->showAll();
    EXPECT_FALSE(tab->isFiltered());
    tab->addCorvel();
    EXPECT_EQ(tabs->selectedIndex(), 0);
    EXPECT_NE(list->semiModal(), nullptr);
    EXPECT_FALSE(tab->now()->isInWindow());
    tabs.reset();
    show(); // Nobody counts any more.
}

} // namespace
} // namespace lodestar::testing
