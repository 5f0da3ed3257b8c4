// SPDX-License-Identifier: Apache-2.0
// What is found wrong in fleets, against an account that is kept while their feeds are written.
#include "Fleet/FindingBands.h"
#include "Fleet/FleetEvents.h"
#include "Inventory/Identity.h"
#include "Platform/NameOrder.h"
#include "Tests/Fleet/HandMadeConsole.h"
#include "Tests/Support/LongRun.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <tuple>

namespace lodestar::test
{
namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

/// Rank, partition after server among the stopped, minutes since, console, name, "since" and not "at least since".
using Row = std::tuple<int, bool, long, std::string, std::string, bool>;

std::vector<Row> rowsOf(const Findings& findings)
{
    std::vector<Row> rows;
    for (const Finding& each : findings.list) {
        const bool later = each.rank == FindingRank::Stopped && each.subject == FindingSubject::Partition;
        rows.emplace_back(static_cast<int>(each.rank), later, (now - each.since->time) / 1min, each.console, each.name,
                          each.since->exact);
    }
    return rows;
}

/// Writes consoles at random and keeps the account of what must be found.
class RandomFleet
{
public:
    explicit RandomFleet(unsigned seed) : m_random(seed)
    {
        for (int i = below(6); i >= 0; --i) {
            addConsole("console " + std::to_string(i));
        }
        std::ranges::sort(expected);
    }

    std::vector<ConsoleSnapshot> consoles;
    std::vector<Row> expected;
    std::size_t before = 0;

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    void addConsole(const std::string& name)
    {
        HandMadeConsole console(name);
        std::vector<Row> found;
        for (int i = below(30); i > 0; --i) {
            addObject(console, name, std::to_string(i), found);
        }
        console.memory.neededAttention = static_cast<std::size_t>(below(4));
        if (below(4) == 0) {
            const int minutes = 2 + below(100);
            console.reading.outcome = Reading::Outcome::Offline;
            console.memory.offlineSince = Since{now - std::chrono::minutes(minutes)};
            found = {{5, false, minutes, name, name, true}};
            before += console.memory.neededAttention;
        }
        expected.insert(expected.end(), found.begin(), found.end());
        consoles.push_back(console.snapshot());
    }

    void addObject(HandMadeConsole& console, const std::string& name, const std::string& id, std::vector<Row>& found)
    {
        static const std::vector<std::string> states = {"running",    "not activated", "error", "error - terminated",
                                                        "incomplete", "operating",     "Error", "power off"};
        const std::string& state = states[m_random() % states.size()];
        const int minutes = 3 + below(3000);
        const bool isKnown = below(3) > 0;
        const auto row = [&](int rank, bool later = false) {
            found.emplace_back(rank, later, isKnown ? minutes : 2, name, "name of " + id, isKnown);
        };
        if (below(4) == 0) {
            const bool isOpen = below(2) == 0;
            console.addEvent(id, isOpen ? "Open" : "open", now - std::chrono::minutes(minutes));
            if (isOpen) {
                found.emplace_back(10, false, minutes, name, "name of " + id, true);
            }
            return;
        }
        const int kind = below(3);
        const std::string_view type = kind == 0   ? ObjectType::ManagedSystem
                                      : kind == 1 ? ObjectType::VirtualIOServer
                                                  : ObjectType::LogicalPartition;
        const bool lit = kind == 0 && below(3) == 0;
        const int ranUntil = below(3) * 12 * 60 + 1; // minutes; the last is more than a day
        const bool isExpected = below(4) == 0;
        if (isKnown) {
            KnownObject& known = console.remember(type, id, state, now - std::chrono::minutes(minutes));
            known.lit = lit;
            known.ranUntil = now - std::chrono::minutes(ranUntil);
            known.stopExpected = isExpected;
        }
        if (kind == 0) {
            console.addSystem(id, state, lit);
            const bool isError = state.starts_with("error") || state == "incomplete";
            if (isError || lit) {
                row(!isError ? 8 : lit ? 1 : 2);
            }
            return;
        }
        console.addPartition(type, id, state);
        if (state == "error") {
            row(kind == 1 ? 3 : 4);
        } else if (state == "not activated" && isKnown && ranUntil < 24 * 60 && !isExpected) {
            row(7, kind == 2);
        }
    }

