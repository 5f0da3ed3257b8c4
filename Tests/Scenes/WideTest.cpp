// SPDX-License-Identifier: Apache-2.0
// Two screens side by side, from 1000 points of width on.
#include "Tests/Scenes/SceneTest.h"
#include "Views/Common/GroupedListViewController.h"

namespace lodestar::scenes
{
namespace
{

class WideTest : public SceneTest
{
protected:
    /// The partitions of a console over the list of consoles.
    GroupedListViewController& openPartitions(QSize size)
    {
        stage.show(size, fleet());
        return stage.openList<GroupedListViewController>(Scenes::logicalPartitionsView,
                                                         {.corvel = demoConsole(), .partitionName = {}});
    }
    void resize(QSize size) const
    {
        stage.window().resize(size);
        stage.settle(100);
    }
    /// The visible pages of the stack, from the side where text starts.
    std::vector<QRectF> columns() const
    {
        std::vector<QRectF> found;
        for (const QQuickItem* scene : stage.items(QStringLiteral("PageScaffold"))) {
            found.push_back(scene->mapRectToScene(scene->boundingRect()));
        }
        std::ranges::sort(found, {}, [](const QRectF& each) {
            return Appearance::shared().isMirrored() ? -each.left() : each.left();
        });
        return found;
    }
    QQuickItem* rowOf(const QString& name) const
    {
        QQuickItem* item = text(name);
        while (item != nullptr && !QByteArray(item->metaObject()->className()).startsWith("TableRow")) {
            item = item->parentItem();
        }
        return item;
    }
    bool isChosen(const QString& name) const
    {
        const QQuickItem* const row = rowOf(name);
        return row != nullptr && row->property("chosen").toBool();
    }
    /// Whether a name stands in the list and among the facts beside it.
    bool isShownBeside(const QString& name) const
    {
        return stage.waitFor([&] {
            return std::ranges::count_if(stage.items(QStringLiteral("QQuickText")),
                                         [&](QQuickItem* each) { return each->property("text") == name; }) == 2;
        });
    }
    bool isKeyboardIn(const QRectF& column) const
    {
        const QQuickItem* const holder = stage.window().activeFocusItem();
        return holder != nullptr && column.contains(holder->mapRectToScene(holder->boundingRect()).center());
    }
    int ways() const
    {
        return static_cast<int>(std::ranges::count_if(
            stage.buttons(), [](QQuickItem* each) { return spokenAs(each) == QLatin1String("Back"); }));
    }
    int depth() const { return stage.list().navigationController()->depth(); }
};

TEST_F(WideTest, ADetailIsChosenByKeysBesideItsListAndKeepsItsPlaceWhileTheWindowChanges)
{
    QAccessible::setActive(true);
    GroupedListViewController& partitions = openPartitions({1280, 800});
    // The rail takes 88 points.
    const QRectF startColumn(88, 0, 400, 800);
    const QRectF endColumn(488, 0, 792, 800);
    EXPECT_EQ(columns(), (std::vector{startColumn, endColumn}));
    EXPECT_EQ(ways(), 0) << "the first screen is seen";

    click(rowOf("mail-relay"));
    ASSERT_TRUE(isShownBeside("mail-relay"));
    stage.settle(300);
    EXPECT_EQ(columns(), (std::vector{startColumn, endColumn}));
    EXPECT_TRUE(isChosen("mail-relay"));
    EXPECT_EQ(ways(), 1);
    EXPECT_TRUE(partitions.isInWindow());
    EXPECT_FALSE(stage.list().isInWindow());

    // The choice follows the keyboard, which stays with the list until it enters.
    const ViewController* const first = top();
    press(Qt::Key_Down);
    ASSERT_TRUE(stage.waitFor([&] { return top() != first; }));
    EXPECT_EQ(depth(), 3);
    EXPECT_TRUE(isShownBeside("directory-1"));
    EXPECT_TRUE(isChosen("directory-1"));
    EXPECT_FALSE(isChosen("mail-relay"));
    EXPECT_TRUE(isKeyboardIn(startColumn));
    press(Qt::Key_Right);
    EXPECT_TRUE(isKeyboardIn(endColumn));
    press(Qt::Key_Left);
    EXPECT_TRUE(isKeyboardIn(startColumn));

    // A narrow window shows the detail alone, and a wide one both again.
    partitions.presentSemiViewController(
        Storyboard::main().instantiateViewController(Scenes::deltaCorvel, EditorInput{{}, {}}),
        {.pushParentBack = false, .height = 224});
    ASSERT_TRUE(waitForButton("Save"));
    auto* const list = qobject_cast<QQuickItem*>(rowOf("directory-1")->parentItem()->parentItem());
    list->setProperty("contentY", 50);
    resize({999, 800});
    EXPECT_EQ(columns(), (std::vector{QRectF(0, 0, 999, 744)}));
    EXPECT_FALSE(partitions.isInWindow());
    EXPECT_NE(partitions.semiModal(), nullptr);
    resize({1000, 800});
    EXPECT_EQ(columns(), (std::vector{QRectF(0, 0, 400, 744), QRectF(400, 0, 600, 744)}));
    EXPECT_EQ(list->property("contentY"), 50);
    EXPECT_NE(button("Save"), nullptr);
    partitions.dismissSemiModalView();
    ASSERT_TRUE(waitForNoSheet());
    resize({1280, 800});
    EXPECT_TRUE(isChosen("directory-1"));
    EXPECT_EQ(depth(), 3);

    Appearance::shared().overrideMirrored(true);
    stage.settle(100);
    EXPECT_EQ(columns(), (std::vector{QRectF(792, 0, 400, 800), QRectF(0, 0, 792, 800)}));
    Appearance::shared().overrideMirrored({});

    press(Qt::Key_Escape);
    stage.settle(300);
    EXPECT_EQ(top(), &partitions);
    EXPECT_EQ(columns(), (std::vector{startColumn, endColumn}));
    EXPECT_FALSE(isChosen("directory-1"));
    EXPECT_TRUE(stage.list().isInWindow());
    press(Qt::Key_Escape);
    stage.settle(300);
    EXPECT_EQ(columns(), std::vector{startColumn});
    EXPECT_NE(text("Choose what to look at."), nullptr);
    stage.list().openSettings();
    stage.settle(300);
    EXPECT_EQ(columns(), (std::vector{QRectF(88, 0, 1192, 800)})) << "settings take the window";
    QAccessible::setActive(false);
}

TEST_F(WideTest, TheChosenRowIsTheOneThatStandsBesideWhateverRowsComeAndGo)
{
    GroupedListViewController& partitions = openPartitions({1280, 800});
    partitions.showSearchBar();
    partitions.searchBar()->setText("r");
    ASSERT_TRUE(stage.waitFor([&] { return rowOf("mail-relay") != nullptr && rowOf("directory-1") != nullptr; }));
    stage.settle(100);
    click(rowOf("mail-relay"));
    ASSERT_TRUE(isShownBeside("mail-relay"));
    EXPECT_TRUE(isChosen("mail-relay"));
    partitions.searchBar()->setText("relay");
    ASSERT_TRUE(stage.waitFor([&] { return rowOf("directory-1") == nullptr; }));
    EXPECT_TRUE(isChosen("mail-relay")) << "in another place";
    partitions.searchBar()->setText("directory");
    ASSERT_TRUE(stage.waitFor([&] { return rowOf("directory-1") != nullptr; }));
    stage.settle(100);
    EXPECT_FALSE(isChosen("directory-1")) << "another thing stands beside the list";
    click(rowOf("directory-1"));
    EXPECT_TRUE(isShownBeside("directory-1"));

    // Without consoles there is nothing to choose beside the first steps.
    stage.show({1280, 800}, {});
    EXPECT_EQ(columns(), (std::vector{QRectF(88, 0, 1192, 800)}));
    EXPECT_EQ(text("Choose what to look at."), nullptr);

    // A deleted console takes along what the list opened of it.
    stage.show({1280, 800}, fleet());
    stage.list().openConnection(0);
    ASSERT_TRUE(stage.waitFor([&] { return depth() == 2; }));
    stage.settle(300);
    // The arrow enters the end column from a row that leads nowhere, too. A menu's end gives the keyboard to what is
    // seen by then.
    rowOf("Harbour B")->parentItem()->parentItem()->forceActiveFocus(Qt::TabFocusReason);
    for (int i = 0; i < 3; ++i) { // to Ridgeway, which is being read, or Northfield, which is offline
        press(Qt::Key_Down);
    }
    press(Qt::Key_Right);
    EXPECT_TRUE(isKeyboardIn(QRectF(488, 0, 792, 800)));
    press(Qt::Key_Left);
    stage.list().presentMenu(0);
    ASSERT_TRUE(waitForButton("Copy Address"));
    resize({999, 800});
    press(Qt::Key_Escape);
    ASSERT_TRUE(stage.waitFor([&] { return !stage.list().rowMenu()->isPresented(); }));
    stage.settle(300);
    ASSERT_NE(stage.window().activeFocusItem(), nullptr);
    EXPECT_TRUE(stage.window().activeFocusItem()->isVisible());
    resize({1280, 800});

    stage.list().swipeTableCell(1, 0);
    stage.settle(300);
    EXPECT_EQ(depth(), 2) << "another console's screen stays";
    stage.list().swipeTableCell(0, 0);
    EXPECT_TRUE(stage.waitFor([&] { return depth() == 1; }));
}

/// Keys that both screens know are the keyed one's alone, or they would do nothing.
TEST_F(WideTest, NoWidthWarnsOrLosesAScreenAndKeysAreOneScreensAlone)
{
    GroupedListViewController& partitions = openPartitions({1280, 800});
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(partitions.searchBar()->isActive());
    press(Qt::Key_Escape);
    EXPECT_FALSE(partitions.searchBar()->isActive());
    for (int width = 2560; width >= 320; width -= 40) {
        resize({width, 390 + (width % 3) * 200});
        const std::vector<QRectF> seen = columns();
        ASSERT_EQ(seen.size(), width >= 1000 ? 2 : 1) << width;
        double end = seen.front().left();
        for (const QRectF& column : seen) {
            EXPECT_EQ(column.left(), end) << width;
            end = column.right();
        }
        EXPECT_EQ(end, width);
        for (QQuickItem* each : stage.buttons()) {
            const QRectF place = each->mapRectToScene(each->boundingRect());
            EXPECT_TRUE(place.left() >= 0 && place.right() <= width) << width << " " << spokenAs(each).toStdString();
        }
    }
}

} // namespace
} // namespace lodestar::scenes
