// SPDX-License-Identifier: Apache-2.0
// What becomes of the history when its file, its disk or its process fails.
#include "Tests/Fleet/HistoryFixture.h"
#include "Tests/Support/FullDisk.h"
#include "Tests/Support/LongRun.h"

#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lodestar::test
{
namespace
{

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class HistoryFaultTests : public HistoryFixture
{
protected:
    void open() { keeper->open(folder); }
    SQLite::Database plain() const { return {folder / "History.sqlite", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE}; }
};

TEST_F(HistoryFaultTests, AKillLosesAtMostTheRunningReading)
{
    HandMadeConsole console("a");
    read(console, "state 0");
    keeper->close();
    std::mt19937 random(20);
    const int tries = rounds(25, 500);
    int state = 0;
    for (int round = 0; round < tries; ++round) {
        std::array<int, 2> acknowledgements{};
        ASSERT_EQ(::pipe(acknowledgements.data()), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            open();
            for (int i = state + 1;; ++i) {
                read(console, "state " + std::to_string(i));
                if (::write(acknowledgements[1], &i, sizeof i) != sizeof i) {
                    ::_exit(2);
                }
            }
        }
        ::close(acknowledgements[1]);
        int last = state;
        const int until = state + std::uniform_int_distribution(1, 40)(random);
        while (last < until && ::read(acknowledgements[0], &last, sizeof last) == sizeof last) {
        }
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        while (::read(acknowledgements[0], &last, sizeof last) == sizeof last) {
        }
        ::close(acknowledgements[0]);
        open();
        ASSERT_NE(keeper->memoryOf("a.example"), nullptr);
        const std::string known = keeper->memoryOf("a.example")->objects.begin()->second.state;
        EXPECT_THAT(known, AnyOf("state " + std::to_string(last), "state " + std::to_string(last + 1)));
        state = std::stoi(known.substr(6));
        const auto words = states();
        ASSERT_THAT(words, SizeIs(static_cast<std::size_t>(state)));
        EXPECT_EQ(words.front(), known) << "the change and the memory are written together";
        console.reading.ended = keeper->changes().changes.front().seen;
        keeper->close();
        EXPECT_EQ(plain().execAndGet("PRAGMA integrity_check").getString(), "ok");
    }
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(HistoryFaultTests, ADamagedFileIsSetAsideAndNeverStopsTheStart)
{
    std::vector<HandMadeConsole> consoles;
    for (int i = 0; i < 20; ++i) {
        read(consoles.emplace_back("console " + std::to_string(i)), "operating");
        read(consoles.back(), "error");
    }
    keeper->close();
    const std::string whole = scratch.read("Documents/History.sqlite");
    std::mt19937 random(7);
    int aside = 0;
    const int tries = rounds(150, 3000);
    for (int round = 0; round < tries; ++round) {
        SCOPED_TRACE(round);
        std::filesystem::remove_all(folder);
        std::filesystem::create_directory(folder);
        std::string bytes = whole;
        if (round < 4) {
            bytes.resize(std::array<std::size_t, 4>{0, 50, 4096, 10'000}.at(static_cast<std::size_t>(round)));
        }
        for (int i = 0; i < 8 && round >= 4; ++i) {
            const std::size_t at = random() % bytes.size();
            bytes[random() % 2 == 0 ? at : at / 4096 * 4096 + at % 120] = static_cast<char>(random() % 256);
        }
        write("History.sqlite", bytes);
        write("History.damaged.sqlite-wal", "of an earlier one");
        log.clear();
        open();
        // Now, or when it is met: then what is known in memory is written anew.
        for (HandMadeConsole& console : consoles) {
            read(console, "operating");
            read(console, "error");
        }
        EXPECT_GE(keeper->changes().changes.size(), consoles.size());
        if (log.size() == 1 && log.front().find("incompatible") != std::string::npos) {
            keeper->close(); // the damage made it one of another version, as far as anybody can tell
            continue;
        }
        const bool wasSetAside = keeper->wasSetAside();
        if (wasSetAside) {
            ++aside;
            EXPECT_THAT(log, ElementsAre(HasSubstr("damaged and was set aside")));
            EXPECT_TRUE(std::filesystem::exists(folder / "History.damaged.sqlite"));
            EXPECT_FALSE(std::filesystem::exists(folder / "History.damaged.sqlite-wal"));
        }
        keeper->close();
        open();
        EXPECT_EQ(keeper->wasSetAside(), wasSetAside) << "a later run says so, too";
        EXPECT_GE(keeper->changes().changes.size(), consoles.size());
        keeper->close();
    }
    EXPECT_GT(aside, tries / 4);
}

TEST_F(HistoryFaultTests, AFileThatCannotBeWrittenLeavesTheHistoryInMemoryUntilItCan)
{
    HandMadeConsole console("a");
    read(console, "0");
    {
        const FullDisk full(0);
        for (int i = 1; i <= 50; ++i) {
            read(console, std::to_string(i));
        }
        keeper->setSetting("watch", "on");
        keeper->write();
        EXPECT_THAT(states(), SizeIs(50));
    }
    EXPECT_THAT(log, ElementsAre(HasSubstr("stays in memory")));
    read(console, "51");
    EXPECT_THAT(log, ElementsAre(HasSubstr("stays in memory"), HasSubstr("written again")));
    kill();
    EXPECT_THAT(states(), SizeIs(51));
    EXPECT_EQ(states().front(), "51");
    EXPECT_EQ(keeper->setting("watch"), "on");

    // The disk is full at the start already: what the file knew is found later.
    keeper->close();
    std::filesystem::rename(folder, scratch.path() / "away");
    std::ofstream(folder).put('x');
    open();
    HandMadeConsole other("b");
    for (int i = 0; i <= static_cast<int>(History::mostRows) + 500; ++i) {
        read(other, std::to_string(i), 1s);
    }
    EXPECT_THAT(states(), SizeIs(History::mostRows)) << "memory has its bounds, too";
    EXPECT_TRUE(keeper->changes().leftOut);
    EXPECT_EQ(keeper->memoryOf("a.example"), nullptr);
    std::filesystem::remove(folder);
    std::filesystem::rename(scratch.path() / "away", folder);
    read(other, "last");
    EXPECT_NE(keeper->memoryOf("a.example"), nullptr);
    EXPECT_EQ(keeper->setting("watch"), "on");
    restart();
    EXPECT_EQ(keeper->memoryOf("b.example")->objects.begin()->second.state, "last");
    EXPECT_EQ(keeper->memoryOf("a.example")->objects.begin()->second.state, "51");
    EXPECT_THAT(states(), testing::IsSupersetOf({"51", "last"}));
}

TEST_F(HistoryFaultTests, AFileOfANewerVersionIsLeftAloneUntilTheReset)
{
    HandMadeConsole console("a");
    read(console, "operating");
    keeper->close();
    plain().exec("PRAGMA user_version=2");
    const auto before = files();
    open();
    read(console, "operating");
    read(console, "error");
    EXPECT_THAT(states(), ElementsAre("error"));
    keeper->close();
    EXPECT_EQ(files(), before);
    EXPECT_THAT(log, ElementsAre(HasSubstr("incompatible")));
    open();
    keeper->forgetAll();
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(HistoryFaultTests, WhatCouldNotBeDeletedIsDeletedLater)
{
    HandMadeConsole console("doomed-console");
    HandMadeConsole other("b");
    read(console, "operating");
    read(other, "operating");
    {
        const FullDisk full(0);
        keeper->forget({"doomed-console.example"});
        EXPECT_EQ(keeper->memoryOf("doomed-console.example"), nullptr);
    }
    EXPECT_THAT(filesWith("doomed-console"), testing::Not(IsEmpty()));
    read(other, "error");
    EXPECT_THAT(filesWith("doomed-console"), IsEmpty());
}

} // namespace
} // namespace lodestar::test
