// SPDX-License-Identifier: Apache-2.0
#include "Platform/NotificationCenter.h"
#include "Platform/PrivateFile.h"
#include "Platform/UtcStamp.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lodestar
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST(PrivateFile, EveryNewFolderIsPrivateAndThoseThereAreLeftUnlessTheyAreOurs)
{
    const ScratchFolder scratch;
    const std::string shared = scratch.file("shared");
    const mode_t former = ::umask(0);
    ASSERT_EQ(::mkdir(shared.c_str(), 0755), 0);
    EXPECT_TRUE(makePrivateFolder(shared + "/a/b/"));
    ::umask(former);
    EXPECT_EQ(modeOf(shared + "/a"), 0700U);
    EXPECT_EQ(modeOf(shared + "/a/b"), 0700U);
    EXPECT_TRUE(makePrivateFolder(shared));
    EXPECT_EQ(modeOf(shared), 0755U);
    EXPECT_TRUE(makePrivateFolder(shared, FolderThere::Tightened));
    EXPECT_EQ(modeOf(shared), 0700U);

    ASSERT_TRUE(writePrivateFile(shared + "/file", "mine"));
    for (const char* const path : {"/file", "/file/below"}) {
        const Result<void> made = makePrivateFolder(shared + path);
        ASSERT_FALSE(made.ok()) << path;
        EXPECT_EQ(made.error().code, ENOTDIR) << path;
    }
    EXPECT_FALSE(makePrivateFolder("").ok());
}

TEST(PrivateFile, IsNeverReplacedAndIsReadBoundedAtEitherEnd)
{
    const ScratchFolder scratch;
    const std::string path = scratch.file("kept.txt");
    ASSERT_TRUE(writePrivateFile(path, "0123456789"));
    EXPECT_EQ(modeOf(path), 0600U);
    const Result<void> again = writePrivateFile(path, "second");
    ASSERT_FALSE(again.ok());
    EXPECT_EQ(again.error().code, EEXIST);
    EXPECT_THAT(again.error().localizedDescription,
                AllOf(HasSubstr("kept.txt cannot be written"), Not(HasSubstr(scratch.path().string()))));
    EXPECT_EQ(readPrivateFile(path, 4).value(), "0123");
    EXPECT_EQ(readPrivateFile(path, 4, FilePart::End).value(), "6789");
    std::filesystem::create_symlink(path, scratch.path() / "link");
    ASSERT_EQ(::mkfifo(scratch.file("pipe").c_str(), 0600), 0);
    for (const char* const name : {"link", "pipe", "", "absent"}) {
        EXPECT_FALSE(readPrivateFile(scratch.file(name), 4).ok()) << name;
    }
}

TEST(UtcStamp, HasEveryDigitAndTellsTimesOfNoYearAsZero)
{
    EXPECT_EQ(utcStamp(1717060364), "2024-05-30T09:12:44Z");
    EXPECT_EQ(utcStamp(253402300800), "1970-01-01T00:00:00Z") << "the year 10,000";
    using namespace std::chrono;
    std::string line = "at ";
    appendUtcStamp(line, system_clock::from_time_t(1717060364) + milliseconds(7) + microseconds(999));
    appendUtcStamp(line, system_clock::from_time_t(0) - milliseconds(1));
    EXPECT_EQ(line, "at 2024-05-30T09:12:44.007Z1969-12-31T23:59:59.999Z");
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
    center.postNotification("change");
    EXPECT_THAT(calls, testing::ElementsAre("changer", "nested", "leaving", "changer", "coming"));
}

TEST(ErrorTests, DescriptionsLeaveOutWhatIsEmptyAndAlwaysTellSomething)
{
    const auto below = std::make_shared<const Error>(Error{"ObjectStore", 11, "malformed", "", nullptr});
    EXPECT_EQ(description({"URLError", -3, "Timed\nout", "idle\r\nfor long", below}),
              "URLError -3: Timed out (idle  for long; underlying: ObjectStore 11: malformed)");
    const std::string failed = "The operation couldn\u2019t be completed. ";
    EXPECT_EQ(shownDescription({"RXPromise", -1000, {}, {}, nullptr}), failed + "(RXPromise error -1000.)");
    EXPECT_EQ(shownDescription({"RXPromise", -1000, {}, "No answer.", nullptr}), failed + "No answer.");
    EXPECT_EQ(shownDescription({"URLError", -1001, "It timed out.", "why", nullptr}), "It timed out.");
}

} // namespace lodestar
