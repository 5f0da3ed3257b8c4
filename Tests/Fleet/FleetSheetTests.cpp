// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FleetSheet.h"
#include "Fleet/History.h"
#include "Fleet/Readings.h"
#include "Fleet/Registry.h"
#include "Fleet/TimeLeft.h"
#include "Platform/NotificationCenter.h"
#include "Tests/REST/RESTHandlerFixture.h"
#include "Tests/Support/FullDisk.h"

#include <fmt/format.h>

#include <filesystem>

namespace lodestar::test
{
namespace
{

using namespace std::chrono_literals;
using State = FleetImport::State;
using Kind = SheetRowKind;

/// Each row as "line kind address", the earlier line after it.
std::vector<std::string> rowsOf(const Result<FleetSheet>& sheet)
{
    constexpr std::array<const char*, 6> kinds = {"new", "registered", "no address", "no user", "bad", "same"};
    std::vector<std::string> rows;
    for (const SheetRow& row : sheet.value().rows) {
        rows.push_back(fmt::format("{} {} {}{}", row.line, kinds.at(static_cast<std::size_t>(row.kind)), row.address,
                                   row.sameAs == 0 ? "" : fmt::format(" as {}", row.sameAs)));
    }
    return rows;
}

TEST(FleetSheetTest, EveryRowIsJudgedBeforeAnythingIsAsked)
{
    const auto sheet =
        readFleetSheet("\xEF\xBB\xBF USER ;Address;Site;Pass phrase;name;address\r\n"
                       "ops; a.example ;x;hunter2;\"Harbour; \"\"A\"\"\";other\r\n"
                       "\r\n"
                       "ops;b.example;;;\r\n"
                       "ops;taken.example\r\n"
                       ";;;;\r\n"
                       ";c.example;;;C\r\n"
                       "ops;;;;D\r\n"
                       "monitor;a.example;;;again\r\n"
                       "monitor;A.example;;;other letters\r\n"
                       "monitor;[fd00::1]\r\nmonitor;m\xC3\xBChle.example\r\n"
                       "ops;https://e.example\r\nops;f.example:12443\r\nops;g h\r\nops;i@j\r\nops;[x]\r\n",
                       {"taken.example"});
    ASSERT_TRUE(sheet.ok());
    EXPECT_THAT(rowsOf(sheet),
                ElementsAre("2 new a.example", "4 new b.example", "5 registered taken.example", "7 no user c.example",
                            "8 no address ", "9 same a.example as 2", "10 new A.example", "11 new [fd00::1]",
                            "12 new m\xC3\xBChle.example", "13 bad https://e.example", "14 bad f.example:12443",
                            "15 bad g h", "16 bad i@j", "17 bad [x]"));
    EXPECT_EQ(sheet.value().rows[0].name, "Harbour; \"A\"");
    EXPECT_EQ(sheet.value().rows[1].name, "b.example") << "a console needs a name";
    EXPECT_THAT(sheet.value().users(), ElementsAre("ops", "monitor"));
    const auto again =
        readFleetSheet("name,address,user\n,a,first\n,b c,second\n,d,\n,e,third\n,f,first\n", {"a", "f"});
    EXPECT_THAT(again.value().users(), ElementsAre("third"));
    EXPECT_THAT(again.value().allUsers(), ElementsAre("first", "second", "third")) << "each has its line";
    EXPECT_THAT(sheet.value().unknownColumns, ElementsAre("Site", "address"));
    EXPECT_THAT(sheet.value().passwordColumns, ElementsAre("Pass phrase"));
    EXPECT_EQ(sheet.value().unusable(), 8U);

    const auto failure = [](std::string_view bytes) {
        const auto read = readFleetSheet(bytes, {});
        return read.ok() ? "none" : read.error().domain + std::to_string(read.error().code);
    };
    EXPECT_EQ(failure("a.example,ops,A\nb.example,ops,B\n"), "FleetSheet1");
    EXPECT_EQ(failure(""), "FleetSheet1");
    EXPECT_EQ(failure("name,address\n"), "FleetSheet1");
    EXPECT_EQ(failure("name,address,user"), "none");
    EXPECT_EQ(failure(std::string_view("\x89PNG\r\n\x1a\n\0\0", 10)), "Csv1");
    EXPECT_EQ(failure("name,address,user\n\"A,a,b\n"), "Csv2");

    std::string large = "name,address,user\n";
    for (int i = 0; i < 100'000; ++i) {
        large += fmt::format("Console {0},c{0}.example,ops\n", i);
    }
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(readFleetSheet(large, {"c7.example"}).value().count(Kind::New), 99'999U);
    EXPECT_LT(std::chrono::steady_clock::now() - before, 5s);
}

TEST(FleetSheetTest, TheTimeLeftComesSmoothlyToItsEnd)
{
    const TimeLeft::Clock::time_point begin;
    TimeLeft left(begin);
    EXPECT_FALSE(left.look(0, 100, begin + 10s));
    EXPECT_FALSE(left.look(10, 100, begin + 1s)) << "too early";
    EXPECT_EQ(left.look(20, 100, begin + 8s), 35s);
    // One burst does not make it jump.
    const auto afterBurst = left.look(80, 100, begin + 9s);
    ASSERT_TRUE(afterBurst);
    EXPECT_GT(*afterBurst, 15s);
    EXPECT_LT(*afterBurst, 35s);
    EXPECT_EQ(left.look(80, 100, begin + 16s), 10s) << "it promises no less than it knows";
    EXPECT_FALSE(left.look(80, 100, begin + 60s)) << "the last ones wait for something else";
    EXPECT_EQ(left.look(1, 100, begin + 600s), 59'400s);
    EXPECT_FALSE(left.look(100, 100, begin + 601s));
}

class FleetImportTest : public ConsoleTest
{
protected:
    void SetUp() override
    {
        ConsoleTest::SetUp();
        context().deleteObject(corvel);
        ASSERT_TRUE(context().save().ok());
        History::shared().open(m_history.path());
    }
    void TearDown() override
    {
        fleet.reset();
        ConsoleTest::TearDown();
        Readings::shared().forgetAll();
        History::shared().close();
    }

    FleetSheet sheetOf(int consoles) const
    {
        std::string text = "name,address,user\n";
        for (int i = 0; i < consoles; ++i) {
            text += fmt::format("Console {},{},{}\n", i, simulator.address(i), simulator.user());
        }
        return readFleetSheet(text, registeredAddresses()).value();
    }
    std::map<std::string, std::string> passwords() const { return {{simulator.user(), simulator.password()}}; }
    void waitForTheEnd() const
    {
        ASSERT_TRUE(MainQueue::shared().runUntil([this] { return !fleet->isRunning(); }, 60s));
    }
    std::vector<State> states() const
    {
        std::vector<State> all;
        for (const auto& row : fleet->rows()) {
            all.push_back(row.state);
        }
        return all;
    }
    /// Nothing may be known of a console that is not added, however long one waits.
    void expectNoTrace()
    {
        handler().queue().waitUntilAllOperationsAreFinished();
        MainQueue::shared().runUntil([] { return false; }, 300ms);
        EXPECT_THAT(handler().corvelList(), IsEmpty());
        EXPECT_THAT(handler().fetchCorvels(), IsEmpty());
        EXPECT_FALSE(context().hasChanges());
        EXPECT_THAT(defaults().allKeys(), IsEmpty());
        for (int i = 0; i < simulator.consoleCount(); ++i) {
            EXPECT_EQ(History::shared().memoryOf(simulator.address(i)), nullptr);
        }
        EXPECT_EQ(Readings::shared().ofFleet().underWay, 0U);
    }

    std::shared_ptr<FleetImport> fleet;
    int changes = 0;

private:
    const ScratchFolder m_history;
};

TEST_F(FleetImportTest, GoodOnesAreAddedAtOnceBesideSomeThatRefuseStallOrLie)
{
    simulator.start({.consoles = 8,
                     .faults = {"refuseLogon:1", "logonWithoutKey:2", "refuseFeed:Group:3",
                                "refuseFeed:ManagementConsole:3", "logonNotXML:json:4"}});
    simulator.stopConsole(5);
    defaults().setString("left over", simulator.address(6));
    FleetSheet sheet = sheetOf(8);
    sheet.rows[7].address = "no-such-console.invalid";
    int posted = 0;
    const auto observation =
        NotificationCenter::defaultCenter().addObserver("CorvelsDidChange", [&posted] { ++posted; });

    fleet = std::make_shared<FleetImport>(sheet, passwords());
    fleet->verify([this] { ++changes; });
    EXPECT_TRUE(fleet->isRunning());
    waitForTheEnd();
    EXPECT_GE(changes, 8);
    EXPECT_THAT(states(), ElementsAre(State::Verified, State::Refused, State::Failed, State::Verified, State::Failed,
                                      State::NoAnswer, State::Verified, State::NoSuchAddress));
    EXPECT_EQ(fleet->tried(), 8U);
    EXPECT_EQ(fleet->verified(), 3U);
    EXPECT_EQ(fleet->rows()[3].missingFeeds, 2U);
    EXPECT_EQ(fleet->rows()[3].version, "");
    EXPECT_THAT(fleet->rows()[0].version, StartsWith("V"));
    EXPECT_EQ(reasonOf(*fleet->rows()[1].error), ReadingReason::WrongCredentials);
    EXPECT_EQ(reasonOf(*fleet->rows()[2].error), ReadingReason::NoSessionKey);
    expectNoTrace();
    EXPECT_EQ(fleet->notVerified().rows.size(), 5U);
    EXPECT_THAT(fleet->notVerified().rows[0], ElementsAre("Console 1", simulator.address(1), simulator.user()));

    // One mended console joins the others. What was verified is not asked again.
    simulator.clearFault("refuseLogon:1");
    simulator.clearRequests();
    fleet->verifyAgain({}, [this] { ++changes; });
    EXPECT_EQ(fleet->tried(), 3U);
    waitForTheEnd();
    EXPECT_EQ(fleet->verified(), 4U);
    EXPECT_EQ(simulator.requests(0).size(), 0U);

    // One of them was added by the editor meanwhile.
    const CorvelRef other = makeCorvel("Other", simulator.address(6));
    handler().addCorvel(other);
    posted = 0;
    ASSERT_TRUE(fleet->add().ok());
    EXPECT_EQ(posted, 1);
    ASSERT_EQ(handler().corvelList().size(), 4U);
    EXPECT_EQ(handler().corvelList()[0], other);
    const CorvelRef added = handler().corvelList()[1];
    EXPECT_EQ(added->name(), "Console 0");
    EXPECT_EQ(added->password(), simulator.password());
    EXPECT_EQ(added->demo(), 0);
    EXPECT_EQ(added->version(), fleet->rows()[0].version);
    EXPECT_TRUE(added->isOnline && added->completedFetch);
    EXPECT_EQ(added->numMSErrors, simulator.summary(0).systemErrors);
    EXPECT_EQ(Readings::shared().of(*added)->outcome, Reading::Outcome::Complete);
    EXPECT_FALSE(Readings::shared().of(*added)->isUpdating);
    EXPECT_TRUE(MainQueue::shared().runUntil(
        [this] { return History::shared().memoryOf(simulator.address(0)) != nullptr; }, 10s));
    EXPECT_FALSE(context().hasChanges());
    // The key is good, and no logon is needed.
    simulator.clearRequests();
    const auto refreshed = settled(refreshCorvel(added, Urgency::Fleet));
    EXPECT_TRUE(refreshed.ok());
    EXPECT_EQ(simulator.requests(0).size(), 7U);
    EXPECT_TRUE(fleet->add().ok());
    EXPECT_EQ(handler().corvelList().size(), 4U) << "not twice";

    const Table exported = fleetSheetOf(handler().corvelList());
    EXPECT_THAT(exported.rows[1], ElementsAre("Console 0", simulator.address(0), simulator.user()));
    EXPECT_THAT(csvOf(exported), testing::Not(HasSubstr(simulator.password())));
}

TEST_F(FleetImportTest, NoConsoleThatStallsAfterItsLogonHoldsUpTheRest)
{
    simulator.start({.consoles = 4,
                     .faults = {"stallFeed:Group:1", "trickle:LogicalPartition:2", "stallFeed:ManagedSystem:3",
                                "trickle:ServiceableEvent:3"}});
    fleet = std::make_shared<FleetImport>(sheetOf(4), passwords(), 2s);
    fleet->verify(nullptr);
    ASSERT_TRUE(MainQueue::shared().runUntil([this] { return !fleet->isRunning(); }, 20s));
    EXPECT_THAT(states(), Each(State::Verified));
    std::vector<std::size_t> missing;
    for (const auto& row : fleet->rows()) {
        missing.push_back(row.missingFeeds);
    }
    EXPECT_THAT(missing, ElementsAre(0U, 1U, 1U, 2U));
    expectNoTrace();
    simulator.clearRequests();
    ASSERT_TRUE(fleet->add().ok());
    const auto reading = Readings::shared().of(*handler().corvelList()[1]);
    EXPECT_THAT(reading->missingFeeds(), ElementsAre(ObjectType::Group));
    EXPECT_EQ(reasonOf(*reading->feeds.back().error), ReadingReason::TimedOut);
    EXPECT_EQ(simulator.requests().size(), 0U);

    // The refresh after it waits as long as every refresh, and gets what came too late.
    simulator.clearFault("stallFeed:Group:1");
    EXPECT_TRUE(settled(refreshCorvel(handler().corvelList()[1], Urgency::Fleet)).ok());
    EXPECT_EQ(Readings::shared().of(*handler().corvelList()[1])->outcome, Reading::Outcome::Complete);
}

TEST_F(FleetImportTest, StoppingAndFailingLeaveNothing)
{
    simulator.start({.consoles = 6, .latency = 150, .faults = {"stallFeed:All:5"}});
    fleet = std::make_shared<FleetImport>(sheetOf(6), passwords());
    fleet->verify([this] { ++changes; });
    ASSERT_TRUE(MainQueue::shared().runUntil([this] { return states()[0] == State::Gathering; }, 30s));
    // Another screen saves meanwhile.
    EXPECT_TRUE(context().save().ok());
    fleet->stop();
    EXPECT_FALSE(fleet->isRunning());
    EXPECT_EQ(fleet->tried(), 0U);
    const int before = changes;
    expectNoTrace();
    EXPECT_EQ(changes, before) << "what ends after a stop tells nobody";
    EXPECT_EQ(fleet->verified(), 0U);
    EXPECT_TRUE(fleet->add().ok());
    expectNoTrace();

    // Released while the logons are under way: no feed is asked for.
    simulator.clearRequests();
    fleet = std::make_shared<FleetImport>(sheetOf(5), passwords());
    fleet->verify(nullptr);
    fleet.reset();
    MainQueue::shared().runUntil([this] { return simulator.requests().size() == 5; }, 10s);
    expectNoTrace();
    EXPECT_EQ(simulator.requests().size(), 5U);

    const std::map<std::string, std::string> wrong = {{simulator.user(), "wrong"}};
    fleet = std::make_shared<FleetImport>(sheetOf(5), wrong);
    fleet->verify(nullptr);
    waitForTheEnd();
    EXPECT_THAT(states(), Each(State::Refused));
    fleet->verifyAgain(passwords(), nullptr);
    waitForTheEnd();
    EXPECT_EQ(fleet->verified(), 5U);
    {
        const FullDisk full(0);
        EXPECT_FALSE(fleet->add().ok());
    }
    expectNoTrace();
    EXPECT_TRUE(fleet->add().ok()) << "the disk has room again";
    EXPECT_EQ(handler().fetchCorvels().size(), 5U);
}

} // namespace
} // namespace lodestar::test
