// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/ServiceableEvents/SEDetailViewController.h"
#include "Views/ServiceableEvents/SEListCell.h"
#include "Views/ServiceableEvents/SEListViewController.h"

#include <ctime>

namespace lodestar::testing
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto listFile = "Shared/Views/ServiceableEvents/SEListViewController";

std::string event(const std::string& number, const std::string& approval, const std::string& lastReported)
{
    return entry("ServiceableEvent", "<problemNumber>" + number + "</problemNumber><ApprovalState>" + approval +
                                         "</ApprovalState><lastReportedTimestamp>" + lastReported +
                                         "</lastReportedTimestamp>");
}

const std::string otherEntry = "<entry><content><Other/></content></entry>";

class ServiceableEventsTest : public ListTest
{
protected:
    static CorvelRef addConsole(const std::string& entries)
    {
        return addFetched({{"ServiceableEvent", Feed(parse("<feed>" + entries + "</feed>"))}});
    }
    static SEListCell cell(SEListViewController& list, int row, TableKind kind = TableKind::Main)
    {
        return list.cellForRowAtIndexPath(kind, {0, row}).value<SEListCell>();
    }
    static std::string titleAt(SEListViewController& list, int row, TableKind kind = TableKind::Main)
    {
        return cell(list, row, kind).titleLabel().text.toStdString();
    }
    static QString subtitle(SEListViewController& list) { return list.header()->subtitleLabel()->text(); }
};

TEST_F(ServiceableEventsTest, EventsAreListedInTheOrderOfTheFeed)
{
    const auto list = open<SEListViewController>(addConsole(event("7", "Pending approval", "1773308460") + otherEntry +
                                                            event("1042", "approved", "soon") +
                                                            "<entry><content><ServiceableEvent/></content></entry>"));
    ASSERT_TRUE(hasContent(*list));
    // The rows come before the time stamp.
    EXPECT_TRUE(runUntil([&] { return subtitle(*list) == "3 Jul 2026, 10:25"; }));
    ASSERT_EQ(list->tableView()->count(), 3);
    EXPECT_EQ(titleAt(*list, 0), "Pending approval (#7)");
    EXPECT_EQ(cell(*list, 0).timeLabel().text, "1773308460");
    EXPECT_EQ(titleAt(*list, 1), "approved (#1042)");
    EXPECT_EQ(cell(*list, 1).timeLabel().text, "soon");
    EXPECT_EQ(titleAt(*list, 2), " (#)");
    for (const TableOutlet* table : {list->tableView(), list->searchResultsTableView()}) {
        EXPECT_EQ(table->separatorLeft(), 15);
        EXPECT_EQ(table->separatorRight(), 17);
    }
    const std::vector<LoggedLine> log = lines(listFile);
    ASSERT_EQ(log.size(), 2U);
    EXPECT_EQ(log[0].line, 32);
    EXPECT_EQ(log[1].line, 185);
    EXPECT_EQ(log[1].message, "SEListViewController: Creating SE list");
}

TEST_F(ServiceableEventsTest, ASearchResultOpensTheEventAtItsRowOfTheWholeFeed)
{
    registerScenes(Scenes::serviceableEventsDetail);
    const auto list =
        open<SEListViewController>(addConsole(event("7", "Pending approval", "1") + event("1042", "Approved", "2") +
                                              otherEntry + event("1043", "Not approved", "3")));
    ASSERT_TRUE(hasContent(*list));
    std::vector<int> deselected;
    QObject::connect(list->tableView(), &TableOutlet::deselected, [&](int row) { deselected.push_back(row); });
    list->showSearchBar();
    list->searchBar()->setText("APPROVED (");
    ASSERT_EQ(list->searchResultsTableView()->count(), 2);
    list->searchBar()->setText("104");
    ASSERT_EQ(list->searchResultsTableView()->count(), 2);
    EXPECT_EQ(titleAt(*list, 0, TableKind::SearchResults), "Approved (#1042)");
    EXPECT_EQ(cell(*list, 0, TableKind::SearchResults).titleLabel().match, "104");
    EXPECT_EQ(cell(*list, 0).titleLabel().match, "");

    list->searchResultsTableView()->select(0);
    EXPECT_EQ(openedScene, "serviceableEventsDetail");
    EXPECT_EQ(input<XMLElement>().child("problemNumber").text(), "7");
    EXPECT_THAT(deselected, ElementsAre(0));
    goBack();
    // The third entry is no event.
    list->tableView()->select(2);
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_THAT(deselected, ElementsAre(0, 2));
}

