// SPDX-License-Identifier: Apache-2.0
#include "Kit/Core/NavigationController.h"
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
    std::function<void()> whenAppeared = [] {};
    ~Screen() override { m_log.push_back(m_name + (MainQueue::shared().isCurrent() ? " gone" : " gone on a worker")); }

protected:
    void viewDidLoad() override { m_log.push_back(m_name + " load"); }
    void viewDidAppear() override
    {
        m_log.push_back(m_name + " appear");
        whenAppeared();
    }
    void viewDidDisappear() override { m_log.push_back(m_name + " disappear"); }

private:
    std::string m_name;
    Log& m_log;
};

class ControllersTest : public testing::Test
{
protected:
    /// What a call left behind to be released still writes into the log.
    ~ControllersTest() override
    {
        while (MainQueue::shared().drain()) {
        }
    }
    std::shared_ptr<Screen> screen(const char* name) { return makeController<Screen>(name, log); }
    Log take() { return std::exchange(log, {}); }
    /// The log as soon as the main queue's blocks have written so many lines.
    Log takeLater(std::size_t lines)
    {
        EXPECT_TRUE(MainQueue::shared().runUntil([&] { return log.size() >= lines; }, std::chrono::seconds(5)));
        return take();
    }

    Log log;
};

} // namespace

TEST_F(ControllersTest, NavigationLoadsOnceAndAlternatesAppearances)
{
    auto root = screen("root");
    auto navigation = makeController<NavigationController>(root);
    EXPECT_THAT(take(), IsEmpty());
    {
        const auto tabs = makeController<TabBarController>(std::vector<TabBarItem>{{"1", "tab_consoles", navigation}});
        EXPECT_EQ(root->tabBarController(), tabs.get());
    }
    EXPECT_EQ(root->tabBarController(), nullptr);
    navigation->beginAppearance();
    navigation->beginAppearance();
    EXPECT_THAT(take(), ElementsAre("root load", "root appear"));

    root->setTitle("Corvels");
    auto next = screen("next");
    navigation->pushViewController(next, Animated::No);
    EXPECT_THAT(take(), ElementsAre("next load", "root disappear", "next appear"));
    EXPECT_TRUE(next->canGoBack());
    EXPECT_FALSE(root->canGoBack());
    EXPECT_EQ(next->backButtonTitle(), "Corvels");
    root->setBackTitle("");
    EXPECT_EQ(next->backButtonTitle(), "");

    navigation->endAppearance();
    navigation->endAppearance();
    EXPECT_THAT(take(), ElementsAre("next disappear"));
    navigation->beginAppearance();
    root->goBack();
    EXPECT_EQ(navigation->depth(), 2);
    next->goBack();
    EXPECT_THAT(take(), ElementsAre("next appear", "next disappear", "root appear"));
    EXPECT_EQ(next->navigationController(), nullptr);
    EXPECT_EQ(navigation->popViewController(Animated::No), nullptr);
    EXPECT_EQ(navigation->topViewController(), root.get());

    // A screen may push from its own appearance.
    navigation->endAppearance();
    root->whenAppeared = [&] { navigation->pushViewController(next, Animated::No); };
    navigation->beginAppearance();
    EXPECT_THAT(take(), ElementsAre("root disappear", "root appear", "root disappear", "next appear"));
}

TEST_F(ControllersTest, OfTwoColumnsTheStartStaysWhileTheEndIsReplaced)
{
    const auto root = screen("root");
    const auto navigation = makeController<NavigationController>(root);
    const auto tabs = makeController<TabBarController>(std::vector<TabBarItem>{{"1", "tab_consoles", navigation}});
    tabs->beginAppearance();
    navigation->setRoomForTwo(true);
    EXPECT_THAT(take(), ElementsAre("root load", "root appear"));
    const auto first = screen("first");
    navigation->open(*root, first);
    const auto second = screen("second");
    navigation->open(*root, second);
    EXPECT_THAT(take(), ElementsAre("first load", "first appear", "first disappear", "second load", "second appear"));
    EXPECT_EQ(navigation->depth(), 2);
    EXPECT_EQ(first->navigationController(), nullptr);

    navigation->open(*second, first);
    EXPECT_THAT(take(), ElementsAre("root disappear", "first appear"));
    second->goBack();
    EXPECT_EQ(navigation->topViewController(), second.get()) << "back from the start column leaves the end";
    EXPECT_THAT(take(), ElementsAre("first disappear", "root appear"));
    navigation->setRoomForTwo(false);
    navigation->setRoomForTwo(true);
    EXPECT_THAT(take(), ElementsAre("root disappear", "root appear"));

    navigation->open(*second, first);
    take();
    navigation->popToRoot();
    EXPECT_THAT(take(), ElementsAre("second disappear", "first disappear", "root appear"));
}

TEST_F(ControllersTest, APoppedScreenOutlivesTheCallThatPopsItAndGoesOnTheMainThread)
{
    auto navigation = makeController<NavigationController>(screen("root"));
    std::shared_ptr<ViewController> next = screen("next");
    ViewController* bare = next.get();
    navigation->pushViewController(std::move(next), Animated::No);
    take();
    bare->goBack();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_FALSE(bare->canGoBack());
    EXPECT_THAT(takeLater(1), ElementsAre("next gone"));

    std::shared_ptr<ViewController> last = screen("last");
    std::thread([held = std::move(last)]() mutable { held.reset(); }).join();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_THAT(takeLater(1), ElementsAre("last gone"));
}

TEST_F(ControllersTest, ASheetIsReplacedResizedAndReleasedAfterItsDismissal)
{
    auto below = screen("screen");
    below->resizeSemiView(5);
    below->presentSemiViewController(screen("one"), {false, 224});
    below->presentSemiViewController(screen("two"), {true, 100});
    EXPECT_THAT(take(), ElementsAre("one load", "one appear", "one disappear", "two load", "two appear"));
    below->resizeSemiView(266);
    EXPECT_EQ(below->semiModal()->height(), 266);
    below->dismissSemiModalView();
    below->dismissSemiModalView();
    EXPECT_EQ(below->semiModal(), nullptr);
    EXPECT_THAT(takeLater(3), ElementsAre("two disappear", "one gone", "two gone"));
}

} // namespace lodestar
