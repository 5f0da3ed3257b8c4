// SPDX-License-Identifier: Apache-2.0
#include "Tests/Scenes/SceneTest.h"
#include "Views/ResourceGroups/RGListViewController.h"
#include "Views/ServiceableEvents/SEListViewController.h"

#include <QAccessible>

namespace lodestar::scenes
{
namespace
{

class EventsTest : public SceneTest
{
protected:
    template <typename List>
    List* openList(const char* scene, const std::map<std::string, std::string>& feeds = {})
    {
        QAccessible::setActive(true);
        stage.show({390, 844}, fleet());
        return &stage.openList<List>(scene, {.corvel = demoConsole(feeds)});
    }
};

TEST_F(EventsTest, AnEventOpensItsFacts)
{
    openList<SEListViewController>("serviceableEventsView");
    EXPECT_EQ(spokenAs(row(3)), "Approved (#1036), 1773263954");
    click(row(3));
    ASSERT_TRUE(stage.waitFor([&] { return text("Prob Mgmt Hardware Record") != nullptr; }));
    EXPECT_EQ(top()->title(), "Event Details");
    press(Qt::Key_End);
    ASSERT_TRUE(stage.waitFor([&] { return text("Processor board") != nullptr; }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(stage.waitFor([&] { return text("Approved (#1036)") != nullptr; }));
}

TEST_F(EventsTest, GroupsAreReadOutWholeAndTakeNoPressAndNoSearch)
{
    auto* const list = openList<RGListViewController>("resourceGroupsView");
    EXPECT_EQ(spokenAs(row(0)), "Ledger production, green, 8 Resources, 0 good, 0 off, 0 alert, 0 error");
    EXPECT_EQ(row(0)->height(), 75);
    EXPECT_EQ(stage.item("rightBarButton"), nullptr);
    press(Qt::Key_F, Qt::ControlModifier);
    click(row(0));
    EXPECT_FALSE(list->searchBar()->isActive());
    EXPECT_EQ(top(), list);
}

TEST_F(EventsTest, AHundredThousandEventsOpenScrollAndAreSearched)
{
    std::string feed = "<feed>";
    for (int i = 0; i < 100000; ++i) {
        feed += "<entry><content><ServiceableEvent><problemNumber>" + std::to_string(i) +
                "</problemNumber><ApprovalState>Approved</ApprovalState></ServiceableEvent></content></entry>";
    }
    auto* const list =
        openList<SEListViewController>("serviceableEventsView", {{"ServiceableEvent", feed + "</feed>"}});
    ASSERT_EQ(list->tableView()->count(), 100000);
    press(Qt::Key_End);
    ASSERT_TRUE(stage.waitFor([&] { return text("Approved (#99999)") != nullptr; }));
    EXPECT_LT(stage.items("StateRow").size(), 40U);
    list->showSearchBar();
    list->searchBar()->setText("approved (#9999");
    EXPECT_EQ(list->searchResultsTableView()->count(), 11);
}

} // namespace
} // namespace lodestar::scenes
