// SPDX-License-Identifier: Apache-2.0
#include "Fleet/History.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Attention/ChangesViewController.h"
#include "Views/Attention/FindingCell.h"
#include "Views/Attention/FoldedChangesViewController.h"
#include "Views/Common/AgeClock.h"

#include <QRegularExpression>

#include <fstream>

namespace lodestar::testing
{
namespace
{

using namespace std::chrono;

const WallTime now = sys_days(2026y / March / 12) + hours(9) + minutes(41);

/// The texts of a row as a person sees them, in one line, without what keeps their direction.
std::string shown(const FindingCell& cell)
{
    QString line = (QStringList{cell.badge, cell.name, cell.sentence, cell.age, cell.console}).join('|');
    line.remove(QRegularExpression(QStringLiteral("[\u2066-\u2069]")));
    return line.toStdString() + (cell.leadsOn ? " >" : "");
}

class ChangesTest : public ListTest
{
protected:
    ChangesTest()
    {
        AgeClock::setNow(now);
        History::shared().open(m_documents.path());
        registerScenes(Scenes::managedSystemInfo, Scenes::logicalPartitionsDetail, Scenes::serviceableEventsDetail);
        registerScenes(Scenes::connectionView);
        host = push(makeController<ViewController>());
        changes = makeController<ChangesViewController>();
        changes->setHost(*host);
        changes->loadViewIfNeeded();
        changes->beginAppearance();
    }
    ~ChangesTest() override
    {
        changes->endAppearance();
        History::shared().forgetAll();
        History::shared().close();
        AgeClock::setNow(std::nullopt);
    }

    void read(const CorvelRef& corvel, WallTime ended, const std::map<std::string, std::string>& entries)
    {
        auto reading = std::make_shared<Reading>();
        reading->outcome = Reading::Outcome::Complete;
        reading->began = reading->ended = ended;
        auto dictionary = std::make_shared<FeedDictionary>();
        for (std::size_t i = 0; i < feedTable.size(); ++i) {
            const std::string type(feedTable[i].type);
            reading->feeds[i].type = feedTable[i].type;
            const auto found = entries.find(type);
            dictionary->setFeed(
                type, Feed(parse("<feed>" + (found != entries.end() ? found->second : std::string()) + "</feed>")));
        }
        corvel->setRestData(dictionary);
        History::shared().add(corvel, reading, dictionary);
    }
    void lose(const CorvelRef& corvel, WallTime ended)
    {
        auto reading = std::make_shared<Reading>();
        reading->outcome = Reading::Outcome::Offline;
        reading->ended = ended;
        reading->error = Error{"NSURLErrorDomain", -1004, {}, {}, nullptr};
        History::shared().add(corvel, reading, nullptr);
    }
    static std::string partitions(const std::string& state)
    {
        std::string all;
        for (int i = 1; i <= 6; ++i) {
            all += entry("LogicalPartition", "<PartitionName>p" + std::to_string(i) +
                                                 "</PartitionName><PartitionState>" + state + "</PartitionState>");
        }
        return all;
    }
    static std::string event(const std::string& number, const std::string& text)
    {
        return entry("ServiceableEvent", "<problemNumber>" + number +
                                             "</problemNumber><problemState>Open</problemState>"
                                             "<shortDescription>" +
                                             text + "</shortDescription>");
    }
    /// The list: each day's heading with its count, and its rows; or the text in place of it.
    std::vector<std::string> lines()
    {
        std::vector<std::string> all;
        for (int section = 0; section < changes->numberOfSections(TableKind::Main); ++section) {
            all.push_back(changes->titleForHeaderInSection(TableKind::Main, section)->toStdString() + " " +
                          changes->detailForHeaderInSection(TableKind::Main, section).toStdString());
            for (int row = 0; row < changes->numberOfRowsInSection(TableKind::Main, section); ++row) {
                all.push_back(shown(cellAt<FindingCell>(*changes, row, TableKind::Main, section)));
            }
        }
        if (!changes->emptyText().isEmpty()) {
            all.push_back(changes->emptyText().toStdString());
        }
        return all;
    }
    /// What was read is compared, grouped and shown elsewhere, and comes here some time.
    void comesTo(const std::vector<std::string>& expected)
    {
        runUntil([&] { return lines() == expected; }, seconds(10));
        EXPECT_EQ(lines(), expected);
    }

