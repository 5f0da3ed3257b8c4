// SPDX-License-Identifier: Apache-2.0
#include "Feedback/ReportStore.h"
#include "Tests/Support/FullDisk.h"
#include "Tests/Support/ScratchFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace lodestar
{

using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

namespace fs = std::filesystem;

ReportBundle sample(const std::string& made = "2024-05-30T09:12:44Z")
{
    ReportBundle bundle;
    bundle.made = made;
    bundle.version = "1.0";
    bundle.system = "a system\nKind: crash"; // keeps to its line
    bundle.session = "00ff";
    bundle.note = "Two lines,\n\nan empty one between: \xE2\x82\xAC";
    bundle.log = "a line\n";
    bundle.picture = std::string("\x89PNG\0\r\n", 7);
    return bundle;
}

class ReportStoreTest : public testing::Test
{
protected:
    std::vector<std::string> entries() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_store.folder())) {
            names.push_back(entry.path().filename());
        }
        return names;
    }

    ScratchFolder m_folder;
    ReportStore m_store{m_folder.file("Reports")};
};

} // namespace

TEST_F(ReportStoreTest, WhatIsKeptIsReadBackAndIsNobodyElses)
{
    const std::string identifier = m_store.save(sample()).value();
    ReportBundle read = m_store.read(identifier).value();
    EXPECT_EQ(read.identifier, identifier);
    EXPECT_EQ(std::exchange(read.system, sample().system), "a system\\nKind: crash");
    EXPECT_EQ(sentText(read), sentText(sample()));
    EXPECT_EQ(read.picture, sample().picture);
    EXPECT_EQ(modeOf(m_store.folder()), 0700U);
    EXPECT_EQ(modeOf(m_store.folder() + "/" + identifier), 0700U);
    EXPECT_EQ(modeOf(m_store.folder() + "/" + identifier + "/picture.png"), 0600U);
    // What is shown before it is sent is what is in it.
    for (const std::string& part : {sample().note, sample().log, std::string("picture.png: 7 bytes")}) {
        EXPECT_THAT(sentText(read), HasSubstr(part));
    }
    EXPECT_TRUE(m_store.remove(identifier).ok());
    EXPECT_THAT(entries(), testing::IsEmpty());
    EXPECT_FALSE(m_store.read(identifier).ok());
    EXPECT_FALSE(m_store.remove(identifier).ok());
}

TEST_F(ReportStoreTest, NothingOutsideTheFolderIsReachedDamageIsPassedOverAndWhatADeadRunLeftIsSweptAway)
{
    const std::string identifier = m_store.save(sample()).value();
    fs::create_directories(m_store.folder() + "/20240101-damaged");
    fs::create_directory_symlink("/etc", m_store.folder() + "/20240101-link");
    fs::remove(m_store.folder() + "/" + identifier + "/log.txt");
    fs::create_symlink("/etc/passwd", m_store.folder() + "/" + identifier + "/log.txt");
    EXPECT_THAT(m_store.list(), ElementsAre(testing::Field(&Report::identifier, identifier)));
    EXPECT_EQ(m_store.read(identifier).value().log, "");
    for (const std::string name : {"..", ".", "", "../Reports", "20240101-link"}) {
        EXPECT_FALSE(m_store.read(name).ok()) << name;
    }
    EXPECT_FALSE(m_store.remove("..").ok());

    const std::string mine = ".unfinished-" + std::to_string(::getpid()) + "-1";
    fs::create_directories(m_store.folder() + "/.unfinished-999999999-1/inner");
    fs::create_directories(m_store.folder() + "/" + mine);
    EXPECT_THAT(m_store.list(), testing::SizeIs(1));
    m_store.sweep();
    EXPECT_THAT(entries(), testing::UnorderedElementsAre(identifier, mine, "20240101-damaged", "20240101-link"));
}

TEST_F(ReportStoreTest, AFullDiskLeavesNothingHalfAndTakesNothingThatWasThere)
{
    const std::string before = m_store.save(sample()).value();
    ReportBundle large = sample();
    large.picture.assign(300'000, 'p');
    {
        const test::FullDisk disk(100'000);
        const Result<std::string> saved = m_store.save(large);
        ASSERT_FALSE(saved.ok());
        EXPECT_EQ(saved.error().code, EFBIG);
        EXPECT_THAT(saved.error().localizedDescription, HasSubstr("cannot be written"));
    }
    EXPECT_THAT(entries(), ElementsAre(before));
    EXPECT_TRUE(m_store.save(large).ok());
    {
        const test::FullDisk disk(10);
        EXPECT_FALSE(m_store.exportTo(before, m_folder.file("out")).ok());
    }
    EXPECT_TRUE(fs::is_empty(m_folder.file("out")));
}

TEST_F(ReportStoreTest, ThereIsAnEndToReportsAndPeoplesOwnAreNotDroppedForCrashes)
{
    const ReportStore store(m_folder.file("Few"), {.feedback = 2, .crashes = 2, .bytes = 10'000});
    ASSERT_TRUE(store.save(sample("2024-01-01T00:00:00Z")).ok());
    ReportBundle crash = sample("2024-01-02T00:00:00Z");
    crash.kind = Report::Kind::Crash;
    const std::string first = store.save(crash).value();
    crash.made = "2024-01-03T00:00:00Z";
    const std::string second = store.save(crash).value();
    store.keep(second);
    EXPECT_THAT(store.unanswered(), ElementsAre(testing::Field(&Report::identifier, first)));
    crash.made = "2024-01-04T00:00:00Z";
    const std::string third = store.save(crash).value();
    EXPECT_FALSE(store.read(first).ok());
    ASSERT_TRUE(store.save(sample("2024-01-05T00:00:00Z")).ok());
    EXPECT_FALSE(store.save(sample("2024-01-06T00:00:00Z")).ok());
    std::vector<std::string> made;
    for (const Report& report : store.list()) {
        made.push_back(report.made.substr(0, 10));
    }
    EXPECT_THAT(made, ElementsAre("2024-01-05", "2024-01-04", "2024-01-03", "2024-01-01"));
    crash.log.assign(10'001, 'l');
    EXPECT_FALSE(store.save(crash).ok());
    EXPECT_TRUE(store.read(third).ok());
}

TEST_F(ReportStoreTest, AnArchiveOpensElsewhereAndReplacesNothing)
{
    const std::string identifier = m_store.save(sample()).value();
    const std::string path = m_store.exportTo(identifier, m_folder.file("out")).value();
    const std::string again = m_store.exportTo(identifier, m_folder.file("out")).value();
    EXPECT_NE(path, again);
    EXPECT_EQ(modeOf(path), 0600U);
    // Another implementation checks the sums and lists what is in it.
    const std::string command = "python3 -c \"import sys, zipfile\n"
                                "archive = zipfile.ZipFile(sys.argv[1])\n"
                                "assert archive.testzip() is None\n"
                                "names = sorted(name.split('/')[1] for name in archive.namelist())\n"
                                "assert names == ['log.txt', 'picture.png', 'report.txt'], names\n"
                                "assert b'an empty one' in archive.read(archive.namelist()[0])\" '" +
                                path + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
}

} // namespace lodestar
