// SPDX-License-Identifier: Apache-2.0
#include "Fleet/Attention.h"
#include "Fleet/History.h"
#include "Fleet/RecentSearches.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Common/AgeClock.h"
#include "Views/Find/FindCell.h"
#include "Views/Find/FindListController.h"
#include "Views/Find/FindViewController.h"
#include "Views/Find/OpenFind.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::testing
{
namespace
{

using namespace std::chrono;

const WallTime now = sys_days(2026y / March / 12) + hours(9) + minutes(43);

std::string field(const std::string& name, const std::string& text)
{
    return "<" + name + ">" + text + "</" + name + ">";
}

std::string atom(const std::string& id)
{
    return "<Metadata><Atom>" + field("AtomID", id) + "</Atom></Metadata>";
}

std::string partition(const std::string& name, const std::string& state, const std::string& code = "")
{
    return entry("LogicalPartition", "<AssociatedManagedSystem href='https://c/rest/api/uom/ManagedSystem/s1'/>" +
                                         field("PartitionName", name) + field("PartitionState", state) +
                                         field("ReferenceCode", code));
}

struct Console {
    CorvelRef corvel;
    Reading::Outcome outcome = Reading::Outcome::Complete;
    std::map<std::string, std::string> entries{}; ///< of its feeds; "NA"
};

Attention::Picture pictureOf(const std::vector<Console>& consoles)
{
    Attention::Picture picture;
    for (const Console& each : consoles) {
        auto reading = std::make_shared<Reading>();
        reading->outcome = each.outcome;
        reading->ended = now - minutes(2);
        auto feeds = std::make_shared<FeedDictionary>();
        for (const auto& [type, entries] : each.entries) {
            const Feed feed(XMLElement::parse("<feed>" + entries + "</feed>").value());
            feeds->setFeed(type, entries == "NA" ? Feed() : feed);
        }
        picture.consoles.push_back(
            {each.corvel, *each.corvel->name(), *each.corvel->address(), reading, feeds, nullptr});
    }
    return picture;
}

void show(const std::vector<Console>& consoles)
{
    Attention::shared().adopt(std::make_shared<const Attention::Picture>(pictureOf(consoles)));
}

/// Headings with their counts, and below each the rows: name, line, state and console, with what is marked in brackets.
template <typename Screen>
std::vector<std::string> lines(Screen& screen)
{
    const auto shown = [](const CellLabel& label) {
        QString text = label.text;
        const auto at = label.match.isEmpty() ? -1 : text.indexOf(label.match);
        return (at < 0 ? text : text.insert(at + label.match.size(), ']').insert(at, '[')).toStdString();
    };
    std::vector<std::string> all;
    for (int section = 0; section < screen.numberOfSections(TableKind::Main); ++section) {
        if (const auto title = screen.titleForHeaderInSection(TableKind::Main, section)) {
            all.push_back(title->toStdString() + "/" +
                          screen.detailForHeaderInSection(TableKind::Main, section).toStdString());
        }
        for (int row = 0; row < screen.numberOfRowsInSection(TableKind::Main, section); ++row) {
            const auto cell = cellAt<FindCell>(screen, row, TableKind::Main, section);
            all.push_back(cell.more.isEmpty()
                              ? fmt::format("{}|{}|{}|{}", shown(cell.name), shown(cell.line),
                                            cell.state.text.toStdString(), (cell.console + cell.count).toStdString())
                              : cell.more.toStdString());
        }
    }
    return all;
}

class FindTest : public ListTest
{
protected:
    FindTest()
    {
        History::shared().open(folder.path());
        bool known = false;
        History::shared().whenOpen([&known] { known = true; });
        runUntil([&known] { return known; });
        AgeClock::setNow(now);
        registerScenes(Scenes::managedSystemInfo, Scenes::logicalPartitionsDetail, Scenes::serviceableEventsDetail,
                       Scenes::resourceGroupsView, Scenes::corvelTasksViewController, Scenes::connectionView);
        Storyboard::main().registerScene(
            Scenes::findView,
            [](const FindInput& input) {
                auto find = makeController<FindViewController>();
                find->look(input.text);
                return find;
            },
            QUrl());
        showAll();
    }
    ~FindTest() override
    {
        navigation.reset();
        drain();
        Attention::shared().adopt(nullptr);
        AgeClock::setNow({});
        History::shared().close();
    }

    std::vector<Console> consoles() const
    {
        const std::string machine = "<MachineTypeModelAndSerialNumber>" + field("MachineType", "4210") +
                                    field("Model", "M16") + field("SerialNumber", "06A1810") +
                                    "</MachineTypeModelAndSerialNumber>";
        const std::map<std::string, std::string> feeds = {
            {"ManagedSystem", system("Atlas-Lédger-01", "operating", "false",
                                     machine + atom("s1") + field("PrimaryIPAddress", "192.0.2.63"))},
            {"LogicalPartition", partition("ledger-app-1", "running") + partition("ledger-app-2", "running") +
                                     partition("ledger-app-3", "running") + partition("ledger-old", "not activated") +
                                     partition("Ledger-Migration", "error", "X417-2208")},
            {"Group", entry("Group", field("GroupName", "Ledger production") + field("GroupColor", "Blue") +
                                         "<AssociatedLogicalPartitions><link href='https://c/uom/LogicalPartition/p'/>"
                                         "<link href='https://c/uom/LogicalPartition/q'/>"
                                         "</AssociatedLogicalPartitions>")},
            {"ServiceableEvent",
             entry("ServiceableEvent",
                   field("problemNumber", "1029") + field("ApprovalState", "Approved") + field("problemState", "Open") +
                       field("shortDescription", "One of the many paths to the disk of ledger-db-primary is lost") +
                       "<fieldReplaceableUnits><FieldReplaceableUnit>" + field("partNumber", "PS-1400-01") +
                       field("locationCode", "U4210-P1-C4") + "</FieldReplaceableUnit></fieldReplaceableUnits>")}};
        return {{harbour, Reading::Outcome::Complete, feeds},
                {ridgeway, Reading::Outcome::Partial, {{"LogicalPartition", "NA"}}},
                {northfield, Reading::Outcome::Offline, feeds}};
    }
    void showAll() const { show(consoles()); }

    FindViewController& find(const char* text)
    {
        navigation = makeController<NavigationController>(makeController<ViewController>());
        navigation->loadViewIfNeeded();
        navigation->beginAppearance();
        openFind(*navigation->topViewController(), QString::fromUtf8(text));
        auto& screen = dynamic_cast<FindViewController&>(*navigation->topViewController());
        runUntil([&] { return !foot(screen).empty() || !screen.noDataLabel()->isHidden(); }, seconds(10));
        return screen;
    }
    static std::string foot(FindViewController& screen)
    {
        const int last = screen.numberOfSections(TableKind::Main) - 1;
        return last < 0 ? std::string() : screen.footerForSection(TableKind::Main, last).toStdString();
    }
    /// What a list hands on as comma-separated values: the cells of the console and of one more column.
    static std::vector<std::string> handedOn(FindListController& list, const std::string& title)
    {
        list.share()->copy();
        const Table table = readCsv(QGuiApplication::clipboard()->text().toStdString()).value();
        const auto column = static_cast<std::size_t>(std::ranges::find(table.titles, title) - table.titles.begin());
        std::vector<std::string> cells;
        for (const auto& row : table.rows) {
            cells.push_back(row.front() + "/" + row.at(column));
        }
        return cells;
    }
    template <typename Screen>
    void comesTo(Screen& screen, const std::vector<std::string>& expected)
    {
        runUntil([&] { return lines(screen) == expected; }, seconds(10));
        EXPECT_EQ(lines(screen), expected);
    }
    void opens(FindViewController& screen, const char* text, const std::string& scene)
    {
        openedScene.clear();
        screen.look(QString::fromUtf8(text));
        screen.didSelectRowAtIndexPath(TableKind::Main, {0, 0});
        EXPECT_EQ(openedScene, scene) << text;
        if (!openedScene.empty()) {
            goBack();
        }
    }

    const ScratchFolder folder;
    const CorvelRef harbour = addCorvel("Harbour B", "b");
    const CorvelRef ridgeway = addCorvel("Ridgeway", "r");
    const CorvelRef northfield = addCorvel("Northfield", "n");
};

TEST_F(FindTest, ShowsWhatWasFoundByKindWithTheFieldThatHasIt)
{
    FindViewController& screen = find("ledger");
    EXPECT_THAT(lines(screen),
                ElementsAre("Managed Systems/1", "Atlas-[Lédger]-01|4210-M16, serial 06A1810|operating|Harbour B",
                            "Logical Partitions/5", "[Ledger]-Migration|Atlas-Lédger-01, X417-2208|error|Harbour B",
                            "[ledger]-app-1|Atlas-Lédger-01|running|Harbour B",
                            "[ledger]-app-2|Atlas-Lédger-01|running|Harbour B",
                            "[ledger]-app-3|Atlas-Lédger-01|running|Harbour B", "Show all 5", "Resource Groups/1",
                            "[Ledger] production|2 resources||Harbour B", "Serviceable Events/1",
                            "Approved (#1029)|…paths to the disk of [ledger]-db-primary is lost||Harbour B"));
    EXPECT_EQ(foot(screen), "Northfield was not read. Partitions of Ridgeway are missing.");
    EXPECT_EQ(cellAt<FindCell>(screen, 0, TableKind::Main, 1).accessibleText,
              "Ledger-Migration, error, Atlas-Lédger-01, X417-2208, Harbour B");

    const std::pair<const char*, const char*> fields[] = {
        {"a1810", "Atlas-Lédger-01|4210-M16, serial 06[A1810]|operating|Harbour B"},
        {"2.63", "Atlas-Lédger-01|192.0.[2.63]|operating|Harbour B"},
        {"OPERATING", "Atlas-Lédger-01|4210-M16, serial 06A1810|operating|Harbour B"},
        {"417-", "Ledger-Migration|Atlas-Lédger-01, X[417-]2208|error|Harbour B"},
        {"ps-14", "Approved (#1029)|[PS-14]00-01, U4210-P1-C4||Harbour B"},
        {"p1-C4", "Approved (#1029)|PS-1400-01, U4210-[P1-C4]||Harbour B"},
        {"#1029", "Approved ([#1029])|One of the many paths to the disk of ledger-db-primary is lost||Harbour B"},
        {"north", "[North]field|n|Offline|"},
    };
    for (const auto& [text, row] : fields) {
        screen.look(QString::fromUtf8(text));
        ASSERT_EQ(lines(screen).size(), 2U) << text;
        EXPECT_EQ(lines(screen)[1], row);
    }

    screen.look(" zephyr ");
    EXPECT_TRUE(screen.tableView()->isHidden());
    EXPECT_EQ(screen.noDataHeadline()->text(), "Nothing found for “zephyr”");
    EXPECT_EQ(screen.noDataLabel()->text(),
              "2 of 3 consoles were searched. Northfield was not read. Partitions of Ridgeway are missing.");
}

TEST_F(FindTest, OpensWhatWasFoundAndFollowsItsConsoles)
{
    FindViewController& screen = find("atlas");
    opens(screen, "atlas", "managedSystemInfo");
    EXPECT_EQ(input<XMLElement>().child("SystemName").text(), "Atlas-Lédger-01");
    opens(screen, "1029", "serviceableEventsDetail");
    opens(screen, "production", "resourceGroupsView");
    opens(screen, "northfield", "connectionView");
    harbour->completedFetch = true;
    harbour->isOnline = true;
    opens(screen, "harbour", "corvelTasksViewController");
    EXPECT_EQ(input<CorvelRef>(), harbour);

    screen.look("ledger");
    screen.didSelectRowAtIndexPath(TableKind::Main, {1, 4});
    auto& all = dynamic_cast<FindListController&>(*navigation->topViewController());
    EXPECT_EQ(header(all), "Logical Partitions/ledger");
    EXPECT_EQ(lines(all).size(), 5U);
    using Cells = std::vector<std::string>;
    EXPECT_EQ(handedOn(all, "name"),
              Cells({"Harbour B/Ledger-Migration", "Harbour B/ledger-app-1", "Harbour B/ledger-app-2",
                     "Harbour B/ledger-app-3", "Harbour B/ledger-old"}));
    const auto consolesFound = makeController<FindListController>(consoleKind, QStringLiteral("r"));
    consolesFound->loadViewIfNeeded();
    consolesFound->beginAppearance();
    EXPECT_EQ(handedOn(*consolesFound, "last_reading"),
              Cells({"Northfield/offline", "Harbour B/complete", "Ridgeway/partial"}));
    all.didSelectRowAtIndexPath(TableKind::Main, {0, 0});

    // Those in error come first, so that a console's rows come in two stretches.
    auto both = consoles();
    both[1] = {ridgeway, Reading::Outcome::Complete, {{"LogicalPartition", partition("ledger-new", "error")}}};
    show(both);
    runUntil([&] { return lines(all).size() == 6; }, seconds(10));
    EXPECT_EQ(handedOn(all, "name"),
              Cells({"Harbour B/Ledger-Migration", "Ridgeway/ledger-new", "Harbour B/ledger-app-1",
                     "Harbour B/ledger-app-2", "Harbour B/ledger-app-3", "Harbour B/ledger-old"}));

    // Harbour goes offline, Ridgeway has partitions now, and another console is deleted.
    auto changed = consoles();
    changed[0].outcome = Reading::Outcome::Offline;
    changed[1] = {ridgeway, Reading::Outcome::Complete, {{"LogicalPartition", partition("ledger-new", "starting")}}};
    changed.pop_back();
    show(changed);
    comesTo(all, {"[ledger]-new||starting|Ridgeway"});
    EXPECT_EQ(handedOn(all, "name"), Cells({"Ridgeway/ledger-new"}));
    comesTo(screen, {"Logical Partitions/1", "[ledger]-new||starting|Ridgeway"});
    EXPECT_EQ(foot(screen), "Harbour B was not read.");
    RESTHandler::sharedInstance().setCorvelList({harbour, northfield});
    opens(screen, "ledger-new", "");
    show({});
    runUntil([&] { return !screen.noDataLabel()->isHidden(); }, seconds(10));
    EXPECT_EQ(screen.noDataLabel()->text(), "Nothing was read yet. Refresh first.");
    EXPECT_FALSE(all.noDataLabel()->isHidden());
}

TEST_F(FindTest, KeepsTheLastFiveTextsThatWereOfUse)
{
    FindViewController& screen = find("");
    EXPECT_TRUE(screen.clearButton()->isHidden());
    EXPECT_EQ(lines(screen).front(), "What can be found/");
    EXPECT_EQ(foot(screen), "10 things on 2 of 3 consoles, read 09:41. Northfield was not read. Partitions of Ridgeway "
                            "are missing.");
    for (const char* text : {"ledger", "x417", "zephyr", "Harbour", "LEDGER ", "1029", "atlas"}) {
        screen.look(QString::fromUtf8(text));
        screen.keepText();
    }
    EXPECT_THAT(RecentSearches::list(), ElementsAre("atlas", "1029", "LEDGER", "Harbour", "zephyr"));
    screen.searchBar()->setText("");
    EXPECT_FALSE(screen.clearButton()->isHidden());
    EXPECT_EQ(lines(screen)[0], "Recent/");
    EXPECT_EQ(lines(screen)[3], "LEDGER|||8");
    screen.didSelectRowAtIndexPath(TableKind::Main, {0, 3});
    EXPECT_EQ(screen.searchBar()->text(), "Harbour");
    EXPECT_EQ(RecentSearches::list().front(), "Harbour");

    // Nothing of a deleted console stays, and nothing at all after "Clear" or a reset.
    deleteCorvelAtIndex(0);
    EXPECT_THAT(RecentSearches::list(), ElementsAre("atlas", "1029", "LEDGER", "zephyr"));
    ridgeway->setName("Zephyr Point");
    deleteCorvelAtIndex(0);
    EXPECT_THAT(RecentSearches::list(), ElementsAre("atlas", "1029", "LEDGER"));
    // Of a console that this run has not read, what is remembered tells.
    const auto memory = std::make_shared<ConsoleMemory>();
    memory->objects[{"ServiceableEvent", "7"}].name = "1029";
    memory->objects[{"ManagedSystem", "s"}].name = "Atlas-03";
    ConsoleSnapshot snapshot;
    snapshot.corvel = northfield;
    snapshot.memory = memory;
    RecentSearches::forgetThoseOf(snapshot);
    EXPECT_THAT(RecentSearches::list(), ElementsAre("LEDGER"));
    screen.clearRecents();
    EXPECT_TRUE(RecentSearches::list().empty());
    RecentSearches::add("kept");
    deleteEveryCorvel();
    EXPECT_TRUE(RecentSearches::list().empty());
}

TEST_F(FindTest, ALargeFleetIsSearchedFromTwoLettersAndCountedToAThousand)
{
    std::vector<Console> many(FleetSearch::largeFleet, {ridgeway});
    show(many);
    FindViewController& screen = find("r");
    EXPECT_EQ(lines(screen).front(), "What can be found/");
    screen.look("ri");
    EXPECT_THAT(lines(screen), ElementsAre("Consoles/999+", "[Ri]dgeway|r|Good|", "[Ri]dgeway|r|Good|",
                                           "[Ri]dgeway|r|Good|", "[Ri]dgeway|r|Good|", "Show all 999+"));
}

} // namespace
} // namespace lodestar::testing