TEST_F(ServiceableEventsTest, ARowAskedForWithoutAFeedSaysSoInTheHeader)
{
    const CorvelRef corvel = addConsole(event("7", "Approved", "1"));
    const auto list = open<SEListViewController>(corvel);
    ASSERT_TRUE(hasContent(*list));
    corvel->setRestData(nullptr);
    EXPECT_EQ(titleAt(*list, 0), "");
    EXPECT_EQ(list->header()->titleLabel()->text(), "Serviceable Events");
    EXPECT_EQ(subtitle(*list), "N/A");
    list->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(navigation->depth(), 2);
    corvel->setRestData(feeds({{"ServiceableEvent", Feed::notAvailable()}}));
    EXPECT_EQ(list->numberOfRowsInSection(TableKind::Main, 0), 0);
}

/// Against a real console, first well, then refusing.
TEST_F(ServiceableEventsTest, ThePullEndsWithItsFetchAndEveryFetchFailsUnderItsOwnName)
{
    simulator::SimulatorProcess fleet{simulator::Settings{}};
    const CorvelRef corvel = addLoggedOn(fleet);
    const auto list = open<SEListViewController>(corvel);
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(fleet.requests(0).back().path, "/rest/api/sem/ServiceableEvent");
    const std::size_t count = list->SEList().size();
    EXPECT_EQ(static_cast<int>(count), fleet.summary(0).events);

    list->refreshControl()->pull();
    EXPECT_TRUE(list->refreshControl()->isRefreshing());
    EXPECT_THAT(list->SEList(), IsEmpty());
    ASSERT_TRUE(runUntil([&] { return !list->refreshControl()->isRefreshing(); }));
    EXPECT_EQ(list->SEList().size(), count);

    fleet.setFault("refuseFeed:ServiceableEvent:0");
    list->refreshControl()->pull();
    EXPECT_TRUE(list->refreshControl()->isRefreshing());
    ASSERT_TRUE(runUntil([&] { return !list->refreshControl()->isRefreshing(); }));
    ASSERT_TRUE(hasNoContent(*list));
    EXPECT_EQ(lines(listFile).back().line, 216);
    EXPECT_TRUE(lines(listFile).back().message.ends_with(" - > refreshTable:"));
    EXPECT_EQ(feedOfType(*corvel, ObjectType::ServiceableEvent).entryCount(), count);

    list->rightBarButton()->tap();
    ASSERT_TRUE(runUntil([&] { return lines(listFile).back().line == 240; }));
    EXPECT_TRUE(lines(listFile).back().message.ends_with(" - > refreshFromButton"));
    const auto second = open<SEListViewController>(corvel);
    ASSERT_TRUE(hasNoContent(*second));
    EXPECT_EQ(lines(listFile).back().line, 152);
    EXPECT_EQ(lines(listFile).back().method, "-[SEListViewController fetchServiceableEvents]");
}

class EventDetailTest : public ListTest
{
protected:
    std::shared_ptr<SEDetailViewController> show(const std::string& xml)
    {
        const auto detail = makeController<SEDetailViewController>();
        detail->setRootXML(parse("<e>" + xml + "</e>"));
        return push(detail);
    }
    QString timeShown(const std::string& timestamp)
    {
        const auto detail = show("<primaryTimestamp>" + timestamp + "</primaryTimestamp>");
        return detail->cellForRowAtIndexPath(TableKind::Main, {0, 11}).value<DetailCell>().detailTextLabel;
    }

private:
    const InZone m_zone{"EAST-9"}; // nine hours east of Greenwich
};

