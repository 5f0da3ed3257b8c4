// SPDX-License-Identifier: Apache-2.0
#include "Application/Adapters/FileUserDefaults.h"
#include "Application/FeedbackSupport.h"
#include "Feedback/CrashCollector.h"
#include "Fleet/Registry.h"
#include "Kit/Core/TabBarController.h"
#include "Tests/Application/LockFixture.h"

namespace lodestar::lock
{
namespace
{

namespace fs = std::filesystem;

class ResetTest : public LockTest
{
protected:
    ResetTest()
    {
        VireoLogger::openLogFolder(folder.file("Logs"));
        UserDefaults::install(std::make_unique<FileUserDefaults>(folder.file("Lodestar.defaults")));
        RESTHandler::sharedInstance().setCorvelList(RESTHandler::sharedInstance().fetchCorvels());
    }
    ~ResetTest() override { VireoLogger::openLogFolder("/dev/null/nowhere"); }

    static CorvelRef addConsole(const std::string& address, const std::string& password)
    {
        const CorvelRef corvel = insertNewCorvel();
        corvel->setDemo(false);
        corvel->setName(address);
        corvel->setAddress(address);
        corvel->setUsername("oversight");
        corvel->setPassword(password);
        return corvel;
    }
    void fill(int consoles) const
    {
        RESTHandler& rest = RESTHandler::sharedInstance();
        for (int index = 0; index < consoles; ++index) {
            const std::string number = std::to_string(index);
            // Nobody listens there.
            rest.addCorvel(addConsole("127.0.99." + number, "secret-password-" + number));
            UserDefaults::standard().setString("secret-key-" + number, "127.0.99." + number);
        }
        saveIgnoringErrors();
        passcode() = "secret-passcode";
        KeptState::shared().setValue(QStringLiteral("window"), 1);
        require();
        ASSERT_TRUE(UserDefaults::standard().synchronize());
    }
    std::shared_ptr<LoginViewController> lockedScreen()
    {
        auto login = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
        root = login;
        login->beginAppearance();
        return login;
    }
    /// What is written late is written.
    void settle() const
    {
        MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(50));
        UserDefaults::standard().synchronize();
        KeptState::shared().synchronize();
        VireoLogger::flush();
    }
    std::map<std::string, std::string> files() const
    {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            if (entry.is_regular_file()) {
                const std::string name = fs::relative(entry.path(), folder.path());
                found[name] = folder.read(name);
            }
        }
        return found;
    }
    std::vector<std::string> filesWithSecrets() const
    {
        std::vector<std::string> names;
        for (const auto& [name, content] : files()) {
            if (content.find("secret-") != std::string::npos) {
                names.push_back(name);
            }
        }
        return names;
    }
};

TEST_F(ResetTest, LeavesNoSecretInAnyFileAndComesUpAsOnTheFirstDay)
{
    fill(40);
    ASSERT_THAT(filesWithSecrets(), ::testing::Contains("Lodestar.defaults")) << "the search itself works";
    const auto login = lockedScreen();
    login->passwordTextField()->setText("secret-attempt");
    login->performLogin();
    login->alert()->choose(0);
    // An editor that the lock took away had inserted this one, but not saved it.
    addConsole("10.0.0.1", "secret-unsaved");

    login->resetPassword();
    EXPECT_EQ(login->alert()->title(), "Reset Application?");
    EXPECT_EQ(login->alert()->message(), "Resetting your password will clear all application data");
    login->alert()->choose(1);
    EXPECT_EQ(passcode(), "secret-passcode") << "cancelled";
    login->resetPassword();
    login->alert()->choose(0);

    ASSERT_NE(dynamic_cast<TabBarController*>(root.get()), nullptr);
    EXPECT_EQ(passcode(), "");
    EXPECT_FALSE(isRequired());
    EXPECT_FALSE(UserDefaults::standard().boolForKey("showedPreview"));
    root->loadViewIfNeeded();
    ASSERT_EQ(RESTHandler::sharedInstance().corvelList().size(), 1U);
    EXPECT_EQ(RESTHandler::sharedInstance().corvelList().front()->name(), "Demo Corvel");
    settle();
    EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
    EXPECT_EQ(UserDefaults::standard().allKeys(), std::vector<std::string>{"initialLoad"});

    root.reset();
    StoreStack::shared().close();
    EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
    std::vector<std::string> names;
    for (const auto& [name, content] : files()) {
        names.push_back(name);
    }
    EXPECT_THAT(names, ::testing::UnorderedElementsAre("Lodestar.sqlite", "Lodestar.defaults", "Logs/lodestar.log"));
    // The demonstration has been refreshed, and with that saved.
    for (const CorvelRef& corvel : RESTHandler::sharedInstance().fetchCorvels()) {
        EXPECT_EQ(corvel->name(), "Demo Corvel");
    }
}

