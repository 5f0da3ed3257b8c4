// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/Storyboard.h"
#include "Kit/Core/TabBarController.h"
#include "Platform/Queues/MainQueue.h"

#include <gmock/gmock.h>

#include <thread>

namespace lodestar
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

using Log = std::vector<std::string>;

class Screen : public ViewController
{
public:
    Screen(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}
    ~Screen() override { m_log.push_back(m_name + (MainQueue::shared().isCurrent() ? " gone" : " gone on a worker")); }
    std::function<void()> whenAppeared;

protected:
    void viewDidLoad() override { m_log.push_back(m_name + " load"); }
    void viewDidAppear() override
    {
        m_log.push_back(m_name + " appear");
        if (const auto once = std::exchange(whenAppeared, nullptr)) {
            once();
        }
    }
    void viewDidDisappear() override { m_log.push_back(m_name + " disappear"); }

private:
    std::string m_name;
    Log& m_log;
};

Log take(Log& log)
{
    return std::exchange(log, {});
}

class ControllersTest : public testing::Test
{
protected:
    /// What a call left behind to be released still writes into the log.
    ~ControllersTest() override
    {
        while (MainQueue::shared().drain()) {
        }
    }
    Log log;
};

bool drained(const std::function<bool()>& predicate)
{
    return MainQueue::shared().runUntil(predicate, std::chrono::seconds(5));
}

} // namespace

TEST_F(ControllersTest, NavigationLoadsOnceAndAlternatesAppearances)
{
    auto root = makeController<Screen>("root", log);
    auto navigation = makeController<NavigationController>(root);
    EXPECT_THAT(take(log), IsEmpty());
    navigation->beginAppearance();
    navigation->beginAppearance();
    EXPECT_THAT(take(log), ElementsAre("root load", "root appear"));

    root->setTitle("Corvels");
    auto next = makeController<Screen>("next", log);
    navigation->pushViewController(next, Animated::No);
    EXPECT_THAT(take(log), ElementsAre("next load", "root disappear", "next appear"));
    EXPECT_TRUE(next->canGoBack());
    EXPECT_FALSE(root->canGoBack());
    EXPECT_EQ(next->backButtonTitle(), "Corvels");
    root->setBackTitle("");
    EXPECT_EQ(next->backButtonTitle(), "");

    navigation->endAppearance();
    navigation->endAppearance();
    EXPECT_THAT(take(log), ElementsAre("next disappear"));
    navigation->beginAppearance();
    root->goBack();
    EXPECT_EQ(navigation->depth(), 2);
    next->goBack();
    EXPECT_THAT(take(log), ElementsAre("next appear", "next disappear", "root appear"));
    EXPECT_EQ(next->navigationController(), nullptr);
    EXPECT_EQ(navigation->popViewController(Animated::No), nullptr);
    EXPECT_EQ(navigation->topViewController(), root.get());
}

TEST_F(ControllersTest, AScreenMayPushFromItsOwnAppearance)
{
    auto root = makeController<Screen>("root", log);
    auto navigation = makeController<NavigationController>(root);
    root->whenAppeared = [&] { navigation->pushViewController(makeController<Screen>("next", log), Animated::No); };
    navigation->beginAppearance();
    EXPECT_THAT(take(log), ElementsAre("root load", "root appear", "next load", "root disappear", "next appear"));
}

TEST_F(ControllersTest, APoppedScreenOutlivesTheCallThatPopsItAndGoesOnTheMainThread)
{
    auto navigation = makeController<NavigationController>(makeController<Screen>("root", log));
    std::shared_ptr<ViewController> next = makeController<Screen>("next", log);
    ViewController* bare = next.get();
    navigation->pushViewController(std::move(next), Animated::No);
    take(log);
    bare->goBack();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_FALSE(bare->canGoBack());
    EXPECT_TRUE(drained([&] { return !log.empty(); }));
    EXPECT_THAT(take(log), ElementsAre("next gone"));

    std::shared_ptr<ViewController> last = makeController<Screen>("last", log);
    std::thread([held = std::move(last)]() mutable { held.reset(); }).join();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_TRUE(drained([&] { return !log.empty(); }));
    EXPECT_THAT(take(log), ElementsAre("last gone"));
}

