// SPDX-License-Identifier: Apache-2.0
// Every single allocation, write, sync and rename of the defaults and of a reset refused, one after the other.
#include "Application/Adapters/FileUserDefaults.h"
#include "Fleet/Registry.h"
#include "Platform/MemoryReserve.h"
#include "Simulator/SimulatorProcess.h"
#include "Tests/Application/LockFixture.h"
#include "Tests/Support/Injection.h"
#include "Tests/Support/LongRun.h"
#include "Views/Corvels/CorvelListViewController.h"

#include <random>

namespace lodestar::lock
{
namespace
{

using injection::Call;
using injection::everyKind;
using injection::Extent;
using injection::Failing;
using injection::forEachFailure;
using injection::Kind;
using injection::Threads;

class ResetFaultTest : public LockTest
{
protected:
    static void SetUpTestSuite() { MemoryReserve::install(); } // as the application does
    /// Allocations are by far the most: a few of them, and all in the long run.
    static int stepOf(Call call) { return call == Call::Allocation ? rounds(29, 1) : 1; }
    void openDefaults() const
    {
        UserDefaults::install(std::make_unique<FileUserDefaults>(folder.file("Lodestar.defaults")));
    }
    void fill() const
    {
        MemoryReserve::topUp();
        UserDefaults::install(nullptr);
        StoreStack::shared().close();
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            std::filesystem::remove_all(entry);
        }
        openDefaults();
        RESTHandler& rest = RESTHandler::sharedInstance();
        rest.setCorvelList({});
        for (const char* const number : {"0", "1"}) {
            const CorvelRef corvel = insertNewCorvel();
            corvel->setAddress("127.0.99." + std::string(number)); // nobody listens there
            corvel->setPassword("secret-password");
            rest.addCorvel(corvel);
            UserDefaults::standard().setString("secret-key", *corvel->address());
        }
        saveIgnoringErrors();
        passcode() = "secret-passcode";
        require();
        ASSERT_TRUE(UserDefaults::standard().synchronize());
    }
    void showLock()
    {
        const auto login = Storyboard::main().instantiate<LoginViewController>(Scenes::loginViewController);
        root = login;
        login->beginAppearance();
    }
    std::vector<std::string> filesWithSecrets(const std::string& secret = "secret-") const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            const std::string name = std::filesystem::relative(entry.path(), folder.path());
            if (entry.is_regular_file() && folder.read(name).find(secret) != std::string::npos) {
                names.push_back(name);
            }
        }
        return names;
    }
};

TEST_F(ResetFaultTest, DefaultsKeepTheOldFileOrHaveTheNewOne)
{
    int tries = 0;
    for (const Kind kind : everyKind) {
        tries += forEachFailure(stepOf(kind.call), [&](int number) {
            SCOPED_TRACE(::testing::Message() << "call " << number << " of kind " << static_cast<int>(kind.call));
            fill();
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
        tries += forEachFailure(stepOf(kind.call), [&](int number) {
            SCOPED_TRACE(::testing::Message() << "call " << number << " of kind " << static_cast<int>(kind.call));
            fill();
            showLock();
            bool isEnded = false;
            try {
                const Failing failing(kind, number, Threads::All);
                std::dynamic_pointer_cast<LoginViewController>(root)->resetApplicationData();
                MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(20));
            } catch (const std::bad_alloc&) {
                isEnded = true;
            }
            // The process ends, and the next one starts.
            root.reset();
            StoreStack::shared().close();
            openDefaults();
            RESTHandler::sharedInstance().setCorvelList(RESTHandler::sharedInstance().fetchCorvels());
            showLock();
            MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(20));
            if (isEnded && isRequired()) {
                EXPECT_EQ(RESTHandler::sharedInstance().corvelList().size(), 2U) << "not begun";
                return;
            }
            EXPECT_TRUE(RESTHandler::sharedInstance().corvelList().empty());
            EXPECT_FALSE(isRequired());
            UserDefaults::standard().synchronize();
            StoreStack::shared().close();
            EXPECT_THAT(filesWithSecrets(), ::testing::IsEmpty());
        });
    }
    RecordProperty("tries", tries);
}

TEST_F(ResetFaultTest, ConsolesThatAreAskedMeanwhileLeaveNothing)
{
    const simulator::SimulatorProcess fleet([] {
        simulator::Settings settings;
        settings.consoles = 3;
        return settings;
    }());
    std::mt19937 random(12); // NOLINT(cert-msc51-cpp): the same moments in every run
    const int tries = rounds(5, 100);
    for (int round = 0; round < tries; ++round) {
        SCOPED_TRACE(round);
        fill();
        RESTHandler& rest = RESTHandler::sharedInstance();
        for (int i = 0; i < fleet.consoleCount(); ++i) {
            const CorvelRef corvel = insertNewCorvel();
            corvel->setAddress(fleet.address(i));
            corvel->setUsername(fleet.user());
            corvel->setPassword(fleet.password());
            rest.addCorvel(corvel);
        }
        const auto list = Storyboard::main().instantiate<CorvelListViewController>(Scenes::corvelListView);
        list->loadViewIfNeeded();
        MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(random() % 60));
        showLock();
        std::dynamic_pointer_cast<LoginViewController>(root)->resetApplicationData();
        rest.queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().runUntil([] { return false; }, std::chrono::milliseconds(300));
        rest.queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().drain();
        UserDefaults::standard().synchronize();
        for (int i = 0; i < fleet.consoleCount(); ++i) {
            EXPECT_EQ(UserDefaults::standard().stringForKey(fleet.address(i)), std::nullopt);
        }
        root.reset();
        StoreStack::shared().close();
        EXPECT_THAT(filesWithSecrets(fleet.password()), ::testing::IsEmpty());
    }
    RecordProperty("tries", tries);
}

} // namespace
} // namespace lodestar::lock
