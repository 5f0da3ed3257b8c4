// SPDX-License-Identifier: Apache-2.0
#include "Application/FeedbackSupport.h"
#include "Feedback/CrashCollector.h"
#include "Fleet/History.h"
#include "Tests/Application/ResetFixture.h"

namespace lodestar::lock
{
namespace
{

namespace fs = std::filesystem;

class ResetTest : public ResetFixture
{
protected:
    ResetTest()
    {
        openDefaults();
        RESTHandler::sharedInstance().setCorvelList(RESTHandler::sharedInstance().fetchCorvels());
    }

    ~ResetTest() override { History::shared().close(); }

    /// A history that names these consoles. They went offline after their first reading.
    static void fillHistory(const std::string& folder)
    {
        openHistory(folder);
        Reading reading;
        for (const auto outcome : {Reading::Outcome::Complete, Reading::Outcome::Offline}) {
            reading.outcome = outcome;
            for (const CorvelRef& corvel : RESTHandler::sharedInstance().corvelList()) {
                corvel->setName("secret-name");
                History::shared().add(corvel, std::make_shared<const Reading>(reading), nullptr);
            }
        }
        History::shared().setSetting("watch", "secret-address");
        bool written = false;
        History::shared().whenWritten([&written] { written = true; });
        MainQueue::shared().runUntil([&written] { return written; }, std::chrono::seconds(20));
    }

    /// What is written late is written.
    static void settle()
    {
        runMainQueue(50);
        UserDefaults::standard().synchronize();
        KeptState::shared().synchronize();
        VireoLogger::flush();
    }
};

TEST_F(ResetTest, LeavesNoSecretInAnyFileAndComesUpAsOnTheFirstDay)
{
    fill(40);
    fillHistory(folder.path());
    ASSERT_THAT(filesWith("secret-"), ::testing::Contains("Lodestar.defaults")) << "the search itself works";
    ASSERT_THAT(filesWith("secret-name"), ::testing::Contains(::testing::StartsWith("History.sqlite")));
    LoginViewController& login = showLogin();
    logInWith("secret-attempt");
    login.alert()->choose(0);
    // An editor that the lock took away had inserted this one, but not saved it.
    addConsole("10.0.0.1", "overseer", "secret-unsaved");

    login.resetPassword();
    EXPECT_EQ(login.alert()->title(), "Reset Application?");
    EXPECT_EQ(login.alert()->message(), "Resetting your password will clear all application data");
    login.alert()->choose(1);
    EXPECT_EQ(passcode(), "secret-passcode") << "cancelled";
    login.resetPassword();
    login.alert()->choose(0);

    ASSERT_TRUE(isUnlocked());
    EXPECT_EQ(passcode(), "");
    EXPECT_FALSE(isRequired());
    EXPECT_FALSE(UserDefaults::standard().boolForKey("showedPreview"));
    root->loadViewIfNeeded();
    ASSERT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().front()->name(), "Demo Corvel");
    settle();
    EXPECT_THAT(filesWith("secret-"), ::testing::IsEmpty());
    EXPECT_EQ(UserDefaults::standard().allKeys(), std::vector<std::string>{"initialLoad"});
    EXPECT_THAT(KeptState::shared().allKeys(), ::testing::IsEmpty());
    EXPECT_EQ(History::shared().setting("watch"), std::nullopt);

    root.reset();
    StoreStack::shared().close();
    EXPECT_THAT(filesWith("secret-"), ::testing::IsEmpty());
}

TEST_F(ResetTest, AResetThatTheProcessDidNotSurviveIsFinishedBeforeAnythingIsShown)
{
    fill(3);
    std::string written;
    keychain->onWrite = [&] { written = folder.read("Lodestar.defaults"); };
    showLogin().resetApplicationData();
    keychain->onWrite = nullptr;

    // The state of the disk after the first step, in a new process.
    root.reset();
    StoreStack::shared().close();
    UserDefaults::install(nullptr);
    std::ofstream(folder.file("Lodestar.defaults"), std::ios::binary) << written;
    openDefaults();
    RESTHandler::sharedInstance().setCorvelList({});
    RESTHandler::sharedInstance().addCorvel(addConsole("127.0.99.0", "overseer", "secret-password-0"));
    saveIgnoringErrors();
    ASSERT_TRUE(isRequired());
    showLogin();
    EXPECT_TRUE(isUnlocked());
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
    settle();
    EXPECT_THAT(filesWith("secret-"), ::testing::IsEmpty());
}

TEST_F(ResetTest, ReportsHoldNoSecretAndGoWithTheRest)
{
    fill(3);
    // Its console is gone, the key is not.
    UserDefaults::standard().setString("secret-key-orphan", "127.0.99.77");
    LoginViewController& login = showLogin();
    logInWith("secret-attempt");
    login.alert()->choose(0);
    settle();
    const auto isStoreOrDefaults = ::testing::AnyOf("Lodestar.defaults", ::testing::StartsWith("Lodestar.sqlite"));
    EXPECT_THAT(filesWith("secret-"), ::testing::Each(isStoreOrDefaults)) << "after use";

    // The worst that a crash can tell: what was thrown, and lines of the log that should never have been written.
    FeedbackSupport::keepIn(QString::fromStdString(folder.path()));
    fs::create_directory(folder.file("Crashes"));
    std::ofstream(folder.file("Crashes/crash-1-1")) << "crash file 1\nversion 1.0.0\nsession s\nsignal 6\ntime 1\n"
                                                       "exception what: secret-password-1\n"
                                                       "PUT secret%2Dpassword-2 X-API-Session: secret-key-0\n"
                                                       "secret-key-orphan\n\nframes\nframe 1\n";
    const ReportStore reports(folder.file("Reports"));
    ASSERT_EQ(collectCrashes({folder.file("Crashes"), folder.file("Logs"), FeedbackSupport::secretsInUse()}, reports),
              1);
    EXPECT_THAT(filesWith("secret-"), ::testing::Each(isStoreOrDefaults)) << "after a crash";
    EXPECT_THAT(filesWith("secret-passcode"), ::testing::IsEmpty());

    std::ofstream(folder.file("Crashes/crash-1-2")) << "secret-password-1";
    // No secret, but where the consoles are is nothing for whoever comes next.
    LODESTAR_LOG("Tests/Application/ResetTests", "test", "no answer from 127.0.99.1");
    settle();
    std::ofstream(folder.file("Logs/lodestar.log.1")) << "no answer from 127.0.99.2";
    keychain->writeFailure = Keychain::timedOut; // which must not keep the rest
    login.resetApplicationData();
    settle();
    EXPECT_FALSE(isRequired());
    EXPECT_THAT(filesWith("secret-"), ::testing::IsEmpty());
    EXPECT_THAT(filesWith("127.0.99."), ::testing::IsEmpty());
    EXPECT_THAT(reports.list(), ::testing::IsEmpty());
    EXPECT_TRUE(fs::is_empty(folder.file("Reports")));
    EXPECT_TRUE(fs::is_empty(folder.file("Crashes")));
    FeedbackSupport::keepIn({});
}

} // namespace
} // namespace lodestar::lock
