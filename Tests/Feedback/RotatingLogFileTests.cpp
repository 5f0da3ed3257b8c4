// SPDX-License-Identifier: Apache-2.0
#include "Feedback/RotatingLogFile.h"
#include "Tests/Support/FullDisk.h"
#include "Tests/Support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace lodestar
{

namespace
{

class RotatingLogFileTest : public testing::Test
{
protected:
    const ScratchFolder scratch;
    const std::string folder = scratch.path();
    RotatingLogFile file;
};

} // namespace

TEST_F(RotatingLogFileTest, KeepsTheYoungestFilesWithTheirHeaderAndLosesNoLineInBetween)
{
    const std::string made = scratch.file("new/logs");
    file.setHeader("H\n");
    ASSERT_TRUE(file.open(made, "log", {10, 3}));
    file.append("111\n222\n333\n444\n"); // two a file beside the header
    file.append("555\n");
    file.append("666\n777\n");
    EXPECT_EQ(scratch.read("new/logs/log"), "H\n777\n");
    EXPECT_EQ(scratch.read("new/logs/log.1"), "H\n555\n666\n");
    EXPECT_EQ(scratch.read("new/logs/log.2"), "H\n333\n444\n");
    EXPECT_FALSE(std::filesystem::exists(scratch.path() / "new/logs/log.3"));

    file.append("a line that is longer than a file\n8\n");
    EXPECT_EQ(scratch.read("new/logs/log.1"), "H\na line that is longer than a file\n");
    EXPECT_EQ(scratch.read("new/logs/log"), "H\n8\n");

    EXPECT_EQ(modeOf(made), 0700U);
    for (const char* name : {"log", "log.1", "log.2"}) {
        EXPECT_EQ(modeOf(made + "/" + name), 0600U) << name;
    }

    file.empty();
    file.append("9\n");
    EXPECT_EQ(scratch.read("new/logs/log"), "H\n9\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(made), {}), 1);
}

TEST_F(RotatingLogFileTest, GoesOnWithTheFileOfTheLastRunAndTightensItsMode)
{
    std::ofstream(scratch.path() / "log") << "whole\ncut in the mid";
    std::filesystem::permissions(scratch.path() / "log", std::filesystem::perms::all);
    file.setHeader("H\n");
    ASSERT_TRUE(file.open(folder, "log", {}));
    file.append("next\n");
    EXPECT_EQ(scratch.read("log"), "whole\ncut in the mid\nH\nnext\n");
    EXPECT_EQ(modeOf(scratch.path() / "log"), 0600U);
}

TEST_F(RotatingLogFileTest, RefusesWhatIsNoFolderOrNoFileOfItsOwn)
{
    std::ofstream(scratch.path() / "file") << "mine";
    std::filesystem::create_symlink(scratch.path() / "file", scratch.path() / "link");
    std::filesystem::create_directory(scratch.path() / "folder");
    EXPECT_FALSE(file.open((scratch.path() / "file" / "below").string(), "log", {}));
    EXPECT_FALSE(file.open(folder, "link", {}));
    EXPECT_FALSE(file.open(folder, "folder", {}));
    EXPECT_FALSE(file.isOpen());
    file.append("goes nowhere\n");
    EXPECT_EQ(scratch.read("file"), "mine");
}

TEST_F(RotatingLogFileTest, CountsWhatAFullDiskTookAndRecovers)
{
    ASSERT_TRUE(file.open(folder, "log", {}));
    {
        const test::FullDisk disk(10);
        file.append("12345678\nabc\n"); // the disk is full in the second line
        file.append("lost\n");
        EXPECT_EQ(scratch.read("log"), "12345678\na");
    }
    file.append("back\n");
    EXPECT_EQ(scratch.read("log"), "12345678\na\n(8 bytes of log could not be written)\nback\n");
}

TEST_F(RotatingLogFileTest, StartsOverWhenTheFullFileCannotBeSetAside)
{
    std::filesystem::create_directory(scratch.path() / "log.1"); // no file can be renamed to this
    ASSERT_TRUE(file.open(folder, "log", {8, 2}));
    file.append("111\n222\n333\n");
    EXPECT_EQ(scratch.read("log"), "333\n");

    std::filesystem::remove_all(scratch.path()); // the folder goes while the file is open
    file.append("444\n555\n666\n777\n");
    EXPECT_TRUE(file.isOpen());
}

} // namespace lodestar
