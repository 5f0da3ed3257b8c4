// SPDX-License-Identifier: Apache-2.0
// What one reading of a console changes against the reading before it.
#include "Fleet/Change.h"
#include "Tests/Fleet/HandMadeConsole.h"

#include <gmock/gmock.h>

#include <random>
#include <set>
#include <sstream>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

constexpr std::string_view kindNames[] = {"state",  "lit",     "dark", "opened", "gone event", "offline",
                                          "online", "missing", "read", "new",    "gone",       "certificate"};

/// A change as one line: what, how, of whom, from where to where.
std::string line(const Change& change)
{
    std::ostringstream text;
    text << kindNames[static_cast<std::size_t>(change.kind)] << ' ' << "+-="[static_cast<int>(change.sense)] << ' '
         << change.object.type << ' ' << change.object.identifier << ' ' << change.from << '>' << change.to;
    return text.str();
}

/// A console that is read again and again, five minutes apart.
class HistoryDifferenceTests : public testing::Test
{
protected:
    std::vector<std::string> read()
    {
        console.reading.ended += 5min;
        const ConsoleSnapshot snapshot = console.snapshot();
        last = differenceOf("a.example", "Harbour A", *snapshot.reading, snapshot.feeds.get(), last.memory);
        std::vector<std::string> lines;
        for (const Change& change : last.changes) {
            EXPECT_EQ(change.seen, console.reading.ended);
            EXPECT_EQ(change.console, "Harbour A");
            lines.push_back(line(change));
        }
        return lines;
    }
    WallTime ended() const { return console.reading.ended; }
    const KnownObject& known(std::string_view type, const std::string& id) const
    {
        return last.memory->objects.at({std::string(type), id});
    }
    void fill(const std::string& system, bool lit, const std::string& partition)
    {
        console.entries.clear();
        console.addSystem("s1", system, lit);
        console.addPartition(ObjectType::LogicalPartition, "p1", partition);
        console.addPartition(ObjectType::VirtualIOServer, "v1", "running");
        console.addEvent("1036", "Open", now);
        console.entries[ObjectType::Group];
        console.entries[ObjectType::ManagementConsole];
    }

    HandMadeConsole console{"Harbour A"};
    Difference last;
};

TEST_F(HistoryDifferenceTests, ANightOnOneConsole)
{
    fill("operating", false, "running");
    EXPECT_THAT(read(), IsEmpty()) << "the first reading is no news";
    EXPECT_FALSE(known(ObjectType::ManagedSystem, "s1").stateSince.exact);
    EXPECT_EQ(last.memory->neededAttention, 0U);
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(last.memoryChanged);
    const WallTime lastRan = ended();

    fill("error", true, "not activated");
    console.addEvent("1042", "Open", now);
    console.addEvent("1043", "Closed", now);
    console.entries[ObjectType::Group] = "NA";
    console.reading.outcome = Reading::Outcome::Partial;
    EXPECT_THAT(read(), ElementsAre("state + ManagedSystem s1 operating>error", "lit + ManagedSystem s1 >",
                                    "state + LogicalPartition p1 running>not activated",
                                    "opened + ServiceableEvent 1042 >name of 1042",
                                    "new = ServiceableEvent 1043 >Closed", "missing + Group  >"));
    EXPECT_EQ(last.changes.front().before, lastRan);
    EXPECT_EQ(known(ObjectType::ManagedSystem, "s1").stateSince, (Since{ended(), true}));
    EXPECT_EQ(known(ObjectType::LogicalPartition, "p1").ranUntil, lastRan);
    EXPECT_EQ(last.memory->neededAttention, 3U) << "the system, the stopped partition, the feed";
    const WallTime before = ended();

    console.reading.outcome = Reading::Outcome::Offline;
    console.entries.clear();
    EXPECT_THAT(read(), ElementsAre("offline +   >"));
    const WallTime lost = ended();
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(last.memoryChanged);
    EXPECT_EQ(last.memory->offlineSince, (Since{lost, true}));
    EXPECT_EQ(last.memory->neededAttention, 3U);

    fill("operating", false, "running");
    console.addEvent("1042", "Closed", now);
    console.reading.outcome = Reading::Outcome::Complete;
    EXPECT_THAT(read(), ElementsAre("online -   >", "state - ManagedSystem s1 error>operating",
                                    "dark - ManagedSystem s1 >", "state - LogicalPartition p1 not activated>running",
                                    "state - ServiceableEvent 1042 Open>Closed",
                                    "gone event = ServiceableEvent 1043 >name of 1043", "read - Group  >"));
    EXPECT_EQ(last.changes.front().lasted, 10min);
    EXPECT_EQ(last.changes.front().before, lost + 5min);
    EXPECT_EQ(last.changes.at(1).before, before) << "nobody saw the system while the console was offline";
    EXPECT_EQ(last.changes.back().lasted, 15min);
    EXPECT_FALSE(known(ObjectType::LogicalPartition, "p1").ranUntil);
    EXPECT_EQ(last.memory->neededAttention, 0U);
}

