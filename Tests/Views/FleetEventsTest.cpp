// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/Languages.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Attention/EventOrderViewController.h"
#include "Views/Attention/FleetEventCell.h"
#include "Views/Attention/FleetEventsViewController.h"
#include "Views/Common/AgeClock.h"

#include <QRegularExpression>

namespace lodestar::testing
{
namespace
{

using namespace std::chrono;

const WallTime now = sys_days(2026y / March / 12) + hours(9) + minutes(43);

std::string plain(QString text)
{
    return text.remove(QRegularExpression(QStringLiteral("[\u2066-\u2069]"))).toStdString();
}

std::string secondsBefore(seconds ago)
{
    return std::to_string(floor<seconds>(now - ago).time_since_epoch().count());
}

std::string event(const std::string& number, const std::string& state, const std::string& callHome,
                  const std::string& code, seconds ago, const std::string& text, const std::string& system = "")
{
    return entry("ServiceableEvent",
                 fmt::format("<problemNumber>{}</problemNumber><ApprovalState>Approved</ApprovalState><problemState>{}"
                             "</problemState><callHomeEnabled>{}</callHomeEnabled><referenceCode>{}</referenceCode>"
                             "<firstReportedTimestamp>{}</firstReportedTimestamp><lastReportedTimestamp>{}"
                             "</lastReportedTimestamp><shortDescription>{}</shortDescription><failingManagedSystemNode>"
                             "<hostName>{}</hostName></failingManagedSystemNode>",
                             number, state, callHome, code, secondsBefore(ago), secondsBefore(ago), text, system));
}

class FleetEventsTest : public ListTest
{
protected:
    FleetEventsTest()
    {
        AgeClock::setNow(now);
        registerScenes(Scenes::serviceableEventsDetail);
        host = push(makeController<ViewController>());
        events = makeController<FleetEventsViewController>();
        events->setHost(*host);
        events->loadViewIfNeeded();
        show({{harbour, Reading::Outcome::Complete,
               event("1042", "Open", "true", "X417-2208", minutes(2), "Power supply", "helios-03") +
                   event("1019", "Closed", "false", "", hours(24 * 40), "Fan")},
              {ridgeway, Reading::Outcome::Partial, "NA"},
              {meadow, Reading::Outcome::Complete,
               event("1041", "Open", "false", "X530-1107", hours(14), "Adapter") +
                   event("1029", "Open", "true", "X417-2208", hours(44), "Supply")},
              {northfield, Reading::Outcome::Offline, event("7", "Open", "true", "X1", hours(1), "Old")}});
        events->beginAppearance();
        comesTo({"Approved (#1042)", "Approved (#1041)", "Approved (#1029)", "Approved (#1019)"});
    }
    ~FleetEventsTest() override
    {
        events->endAppearance();
        Attention::shared().adopt(nullptr);
        AgeClock::setNow(std::nullopt);
    }

    struct Console {
        CorvelRef corvel;
        Reading::Outcome outcome;
        std::string entries; ///< of its events; "NA"
    };
    /// The fleet becomes these consoles.
    static void show(const std::vector<Console>& consoles)
    {
        auto picture = std::make_shared<Attention::Picture>();
        for (const Console& each : consoles) {
            auto reading = std::make_shared<Reading>();
            reading->outcome = each.outcome;
            const Feed feed = each.entries == "NA" ? Feed() : Feed(parse("<feed>" + each.entries + "</feed>"));
            picture->consoles.push_back({each.corvel, *each.corvel->name(), *each.corvel->address(), reading,
                                         feeds({{"ServiceableEvent", feed}}), nullptr});
        }
        Attention::shared().adopt(picture);
    }
    /// Headings with note and count, and below each the numbers of its events.
    std::vector<std::string> lines(TableKind kind = TableKind::Main)
    {
        std::vector<std::string> all;
        for (int section = 0; section < events->numberOfSections(kind); ++section) {
            if (const auto title = events->titleForHeaderInSection(kind, section)) {
                all.push_back(fmt::format("{}/{}/{}", title->toStdString(),
                                          events->noteForHeaderInSection(kind, section).toStdString(),
                                          events->detailForHeaderInSection(kind, section).toStdString()));
            }
            for (int row = 0; row < events->numberOfRowsInSection(kind, section); ++row) {
                all.push_back(cellAt<FleetEventCell>(*events, row, kind, section).title.text.toStdString());
            }
        }
        return all;
    }

