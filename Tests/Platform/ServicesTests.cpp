// SPDX-License-Identifier: Apache-2.0
#include "Platform/FolderLock.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Resources.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Support/StoredPassword.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace lodestar
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(Services, DefaultsKeepTheirKindsApartAndForgetWhatIsRemoved)
{
    UserDefaults::install(nullptr);
    UserDefaults& defaults = UserDefaults::standard();
    EXPECT_FALSE(defaults.boolForKey("requirePassword"));
    EXPECT_EQ(defaults.stringForKey("a/b\\c//d"), std::nullopt);
    defaults.setBool(true, "requirePassword");
    defaults.setString("", "a/b\\c//d");
    EXPECT_TRUE(defaults.boolForKey("requirePassword"));
    EXPECT_EQ(defaults.stringForKey("a/b\\c//d"), "");
    EXPECT_EQ(defaults.stringForKey("requirePassword"), std::nullopt);
    EXPECT_FALSE(defaults.boolForKey("a/b\\c//d"));
    EXPECT_THAT(defaults.allKeys(), UnorderedElementsAre("requirePassword", "a/b\\c//d"));

    defaults.setString("yes", "requirePassword"); // the last write decides the kind
    EXPECT_FALSE(defaults.boolForKey("requirePassword"));
    defaults.removeObjectForKey("requirePassword");
    defaults.removeObjectForKey("never there");
    EXPECT_THAT(defaults.allKeys(), ElementsAre("a/b\\c//d"));
    UserDefaults::install(nullptr);
    EXPECT_THAT(UserDefaults::standard().allKeys(), IsEmpty());
}