TEST_F(HistoryDifferenceTests, WhatIsNoNews)
{
    console.reading.outcome = Reading::Outcome::Offline;
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(last.memory->offlineSince->exact);
    console.reading.outcome = Reading::Outcome::Partial;
    fill("operating", false, "running");
    console.entries[ObjectType::LogicalPartition] = "NA";
    EXPECT_THAT(read(), IsEmpty()) << "the first answer of all is no return";

    // The partitions are read for the first time; the system is renamed, tells no state, and comes twice.
    console.entries.clear();
    console.add(ObjectType::ManagedSystem, "s1", HandMadeConsole::field("SystemName", "renamed"));
    console.addSystem("s1", "error", true);
    console.addPartition(ObjectType::LogicalPartition, "p1", "running");
    console.addPartition(ObjectType::VirtualIOServer, "v1", "running");
    console.addEvent("1036", "Open", now);
    console.reading.outcome = Reading::Outcome::Complete;
    EXPECT_THAT(read(), ElementsAre("read - LogicalPartition  >"));
    EXPECT_TRUE(last.memoryChanged);
    EXPECT_EQ(known(ObjectType::ManagedSystem, "s1").name, "renamed");
    EXPECT_EQ(known(ObjectType::ManagedSystem, "s1").state, "operating");

    console.reading.outcome = Reading::Outcome::Offline;
    EXPECT_THAT(read(), ElementsAre("offline +   >"));
    console.reading.outcome = Reading::Outcome::Complete;
    EXPECT_THAT(read(), ElementsAre("online -   >"));

    // A renewed certificate is news, the first one is not, and none at all says nothing.
    CertificateReading certificate;
    console.reading.certificate = certificate;
    EXPECT_THAT(read(), IsEmpty());
    console.reading.certificate.reset();
    EXPECT_THAT(read(), IsEmpty());
    certificate.shown.fingerprint = {1};
    console.reading.certificate = certificate;
    EXPECT_THAT(read(), ElementsAre("certificate =   >"));
    EXPECT_EQ(last.memory->certificateSince, (Since{ended(), true}));

    // A text of any length is kept in part, and the part is compared with itself.
    console.entries[ObjectType::ManagedSystem].clear();
    const std::string hostile = std::string(1999, 'x') + "\u05d0<b>\xe2\x80\xae\n";
    console.add(ObjectType::ManagedSystem, "s1",
                HandMadeConsole::field("State", std::string(1999, 'x') + "\u05d0&lt;b&gt;\xe2\x80\xae\n"));
    EXPECT_THAT(read(), ElementsAre("state + ManagedSystem s1 operating>" + hostile.substr(0, 1999)));
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(last.memoryChanged);

    // The clock is set back: nothing happened before it began, and nothing lasted less than no time.
    console.reading.ended -= 24h;
    fill("operating", false, "running");
    read();
    EXPECT_EQ(last.changes.front().before, last.changes.front().seen);
}

