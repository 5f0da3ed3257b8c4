// SPDX-License-Identifier: Apache-2.0
// What all lists of a console's inventory do alike, and what they have to bear.
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
    std::string name;
    std::string_view type;
    const char* title;
    std::string source; ///< as it logs
    std::shared_ptr<FeedListViewController> (*make)();
};

template <typename Controller>
std::shared_ptr<FeedListViewController> makeList()
{
    return makeController<Controller>();
}

const ListKind everyList[] = {
    {"MSListViewController", ObjectType::ManagedSystem, "Managed Systems",
     "Shared/Views/ManagedSystems/MSListViewController", makeList<MSListViewController>},
    {"LPListViewController", ObjectType::LogicalPartition, "Logical Partitions",
     "Shared/Views/LogicalPartitions/LPListViewController", makeList<LPListViewController>},
    {"VIOSViewController", ObjectType::VirtualIOServer, "Virtual IO Servers", "Shared/Views/VIOS/VIOSViewController",
     makeList<VIOSViewController>},
    {"SEListViewController", ObjectType::ServiceableEvent, "Serviceable Events",
     "Shared/Views/ServiceableEvents/SEListViewController", makeList<SEListViewController>},
    {"RGListViewController", ObjectType::Group, "Resource Groups", "Shared/Views/ResourceGroups/RGListViewController",
     makeList<RGListViewController>},
};

class EveryListTest : public ListTest, public ::testing::WithParamInterface<ListKind>
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
    std::shared_ptr<FeedListViewController> openList()
    {
        const auto list = GetParam().make();
        list->setCorvel(corvel);
        return push(list);
    }
    std::size_t stored() const { return feedOfType(*corvel, GetParam().type).entryCount(); }
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

TEST_P(EveryListTest, OpensLoadingAndShowsWhatItFetchedAndThenWhatIsStored)
{
    for (const bool fetched : {false, true}) {
        corvel->completedFetch = fetched;
        fleet.clearRequests();
        const auto list = openList();
        EXPECT_EQ(list->header()->titleLabel()->text(), GetParam().title);
        EXPECT_EQ(list->header()->subtitleLabel()->text(), "updating...");
        EXPECT_TRUE(list->tableView()->isHidden() && list->fetchingActivityIndicator()->isAnimating());
        EXPECT_TRUE(list->noDataImage()->isHidden() && list->noDataLabel()->isHidden());
        EXPECT_EQ(list->rightBarButton()->systemItem(), BarButtonOutlet::SystemItem::None);
        EXPECT_TRUE(list->backTitle().isEmpty() && !list->backTitle().isNull());
        const LoggedLine opening = lines(GetParam().source).front();
        EXPECT_EQ(opening.message, GetParam().name + " instantiation");
        EXPECT_EQ(opening.method, "-[" + GetParam().name + " viewDidLoad]");
        ASSERT_TRUE(hasContent(*list));
        EXPECT_FALSE(list->fetchingActivityIndicator()->isAnimating());
        EXPECT_EQ(static_cast<std::size_t>(list->tableView()->rows()), stored());
        const auto requests = fleet.requests(0);
        EXPECT_EQ(
            std::ranges::count_if(requests, [](const auto& each) { return each.path.ends_with(GetParam().type); }),
            fetched ? 0 : 1);
    }
}

TEST_P(EveryListTest, EndsInTheLookThatItsAnswerDeserves)
{
    for (const char* fault : {"cutBody:All", "cutChunk:All", "cutGzip:All", "reset:All", "refuseFeed:All"}) {
        fleet.setFault(fault);
        const auto list = openList();
        ASSERT_TRUE(hasNoContent(*list)) << fault;
        EXPECT_TRUE(list->tableView()->isHidden() && corvel->restData() == nullptr) << fault;
        EXPECT_FALSE(list->noDataImage()->isHidden() || list->fetchingActivityIndicator()->isAnimating());
        fleet.clearFaults();
        list->refreshFromButton();
        ASSERT_TRUE(hasContent(*list)) << fault;
        EXPECT_TRUE(list->noDataLabel()->isHidden() && list->noDataImage()->isHidden());
        corvel->setRestData(nullptr);
    }
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
    ASSERT_TRUE(runUntil([&] { return list->tableView()->rows() > 0; }));
    const int rows = list->tableView()->rows();
    EXPECT_EQ(static_cast<std::size_t>(rows), stored());
    EXPECT_EQ(drawAll(*list), rows);
    // What cannot be looked up takes no row that is there.
    fleet.setFault("cutBody:Quick");
    EXPECT_EQ(drawAll(*list), rows);
    fleet.setFault("expireSession");
    list->refreshControl()->pull();
    ASSERT_TRUE(hasNoContent(*list));
    EXPECT_EQ(stored(), static_cast<std::size_t>(rows));
}

TEST_P(EveryListTest, WithoutAConsoleFailsToFetchAndGoesOn)
{
    const auto list = push(GetParam().make());
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

TEST_P(EveryListTest, ADamagedFeedShowsWhatCouldBeSaved)
{
    fleet.setFault("malformedFeed:All");
    const auto list = openList();
    ASSERT_TRUE(hasContent(*list));
    EXPECT_GT(drawAll(*list), 0);
    EXPECT_EQ(drawAll(*list), list->tableView()->rows());
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

} // namespace
} // namespace lodestar::testing