    const ScratchFolder m_documents;
    std::shared_ptr<ViewController> host;
    std::shared_ptr<ChangesViewController> changes;
};

TEST_F(ChangesTest, SaysWhenNothingCanBeKnownYetAndShowsWhatEachReadingFoundByDay)
{
    comesTo({"Changes show after the second reading."});
    const CorvelRef corvel = addCorvel("Harbour B", "b");
    const std::string calm = system("helios-03", "operating");
    read(corvel, now - hours(40), {{"ManagedSystem", calm}, {"LogicalPartition", partitions("starting")}});
    comesTo({"Changes show after the second reading."});
    read(corvel, now - hours(39), {{"ManagedSystem", calm}, {"LogicalPartition", partitions("starting")}});
    comesTo({"Nothing changed in 30 days."});
    EXPECT_TRUE(changes->bars()->isHidden());

    read(corvel, now - hours(12), {{"ManagedSystem", calm}, {"LogicalPartition", partitions("running")}});
    const std::string broken = system("helios-03", "error", "true");
    read(corvel, now,
         {{"ManagedSystem", broken},
          {"LogicalPartition", partitions("running")},
          {"ServiceableEvent", event("1042", "Power supply")}});
    comesTo({"Today 3", "at_worse|helios-03|operating → error|09:41|Harbour B >",
             "at_worse|helios-03|LED on|09:41|Harbour B >", "at_worse|#1042 opened|Power supply|09:41|Harbour B >",
             "Yesterday 1", "at_better|6 partitions|starting → running|21:41|Harbour B >"});
    EXPECT_FALSE(changes->bars()->isHidden());
    EXPECT_EQ(changes->bars()->chart()->accessibleText(), "30 days, today 3 worse, 0 better");
    EXPECT_EQ(changes->bars()->days().at(28), "11 Mar 0 worse, 1 better") << "a folded row counts as one";

    changes->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(openedScene, "managedSystemInfo");
    EXPECT_EQ(input<XMLElement>().path({"State"}).text(), "error");
    goBack();
    changes->didSelectRowAtIndexPath(TableKind::Main, {0, 2});
    EXPECT_EQ(openedScene, "serviceableEventsDetail");
    goBack();
    changes->didSelectRowAtIndexPath(TableKind::Main, {1, 0});
    auto* const behind = dynamic_cast<FoldedChangesViewController*>(navigation->topViewController());
    ASSERT_TRUE(behind);
    EXPECT_EQ(behind->tableView()->rows(), 6);
    EXPECT_EQ(shown(cellAt<FindingCell>(*behind, 5)), "at_better|p6|starting → running|21:41|Harbour B >");
    behind->didSelectRowAtIndexPath(TableKind::Main, {0, 5});
    EXPECT_EQ(input<XMLElement>().path({"PartitionName"}).text(), "p6");

    std::vector<int> scrolledTo;
    QObject::connect(changes.get(), &ChangesViewController::scrollRequested,
                     [&](int index) { scrolledTo.push_back(index); });
    PlotChartView& chart = *changes->bars()->chart();
    chart.select(Highlight{28, 1});
    EXPECT_TRUE(chart.model().highlights.isEmpty()) << "a tap leads on and leaves nothing chosen";
    changes->bars()->choose(3); // on that day nothing changed
    changes->bars()->choose(29);
    EXPECT_EQ(scrolledTo, (std::vector<int>{4, 0}));

    // Rows are asked anew only for what has changed; while one is touched, both what it leads to and new rows wait.
    int reloads = 0;
    QObject::connect(changes->tableView(), &TableOutlet::reloaded, [&] { ++reloads; });
    const auto tell = [] { NotificationCenter::defaultCenter().postNotification("AttentionDidChange"); };
    tell();
    EXPECT_EQ(reloads, 0);
    changes->tableView()->setTouched(true);
    corvel->setRestData(nullptr);
    tell();
    EXPECT_EQ(reloads, 0);
    EXPECT_EQ(lines().at(2), "at_worse|helios-03|LED on|09:41|Harbour B >");
    changes->tableView()->setTouched(false);
    EXPECT_TRUE(runUntil([&] { return reloads == 1; }));
    EXPECT_EQ(lines().at(2), "at_worse|helios-03|LED on|09:41|Harbour B");
    changes->tableView()->setTouched(true);
    read(corvel, now, {{"ManagedSystem", broken}, {"LogicalPartition", partitions("running")}});
    bool written = false;
    History::shared().whenWritten([&] { written = true; });
    EXPECT_TRUE(runUntil([&] { return written; }));
    drain();
    tell();
    changes->tableView()->setTouched(false);
    runUntil([&] { return lines().front() == "Today 4"; }, seconds(10));
    EXPECT_EQ(lines().front(), "Today 4") << "the event is gone";

    AgeClock::setNow(now + hours(20));
    EXPECT_THAT(lines().front(), StartsWith("Yesterday")) << "after midnight, without a reading";
}

TEST_F(ChangesTest, FollowsConsolesThatAreLostFoundFilteredAndDeleted)
{
    const CorvelRef harbour = addCorvel("Harbour B", "b");
    const CorvelRef uplands = addCorvel("Uplands Colocation", "u");
    for (const CorvelRef& corvel : {harbour, uplands}) {
        read(corvel, now - hours(3), {{"ManagedSystem", system("s", "operating")}});
    }
    lose(uplands, now - minutes(50));
    read(uplands, now - minutes(25), {{"ManagedSystem", system("s", "operating")}});
    read(harbour, now, {});
    const std::vector<std::string> both{"Today 3", "|s|Gone|09:41|Harbour B",
                                        "at_better|Uplands Colocation|Online again after 25 min|09:16| >",
                                        "at_worse|Uplands Colocation|Offline|08:51| >"};
    comesTo(both); // what is gone leads nowhere
    EXPECT_EQ(changes->bars()->days().back(), "today 1 worse, 1 better") << "gone is neither";
    changes->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(openedScene, "");
    changes->didSelectRowAtIndexPath(TableKind::Main, {0, 1});
    EXPECT_EQ(openedScene, "connectionView");
    EXPECT_EQ(input<CorvelRef>(), uplands);
    goBack();

    FindingFilter filter;
    filter.consoles = {harbour.get()};
    changes->setFilter(filter);
    comesTo({"Today 1", both[1]});
    EXPECT_EQ(changes->footerForSection(TableKind::Main, 0), "2 more changes are not shown.");
    filter.kinds = {FindingSubject::Console, FindingSubject::Event};
    changes->setFilter(filter);
    comesTo({"Nothing left to show\n3 more changes are not shown."});
    EXPECT_EQ(changes->filterText().split(", ").first(), "Consoles") << "the way out stands there, too";
    filter.consoles.clear();
    changes->setFilter(filter);
    comesTo({"Today 2", both[2], both[3]});
    EXPECT_EQ(changes->footerForSection(TableKind::Main, 0), "1 more change is not shown.");
    changes->setFilter({});
    comesTo(both);
    EXPECT_EQ(changes->footerForSection(TableKind::Main, 0) + changes->filterText(), "");

    // Out of sight, nothing is asked for; what happened meanwhile is there on return.
    changes->endAppearance();
    deleteCorvelAtIndex(1);
    History::shared().forget("u");
    bool forgotten = false;
    History::shared().whenWritten([&] { forgotten = true; });
    EXPECT_TRUE(runUntil([&] { return forgotten; }));
    EXPECT_EQ(lines().size(), 4U);
    changes->beginAppearance();
    comesTo({"Today 1", both[1]});
    History::shared().forget("b");
    comesTo({"Changes show after the second reading."});
    EXPECT_TRUE(changes->bars()->isHidden());
}

TEST_F(ChangesTest, AHistoryThatWasSetAsideIsSaidAndNamesOfAnyKindStayInTheirRow)
{
    History::shared().close();
    std::ofstream(m_documents.file("History.sqlite")) << std::string(5000, 'x');
    History::shared().open(m_documents.path());
    const std::string note = "What changed before could not be read. The damaged file was set aside.";
    comesTo({"Changes show after the second reading.\n" + note});
    const CorvelRef corvel = addCorvel("Harbour\nB", "b");
    for (const char* const state : {"operating", "error"}) {
        read(corvel, now, {{"ManagedSystem", system("&lt;b&gt;x&lt;/b&gt;\n" + std::string(400, 'y'), state)}});
    }
    comesTo({"Today 1", "at_worse|<b>x</b> " + std::string(291, 'y') + "|operating → error|09:41|Harbour B >"});
    EXPECT_EQ(changes->footerForSection(TableKind::Main, 0).toStdString(), note);
}

} // namespace
} // namespace lodestar::testing
