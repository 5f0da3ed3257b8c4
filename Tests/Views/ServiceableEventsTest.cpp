// SPDX-License-Identifier: Apache-2.0
#include "Tests/Views/ListFixture.h"
#include "Views/ServiceableEvents/SEDetailViewController.h"
#include "Views/ServiceableEvents/SEListCell.h"
#include "Views/ServiceableEvents/SEListViewController.h"

namespace lodestar::testing
{
namespace
{

std::string event(const std::string& number, const std::string& approval, const std::string& lastReported)
{
    return entry("ServiceableEvent", "<problemNumber>" + number + "</problemNumber><ApprovalState>" + approval +
                                         "</ApprovalState><lastReportedTimestamp>" + lastReported +
                                         "</lastReportedTimestamp>");
}

using ServiceableEventsTest = ListTest;

TEST_F(ServiceableEventsTest, EventsAreListedInTheFeedsOrderAndATappedRowOpensTheEntryOfItsNumber)
{
    registerScenes(Scenes::serviceableEventsDetail);
    const auto list = openFetched<SEListViewController>(
        "ServiceableEvent", event("7", "Pending approval", "1773308460") + event("1042", "Approved", "soon") +
                                "<entry><content><Other/></content></entry>" + event("1043", "Not approved", "3") +
                                "<entry><content><ServiceableEvent/></content></entry>");
    // The rows come before the time stamp.
    EXPECT_TRUE(runUntil([&] { return header(*list) == "Serviceable Events/3 Jul 2026, 10:25"; }));
    ASSERT_EQ(list->tableView()->count(), 4);
    EXPECT_EQ(cellAt<SEListCell>(*list, 0).accessibleText(), "Pending approval (#7), 1773308460");
    EXPECT_EQ(cellAt<SEListCell>(*list, 1).accessibleText(), "Approved (#1042), soon");
    EXPECT_EQ(cellAt<SEListCell>(*list, 3).titleLabel.text, " (#)");
    for (const TableOutlet* table : {list->tableView(), list->searchResultsTableView()}) {
        EXPECT_EQ(table->separatorLeft(), 15);
        EXPECT_EQ(table->separatorRight(), 17);
    }
    EXPECT_THAT(log("Shared/Views/ServiceableEvents/SEListViewController"),
                ElementsAre("32 viewDidLoad: SEListViewController instantiation",
                            "185 createSEList: SEListViewController: Creating SE list"));

    watch(list->tableView());
    searchFor(*list, "APPROVED (");
    ASSERT_EQ(list->searchResultsTableView()->count(), 2);
    searchFor(*list, "104");
    ASSERT_EQ(list->searchResultsTableView()->count(), 2);
    EXPECT_EQ(cellAt<SEListCell>(*list, 0, TableKind::SearchResults).titleLabel.text, "Approved (#1042)");
    EXPECT_EQ(cellAt<SEListCell>(*list, 0, TableKind::SearchResults).titleLabel.match, "104");
    EXPECT_EQ(cellAt<SEListCell>(*list, 0).titleLabel.match, "");
    // A result's number is looked up in the whole feed, whose third entry is no event.
    list->searchResultsTableView()->select(0);
    EXPECT_EQ(openedScene, "serviceableEventsDetail");
    EXPECT_EQ(input<XMLElement>().child("problemNumber").text(), "7");
    goBack();
    list->tableView()->select(2);
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_THAT(deselected, ElementsAre(0, 2));

    // The console is reset while its events are shown.
    list->corvel()->setRestData(nullptr);
    EXPECT_EQ(cellAt<SEListCell>(*list, 0).titleLabel.text, "");
    EXPECT_EQ(header(*list), "Serviceable Events/N/A");
    list->didSelectRowAtIndexPath(TableKind::Main, {0, 0});
    EXPECT_EQ(navigation->depth(), 2);
    list->corvel()->setRestData(feeds({{"ServiceableEvent", Feed::notAvailable()}}));
    EXPECT_EQ(list->numberOfRowsInSection(TableKind::Main, 0), 0);
}

TEST_F(ServiceableEventsTest, FactsAndUnitsStandInTheirOrderUnderTwoTitlesAndTimesAreOfTheDevicesZone)
{
    setZone("EAST-9"); // nine hours east of Greenwich
    const auto show = [this](const std::string& xml) {
        return openDetail(xml, makeController<SEDetailViewController>());
    };
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
    const QStringList& main = detail->tableData()[0];
    ASSERT_EQ(main.size(), 21);
    EXPECT_EQ(main.mid(0, 2), QStringList({"Problem Number~1042", "Call Home Intended~"}));
    EXPECT_EQ(main.mid(9, 6), QStringList({"First Reported Time~09:01 01/01", "Last Reported Time~10:07 03/07",
                                           "Data Event Time~09:01 01/01", "Reporting Console Name~corvel-a",
                                           "Reporting MTMS~K2", "Failing MTMS~M16"}));
    EXPECT_EQ(main.back(), "Mgmt Console MTMS~");
    EXPECT_EQ(detail->tableData()[1],
              QStringList({"Part Number~PS-14", "Class~", "Description~", "Location Code~", "Previously Replaced~",
                           "Replaced Timestamp~0", "Replacement Group~"}));
    EXPECT_EQ(detail->tableData()[2][1], "Class~Hardware");
    for (const auto& [section, title] : {std::pair(0, "Main Information"), {1, "Associated FRUs"}, {2, ""}}) {
        EXPECT_EQ(detail->titleForHeaderInSection(TableKind::Main, section), title);
    }
    // Colons stay; what follows a second separator does not.
    EXPECT_EQ(detail->cellForRowAtIndexPath(TableKind::Main, {0, 15}).value<DetailCell>(),
              (DetailCell{"Event Text", "10:25: fan", false}));
    EXPECT_THAT(log("Shared/Views/ServiceableEvents/SEDetailViewController"),
                ElementsAre("23 viewDidLoad: SEDetailViewController instantiation"));

    // An hour of twelve, then month and date.
    const std::pair<const char*, const char*> times[] = {
        {"1798643400", "12:12 31/12"}, // ten past midnight
        {"1767329940", "01:01 02/01"}, // a minute to two in the afternoon
        {"1773284400", "12:03 12/03"}, // noon
        {" +1783041900.75 s", "10:07 03/07"},
        {"-3600", "08:01 01/01"},
        {"", "09:01 01/01"},
        {"inf", "09:01 01/01"},
        {".", "09:01 01/01"},
        {"1e300", ""}};
    for (const auto& [timestamp, shown] : times) {
        const auto timed = show("<primaryTimestamp>" + std::string(timestamp) + "</primaryTimestamp>");
        EXPECT_EQ(timed->tableData()[0][11], QString("Data Event Time~") + shown) << timestamp;
    }
}

} // namespace
} // namespace lodestar::testing
