// SPDX-License-Identifier: Apache-2.0
#include "WidgetsFixture.h"

namespace lodestar
{

using testing::ElementsAre;
using testing::IsEmpty;

using ScreensTest = WidgetsTest;

TEST_F(ScreensTest, ASheetFollowsItsHeightAndKeepsItsContentUntilItHasSlidOut)
{
    KitWindow window(list, {800, 700});
    list->presentSemiViewController(gallery("GallerySheet"), {false, 224});
    const auto weak = std::weak_ptr(std::static_pointer_cast<GalleryController>(list->semiModal()->sharedController()));
    ASSERT_TRUE(comesTo(window, "GallerySheet", {120, 476}));
    QQuickItem* content = window.find("GallerySheet");
    EXPECT_EQ(content->width(), 560);
    list->resizeSemiView(266);
    EXPECT_TRUE(comesTo(window, "GallerySheet", {120, 434}));

    // What lies behind takes nothing.
    window.click({400, 100});
    EXPECT_THAT(list->selected, IsEmpty());
    EXPECT_NE(list->semiModal(), nullptr);

    EXPECT_TRUE(goesBefore(weak, content, [&] {
        list->dismissSemiModalView();
        EXPECT_FALSE(weak.expired());
    }));
    list->presentSemiViewController(gallery("GallerySheet"), {false, 224});
    EXPECT_TRUE(comesTo(window, "GallerySheet", {120, 476}));
}

TEST_F(ScreensTest, NavigationSlidesItsScreensAndEveryWayBackPops)
{
    auto navigation = makeController<NavigationController>(list);
    auto second = gallery("GalleryScene");
    auto tabs = makeController<TabBarController>(
        std::vector<TabBarItem>{{"One", "tab_consoles", navigation}, {"Two", "tab_dashboard", second}});
    KitWindow window(tabs);
    EXPECT_EQ(list->appeared, 1);
    EXPECT_FALSE(second->isViewLoaded());

    const std::vector<std::function<void()>> ways = {
        [&] { window.key(Qt::Key_Escape); },
        [&] { window.key(Qt::Key_Back); },
        [&] { window.key(Qt::Key_Left, Qt::AltModifier); },
        [&] {
            window.swipe({4, 400}, {200, 0});
        },
        [&] {
            window.click({26, 26});
        },
    };
    for (const auto& goBack : ways) {
        auto detail = gallery("GalleryDetail");
        const std::weak_ptr weak(detail);
        navigation->pushViewController(std::move(detail), Animated::Yes);
        ASSERT_TRUE(comesTo(window, "GalleryDetail", {0, 0}));
        EXPECT_TRUE(waitFor([&] { return !window.find("GalleryScene")->isVisible(); }));
        EXPECT_TRUE(goesBefore(weak, window.find("GalleryDetail"), [&] {
            goBack();
            EXPECT_EQ(navigation->depth(), 1);
        }));
        EXPECT_TRUE(waitFor([&] { return window.find("GalleryScene")->isVisible(); }));
    }
    EXPECT_EQ(list->appeared, 6);
    // A root has no way back.
    window.key(Qt::Key_Escape);
    EXPECT_EQ(navigation->depth(), 1);

    // The tab that is shown leads to its first screen, past those between.
    auto detail = gallery("GalleryDetail");
    const std::weak_ptr between(detail);
    navigation->pushViewController(std::move(detail), Animated::No);
    navigation->pushViewController(gallery("GalleryDetail"), Animated::Yes);
    window.click({98, 816});
    EXPECT_EQ(navigation->depth(), 1);
    EXPECT_TRUE(waitFor([&] { return between.expired() && window.find("GalleryDetail") == nullptr; }));
    EXPECT_EQ(place(window, "GalleryScene"), QPointF(0, 0));
    EXPECT_EQ(list->appeared, 7);

    window.click({292, 816});
    EXPECT_EQ(tabs->selectedIndex(), 1);
    EXPECT_EQ(second->appeared, 1);
    EXPECT_EQ(list->disappeared, 7);
}

TEST_F(ScreensTest, AScreenThatSlidesTakesNoPressAndTheNextPushOrPopDoesNotWaitForIt)
{
    auto navigation = makeController<NavigationController>(list);
    KitWindow window(navigation);
    const auto slid = [&] { return !window.find("lodestar::NavigationStack")->property("busy").toBool(); };
    navigation->pushViewController(gallery("GalleryDetail"), Animated::Yes);
    EXPECT_FALSE(slid());
    EXPECT_GT(place(window, "GalleryDetail").x(), 0);
    window.click({200, 200});
    window.click({26, 26});
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_THAT(list->selected, IsEmpty());

    const auto third = gallery("GalleryDetail");
    navigation->pushViewController(third, Animated::Yes);
    navigation->pop();
    navigation->pop();
    EXPECT_EQ(place(window, "GalleryScene"), QPointF(-130, 0));
    EXPECT_TRUE(waitFor([&] { return slid() && window.find("GalleryDetail") == nullptr; }));
    EXPECT_EQ(place(window, "GalleryScene"), QPointF(0, 0));
    EXPECT_TRUE(window.find("GalleryScene")->hasFocus());

    // Without motion both stay where they are.
    Appearance::shared().overrideReducedMotion(true);
    navigation->pushViewController(gallery("GalleryDetail"), Animated::Yes);
    for (const char* scene : {"GalleryDetail", "GalleryScene"}) {
        EXPECT_EQ(place(window, scene), QPointF(0, 0));
    }
    navigation->pop();
    navigation->pushViewController(gallery("GalleryDetail"), Animated::No);
    EXPECT_TRUE(slid());
    EXPECT_FALSE(window.find("GalleryScene")->isVisible());
}

TEST_F(ScreensTest, AlertsAndActionSheetsAnswerToPressesAndKeys)
{
    KitWindow window(list);
    std::vector<int> answers;
    const auto answer = [&](int index) { answers.push_back(index); };
    const std::vector<MenuChoice> choices{{"OK", true}, {"Cancel"}};
    const auto focused = [&] { return window.find("table")->hasActiveFocus(); };
    window.find("table")->forceActiveFocus();
    for (MenuOutlet* menu : {list->alert(), list->actions()}) {
        answers.clear();
        menu->present("Reset?", "All goes", choices, 1, answer);
        EXPECT_TRUE(waitFor([&] { return !focused(); }));
        window.key(Qt::Key_Escape);
        menu->choose(0);
        EXPECT_THAT(answers, ElementsAre(1)) << "one answer, whatever is pressed while the menu goes";
        EXPECT_TRUE(waitFor(focused)) << "the keyboard goes back to where it was";
        menu->present("Reset?", "All goes", choices, 1, answer);
        EXPECT_TRUE(waitFor([&] { return window.view().activeFocusItem() != nullptr; }));
        window.click({200, 200});
        // A tap beside an action sheet cancels; an alert wants an answer.
        EXPECT_EQ(menu->isPresented(), menu == list->alert());
        menu->dismiss();
        EXPECT_TRUE(waitFor(focused));
    }
    EXPECT_THAT(list->selected, IsEmpty());
}

} // namespace lodestar