TEST_F(ControllersTest, TabsLoadWhenFirstShownAndOnlyTheSelectedOneAppears)
{
    auto first = makeController<Screen>("first", log);
    auto second = makeController<Screen>("second", log);
    auto navigation = makeController<NavigationController>(first);
    {
        auto tabs = makeController<TabBarController>(
            std::vector<TabBarItem>{{"One", "tab_one", navigation}, {"Two", "tab_two", second}});
        tabs->beginAppearance();
        EXPECT_THAT(take(log), ElementsAre("first load", "first appear"));
        EXPECT_EQ(first->tabBarController(), tabs.get());
        tabs->setSelectedIndex(1);
        tabs->setSelectedIndex(1);
        tabs->setSelectedIndex(2);
        EXPECT_THAT(take(log), ElementsAre("first disappear", "second load", "second appear"));
        tabs->setSelectedIndex(0);
        EXPECT_THAT(take(log), ElementsAre("second disappear", "first appear"));
        EXPECT_EQ(tabs->titleAt(1), "Two");
        EXPECT_EQ(tabs->imageNameAt(5), "");
    }
    EXPECT_EQ(first->tabBarController(), nullptr);
}

TEST_F(ControllersTest, ASheetIsReplacedResizedAndReleasedAfterItsDismissal)
{
    auto screen = makeController<Screen>("screen", log);
    screen->resizeSemiView(5);
    screen->presentSemiViewController(makeController<Screen>("one", log), {false, 224});
    screen->presentSemiViewController(makeController<Screen>("two", log), {true, 100});
    EXPECT_THAT(take(log), ElementsAre("one load", "one appear", "one disappear", "two load", "two appear"));
    EXPECT_TRUE(screen->semiModal()->pushParentBack());
    int told = 0;
    QObject::connect(screen->semiModal(), &SemiModalPresentation::heightChanged, [&] { ++told; });
    screen->resizeSemiView(266);
    screen->resizeSemiView(266);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(screen->semiModal()->height(), 266);
    screen->dismissSemiModalView();
    screen->dismissSemiModalView();
    EXPECT_EQ(screen->semiModal(), nullptr);
    EXPECT_TRUE(drained([&] { return log.size() == 3; }));
    EXPECT_THAT(take(log), ElementsAre("two disappear", "one gone", "two gone"));
}

TEST_F(ControllersTest, StoryboardMakesAFreshControllerWithItsScene)
{
    Storyboard storyboard;
    const Scene<> plain{"plain"};
    const Scene<std::string> named{"named"};
    storyboard.registerScene(
        plain, [&](NoInput) { return makeController<Screen>("plain", log); }, QUrl("qrc:/screen.qml"));
    storyboard.registerScene(named,
                             [&](const std::string& name) {
                                 log.push_back(name);
                                 return makeController<Screen>(name.c_str(), log);
                             },
                             {});
    const auto one = storyboard.instantiate<Screen>(plain);
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(one->scene(), QUrl("qrc:/screen.qml"));
    EXPECT_NE(one, storyboard.instantiateViewController(plain));
    EXPECT_EQ(storyboard.instantiate<NavigationController>(plain), nullptr);
    log.clear();
    const auto other = storyboard.instantiateViewController(named, "given");
    EXPECT_THAT(log, ElementsAre("given"));
    EXPECT_DEATH(storyboard.instantiateViewController(Scene<>{"other"}), "no scene other");
    EXPECT_THROW(storyboard.instantiateViewController(Scene<>{"named"}), std::bad_any_cast);
}

} // namespace lodestar
