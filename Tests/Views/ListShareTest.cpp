// SPDX-License-Identifier: Apache-2.0
// Lists as comma-separated values: what is saved is what is shown.
#include "Kit/Core/FileSaver.h"
#include "Kit/Core/Toasts.h"
#include "Tests/Fleet/HandMadeConsole.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Views/ListFixture.h"
#include "Views/Attention/AttentionViewController.h"
#include "Views/Attention/FoldedListController.h"
#include "Views/Common/AgeClock.h"
#include "Views/Corvels/CorvelListViewController.h"
#include "Views/LogicalPartitions/LPListViewController.h"
#include "Views/ManagedSystems/MSListViewController.h"

#include <QClipboard>
#include <QGuiApplication>

namespace lodestar::testing
{
namespace
{

using ::testing::IsEmpty;
using ::testing::SizeIs;
using Names = std::vector<std::string>;

class ListShareTest : public ListTest
{
protected:
    ListShareTest()
    {
        FileSaver::answerWith([this](const QString& suggested) {
            suggestedName = suggested.toStdString();
            return QString::fromStdString(folder.file("list"));
        });
    }
    ~ListShareTest() override { FileSaver::answerWith({}); }

    Table saved(ListShare& share)
    {
        share.save();
        auto table = readCsv(folder.read("list"));
        EXPECT_TRUE(table.ok());
        return table.ok() ? table.value() : Table();
    }
    /// The cells of one column.
    Names saved(ListShare& share, const std::string& title)
    {
        const Table table = saved(share);
        const auto column = std::ranges::find(table.titles, title) - table.titles.begin();
        Names cells;
        for (const auto& row : table.rows) {
            cells.push_back(row.at(static_cast<std::size_t>(column)));
        }
        return cells;
    }

    const ScratchFolder folder;
    std::string suggestedName;
};

TEST_F(ListShareTest, AListSavesOrCopiesTheRowsThatItShows)
{
    const auto list = openFetched<MSListViewController>(
        "ManagedSystem", system("=helios-02", "operating") + entry("Other", "") + system("atlas, \"old\"", "error") +
                             system("helios-01", "standby"));
    EXPECT_EQ(saved(*list->share(), "name"), Names({"=helios-02", "atlas, \"old\"", "helios-01"}));
    EXPECT_EQ(suggestedName, "Managed Systems, Harbour A.csv");
    EXPECT_EQ(Toasts::shared().text().toStdString().substr(0, 8), "Saved as");
    list->showSearchBar();
    EXPECT_THAT(saved(*list->share(), "name"), SizeIs(3)) << "all rows are seen before something is typed";
    list->searchBar()->setText("helios");
    EXPECT_EQ(saved(*list->share(), "state"), Names({"operating", "standby"}));

    list->share()->present();
    list->share()->menu()->choose(1);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), folder.read("list"));
    EXPECT_EQ(Toasts::shared().text(), "Copied 2 rows");
    list->share()->present();
    list->share()->menu()->choose(2);
    EXPECT_FALSE(list->share()->menu()->isPresented());

    const auto consoles = push(makeController<CorvelListViewController>());
    addCorvel("Lab", "lab.example");
    EXPECT_EQ(saved(*consoles->share(), "address"), Names({"127.0.0.1", "lab.example"}));
    EXPECT_EQ(suggestedName, "My Corvels.csv");
}

TEST_F(ListShareTest, AGroupedListSavesItsSectionsOneAfterTheOther)
{
    simulator::SimulatorProcess fleet;
    fleet.start({.systems = 3, .partitions = 4});
    const auto list = open<LPListViewController>(addLoggedOn(fleet));
    ASSERT_TRUE(hasContent(*list));
    for (const char* search : {"", "1"}) {
        searchFor(*list, search);
        const TableKind kind = *search == '\0' ? TableKind::Main : TableKind::SearchResults;
        Names names;
        for (int section = 0; section < list->numberOfSections(kind); ++section) {
            for (int row = 0; row < list->numberOfRowsInSection(kind, section); ++row) {
                names.push_back(cellAt<PartitionCell>(*list, row, kind, section).nameLabel.text.toStdString());
            }
        }
        EXPECT_GT(names.size(), 1U);
        EXPECT_EQ(saved(*list->share(), "name"), names);
    }
}

TEST_F(ListShareTest, AttentionSavesWhatTheSegmentsFilterAndOrderLeave)
{
    test::HandMadeConsole console("Harbour B");
    for (int i = 0; i < 8; ++i) {
        const std::string number = std::to_string(i);
        console.addPartition(ObjectType::LogicalPartition, "p" + number, "error");
        console.addEvent(number, i % 2 == 0 ? "Open" : "Closed", test::now - std::chrono::minutes(i));
    }
    console.addSystem("s", "error", true);
    AgeClock::setNow(test::now);
    auto picture = std::make_shared<Attention::Picture>();
    picture->consoles = {console.snapshot()};
    picture->findings = findingsOf(picture->consoles, test::now);
    picture->made = test::now;
    Attention::shared().adopt(picture);

    const auto attention = push(makeController<AttentionViewController>());
    ASSERT_TRUE(runUntil([&] { return attention->now()->tableView()->rows() > 0; }));
    const Names found = saved(*attention->share(), "name");
    EXPECT_EQ(suggestedName, "Attention.csv");
    // Eight partitions are one row, and only three of the four events are seen before "Show all".
    EXPECT_THAT(found, SizeIs(13));
    EXPECT_EQ(found.front(), "name of s");
    FindingFilter filter;
    filter.kinds = {FindingSubject::System};
    attention->setFilter(filter);
    ASSERT_TRUE(runUntil([&] { return saved(*attention->share(), "name") == Names{"name of s"}; }));
    attention->setFilter({});

    attention->segmentedControl()->setSelectedSegmentIndex(2);
    ASSERT_TRUE(runUntil([&] { return attention->events()->tableView()->rows() > 0; }));
    EventChoice choice;
    choice.order = EventOrder::ByStatus;
    attention->events()->setChoice(choice);
    const Names byStatus = {"0", "2", "4", "6", "1", "3", "5", "7"};
    EXPECT_TRUE(runUntil([&] { return saved(*attention->share(), "number") == byStatus; }));
    EXPECT_EQ(suggestedName, "Attention, Events.csv");
    attention->events()->search();
    attention->events()->searchBar()->setText("#4");
    EXPECT_EQ(saved(*attention->share(), "number"), Names{"4"});
    attention->events()->searchBar()->cancel();

    attention->segmentedControl()->setSelectedSegmentIndex(1);
    EXPECT_THAT(saved(*attention->share()).rows, IsEmpty());
    const auto folded = push(makeController<FoldedListController>(picture, FindingRow{{1, 2, 3}}));
    EXPECT_THAT(saved(*folded->share(), "finding"),
                ElementsAre("partition_error", "partition_error", "partition_error"));
    navigation.reset();
    Attention::shared().adopt(nullptr);
    AgeClock::setNow(std::nullopt);
}

} // namespace
} // namespace lodestar::testing
