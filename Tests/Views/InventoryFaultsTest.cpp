// SPDX-License-Identifier: Apache-2.0
// What every list of a console's inventory has to bear alike.
#include "Fleet/Registry.h"
#include "Tests/Views/ListFixture.h"
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
    std::string_view type;
    std::shared_ptr<FeedListViewController> (*make)();
};

template <typename Controller>
std::shared_ptr<FeedListViewController> makeList()
{
    return makeController<Controller>();
}

const std::vector<ListKind> everyList = {
    {ObjectType::ManagedSystem, makeList<MSListViewController>},
    {ObjectType::LogicalPartition, makeList<LPListViewController>},
    {ObjectType::VirtualIOServer, makeList<VIOSViewController>},
    {ObjectType::ServiceableEvent, makeList<SEListViewController>},
    {ObjectType::Group, makeList<RGListViewController>},
};

class InventoryFaultsTest : public ListTest
{
protected:
    void SetUp() override
    {
        ListTest::SetUp();
        simulator::Settings settings;
        settings.systems = 2;
        settings.partitions = 2;
        settings.vios = settings.events = settings.groups = 3;
        fleet.start(settings);
        corvel = addLoggedOn(fleet);
    }
    std::shared_ptr<FeedListViewController> openUnfetched(const ListKind& kind)
    {
        const auto list = kind.make();
        list->setCorvel(corvel);
        return push(list);
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
};

TEST_F(InventoryFaultsTest, EveryListEndsInTheLookThatItsAnswerDeserves)
{
    for (const ListKind& kind : everyList) {
        SCOPED_TRACE(kind.type);
        for (const char* fault : {"cutBody:All", "cutChunk:All", "cutGzip:All", "reset:All", "refuseFeed:All"}) {
            fleet.setFault(fault);
            const auto list = openUnfetched(kind);
            ASSERT_TRUE(hasNoContent(*list)) << fault;
            EXPECT_TRUE(list->tableView()->isHidden() && corvel->restData() == nullptr) << fault;
            fleet.clearFaults();
        }
        fleet.setFault("emptyFeed:All");
        const auto list = openUnfetched(kind);
        ASSERT_TRUE(hasContent(*list));
        EXPECT_EQ(drawAll(*list), 0);
        fleet.clearFaults();

        // An impatient person's taps: every answer is stored, the last one is shown, and no row stands twice.
        list->refreshControl()->pull();
        list->refreshFromButton();
        const auto overtaken = list->fetchNewRESTData();
        const auto last = list->fetchNewRESTData();
        ASSERT_TRUE(runUntil([&] { return overtaken.isFulfilled() && last.isFulfilled(); }));
        ASSERT_TRUE(runUntil([&] { return list->tableView()->rows() > 0; }));
        const int rows = list->tableView()->rows();
        EXPECT_EQ(static_cast<std::size_t>(rows), feedOfType(*corvel, kind.type).entryCount());
        EXPECT_EQ(drawAll(*list), rows);

        // What cannot be looked up takes no row that is there.
        fleet.setFault("cutBody:Quick");
        EXPECT_EQ(drawAll(*list), rows);
        fleet.setFault("expireSession");
        list->refreshControl()->pull();
        ASSERT_TRUE(hasNoContent(*list));
        EXPECT_EQ(feedOfType(*corvel, kind.type).entryCount(), static_cast<std::size_t>(rows));
        fleet.clearFaults();
        ASSERT_TRUE(runUntil(
            [logon = RESTHandler::sharedInstance().login(corvel, CheckToken::Yes)] { return logon.isFulfilled(); }));
        corvel->setRestData(nullptr);
    }
}

TEST_F(InventoryFaultsTest, AListWithoutAConsoleFailsToFetchAndGoesOn)
{
    for (const ListKind& kind : everyList) {
        SCOPED_TRACE(kind.type);
        const auto list = push(kind.make());
        ASSERT_TRUE(hasNoContent(*list));
        int failures = 0;
        QObject::connect(list->noDataLabel(), &ViewOutlet::hiddenChanged,
                         [&] { failures += list->noDataLabel()->isHidden() ? 0 : 1; });
        list->refreshControl()->pull();
        EXPECT_TRUE(runUntil([&] { return failures == 1 && !list->refreshControl()->isRefreshing(); }));
        list->refreshFromButton();
        EXPECT_TRUE(runUntil([&] { return failures == 2; }));
        EXPECT_TRUE(list->tableView()->isHidden());
        EXPECT_EQ(drawAll(*list), 0);
    }
    RGStateCounts counts;
    makeController<RGListViewController>()->processStates({parse("<link href='https://127.0.0.1:12443/a'/>")}, counts,
                                                          RGListViewController::LinkKind::Partition);
    EXPECT_EQ(counts, RGStateCounts{});
}

TEST_F(InventoryFaultsTest, ADamagedFeedShowsWhatCouldBeSaved)
{
    fleet.setFault("malformedFeed:All");
    for (const ListKind& kind : everyList) {
        SCOPED_TRACE(kind.type);
        const auto list = openUnfetched(kind);
        ASSERT_TRUE(hasContent(*list));
        EXPECT_GT(drawAll(*list), 0);
        EXPECT_EQ(drawAll(*list), list->tableView()->rows());
    }
}

TEST_F(InventoryFaultsTest, AConsoleMayBeDeletedAndItsListClosedWhileTwoFetchesRun)
{
    fleet.setLatency(50);
    for (const ListKind& kind : everyList) {
        SCOPED_TRACE(kind.type);
        auto list = openUnfetched(kind);
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
        if (kind.type == ObjectType::Group) {
            RESTHandler::sharedInstance().removeCorvelAtIndex(0);
            deleteCorvel(corvel);
            saveIgnoringErrors();
        }
        ASSERT_TRUE(runUntil([&] { return closed.expired(); }));
        EXPECT_GT(feedOfType(*corvel, kind.type).entryCount(), 0U);
    }
}

} // namespace
} // namespace lodestar::testing
