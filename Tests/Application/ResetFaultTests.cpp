// SPDX-License-Identifier: Apache-2.0
// Every single allocation, write, sync and rename of the defaults and of a reset refused, one after the other.
#include "Platform/MemoryReserve.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Application/ResetFixture.h"
#include "Tests/Support/Injection.h"
#include "Tests/Support/LongRun.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <random>

namespace lodestar::lock
{
namespace
{

using injection::everyKind;
using injection::Extent;
using injection::Failing;
using injection::forEachFailure;
using injection::Kind;
using injection::Threads;

class ResetFaultTest : public ResetFixture
{
protected:
    static void SetUpTestSuite() { MemoryReserve::install(); } // as the application does
    /// The log's thread would make calls of its own.
    ResetFaultTest() { VireoLogger::openLogFolder("/dev/null/nowhere"); }
    /// A few allocations, and all in the long run.
    static inline const int step = rounds(29, 1);
    void startAnew() const
    {
        MemoryReserve::topUp();
        UserDefaults::install(nullptr);
        StoreStack::shared().close();
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            std::filesystem::remove_all(entry);
        }
        openDefaults();
        RESTHandler::sharedInstance().setCorvelList({});
        fill(2);
    }
};

TEST_F(ResetFaultTest, DefaultsKeepTheOldFileOrHaveTheNewOne)
{
    int tries = 0;
    for (const Kind kind : everyKind) {
        tries += forEachFailure(kind, step, [&](int number) {
            startAnew();
            const std::string before = folder.read("Lodestar.defaults");
            {
                const Failing failing(kind, number, Threads::All);
                UserDefaults::standard().setString("secret-key-2", "127.0.99.2");
                UserDefaults::standard().synchronize();
            }
            const std::string after = folder.read("Lodestar.defaults");
            if (after.find("secret-key-2") == std::string::npos) {
                EXPECT_EQ(after, before);
            }
            EXPECT_EQ(UserDefaults::standard().stringForKey("127.0.99.2"), "secret-key-2");
            EXPECT_TRUE(UserDefaults::standard().synchronize());
            EXPECT_EQ(FileUserDefaults(folder.file("Lodestar.defaults")).stringForKey("127.0.99.2"), "secret-key-2");
        });
    }
    RecordProperty("tries", tries);
}

TEST_F(ResetFaultTest, AResetIsFinishedByTheNextStartAtTheLatest)
{
    int tries = 0;
    for (const Kind kind : everyKind) {
        if (kind.extent == Extent::Lasting) {
            continue; // nothing can be reset on a disk that takes nothing
        }
        tries += forEachFailure(kind, step, [&](int number) {
            startAnew();
            LoginViewController& login = showLogin();
            bool isEnded = false;
            try {
                const Failing failing(kind, number, Threads::All);
                login.resetApplicationData();
                runMainQueue(20);
            } catch (const std::bad_alloc&) {
                isEnded = true;
            }
            // The process ends, and the next one starts.
            root.reset();
            StoreStack::shared().close();
            openDefaults();
            RESTHandler::sharedInstance().setCorvelList(RESTHandler::sharedInstance().fetchCorvels());
            showLogin();
            runMainQueue(20);
            if (isEnded && isRequired()) {
                EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 2U) << "not begun";
                return;
            }
            EXPECT_TRUE(isUnlocked());
            EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
            EXPECT_FALSE(isRequired());
            UserDefaults::standard().synchronize();
            StoreStack::shared().close();
            EXPECT_THAT(filesWith("secret-"), ::testing::IsEmpty());
        });
    }
    RecordProperty("tries", tries);
}

TEST_F(ResetFaultTest, ConsolesThatAreAskedMeanwhileLeaveNothing)
{
    const simulator::SimulatorProcess fleet({.consoles = 3});
    std::mt19937 random(12); // NOLINT(cert-msc51-cpp): the same moments in every run
    const int tries = rounds(5, 100);
    for (int round = 0; round < tries; ++round) {
        SCOPED_TRACE(round);
        startAnew();
        RESTHandler& rest = RESTHandler::sharedInstance();
        for (int i = 0; i < fleet.consoleCount(); ++i) {
            rest.addCorvel(addConsole(fleet.address(i), fleet.user(), fleet.password()));
        }
        const auto list = Storyboard::main().instantiate<CorvelListViewController>(Scenes::corvelListView);
        list->loadViewIfNeeded();
        runMainQueue(static_cast<int>(random() % 60));
        showLogin().resetApplicationData();
        rest.queue().waitUntilAllOperationsAreFinished();
        runMainQueue(300);
        rest.queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().drain();
        UserDefaults::standard().synchronize();
        for (int i = 0; i < fleet.consoleCount(); ++i) {
            EXPECT_EQ(UserDefaults::standard().stringForKey(fleet.address(i)), std::nullopt);
        }
        root.reset();
        StoreStack::shared().close();
        EXPECT_THAT(filesWith(fleet.password()), ::testing::IsEmpty());
    }
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar::lock