TEST(Services, DefaultsMayBeUsedFromManyThreads)
{
    UserDefaults::install(nullptr);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (int round = 0; round < 500; ++round) {
                const std::string key = std::to_string(thread) + "/" + std::to_string(round % 50);
                UserDefaults::standard().setString(key, key);
                EXPECT_EQ(UserDefaults::standard().stringForKey(key), key);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(UserDefaults::standard().allKeys().size(), 200U);
    UserDefaults::install(nullptr);
}

TEST(Services, AFolderIsClaimedOnceAndGivenBackWhenItsProcessEnds)
{
    const ScratchFolder folder;
    const pid_t other = ::fork();
    if (other == 0) {
        const bool ours = claimFolder(folder.path()) == FolderClaim::Ours;
        ::_exit(ours && claimFolder(folder.path()) == FolderClaim::Taken ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0) << "the first to come, and no second";
    EXPECT_EQ(claimFolder(folder.path()), FolderClaim::Ours);
    EXPECT_EQ(claimFolder(folder.file("no such folder")), FolderClaim::Ours);
}

TEST(Services, ALinkIsNoLockAndAFolderOfSomebodyElseIsNotClaimed)
{
    const ScratchFolder folder;
    std::ofstream(folder.file("elsewhere")) << "of another program";
    ASSERT_EQ(::symlink(folder.file("elsewhere").c_str(), folder.file("Lodestar.lock").c_str()), 0);
    EXPECT_EQ(claimFolder(folder.path()), FolderClaim::NoLock);
    ASSERT_EQ(::unlink(folder.file("Lodestar.lock").c_str()), 0);
    ASSERT_EQ(::mkfifo(folder.file("Lodestar.lock").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(claimFolder(folder.path()), FolderClaim::NoLock);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(folder.path().c_str(), 1, 1), 0);
    }
    EXPECT_EQ(claimFolder(::geteuid() == 0 ? folder.path() : "/"), FolderClaim::Foreign);
}

TEST(Services, KeychainTellsItemsApartByServiceAndAccount)
{
    Keychain::install(nullptr);
    using test::readPassword;
    using test::writePassword;
    EXPECT_EQ(readPassword("Login", "Admin").value(), "");
    EXPECT_TRUE(writePassword("1234", "Login", "Admin"));
    EXPECT_TRUE(writePassword("other", "LoginA", "dmin"));
    EXPECT_EQ(readPassword("Login", "Admin").value(), "1234");
    EXPECT_TRUE(writePassword("", "Login", "Admin"));
    EXPECT_EQ(readPassword("Login", "Admin").value(), "");
    EXPECT_EQ(readPassword("LoginA", "dmin").value(), "other");
    Keychain::install(nullptr);
}

TEST(Services, ObserversRunInOrderOnlyForTheirNameAndOnlyWhileObserving)
{
    NotificationCenter& center = NotificationCenter::defaultCenter();
    std::vector<int> calls;
    auto first = center.addObserver("StatusWillShow", [&] { calls.push_back(1); });
    auto second = center.addObserver("StatusWillShow", [&] { calls.push_back(2); });
    const auto other = center.addObserver("StatusShouldHide", [&] { calls.push_back(3); });
    EXPECT_TRUE(first);
    center.postNotification("StatusWillShow");
    center.postNotification("nobody listens");
    EXPECT_THAT(calls, ElementsAre(1, 2));
    first.reset();
    center.postNotification("StatusWillShow");
    EXPECT_THAT(calls, ElementsAre(1, 2, 2));
    second.reset();
    center.postNotification("StatusWillShow");
    center.postNotification("StatusShouldHide");
    EXPECT_THAT(calls, ElementsAre(1, 2, 2, 3));
}

TEST(Services, ObserversThatComeAndGoWhileANotificationIsPostedCountFromTheNext)
{
    NotificationCenter& center = NotificationCenter::defaultCenter();
    std::vector<std::string> calls;
    NotificationCenter::Observation leaving;
    NotificationCenter::Observation coming;
    NotificationCenter::Observation self;
    const auto changer = center.addObserver("change", [&] {
        calls.emplace_back("changer");
        leaving.reset();
        if (!coming) {
            coming = center.addObserver("change", [&] { calls.emplace_back("coming"); });
            center.postNotification("nested");
        }
    });
    leaving = center.addObserver("change", [&] { calls.emplace_back("leaving"); });
    self = center.addObserver("change", [&] { self.reset(); });
    const auto nested = center.addObserver("nested", [&] { calls.emplace_back("nested"); });
    center.postNotification("change");
    EXPECT_THAT(calls, ElementsAre("changer", "nested", "leaving"));
    calls.clear();
    center.postNotification("change");
    EXPECT_THAT(calls, ElementsAre("changer", "coming"));
}

TEST(Services, FolderResourcesReadWholeFilesOfTheTopLevelOnly)
{
    EXPECT_EQ(Resources::main().contents("ManagedSystem", "xml"), std::nullopt);

    const ScratchFolder scratch;
    const std::filesystem::path& folder = scratch.path();
    const std::string bytes("a\0b\r\n\xff", 6);
    std::ofstream(folder / "ManagedSystem.xml", std::ios::binary) << bytes;
    std::ofstream(folder / "plain") << "";
    std::filesystem::create_directory(folder / "sub.xml");
    std::filesystem::create_directory(folder / "inner");
    std::ofstream(folder / "inner" / "file.xml") << "x";

    Resources::install(makeFolderResources((folder / "").string()));
    const Resources& resources = Resources::main();
    EXPECT_EQ(resources.contents("ManagedSystem", "xml"), bytes);
    EXPECT_EQ(resources.contents("plain", ""), "");
    for (const char* name : {"sub", "missing", "inner/file", "../x", ""}) {
        EXPECT_EQ(resources.contents(name, "xml"), std::nullopt) << name;
    }
    EXPECT_THAT(resources.filesInFolder("inner").value(), ::testing::ElementsAre("file.xml"));
    EXPECT_EQ(resources.contentsInFolder("inner", "file.xml"), "x");
    for (const char* name : {"missing", "plain", "..", ".", "", "inner/.."}) {
        EXPECT_EQ(resources.filesInFolder(name), std::nullopt) << name;
        EXPECT_EQ(resources.contentsInFolder(name, "file.xml"), std::nullopt) << name;
    }
    EXPECT_EQ(resources.contentsInFolder("inner", "../plain"), std::nullopt);
    Resources::install(nullptr);
    EXPECT_EQ(Resources::main().filesInFolder("inner"), std::nullopt);
    std::filesystem::remove_all(folder);
}

} // namespace lodestar