TEST_F(ResetTest, AKeychainThatRefusesDoesNotKeepTheRest)
{
    fill(2);
    const auto login = lockedScreen();
    keychain->writeFailure = Keychain::timedOut;
    login->resetApplicationData();
    settle();
    EXPECT_FALSE(isRequired());
    EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
}

TEST_F(ResetTest, AResetThatTheProcessDidNotSurviveIsFinishedBeforeAnythingIsShown)
{
    fill(3);
    const auto login = lockedScreen();
    std::string written;
    keychain->onWrite = [&] { written = folder.read("Lodestar.defaults"); };
    login->resetApplicationData();
    keychain->onWrite = nullptr;

    // The state of the disk after the first step, in a new process.
    root.reset();
    StoreStack::shared().close();
    std::ofstream(folder.file("Lodestar.defaults"), std::ios::binary) << written;
    UserDefaults::install(std::make_unique<FileUserDefaults>(folder.file("Lodestar.defaults")));
    RESTHandler::sharedInstance().setCorvelList({});
    RESTHandler::sharedInstance().addCorvel(addConsole("127.0.99.0", "secret-password-0"));
    saveIgnoringErrors();
    ASSERT_TRUE(isRequired());
    lockedScreen();
    ASSERT_NE(dynamic_cast<TabBarController*>(root.get()), nullptr);
    EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
    settle();
    EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
}

TEST_F(ResetTest, ReportsHoldNoSecretAndGoWithTheRest)
{
    fill(3);
    // Its console is gone, the key is not.
    UserDefaults::standard().setString("secret-key-orphan", "127.0.99.77");
    const auto login = lockedScreen();
    login->passwordTextField()->setText("secret-attempt");
    login->performLogin();
    login->alert()->choose(0);
    settle();
    const auto isStoreOrDefaults = ::testing::AnyOf("Lodestar.defaults", ::testing::StartsWith("Lodestar.sqlite"));
    EXPECT_THAT(filesWithSecrets(), ::testing::Each(isStoreOrDefaults)) << "after use";

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
    EXPECT_THAT(filesWithSecrets(), ::testing::Each(isStoreOrDefaults)) << "after a crash";
    for (const auto& [name, content] : files()) {
        EXPECT_THAT(content, ::testing::Not(::testing::HasSubstr("secret-passcode"))) << name;
    }

    std::ofstream(folder.file("Crashes/crash-1-2")) << "secret-password-1";
    // No secret, but where the consoles are is nothing for whoever comes next.
    LODESTAR_LOG("Tests/Application/ResetTests", "test", "no answer from 127.0.99.1");
    settle();
    std::ofstream(folder.file("Logs/lodestar.log.1")) << "no answer from 127.0.99.2";
    login->resetApplicationData();
    settle();
    EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
    for (const auto& [name, content] : files()) {
        EXPECT_THAT(content, ::testing::Not(::testing::HasSubstr("127.0.99."))) << name;
    }
    EXPECT_THAT(reports.list(), ::testing::IsEmpty());
    EXPECT_TRUE(fs::is_empty(folder.file("Reports")));
    EXPECT_TRUE(fs::is_empty(folder.file("Crashes")));
    FeedbackSupport::keepIn({});
}

} // namespace
} // namespace lodestar::lock