TEST_F(EventDetailTest, FactsAndUnitsStandInTheirOrderUnderTwoTitles)
{
    const auto detail =
        show("<problemNumber>1042</problemNumber><shortDescription>10:25: fan~1 failed</shortDescription>"
             "<reportingConsoleNode><hostName>corvel-a</hostName><managedTypeModelSerial><Model>K2</Model>"
             "</managedTypeModelSerial></reportingConsoleNode><failingManagedSystemNode><hostName>helios</hostName>"
             "<managedTypeModelSerial><Model>M16</Model></managedTypeModelSerial></failingManagedSystemNode>"
             "<lastReportedTimestamp>1783041900</lastReportedTimestamp><fieldReplaceableUnits><FieldReplaceableUnit>"
             "<partNumber>PS-14</partNumber><replacedTimestamp>0</replacedTimestamp></FieldReplaceableUnit>"
             "<FieldReplaceableUnit><class>Hardware</class></FieldReplaceableUnit></fieldReplaceableUnits>");
    EXPECT_EQ(detail->title(), "Event Details");
    ASSERT_EQ(detail->tableData().size(), 3U);
    const QStringList& main = detail->tableData()[0].data;
    ASSERT_EQ(main.size(), 21);
    EXPECT_EQ(main.mid(0, 2), QStringList({"Problem Number~1042", "Call Home Intended~"}));
    EXPECT_EQ(main.mid(9, 6), QStringList({"First Reported Time~09:01 01/01", "Last Reported Time~10:07 03/07",
                                           "Data Event Time~09:01 01/01", "Reporting Console Name~corvel-a",
                                           "Reporting MTMS~K2", "Failing MTMS~M16"}));
    EXPECT_EQ(main.back(), "Mgmt Console MTMS~");
    EXPECT_EQ(detail->tableData()[1].data,
              QStringList({"Part Number~PS-14", "Class~", "Description~", "Location Code~", "Previously Replaced~",
                           "Replaced Timestamp~0", "Replacement Group~"}));
    EXPECT_EQ(detail->tableData()[2].data[1], "Class~Hardware");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 0), "Main Information");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 1), "Associated FRUs");
    EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, 2), "");
    // Colons stay; what follows a second separator does not.
    EXPECT_EQ(detail->cellForRowAtIndexPath(TableKind::Main, {0, 15}).value<DetailCell>(),
              (DetailCell{"Event Text", "10:25: fan", false}));
    EXPECT_EQ(lines("Shared/Views/ServiceableEvents/SEDetailViewController").back().line, 23);
}

TEST_F(EventDetailTest, TimesAreAnHourOfTwelveThenMonthAndDate)
{
    EXPECT_EQ(timeShown("1798643400"), "12:12 31/12"); // ten past midnight
    EXPECT_EQ(timeShown("1767329940"), "01:01 02/01"); // a minute to two in the afternoon
    EXPECT_EQ(timeShown("1773284400"), "12:03 12/03"); // noon
    EXPECT_EQ(timeShown(" +1783041900.75 s"), "10:07 03/07");
    EXPECT_EQ(timeShown("-3600"), "08:01 01/01");
    for (const char* noNumber : {"", "yesterday", "inf", "nan", "."}) {
        EXPECT_EQ(timeShown(noNumber), "09:01 01/01") << noNumber;
    }
    // Milliseconds are taken for seconds, and lie some sixty thousand years ahead.
    EXPECT_EQ(timeShown("1783041900000").size(), 11);
    EXPECT_EQ(timeShown("1e300"), "");
}

} // namespace
} // namespace lodestar::testing
