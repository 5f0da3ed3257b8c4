// SPDX-License-Identifier: Apache-2.0
#include "Platform/FolderLock.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Resources.h"
#include "Platform/UserDefaults.h"
#include "Tests/Support/ScratchFolder.h"
#include "Tests/Support/StoredPassword.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace lodestar
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
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
} // namespace lodestar
