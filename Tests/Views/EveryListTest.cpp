// SPDX-License-Identifier: Apache-2.0
// What all lists of a console's inventory do alike, and what they have to bear.
#include "Tests/Views/ListFixture.h"
#include "Views/Common/FeedTimeStamp.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"
#include "Views/ResourceGroups/RGListViewController.h"
#include "Views/ServiceableEvents/SEListViewController.h"
#include "Views/VIOS/VIOSViewController.h"

namespace lodestar::testing
{
namespace
{

struct ListKind {
    std::string name;
    std::string_view type;
    const char* title;
    const char* folder;
    std::shared_ptr<FeedListViewController> (*make)();
    /// As the log names a failed fetch of the list, of its pull and of its button.
    const char* failure;
    const char* pullFailure = failure;
    const char* buttonFailure = failure;
    PullEnds pullEnds = PullEnds::AtOnce;

    std::string source() const { return std::string("Shared/Views/") + folder + "/" + name; }
};

template <typename Controller>
std::shared_ptr<FeedListViewController> makeList()
{
    return makeController<Controller>();
}

const ListKind everyList[] = {
    {"MSListViewController", ObjectType::ManagedSystem, "Managed Systems", "ManagedSystems",
     makeList<MSListViewController>, "165 fetchNewRESTData"},
    {"LPListViewController", ObjectType::LogicalPartition, "Logical Partitions", "LogicalPartitions",
     makeList<LPListViewController>, "159 fetchNewRESTData"},
    {"VIOSViewController", ObjectType::VirtualIOServer, "Virtual IO Servers", "VIOS", makeList<VIOSViewController>,
     "158 fetchNewRESTData"},
    {"SEListViewController", ObjectType::ServiceableEvent, "Serviceable Events", "ServiceableEvents",
     makeList<SEListViewController>, "152 fetchServiceableEvents", "216 refreshTable:", "240 refreshFromButton",
     PullEnds::OnSettlement},
    {"RGListViewController", ObjectType::Group, "Resource Groups", "ResourceGroups", makeList<RGListViewController>,
     " fetchNewRESTData"},
};

class EveryListTest : public ListTest, public ::testing::WithParamInterface<ListKind>
{
protected:
    EveryListTest()
    {
        fleet.start({.systems = 2, .partitions = 2, .vios = 3, .events = 3, .groups = 3});
        corvel = addLoggedOn(fleet);
    }
    std::shared_ptr<FeedListViewController> openList()
    {
        const auto list = GetParam().make();
        list->setCorvel(corvel);
        return push(list);
    }
    std::size_t stored() const { return feedOfType(*corvel, GetParam().type).entryCount(); }
    /// How often the list says from now on that it has nothing to show.
    const int& countFailures(FeedListViewController& list)
    {
        failureCount = 0;
        QObject::connect(list.noDataLabel(), &ViewOutlet::hiddenChanged,
                         [this, &list] { failureCount += list.noDataLabel()->isHidden() ? 0 : 1; });
        return failureCount;
    }
    /// Makes every row, as a table that draws them all would; answers how many there are.
    static int drawAll(FeedListViewController& list)
    {
        int drawn = 0;
        for (int section = 0; section < list.numberOfSections(TableKind::Main); ++section) {
            for (int row = 0; row < list.numberOfRowsInSection(TableKind::Main, section); ++row) {
                drawn += list.cellForRowAtIndexPath(TableKind::Main, {section, row}).isValid() ? 1 : 0;
            }
        }
        return drawn;
    }

