// SPDX-License-Identifier: Apache-2.0
#include "Platform/PrivateFile.h"
#include "Platform/UtcStamp.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <limits>
#include <sys/stat.h>

namespace lodestar
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

mode_t modeOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
}

} // namespace

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

TEST(PrivateFile, NoFileIsReplacedAndAnErrorNamesTheFileAloneWithoutItsFolders)
{
    const ScratchFolder scratch;
    const std::string path = scratch.file("kept.txt");
    const mode_t former = ::umask(0);
    ASSERT_TRUE(writePrivateFile(path, "first"));
    ::umask(former);
    EXPECT_EQ(modeOf(path), 0600U);
    const Result<void> again = writePrivateFile(path, "second");
    ASSERT_FALSE(again.ok());
    EXPECT_EQ(again.error().code, EEXIST);
    EXPECT_EQ(again.error().domain, fileErrorDomain);
    EXPECT_THAT(again.error().localizedDescription,
                AllOf(HasSubstr("kept.txt cannot be written"), Not(HasSubstr(scratch.path().string()))));
    EXPECT_EQ(scratch.read("kept.txt"), "first");

    const Result<std::string> absent = readPrivateFile(scratch.file("absent.txt"), 10);
    ASSERT_FALSE(absent.ok());
    EXPECT_EQ(absent.error().code, ENOENT);
    EXPECT_THAT(absent.error().localizedDescription, HasSubstr("absent.txt cannot be read"));
}

TEST(PrivateFile, AReadIsBoundedAtEitherEndAndOfRegularFilesOnly)
{
    const ScratchFolder scratch;
    const std::string path = scratch.file("file");
    ASSERT_TRUE(writePrivateFile(path, "0123456789"));
    ASSERT_TRUE(writePrivateFile(scratch.file("empty"), {}));
    EXPECT_EQ(readPrivateFile(path, 4).value(), "0123");
    EXPECT_EQ(readPrivateFile(path, 4, FilePart::End).value(), "6789");
    EXPECT_EQ(readPrivateFile(path, 100).value(), "0123456789");
    EXPECT_EQ(readPrivateFile(path, 100, FilePart::End).value(), "0123456789");
    EXPECT_EQ(readPrivateFile(scratch.file("empty"), 4, FilePart::End).value(), "");

    std::filesystem::create_symlink(path, scratch.path() / "link");
    ASSERT_EQ(::mkfifo(scratch.file("pipe").c_str(), 0600), 0);
    for (const char* const name : {"link", "pipe", ""}) {
        EXPECT_FALSE(readPrivateFile(scratch.file(name), 4).ok()) << name;
    }
}

TEST(UtcStamp, HasEveryDigitAndTellsTimesOfNoYearAsZero)
{
    EXPECT_EQ(utcStamp(1717060364), "2024-05-30T09:12:44Z");
    EXPECT_EQ(utcStamp(-1), "1969-12-31T23:59:59Z");
    EXPECT_EQ(utcStamp(253402300799), "9999-12-31T23:59:59Z");
    for (const std::time_t outside : {std::time_t{253402300800}, std::numeric_limits<std::time_t>::max(),
                                      std::numeric_limits<std::time_t>::min()}) {
        EXPECT_EQ(utcStamp(outside), "1970-01-01T00:00:00Z") << outside;
    }

    using namespace std::chrono;
    std::string line = "at ";
    appendUtcStamp(line, system_clock::from_time_t(1717060364) + milliseconds(7) + microseconds(999));
    appendUtcStamp(line, system_clock::from_time_t(0) - milliseconds(1));
    EXPECT_EQ(line, "at 2024-05-30T09:12:44.007Z1969-12-31T23:59:59.999Z");
}

} // namespace lodestar