    std::mt19937 m_random;
};

TEST(FindingsTests, AreWhatTheFeedsAccountSaysInItsOrder)
{
    const int tries = rounds(100, 5000);
    for (int seed = 0; seed < tries; ++seed) {
        const RandomFleet fleet(static_cast<unsigned>(seed));
        const Findings findings = findingsOf(fleet.consoles, now);
        ASSERT_EQ(rowsOf(findings), fleet.expected) << seed;
        const auto events = std::ranges::count(findings.list, FindingSubject::Event, &Finding::subject);
        EXPECT_EQ(findings.openEvents, static_cast<std::size_t>(events));
        EXPECT_EQ(findings.needAttention, findings.list.size() - findings.openEvents);
        EXPECT_EQ(findings.beforeOffline, fleet.before);
    }
}

TEST(FindingsTests, OfManyConsolesAreRankedTogether)
{
    std::vector<ConsoleSnapshot> consoles;
    std::vector<Row> expected;
    for (unsigned seed = 0; consoles.size() < 500; ++seed) {
        const RandomFleet fleet(seed);
        consoles.insert(consoles.end(), fleet.consoles.begin(), fleet.consoles.end());
        expected.insert(expected.end(), fleet.expected.begin(), fleet.expected.end());
    }
    std::ranges::sort(expected);
    EXPECT_EQ(rowsOf(findingsOf(consoles, now)), expected);
}

TEST(FindingsTests, TiesStandInTheOrderOfNamesThatIsInstalled)
{
    struct Backwards : NameOrder {
        int compare(const std::string& first, const std::string& second) const override
        {
            return second.compare(first);
        }
    };
    std::vector<ConsoleSnapshot> consoles;
    for (const char* const name : {"Ems", "Aare", "Rhein"}) {
        HandMadeConsole console(name);
        console.addSystem("1", "error");
        console.addSystem("2", "error");
        consoles.push_back(console.snapshot());
    }
    NameOrder::install(std::make_unique<Backwards>());
    const Findings findings = findingsOf(consoles, now);
    const FindingView byConsole = viewOf(findings, {FindingFilter::Grouping::Console, {}, {}}, 3, {});
    NameOrder::install(nullptr);
    std::string names;
    for (const Finding& each : findings.list) {
        names += each.console + each.name.back() + " ";
    }
    EXPECT_EQ(names, "Rhein2 Rhein1 Ems2 Ems1 Aare2 Aare1 ");
    EXPECT_EQ(findings.list[byConsole.groups.front().rows.front().findings.front()].console, "Rhein");
}

TEST(FindingsTests, NothingIsHealthyBecauseItWasNotRead)
{
    HandMadeConsole untried("a");
    untried.reading = {};
    HandMadeConsole partial("b");
    partial.reading.outcome = Reading::Outcome::Partial;
    partial.entries[ObjectType::Group] = "NA";      // by the refresh
    partial.failFeed(ObjectType::LogicalPartition); // by a screen; what was read before is still shown
    partial.addPartition(ObjectType::LogicalPartition, "p", "error");
    partial.memory.wasRead = true;
    partial.memory.missingSince["Group"] = {now - 3h, false};
    HandMadeConsole offline("c");
    offline.reading.outcome = Reading::Outcome::Offline;
    offline.reading.error = Error{"URLError", -1001, {}, {}, nullptr};
    offline.reading.offlineSince = now - 1h;
    offline.addSystem("s", "error");
    ConsoleSnapshot unknown = offline.snapshot();
    unknown.memory = nullptr;

    const Findings findings = findingsOf({untried.snapshot(), partial.snapshot(), unknown}, now);
    EXPECT_THAT(rowsOf(findings), ElementsAre(Row(4, false, 2, "b", "name of p", false),
                                              Row(5, false, 60, "c", "c", false), Row(6, false, 2, "b", "b", true)));
    EXPECT_EQ(findings.list[1].error->code, -1001);
    EXPECT_THAT(findings.list[2].missing, ElementsAre(ObjectType::LogicalPartition, ObjectType::Group));
}

TEST(FindingsTests, WhatScreensLookedUpCountsUntilTheConsoleIsReadAgain)
{
    HandMadeConsole console("c");
    console.addPartition(ObjectType::LogicalPartition, "p", "running");
    console.remember(ObjectType::Group, "g", "good", now - 3h);
    const auto group = [&console](const std::string& id, const std::string& members) {
        console.add(ObjectType::Group, id,
                    "<GroupName>" + id + "</GroupName><AssociatedLogicalPartitions>" + members +
                        "</AssociatedLogicalPartitions>");
    };
    const std::string p = "<link href='https://c/LogicalPartition/p'/>";
    group("g", p + "<link href='https://c/LogicalPartition/lost'/><link href='https://c/LogicalPartition/later'/>");
    group("h", p + "<link href='https://c/LogicalPartition/unknown'/>");
    EXPECT_THAT(findingsOf({console.snapshot()}, now).list, IsEmpty());

    console.reading.membersInError = std::make_shared<const std::map<std::string, WallTime>>(
        std::map<std::string, WallTime>{{"later", now - 10s}, {"lost", now - 1min}, {"p", now - 1min}});
    FeedReading& partitions = console.reading.feeds[3];
    partitions.error = Error{"URLError", -1001, {}, {}, nullptr};
    partitions.failedLookUps = 2;
    partitions.began = now - 30s;
    partitions.readAt = console.reading.ended;
    const std::vector<Finding> list = findingsOf({console.snapshot()}, now).list;
    ASSERT_THAT(list, SizeIs(2)) << "the partition is shown by its feed, which says that it runs";
    EXPECT_THAT(list[0].missing, ElementsAre(ObjectType::LogicalPartition));
    EXPECT_EQ(list[0].since, (Since{now - 30s, true})) << "the reading itself had the feed";
    EXPECT_THAT(list[1], AllOf(Field(&Finding::name, "g"), Field(&Finding::membersInError, 2U),
                               Field(&Finding::members, 3U), Field(&Finding::since, Since{now - 1min, false})));
}

TEST(FindingsTests, TellWhatTheirRowsAndScreensNeed)
{
    HandMadeConsole console("c");
    console.addSystem("s", "operating");
    console.addPartition(ObjectType::LogicalPartition, "p", "error", "s", "X417-2208");
    console.remember(ObjectType::LogicalPartition, "p", "running", now - 3h); // memory follows the reading later
    console.addEvent("1042", "Open", now - 5min,
                     "<callHomeEnabled>true</callHomeEnabled><duplicateCount>6</duplicateCount>");
    console.add(ObjectType::ServiceableEvent, "",
                "<problemState>Open</problemState><problemNumber>7</problemNumber>"
                "<lastReportedTimestamp>99999999999999</lastReportedTimestamp>");
    console.addPartition(ObjectType::VirtualIOServer, "v", "running", "s");
    // A server among the partitions, where no list looks for it.
    console.add(ObjectType::VirtualIOServer, "w", "<PartitionState>error</PartitionState>",
                ObjectType::LogicalPartition);
    const std::string link = "<link href='https://c:12443/rest/api/uom/";
    const std::string known = "<AssociatedLogicalPartitions>" + link + "LogicalPartition/p'/>" + link +
                              "LogicalPartition/elsewhere'/></AssociatedLogicalPartitions>";
    console.add(ObjectType::Group, "g1", "<GroupName>counted already</GroupName>" + known);
    console.add(ObjectType::Group, "g2",
                "<GroupName>g</GroupName><GroupColor>Green</GroupColor>" + known + "<AssociatedVirtualIOServers>" +
                    link + "VirtualIOServer/w'/>" + link + "VirtualIOServer/v'/></AssociatedVirtualIOServers>");
    const std::vector<Finding> list = findingsOf({console.snapshot()}, now).list;
    ASSERT_THAT(list, SizeIs(4));
    EXPECT_EQ(list[0].object, (ObjectKey{"LogicalPartition", "p"}));
    EXPECT_EQ(LogicalPartition(list[0].element).name(), "name of p");
    EXPECT_EQ(list[0].system, "name of s");
    EXPECT_EQ(list[0].referenceCode, "X417-2208");
    EXPECT_EQ(list[0].since, (Since{console.reading.ended, true})) << "it changed with this reading";
    EXPECT_THAT(list[1], AllOf(Field(&Finding::rank, FindingRank::GroupError), Field(&Finding::name, "g"),
                               Field(&Finding::membersInError, 2U), Field(&Finding::members, 4U),
                               Field(&Finding::groupColor, "Green")));
    EXPECT_THAT(list[2], AllOf(Field(&Finding::name, "7"), Field(&Finding::callsHome, false)));
    EXPECT_EQ(list[2].since, (Since{console.reading.ended, false}));
    EXPECT_THAT(list[3], AllOf(Field(&Finding::eventNumber, "1042"), Field(&Finding::name, "name of 1042"),
                               Field(&Finding::callsHome, true), Field(&Finding::duplicates, 6)));
}

TEST(IdentityTests, IsTheConsolesOwnElseWhatStaysElseTheName)
{
    const auto identity = [](std::string_view type, const std::string& content) {
        const auto entry = XMLElement::parse("<entry><content>" + content + "</content></entry>");
        return identityOfEntry(entry.value(), type);
    };
    const std::string atom = "<Metadata><Atom><AtomID>id</AtomID></Atom></Metadata>";
    const std::string noAtom = "<Metadata><Atom><AtomID/></Atom></Metadata>";
    const std::string partition = "<AssociatedManagedSystem href='https://c/ManagedSystem/sys/?a=b/c'/>"
                                  "<PartitionName>n</PartitionName>";
    EXPECT_EQ(identity("LogicalPartition", "<LogicalPartition>" + atom + partition + "</LogicalPartition>"), "id");
    EXPECT_EQ(identity("ManagedSystem", atom + "<ManagedSystem><SystemName>n</SystemName></ManagedSystem>"), "id");
    EXPECT_EQ(identity("LogicalPartition",
                       "<LogicalPartition>" + noAtom + partition + "<PartitionID>3</PartitionID></LogicalPartition>"),
              "sys/3")
        << "systems number their partitions each from 1";
    EXPECT_EQ(identity("VirtualIOServer", "<VirtualIOServer>" + partition + "</VirtualIOServer>"), "n");
    const std::string machine = "<MachineTypeModelAndSerialNumber><MachineType>5180</MachineType><Model>K2</Model>"
                                "<SerialNumber>1</SerialNumber></MachineTypeModelAndSerialNumber>";
    EXPECT_EQ(identity("ManagedSystem", "<ManagedSystem>" + machine + "</ManagedSystem>"), "5180-K2*1");
    EXPECT_EQ(identity("ServiceableEvent", "<ServiceableEvent><problemNumber>7</problemNumber></ServiceableEvent>"),
              "7");
    EXPECT_EQ(identity("Group", "<Group><GroupName>g</GroupName></Group>"), "g");
    EXPECT_EQ(identity("Group", ""), "");
}

} // namespace
} // namespace lodestar::test