TEST_F(HistoryDifferenceTests, AGroupIsAsGoodAsItsMembersThatNoListShows)
{
    const auto fillGroup = [this](const std::string& unlisted) {
        fill("operating", false, "running");
        console.entries[ObjectType::Group].clear();
        console.add(ObjectType::VirtualIOServer, "w", HandMadeConsole::field("PartitionState", unlisted),
                    ObjectType::LogicalPartition);
        console.add(ObjectType::Group, "g",
                    "<GroupName>Payroll</GroupName><AssociatedVirtualIOServers>"
                    "<link href='https://c/VirtualIOServer/w'/></AssociatedVirtualIOServers>");
    };
    fillGroup("running");
    read();
    fillGroup("error");
    EXPECT_THAT(read(), ElementsAre("state + Group g good>error"));
    EXPECT_EQ(last.changes.front().name, "Payroll");
    const WallTime broke = ended();
    EXPECT_EQ(last.memory->neededAttention, 1U);
    EXPECT_THAT(read(), IsEmpty());
    EXPECT_FALSE(last.memoryChanged);
    console.memory = *last.memory;
    EXPECT_EQ(findingsOf({console.snapshot()}, now).list.front().since, (Since{broke, true}));

    fillGroup("running");
    console.entries[ObjectType::LogicalPartition] = "NA";
    EXPECT_THAT(read(), ElementsAre("missing + LogicalPartition  >")) << "nobody knows what the member does";
    // What a screen looked up since the refresh makes no news: the next refresh would take it back.
    fillGroup("running");
    console.reading.membersInError =
        std::make_shared<const std::map<std::string, WallTime>>(std::map<std::string, WallTime>{{"elsewhere", now}});
    for (FeedReading& feed : console.reading.feeds) {
        feed.failedLookUps = 1;
        feed.error = Error{"HTTPStatus", 404, {}, {}, nullptr};
    }
    EXPECT_THAT(read(), ElementsAre("read - LogicalPartition  >", "state - Group g error>good"));
    EXPECT_EQ(last.changes.back().lasted, 15min);
}

TEST_F(HistoryDifferenceTests, EveryDifferenceOfTwoInventoriesAndNoOther)
{
    const std::vector<std::string> states = {"running", "not activated", "error", "starting", "shutting down"};
    const auto badness = [](const std::string& state) { return state == "running" ? 0 : state == "error" ? 2 : 1; };
    std::mt19937 random(4);
    std::map<std::string, std::string> before;
    read();
    for (int round = 0; round < 200; ++round) {
        std::map<std::string, std::string> partitions = before;
        for (int i = 0; i < 8; ++i) {
            const std::string id = "p" + std::to_string(random() % 30);
            if (random() % 4 == 0) {
                partitions.erase(id);
            } else {
                partitions[id] = states[random() % states.size()];
            }
        }
        console.entries.clear();
        std::vector<std::string> expected;
        for (const auto& [id, state] : partitions) {
            console.addPartition(ObjectType::LogicalPartition, id, state);
            const auto known = before.find(id);
            if (known == before.end()) {
                expected.push_back("new = LogicalPartition " + id + " >" + state);
            } else if (known->second != state) {
                const int step = badness(state) - badness(known->second);
                expected.push_back(std::string("state ") +
                                   (step > 0   ? '+'
                                    : step < 0 ? '-'
                                               : '=') +
                                   " LogicalPartition " + id + ' ' + known->second + '>' + state);
            }
        }
        for (const auto& [id, state] : before) {
            if (!partitions.contains(id)) {
                expected.push_back("gone = LogicalPartition " + id + ' ' + state + '>');
            }
        }
        EXPECT_THAT(read(), UnorderedElementsAreArray(expected));
        before = std::move(partitions);
    }
}

} // namespace
} // namespace lodestar::test