    /// The list is made elsewhere and comes here some time.
    void comesTo(const std::vector<std::string>& expected, TableKind kind = TableKind::Main)
    {
        runUntil([&] { return lines(kind) == expected; }, seconds(10));
        EXPECT_EQ(lines(kind), expected);
    }
    void choiceComesTo(const std::string& expected)
    {
        runUntil([&] { return plain(events->choiceText()) == expected; }, seconds(10));
        EXPECT_EQ(plain(events->choiceText()), expected);
    }

    const CorvelRef harbour = addCorvel("Harbour B", "b");
    const CorvelRef ridgeway = addCorvel("Ridgeway", "r");
    const CorvelRef meadow = addCorvel("Meadow", "m");
    const CorvelRef northfield = addCorvel("Northfield", "n");
    std::shared_ptr<ViewController> host;
    std::shared_ptr<FleetEventsViewController> events;
};

TEST_F(FleetEventsTest, ShowsWhatAnsweringConsolesHaveAndSaysWhatIsMissing)
{
    EXPECT_EQ(plain(events->footerForSection(TableKind::Main, 0)),
              "Northfield was not read. Events of Ridgeway are missing.");
    EXPECT_EQ(events->choiceText(), "");
    const auto cell = cellAt<FleetEventCell>(*events, 0);
    EXPECT_EQ(cell.moment, "09:41");
    EXPECT_EQ(cell.seconds.toStdString(), secondsBefore(minutes(2)));
    EXPECT_EQ(plain(cell.status), "Open, call home");
    Languages::use({QStringLiteral("ja")});
    EXPECT_THAT(plain(cellAt<FleetEventCell>(*events, 0).status), StartsWith("Open、"));
    Languages::use({QStringLiteral("en")});
    EXPECT_EQ(cell.console, "Harbour B");
    EXPECT_EQ(cellAt<FleetEventCell>(*events, 1).moment, "yesterday 19:43");
    EXPECT_EQ(events->bars()->days().size(), 14);
    EXPECT_EQ(events->bars()->chart()->accessibleText(), "New Events a Day, 14 days, today 1");
    EXPECT_EQ(events->bars()->days().at(12), "11 Mar 1");

    events->didSelectRowAtIndexPath(TableKind::Main, {0, 2});
    EXPECT_EQ(openedScene, "serviceableEventsDetail");
    EXPECT_EQ(input<XMLElement>().path({"problemNumber"}).text(), "1029");

    // A console that counts milliseconds, and has an event without a status.
    show({{harbour, Reading::Outcome::Complete,
           entry("ServiceableEvent", "<problemNumber>7</problemNumber><ApprovalState>Approved</ApprovalState>"
                                     "<lastReportedTimestamp>1773304860000</lastReportedTimestamp>")}});
    comesTo({"Approved (#7)"});
    EXPECT_EQ(cellAt<FleetEventCell>(*events, 0).moment, "");
    EXPECT_EQ(cellAt<FleetEventCell>(*events, 0).seconds, "1773304860000");
    events->setChoice({.order = EventOrder::ByStatus, .openOnly = false, .callHomeOnly = false, .consoles = {}});
    comesTo({"no status//1", "Approved (#7)"});
}

TEST_F(FleetEventsTest, TheSheetOrdersAndChoosesAtOnceAndAResetShowsAllAgain)
{
    events->showOrder();
    ASSERT_NE(host->semiModal(), nullptr);
    const auto sheet = std::dynamic_pointer_cast<EventOrderViewController>(host->semiModal()->sharedController());
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->openCount(), 3);
    EXPECT_EQ(sheet->callHomeCount(), 2);
    sheet->setOrder(3);
    sheet->setOpenOnly(true);
    choiceComesTo("By reference code, open: 3 of 4");
    EXPECT_THAT(lines(), ElementsAre("X417-2208/Power supply/2", "Approved (#1042)", "Approved (#1029)",
                                     "X530-1107/Adapter/1", "Approved (#1041)"));
    sheet->setOpenOnly(false);
    choiceComesTo("By reference code: 4 of 4");
    EXPECT_EQ(lines().at(5), "no reference code/Fan/1");
    sheet->setOrder(0);
    choiceComesTo("As the console sends them: 4 of 4");
    comesTo({"Approved (#1042)", "Approved (#1019)", "Approved (#1041)", "Approved (#1029)"});
    sheet->reset();
    choiceComesTo("");