    simulator::SimulatorProcess fleet;
    CorvelRef corvel;
    int failureCount = 0;
};

TEST_P(EveryListTest, OpensLoadingAndShowsWhatItFetchedAndThenWhatIsStored)
{
    for (const bool fetched : {false, true}) {
        corvel->completedFetch = fetched;
        fleet.clearRequests();
        const auto list = openList();
        EXPECT_EQ(header(*list), GetParam().title + QString("/updating..."));
        EXPECT_EQ(seen(*list), "fetchingActivityIndicator searchResultsTableView");
        EXPECT_FALSE(list->rightBarButton()->isEnabled());
        EXPECT_TRUE(list->backTitle().isEmpty() && !list->backTitle().isNull());
        ASSERT_TRUE(hasContent(*list));
        EXPECT_EQ(seen(*list), "searchResultsTableView tableView");
        EXPECT_EQ(static_cast<std::size_t>(list->tableView()->rows()), stored());
        const auto requests = fleet.requests(0);
        const auto isOfFeed = [](const auto& each) { return each.path.ends_with(GetParam().type); };
        EXPECT_EQ(std::ranges::count_if(requests, isOfFeed), fetched ? 0 : 1);
    }
    EXPECT_EQ(unnumberedLog(GetParam().source()).front(), "viewDidLoad: " + GetParam().name + " instantiation");
}

TEST_P(EveryListTest, EndsInTheLookThatItsAnswerDeserves)
{
    const auto expectFailure = [this](FeedListViewController& list, const std::string& failure) {
        ASSERT_TRUE(hasNoContent(list));
        EXPECT_THAT(log(GetParam().source()).back(),
                    AllOf(HasSubstr(failure + ": Error: "), EndsWith(" - > " + failure.substr(failure.find(' ') + 1))));
    };
    for (const char* fault : {"cutBody:All", "cutChunk:All", "cutGzip:All", "reset:All", "refuseFeed:All"}) {
        SCOPED_TRACE(fault);
        fleet.setFault(fault);
        const auto list = openList();
        expectFailure(*list, GetParam().failure);
        EXPECT_EQ(corvel->restData(), nullptr);
        EXPECT_EQ(seen(*list), "noDataHeadline noDataImage noDataLabel searchResultsTableView");
        EXPECT_EQ(header(*list), GetParam().title + QString("/"));
        fleet.clearFaults();
        list->rightBarButton()->tap();
        ASSERT_TRUE(hasContent(*list));
        EXPECT_EQ(seen(*list), "searchResultsTableView tableView");
        corvel->setRestData(nullptr);
    }
    fleet.setFault("malformedFeed:All");
    const auto damaged = openList();
    ASSERT_TRUE(hasContent(*damaged));
    EXPECT_GT(drawAll(*damaged), 0) << "what could be saved is shown";
    EXPECT_EQ(drawAll(*damaged), damaged->tableView()->rows());
    fleet.clearFaults();
    fleet.setFault("emptyFeed:All");
    const auto list = openList();
    ASSERT_TRUE(hasContent(*list));
    EXPECT_EQ(drawAll(*list), 0);
    fleet.clearFaults();
    // An impatient person's taps: every answer is stored, the last one is shown, and no row stands twice.
    list->refreshControl()->pull();
    list->refreshFromButton();
    const auto overtaken = list->fetchNewRESTData();
    const auto last = list->fetchNewRESTData();
    ASSERT_TRUE(runUntil([&] { return overtaken.isFulfilled() && last.isFulfilled(); }));
    ASSERT_TRUE(runUntil([&] { return list->tableView()->rows() > 0 && !list->refreshControl()->isRefreshing(); }));
    const int rows = list->tableView()->rows();
    EXPECT_EQ(static_cast<std::size_t>(rows), stored());
    EXPECT_EQ(drawAll(*list), rows);
    // What cannot be looked up takes no row that is there.
    fleet.setFault("cutBody:Quick");
    EXPECT_EQ(drawAll(*list), rows);
    // What cannot be fetched leaves what is stored.
    fleet.setFault("refuseFeed:All");
    const int& failures = countFailures(*list);
    list->refreshControl()->pull();
    EXPECT_EQ(list->refreshControl()->isRefreshing(), GetParam().pullEnds == PullEnds::OnSettlement);
    ASSERT_TRUE(runUntil([&] { return failures == 1 && !list->refreshControl()->isRefreshing(); }));
    expectFailure(*list, GetParam().pullFailure);
    list->rightBarButton()->tap();
    ASSERT_TRUE(runUntil([&] { return failures == 2; }));
    expectFailure(*list, GetParam().buttonFailure);
    EXPECT_EQ(stored(), static_cast<std::size_t>(rows));
}

TEST_P(EveryListTest, WithoutAConsoleFailsToFetchAndGoesOn)
{
    const auto list = push(GetParam().make());
    ASSERT_TRUE(hasNoContent(*list));
    const int& failures = countFailures(*list);
    list->refreshControl()->pull();
    EXPECT_TRUE(runUntil([&] { return failures == 1; }));
    EXPECT_TRUE(list->tableView()->isHidden());
    EXPECT_EQ(drawAll(*list), 0);
}

TEST_P(EveryListTest, ItsConsoleMayBeDeletedAndTheListClosedWhileTwoFetchesRun)
{
    fleet.setLatency(50);
    for (const bool deleted : {false, true}) {
        auto list = openList();
        ASSERT_TRUE(hasContent(*list));
        list->showSearchBar();
        list->searchBar()->setText("a");
        corvel->setRestData(nullptr);
        list->refreshControl()->pull();
        list->refreshFromButton();
        list->searchBar()->setText("");
        drawAll(*list);
        goBack();
        const std::weak_ptr<FeedListViewController> closed = list;
        list.reset();
        EXPECT_FALSE(closed.expired());
        if (deleted) {
            RESTHandler::sharedInstance().removeCorvelAtIndex(0);
            deleteCorvel(corvel);
            saveIgnoringErrors();
        }
        ASSERT_TRUE(runUntil([&] { return closed.expired(); }));
        EXPECT_GT(stored(), 0U);
    }
}

INSTANTIATE_TEST_SUITE_P(Lists, EveryListTest, ::testing::ValuesIn(everyList),
                         [](const auto& kind) { return kind.param.name; });

using FeedTimeStampTest = ViewsTest;

TEST_F(FeedTimeStampTest, ShowsTheWallClockInEveryZoneAndInTheLocalesForm)
{
    // In New York this time does not exist: its clocks jump over it.
    QByteArrayList zones = {"UTC", "Asia/Kathmandu", "America/New_York"};
    for (int hours = -14; hours <= 12; ++hours) {
        zones << "Etc/GMT" + QByteArray(hours > 0 ? "+" : "") + QByteArray::number(hours);
    }
    for (const QByteArray& zone : zones) {
        setZone(zone);
        EXPECT_EQ(mediumDateShortTime(*parseFeedDate("2026-03-08T02:30:00.000Z"), QLocale("C")), "8 Mar 2026, 02:30");
    }
    for (const auto& [locale, shown] : {std::pair("C", "3 Jul 2026, 10:25"),
                                        {"en_US", "Jul 3, 2026, 10:25 AM"},
                                        {"de_DE", "03.07.2026, 10:25"},
                                        {"ja_JP", "2026/07/03, 10:25"}}) {
        EXPECT_EQ(mediumDateShortTime(*parseFeedDate("2026-07-03T10:25:00.000Z"), QLocale(locale)), shown);
    }
}

TEST(TitleHeaderDeathTest, ATitleWithoutItsViewStopsTheProgram)
{
    TitleHeader header;
    EXPECT_DEATH(header.setHeaderTitle("Managed Systems", ""), "self.navigationItem.titleView != nil");
    header.setCustomNavigationBar();
    EXPECT_EQ(header.titleLabel()->text(), "Title");
    EXPECT_EQ(header.subtitleLabel()->text(), "Subtitle");
}

} // namespace
} // namespace lodestar::testing
