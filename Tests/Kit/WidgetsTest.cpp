// SPDX-License-Identifier: Apache-2.0
#include "WidgetsFixture.h"

#include <QAccessible>
#include <QImage>
#include <QPointer>

namespace lodestar
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(WidgetsTest, ARowSwipesByMouseAndFingerOneAtATimeAndStaysOpenOverAReload)
{
    KitWindow window(list);
    const QPoint first = KitWindow::centre(row(window, 0));
    window.drag(first, {-130, 0});
    EXPECT_TRUE(settles(window, 0, 144));
    EXPECT_THAT(list->selected, IsEmpty());

    list->rows[0].push_back({"new", "operating", Role::State::Good, "", true});
    list->rows[0][0].name = "renamed";
    list->configured.clear();
    list->tableView()->reloadData();
    EXPECT_TRUE(waitFor([&] { return list->configured.size() >= 8; }));
    EXPECT_TRUE(settles(window, 0, 144));
    // Every visible row once: eight rows, one of them new, one a header.
    EXPECT_EQ(list->configured.size(), 8U);

    const QPoint second = KitWindow::centre(row(window, 1));
    window.swipe(second, {120, 0});
    EXPECT_TRUE(settles(window, 1, -72) && settles(window, 0, 0));
    // A tap beside the buttons closes and chooses nothing; a second one chooses.
    window.click(second);
    EXPECT_TRUE(settles(window, 1, 0));
    EXPECT_THAT(list->selected, IsEmpty());
    window.click(second);
    EXPECT_THAT(list->selected, ElementsAre(IndexPath{0, 1}));

    // So does one on another row or below them all.
    for (const QPoint beside : {first, QPoint(195, 740)}) {
        list->selected.clear();
        window.drag(second, {-130, 0});
        EXPECT_TRUE(settles(window, 1, 144));
        window.click(beside);
        EXPECT_TRUE(settles(window, 1, 0));
        EXPECT_THAT(list->selected, IsEmpty());
    }

    // A short, slow swipe falls back; up and down is the list's.
    window.swipe(first, {-40, 0}, 40);
    EXPECT_TRUE(settles(window, 0, 0));
    window.drag(first, {-130, 0});
    EXPECT_TRUE(settles(window, 0, 144));
    window.swipe(second, {0, -60});
    EXPECT_TRUE(settles(window, 0, 0));
}

TEST_F(WidgetsTest, AQuickFlickStaysATapOrAScrollAndOnlyASidewaysOneSwipes)
{
    KitWindow window(list, {390, 300});
    const QPoint at = KitWindow::centre(row(window, 1));
    const auto scrolled = [&] { return flickable(window)->property("contentY").toDouble(); };
    const double start = scrolled();
    window.swipe(at, {-7, 5}, 1, 0);
    EXPECT_THAT(list->selected, ElementsAre(IndexPath{0, 1}));
    EXPECT_EQ(scrolled(), start);
    EXPECT_TRUE(settles(window, 1, 0));
    window.swipe(at, {-20, -80}, 2, 0);
    EXPECT_TRUE(waitFor([&] { return scrolled() > start + 30 && !flickable(window)->property("moving").toBool(); }));
    EXPECT_EQ(list->selected.size(), 1U);
    EXPECT_TRUE(settles(window, 1, 0));
    flickable(window)->setProperty("contentY", start);
    window.swipe(at, {-50, 12}, 2, 0);
    EXPECT_TRUE(settles(window, 1, 144));
    EXPECT_EQ(scrolled(), start);
    EXPECT_EQ(list->selected.size(), 1U);
}

TEST_F(WidgetsTest, SwipeButtonsReportTheirIndexFromTheOuterEdgeAndSwapSides)
{
    for (const bool mirrored : {false, true}) {
        list = gallery("GalleryScene");
        Appearance::shared().overrideMirrored(mirrored);
        KitWindow window(list);
        const QPoint middle = KitWindow::centre(row(window, 1));
        const QPointer<QQuickItem> deleted = row(window, 1);
        for (const int button : {1, 0}) {
            ASSERT_TRUE(settles(window, 1, 0));
            window.swipe(middle, {mirrored ? 130 : -130, 0});
            ASSERT_TRUE(settles(window, 1, 144));
            const int aside = button == 1 ? 100 : 30;
            window.click({mirrored ? 12 + aside : 378 - aside, middle.y()});
        }
        EXPECT_THAT(list->swiped, ElementsAre(1, 0));
        EXPECT_EQ(list->tableView()->count(), 7);
        EXPECT_TRUE(waitFor([&] { return deleted != nullptr && deleted->x() < 0; })) << "the row slides away";
        EXPECT_TRUE(waitFor([&] { return KitWindow::centre(row(window, 1)).y() == middle.y(); }));
    }
}