    // What the tab's filter leaves out is said here, too.
    FindingFilter filter;
    filter.consoles = {meadow.get()};
    events->setFilter(filter);
    choiceComesTo("Newest first, Meadow: 2 of 4");
    comesTo({"Approved (#1041)", "Approved (#1029)"});
    events->setFilter({});
    show({{harbour, Reading::Outcome::Complete, event("1042", "Open", "true", "", minutes(2), "Power supply")}});
    events->setChoice({.order = EventOrder::AsSent, .openOnly = false, .callHomeOnly = true, .consoles = {}});
    choiceComesTo("As the console sends them, call home: 1 of 1");
    show({{harbour, Reading::Outcome::Complete, event("1042", "Open", "false", "", minutes(2), "Power supply")}});
    comesTo({});
    EXPECT_EQ(events->emptyText(), "Nothing left to show");
    AgeClock::setNow(now + hours(20)); // yesterday from now on
    runUntil([&] { return events->bars()->days().at(12) == "12 Mar 1"; }, seconds(10));
    EXPECT_EQ(events->bars()->days().at(12), "12 Mar 1");
    sheet->reset();
    sheet->done();
    comesTo({"Approved (#1042)"});
    EXPECT_EQ(host->semiModal(), nullptr);
}

TEST_F(FleetEventsTest, ASearchGoesOnInAListThatChangesUnderIt)
{
    events->search();
    events->searchBar()->setText("#10");
    EXPECT_EQ(lines(TableKind::SearchResults).size(), 4U);
    events->searchBar()->setText("#104");
    EXPECT_THAT(lines(TableKind::SearchResults), ElementsAre("Approved (#1042)", "Approved (#1041)"));
    EXPECT_EQ(cellAt<FleetEventCell>(*events, 1, TableKind::SearchResults).title.match, "#104");
    const std::pair<const char*, const char*> fields[] = {{"x417-22", "X417-2208"},
                                                          {"power", "Power supply"},
                                                          {"HELIOS", "helios-03"},
                                                          {"harbour", ""},
                                                          {"zephyr", "nothing"}};
    for (const auto& [searched, found] : fields) {
        SCOPED_TRACE(searched);
        events->searchBar()->setText(searched);
        if (lines(TableKind::SearchResults).empty()) {
            EXPECT_STREQ(found, "nothing");
            continue;
        }
        const auto cell = cellAt<FleetEventCell>(*events, 0, TableKind::SearchResults);
        EXPECT_EQ(cell.title.text, "Approved (#1042)");
        EXPECT_EQ(cell.found.text, found) << "what matched, where the row does not say it anyway";
    }
    events->searchBar()->setText("#104");
    show({{meadow, Reading::Outcome::Complete,
           event("1040", "Open", "true", "", hours(1), "Fan") + event("99", "Open", "true", "", hours(1), "Fan")}});
    comesTo({"Approved (#1040)"}, TableKind::SearchResults);
    events->didSelectRowAtIndexPath(TableKind::SearchResults, {0, 0});
    EXPECT_EQ(input<XMLElement>().path({"problemNumber"}).text(), "1040");
    goBack();
    show({{meadow, Reading::Outcome::Offline, ""}});
    comesTo({}, TableKind::SearchResults);
    events->searchBar()->cancel();
    EXPECT_EQ(events->emptyText(), "Nothing was read yet. Refresh first.");
    show({{meadow, Reading::Outcome::Complete, ""}, {northfield, Reading::Outcome::Offline, ""}});
    runUntil([&] { return events->emptyText().startsWith("No "); }, seconds(10));
    EXPECT_EQ(plain(events->emptyText()), "No serviceable events.\nNorthfield was not read.");
}

} // namespace
} // namespace lodestar::testing
