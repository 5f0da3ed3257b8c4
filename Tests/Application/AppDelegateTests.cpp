// SPDX-License-Identifier: Apache-2.0
#include "Application/AppDelegate.h"
#include "Application/FeedbackWindow.h"
#include "Application/MainStoryboard.h"
#include "Application/Model/StoreStack.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/VireoLogger.h"
#include "Kit/Core/NavigationController.h"
#include "Kit/Core/Storyboard.h"
#include "Kit/Core/TabBarController.h"
#include "Kit/Core/UIColor+Tessel.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/StoredPassword.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace lodestar
{
namespace
{

class AppDelegateTest : public testing::Test
{
protected:
    AppDelegateTest()
    {
        StoreStack::shared().close();
        StoreStack::shared().setApplicationDocumentsDirectory(m_folder.path().toStdString());
        registerMainStoryboard(
            [this](std::shared_ptr<ViewController> root) { m_delegate.window()->setRootViewController(root); });
    }
    ~AppDelegateTest() override
    {
        FeedbackWindow::tearDown();
        UserDefaults::install(nullptr);
        Keychain::install(nullptr);
        RESTHandler::sharedInstance().setCorvelList({});
        StoreStack::shared().close();
    }

    ViewController* root() const { return m_delegate.window()->rootViewController(); }

    QTemporaryDir m_folder;
    AppDelegate m_delegate;
};

TEST_F(AppDelegateTest, StartsTheLibrariesAndTintsTheTabBar)
{
    VireoLogger::settings() = {};
    EXPECT_TRUE(m_delegate.didFinishLaunchingWithOptions());
    EXPECT_EQ(TabBarAppearance::appearance().selectedImageTintColor, UIColor::selectedBlue());
    EXPECT_TRUE(VireoLogger::settings().reportOnShake);
    EXPECT_EQ(VireoLogger::settings().mode, 2);
    EXPECT_EQ(std::get_terminate(), &VireoLogger::uncaughtExceptionHandler);
}

TEST_F(AppDelegateTest, TheWindowIsOneAndSettingItChangesNothing)
{
    FeedbackWindow* const window = m_delegate.window();
    m_delegate.setWindow(nullptr);
    EXPECT_EQ(m_delegate.window(), window);
    EXPECT_EQ(AppDelegate().window(), window);
}

TEST_F(AppDelegateTest, WithoutAPasscodeTheInitialScreenLeadsToTheConsoleListAndActivationKeepsIt)
{
    m_delegate.showInitialViewController();
    const auto* tabs = dynamic_cast<TabBarController*>(root());
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 2);
    const auto* stack = dynamic_cast<NavigationController*>(tabs->controllerAt(0));
    ASSERT_NE(stack, nullptr);
    EXPECT_NE(dynamic_cast<CorvelListViewController*>(stack->topViewController()), nullptr);

    m_delegate.applicationDidBecomeActive();
    EXPECT_EQ(root(), tabs);
}

TEST_F(AppDelegateTest, ARequiredPasscodeStandsInFrontAtEveryActivation)
{
    m_delegate.showInitialViewController();
    UserDefaults::standard().setBool(true, "requirePassword");
    ASSERT_TRUE(test::writePassword("passcode"));
    m_delegate.applicationDidBecomeActive();
    ViewController* const first = root();
    EXPECT_NE(dynamic_cast<LoginViewController*>(first), nullptr);
    EXPECT_TRUE(first->isInWindow());

    const std::weak_ptr<ViewController> firstLock = first->weak_from_this();
    m_delegate.applicationDidBecomeActive();
    EXPECT_NE(dynamic_cast<LoginViewController*>(root()), nullptr);
    EXPECT_TRUE(firstLock.expired()) << "each activation makes a fresh passcode screen";

    dynamic_cast<LoginViewController*>(root())->performShowMainView();
    EXPECT_NE(dynamic_cast<TabBarController*>(root()), nullptr);
}
TEST_F(AppDelegateTest, TerminationSavesWhatIsPending)
{
    m_delegate.managedObjectContext();
    const auto corvel =
        std::static_pointer_cast<Corvel>(m_delegate.managedObjectContext().insertNewObject(Corvel::entityName));
    corvel->setName("Harbour A");
    m_delegate.applicationWillTerminate();
    EXPECT_FALSE(m_delegate.managedObjectContext().hasChanges());

    StoreStack::shared().close();
    const std::vector<CorvelRef> stored = RESTHandler::sharedInstance().fetchCorvels();
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(stored.front()->name(), "Harbour A");
}

} // namespace
} // namespace lodestar