TEST_F(WidgetsTest, TheTableWorksByKeyboardAlone)
{
    KitWindow window(list);
    window.find("table")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(hasRing(window, 0));
    window.key(Qt::Key_Down);
    EXPECT_FALSE(hasRing(window, 0));
    EXPECT_TRUE(hasRing(window, 1));
    window.key(Qt::Key_Return);
    EXPECT_THAT(list->selected, ElementsAre(IndexPath{0, 1}));
    // Over the header into the second section, to its end and back up.
    window.key(Qt::Key_End);
    window.key(Qt::Key_Up);
    window.key(Qt::Key_Space);
    EXPECT_EQ(list->selected.back(), (IndexPath{1, 0}));
    window.key(Qt::Key_Up);
    window.key(Qt::Key_Up);
    window.key(Qt::Key_Enter);
    EXPECT_EQ(list->selected.back(), (IndexPath{0, 3}));

    window.key(Qt::Key_Menu);
    EXPECT_TRUE(settles(window, 3, 144));
    window.key(Qt::Key_Escape);
    EXPECT_TRUE(settles(window, 3, 0));
    EXPECT_TRUE(hasRing(window, 3));
}

TEST_F(WidgetsTest, APullUncoversTheSearchFieldAndAFurtherOneRefreshes)
{
    KitWindow window(list);
    QQuickItem* const table = window.find("table");
    table->setProperty("searchOffered", true);
    int pulls = 0;
    QObject::connect(list->refreshControl(), &RefreshControl::valueChanged, [&] {
        ++pulls;
        list->refreshControl()->endRefreshing();
    });
    int searches = 0;
    QObject::connect(table, SIGNAL(searchTapped()), list.get(), SIGNAL(titleChanged()));
    QObject::connect(list.get(), &ViewController::titleChanged, [&] { ++searches; });
    QQuickItem* const field = window.find("PullSearchField");
    const double hidden = flickable(window)->property("contentY").toDouble();
    const auto at = [&] { return flickable(window)->property("contentY").toDouble(); };
    EXPECT_FALSE(field->isVisible());
    const QPoint from = KitWindow::centre(row(window, 1));
    // Less than half of it falls back.
    window.swipe(from, {0, 18}, 40);
    EXPECT_TRUE(waitFor([&] { return at() == hidden && !field->isVisible(); }));
    window.swipe(from, {0, 60}, 40);
    EXPECT_TRUE(waitFor([&] { return at() == hidden - 48; }));
    EXPECT_TRUE(field->isVisible());
    EXPECT_EQ(pulls, 0);
    window.click(KitWindow::centre(field));
    QAccessibleActionInterface* const spoken = QAccessible::queryAccessibleInterface(field)->actionInterface();
    EXPECT_EQ(spoken->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
    spoken->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(searches, 2);
    window.swipe(from, {0, 320});
    EXPECT_EQ(pulls, 1);
    EXPECT_FALSE(list->refreshControl()->isRefreshing());
    EXPECT_TRUE(waitFor([&] { return at() == hidden - 48; }));
    window.swipe(from, {0, -120}, 40);
    EXPECT_TRUE(waitFor([&] { return at() == hidden && !field->isVisible(); }));
}

TEST_F(WidgetsTest, AGridMenuIsWalkedByKeysAndWithLargeTextStandsInRows)
{
    std::vector<int> answers;
    const std::vector<MenuChoice> choices{{"Connection", false, "connection", "Offline"},
                                          {"Attention", false, "tab_attention"},
                                          {"Copy Address", false, "copy"},
                                          {"Delete", true, "delete"},
                                          {"Move", false, "sort"},
                                          {"Cancel"}};
    const auto present = [&] {
        list->grid()->present("Harbour B", {}, choices, 5, [&](int index) { answers.push_back(index); });
    };
    for (const bool mirrored : {false, true}) {
        Appearance::shared().overrideMirrored(mirrored);
        KitWindow window(list);
        const auto focused = [&]() -> QString {
            QQuickItem* const item = window.view().activeFocusItem();
            return item != nullptr ? item->property("text").toString() : QString();
        };
        const auto comesTo = [&](Qt::Key key, const char* title) {
            window.key(key);
            EXPECT_EQ(focused(), title);
        };
        const Qt::Key forward = mirrored ? Qt::Key_Left : Qt::Key_Right;
        const Qt::Key back = mirrored ? Qt::Key_Right : Qt::Key_Left;
        present();
        ASSERT_TRUE(waitFor([&] { return window.find("ChoiceGrid") != nullptr && focused().isEmpty(); }));
        QTest::qWait(400); // the keyboard is the sheet's once it has come up
        comesTo(forward, "Connection");
        comesTo(forward, "Attention");
        comesTo(Qt::Key_Down, "Move");
        comesTo(Qt::Key_Up, "Attention");
        comesTo(back, "Connection");
        comesTo(Qt::Key_End, "Move");
        comesTo(forward, "Cancel");
        comesTo(back, "Move");
        comesTo(Qt::Key_Home, "Connection");
        QAccessibleInterface* const tile = QAccessible::queryAccessibleInterface(window.view().activeFocusItem());
        EXPECT_EQ(tile->text(QAccessible::Name), "Connection, Offline");
        EXPECT_EQ(tile->role(), QAccessible::MenuItem);
        window.key(Qt::Key_Return);
        EXPECT_THAT(std::exchange(answers, {}), ElementsAre(0));
        present();
        window.key(Qt::Key_Escape);
        EXPECT_THAT(std::exchange(answers, {}), ElementsAre(5));
    }
    Appearance::shared().overrideTextScale(2);
    KitWindow window(list);
    present();
    const auto isSeen = [&](const char* part) {
        QQuickItem* const item = KitWindow::find(window.view().contentItem(), part);
        return item != nullptr && item->isVisible();
    };
    ASSERT_TRUE(waitFor([&] { return isSeen("ChoiceRows"); }));
    EXPECT_FALSE(isSeen("ChoiceGrid"));
}

TEST_F(WidgetsTest, ACountingLabelEndsWithItsTextAndTellsReadersNothingElse)
{
    const auto board = gallery("Gallery");
    KitWindow window(board, {1200, 1400});
    QQuickItem* const label = window.find("CountingLabel");
    QStringList seen;
    const auto text = [label] { return label->property("text").toString(); };
    const auto follow = [&](const QString& end) {
        seen.clear();
        board->count()->setText(end);
        return waitFor([&] {
            seen << text();
            EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), end);
            return text() == end;
        });
    };
    ASSERT_TRUE(waitFor([&] { return text() == "4 / 6"; }));
    ASSERT_TRUE(follow("4 / 600"));
    seen.removeDuplicates();
    EXPECT_GT(seen.size(), 3) << "both ends and something between";
    for (const QString& each : std::as_const(seen)) {
        EXPECT_TRUE(each.startsWith("4 / ")) << "a number that stays does not count";
    }
    // Other words count from 0, a fraction and a number with groups not at all.
    ASSERT_TRUE(follow("900 %"));
    EXPECT_EQ(seen.front(), "0 %");
    for (const char* whole : {"12.5", "1,234", "no number", ""}) {
        ASSERT_TRUE(follow(whole));
        EXPECT_EQ(seen.size(), 1) << whole;
    }
    Appearance::shared().overrideReducedMotion(true);
    ASSERT_TRUE(follow("7"));
    EXPECT_EQ(seen.size(), 1);
}

TEST_F(WidgetsTest, EveryWidgetIsDrawnInEveryAppearanceWithoutAWarning)
{
    for (const bool other : {false, true}) {
        auto board = gallery("Gallery");
        KitWindow window(board, {1200, 1400});
        Appearance::shared().overrideDark(other);
        Appearance::shared().overrideTextScale(other ? 2 : 1);
        Appearance::shared().overrideMirrored(other);
        Appearance::shared().overrideReducedMotion(true);
        EXPECT_FALSE(window.view().grabWindow().isNull());
        // The first row grew with the text, the bar's title no further than bars do.
        EXPECT_NEAR(window.find("SwipeCell")->height(), other ? 116 : 50, 16);
        EXPECT_EQ(window.find("NavigationBar")->height(), 52);
    }
}

} // namespace lodestar
