// SPDX-License-Identifier: Apache-2.0
// What the history keeps from run to run, for how long, and that it leaves nothing of what was deleted.
#include "Fleet/Readings.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Queues/MainQueue.h"
#include "Tests/Fleet/HistoryFixture.h"
#include "Tests/Support/LongRun.h"
#include "Tests/Support/ProcessMemory.h"

#include <gmock/gmock.h>

#include <future>
#include <malloc.h>
#include <random>

namespace lodestar::test
{
namespace
{

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using HistoryTests = HistoryFixture;

TEST_F(HistoryTests, ARestartKnowsWhatTheRunBeforeKnew)
{
    const std::string hostile = std::string(300, 'n') + "\xe2\x80\xae</b>\n\x1b[2J\xff\xfe'\"; DROP TABLE change";
    HandMadeConsole a(hostile);
    CertificateReading certificate;
    certificate.shown.fingerprint.fill(0xab);
    a.reading.certificate = certificate;
    a.reading.versionThen = "V9R1";
    read(a, "operating");
    a.addPartition(ObjectType::LogicalPartition, "p1", "running");
    a.addEvent("1042", "Open", now);
    read(a);
    EXPECT_TRUE(keeper->changes().mayShow);
    a.entries.clear();
    a.addSystem("s1", "error");
    a.entries[ObjectType::Group] = "NA";
    a.reading.outcome = Reading::Outcome::Partial;
    a.reading.ended += 5min;
    read(a);
    HandMadeConsole b("Harbour B");
    b.reading.outcome = Reading::Outcome::Offline;
    read(b);
    EXPECT_FALSE(keeper->expectStop(hostile + ".example", {std::string(ObjectType::ManagedSystem), "none"}));
    EXPECT_TRUE(keeper->expectStop(hostile + ".example", {std::string(ObjectType::ManagedSystem), "s1"}));
    keeper->setSetting("watch", hostile);
    keeper->setSetting("gone", "value");
    keeper->write();
    keeper->setSetting("gone", std::nullopt);
    keeper->write();

    EXPECT_EQ(modeOf(folder), 0700U);
    for (const char* const name : {"History.sqlite", "History.sqlite-wal", "History.sqlite-shm"}) {
        EXPECT_EQ(modeOf(folder / name), 0600U) << name;
    }

    const ConsoleMemory memoryOfA = *keeper->memoryOf(hostile + ".example");
    const ConsoleMemory memoryOfB = *keeper->memoryOf("Harbour B.example");
    auto changes = keeper->changes().changes;
    ASSERT_THAT(changes, SizeIs(6));
    for (const bool orderly : {false, true}) {
        orderly ? restart() : kill();
        EXPECT_EQ(*keeper->memoryOf(hostile + ".example"), memoryOfA);
        EXPECT_EQ(*keeper->memoryOf("Harbour B.example"), memoryOfB);
        EXPECT_EQ(keeper->changes().changes, changes);
        EXPECT_EQ(keeper->setting("watch"), hostile);
        EXPECT_EQ(keeper->setting("gone"), std::nullopt);
    }
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(HistoryTests, ReadingsOfUnchangedConsolesWriteNothingAndAStopIsStillDatedAfterAKill)
{
    HandMadeConsole console("a");
    console.addPartition(ObjectType::LogicalPartition, "p1", "running");
    read(console);
    const auto before = files();
    for (int i = 0; i < 300; ++i) {
        console.reading.ended += 1min;
        read(console);
    }
    EXPECT_EQ(files(), before);
    for (int i = 0; i < 24 * 60; ++i) {
        console.reading.ended += 1min;
        read(console);
    }
    EXPECT_NE(files(), before);
    const WallTime lastRan = console.reading.ended;
    const auto stop = [&] {
        console.reading.ended += 12h;
        console.entries.clear();
        console.addPartition(ObjectType::LogicalPartition, "p1", "not activated");
        read(console);
        return *keeper->memoryOf("a.example")->objects.begin()->second.ranUntil;
    };
    kill();
    EXPECT_GT(stop(), lastRan - HistoryKeeper::timesMayLag);
    restart();
    console.entries.clear();
    console.addPartition(ObjectType::LogicalPartition, "p1", "running");
    read(console);
    console.reading.ended += 2h;
    read(console);
    const WallTime ranAgain = console.reading.ended;
    restart();
    EXPECT_EQ(stop(), ranAgain);
}

TEST_F(HistoryTests, DaysLeaveWholeWhenTheyAreOldOrTooMany)
{
    HandMadeConsole console("a");
    bool error = false;
    const auto flip = [&] {
        console.entries.clear();
        for (int i = 0; i < 100; ++i) {
            console.addSystem("s" + std::to_string(i), error ? "error" : "operating");
        }
        error = !error;
        console.reading.ended += 1min;
        read(console);
    };
    /// A new day with so many readings, each of which finds 100 changes. Returns its begin.
    const auto day = [&](int readings) {
        const WallTime begin = console.reading.ended = HistoryFile::beginOfDay(console.reading.ended + 36h);
        for (int i = 0; i < readings; ++i) {
            flip();
        }
        return begin;
    };
    flip();
    day(2);
    const WallTime second = day(2);
    EXPECT_THAT(states(), SizeIs(400));
    console.reading.ended = second + 30 * 24h + 12h;
    read(console);
    EXPECT_THAT(states(), SizeIs(200)) << "a day is kept as long as a part of it counts";
    console.reading.ended += 13h;
    read(console);
    EXPECT_THAT(states(), IsEmpty());
    EXPECT_FALSE(keeper->changes().leftOut);

    day(40);
    const WallTime fourth = day(40);
    EXPECT_THAT(states(), SizeIs(8000));
    day(21);
    EXPECT_THAT(states(), SizeIs(6100)) << "the oldest day left whole";
    EXPECT_EQ(keeper->changes().changes.back().seen, fourth + 1min);
    EXPECT_TRUE(keeper->changes().leftOut);
    const WallTime flood = day(110);
    restart();
    EXPECT_THAT(states(), SizeIs(History::mostRows)) << "a day that is too long by itself keeps its newest";
    EXPECT_EQ(keeper->changes().changes.back().seen, flood + 11min);
    EXPECT_EQ(keeper->changes().changes.front().seen, flood + 110min);
    EXPECT_TRUE(keeper->changes().leftOut);
    console.reading.ended += 32 * 24h;
    read(console);
    EXPECT_FALSE(keeper->changes().leftOut) << "what was left out would have left by now";
}

TEST_F(HistoryTests, AYearOfReadingsEveryMinuteStaysFlat)
{
    HandMadeConsole console("a");
    const int days = rounds(120, 365);
    double residentThen = 0;
    std::uintmax_t sizeThen = 0;
    const auto size = [&] {
        std::uintmax_t sum = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            sum += entry.file_size();
        }
        return sum;
    };
    for (int i = 0; i < days * 24 * 60; ++i) {
        // One in a hundred readings finds something else.
        read(console, i / 100 % 2 == 0 ? "operating" : "error", 1min);
        if (i == 60 * 24 * 60) {
            malloc_trim(0);
            residentThen = memory("VmRSS");
            sizeThen = size();
        }
    }
    malloc_trim(0);
    EXPECT_LT(memory("VmRSS"), residentThen + 1e6);
    EXPECT_LE(size(), sizeThen + sizeThen / 10);
    EXPECT_THAT(states(), SizeIs(testing::AllOf(testing::Gt(430U), testing::Lt(450U)))) << "of 30 days and a part";
}

TEST_F(HistoryTests, ADeletedConsoleLeavesNoByte)
{
    std::vector<HandMadeConsole> consoles;
    for (const char* const name : {"harbour-a", "doomed-console", "harbour-c"}) {
        consoles.emplace_back(name);
    }
    std::mt19937_64 random(5);
    // Pages are split and merged, so that older copies of rows are left behind in them.
    for (int round = 0; round < 40; ++round) {
        for (HandMadeConsole& console : consoles) {
            console.reading.ended += 1min;
            console.entries.clear();
            for (int i = 0; i < 60; ++i) {
                const std::string id = console.snapshot().name + "-" + std::to_string(random() % 200);
                console.addSystem(id, "operating" + std::string(random() % 300, 'x'));
            }
            read(console);
        }
    }
    write("History.damaged.sqlite", "doomed-console");
    ASSERT_THAT(filesWith("doomed-console"), SizeIs(testing::Ge(2U)));
    keeper->forget({"doomed-console.example"});
    EXPECT_THAT(filesWith("doomed-console"), IsEmpty());
    EXPECT_EQ(keeper->memoryOf("doomed-console.example"), nullptr);
    EXPECT_THAT(filesWith("harbour-a"), ElementsAre("History.sqlite"));
    kill();
    EXPECT_THAT(keeper->addressesBut({"harbour-a.example"}), ElementsAre("harbour-c.example"));
    EXPECT_THAT(keeper->changes().changes, Each(testing::Field(&Change::console, testing::StartsWith("harbour"))));

    keeper->setSetting("watch", "on");
    keeper->write();
    write("History.damaged.sqlite-wal", "harbour-a");
    keeper->forgetAll();
    EXPECT_THAT(files(), IsEmpty());
    EXPECT_EQ(keeper->setting("watch"), std::nullopt);
    // Life goes on in a new file.
    read(consoles.front());
    restart();
    EXPECT_NE(keeper->memoryOf("harbour-a.example"), nullptr);
    EXPECT_EQ(keeper->memoryOf("harbour-c.example"), nullptr);
}

TEST_F(HistoryTests, OneHistoryServesTheProcessFromAQueueOfItsOwn)
{
    MainQueue::shared().adoptCurrentThread();
    History& history = History::shared();
    const auto wait = [](const std::function<void(std::function<void()>)>& ask) {
        bool done = false;
        ask([&done] { done = true; });
        ASSERT_TRUE(MainQueue::shared().runUntil([&done] { return done; }, 20s));
    };
    keeper->close();
    history.open(folder);
    wait([&](auto then) { history.whenOpen(then); });
    int posts = 0;
    const auto observation = NotificationCenter::defaultCenter().addObserver("HistoryDidChange", [&posts] { ++posts; });
    std::vector<Change> news;
    std::promise<void> allNews;
    history.setListener([&](const std::vector<Change>& changes) {
        EXPECT_FALSE(MainQueue::shared().isCurrent());
        news.insert(news.end(), changes.begin(), changes.end());
        if (news.size() == 50) {
            allNews.set_value();
        }
    });
    std::vector<HandMadeConsole> consoles;
    for (int i = 0; i < 50; ++i) {
        consoles.emplace_back("console-" + std::to_string(i));
    }
    for (const char* const state : {"operating", "error", "error"}) {
        for (HandMadeConsole& console : consoles) {
            console.entries.clear();
            console.addSystem("s1", state);
            console.reading.ended += 1min;
            const ConsoleSnapshot snapshot = console.snapshot();
            history.add(snapshot.corvel, snapshot.reading, snapshot.feeds);
        }
    }
    ASSERT_EQ(allNews.get_future().wait_for(20s), std::future_status::ready) << "while the main thread is busy";
    history.forget("console-7.example");
    history.forgetAllBut({"console-1.example", "console-2.example"});
    std::shared_ptr<const ChangeList> list;
    wait([&](auto then) {
        history.changes([&, then](const std::shared_ptr<const ChangeList>& all) {
            list = all;
            then();
        });
    });
    EXPECT_THAT(news, SizeIs(50));
    EXPECT_GT(posts, 0);
    EXPECT_LT(posts, 50) << "readings that come together are told together";
    ASSERT_THAT(list->changes, SizeIs(2));
    history.setListener({});
    history.close();
    keeper->open(folder);
    EXPECT_THAT(states(), ElementsAre("error", "error"));
}

} // namespace
} // namespace lodestar::test
