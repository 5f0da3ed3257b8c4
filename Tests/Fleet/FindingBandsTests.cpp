// SPDX-License-Identifier: Apache-2.0
// How findings are folded, cut and filtered for a screen, and the events of all consoles.
#include "Fleet/FindingBands.h"
#include "Fleet/FleetEvents.h"
#include "Tests/Fleet/HandMadeConsole.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::size_t few = 6; // consoles; too few to be grouped by console

/// Each row as the number of its findings and the name of the first.
std::vector<std::string> rowsOf(const FindingGroup& group, const Findings& findings)
{
    std::vector<std::string> rows;
    for (const FindingRow& row : group.rows) {
        rows.push_back(std::to_string(row.findings.size()) + " " + findings.list[row.findings.front()].name);
    }
    return rows;
}

std::string numbered(const std::string& name, int number)
{
    return name + (number < 10 ? "0" : "") + std::to_string(number);
}

/// As many of the things as a failure of something large leaves behind.
class FindingBandsTest : public testing::Test
{
protected:
    FindingBandsTest()
    {
        HandMadeConsole quay("Quayside");
        quay.addSystem("s", "operating");
        quay.addSystem("t", "operating");
        for (int i = 0; i < 9; ++i) {
            addKnown(quay, numbered("broken", i), "error", "s");
        }
        addKnown(quay, "broken with a code", "error", "s", "X417-2208");
        addKnown(quay, "broken elsewhere", "error", "t");
        for (int i = 0; i < 54; ++i) {
            addKnown(quay, numbered("stopped", i), "not activated", "s").ranUntil = now - 15min;
        }
        for (int i = 0; i < 4; ++i) {
            addKnown(quay, numbered("stopped before", i), "not activated", "s").ranUntil = now - 40min;
        }
        for (int i = 0; i < 30; ++i) {
            quay.addEvent(numbered("event", i), "Open", now - 1h);
        }
        snapshots.push_back(quay.snapshot());
        // Read together, each ended a little later than the one before; two hours later some more failed alike.
        for (int i = 0; i < 36 + 5; ++i) {
            HandMadeConsole console(numbered("Offline ", i));
            console.reading.outcome = Reading::Outcome::Offline;
            console.reading.error = Error{std::string(urlErrorDomain), i == 7 ? -1003 : -1001, {}, {}, nullptr};
            console.memory.offlineSince = Since{now - (i < 36 ? 5h : 3h) + i * 10s};
            snapshots.push_back(console.snapshot());
        }
    }

    static KnownObject& addKnown(HandMadeConsole& console, const std::string& id, const std::string& state,
                                 const std::string& system, const std::string& code = "")
    {
        console.addPartition(ObjectType::LogicalPartition, id, state, system, code);
        return console.remember(ObjectType::LogicalPartition, id, state, now - 2min);
    }

    FindingView view(const FindingFilter& filter = {}, const std::set<std::uintptr_t>& whole = {},
                     std::size_t consoles = few)
    {
        findings = findingsOf(snapshots, now);
        return viewOf(findings, filter, consoles, whole);
    }

    std::vector<ConsoleSnapshot> snapshots;
    Findings findings;
};

TEST_F(FindingBandsTest, FoldWhatOneReadingFoundAndOneSentenceSays)
{
    const FindingView shown = view();
    ASSERT_THAT(shown.groups, SizeIs(4));
    EXPECT_THAT(rowsOf(shown.groups[0], findings),
                ElementsAre("1 name of broken elsewhere", "1 name of broken with a code", "9 name of broken00"));
    EXPECT_EQ(shown.groups[0].count, 11U);
    EXPECT_THAT(rowsOf(shown.groups[1], findings), ElementsAre("5 Offline 40", "35 Offline 35", "1 Offline 07"));
    EXPECT_THAT(rowsOf(shown.groups[2], findings),
                ElementsAre("1 name of stopped before00", "1 name of stopped before01", "1 name of stopped before02",
                            "1 name of stopped before03", "54 name of stopped00"));
    EXPECT_THAT(shown.groups[3].rows, SizeIs(3));
    EXPECT_EQ(shown.groups[3].more, 27U);
    const FindingView all = view({}, {identityOf(shown.groups[3])});
    EXPECT_THAT(all.groups[3].rows, SizeIs(30));
    EXPECT_EQ(all.groups[3].more, 0U);
}

TEST_F(FindingBandsTest, ShowWhatAPersonChoseAndByConsoleTheWorstFirst)
{
    FindingFilter filter;
    filter.kinds = {FindingSubject::Partition, FindingSubject::Event};
    filter.consoles = {snapshots[0].corvel.get()};
    FindingView shown = view(filter);
    EXPECT_THAT(shown.groups, SizeIs(3));
    EXPECT_EQ(shown.left, 41U);

    HandMadeConsole lit("Aaa"); // first by name, but only a warning
    lit.addSystem("s", "operating", true);
    HandMadeConsole broken("Zzz"); // worse than most
    for (int i = 0; i < 25; ++i) {
        broken.addSystem(numbered("s", i), "error", true, std::to_string(i));
        broken.addSystem(numbered("t", i), "error", false, std::to_string(i));
    }
    snapshots.push_back(lit.snapshot());
    snapshots.push_back(broken.snapshot());
    for (int i = 0; i < 10; ++i) {
        HandMadeConsole events(numbered("Events", i));
        events.addEvent("1", "Open", now);
        snapshots.push_back(events.snapshot());
    }
    // So large a fleet is grouped by console, whatever was chosen.
    shown = view({}, {}, 5000);
    ASSERT_THAT(shown.groups, SizeIs(consolesAtOnce));
    EXPECT_EQ(shown.moreConsoles, 4U);
    EXPECT_EQ(shown.left, 0U);
    EXPECT_EQ(shown.groups[0].console, "Zzz");
    // Systems in error with a lit LED differ by no code in their sentence.
    EXPECT_EQ(rowsOf(shown.groups[0], findings).front(), "25 name of s00");
    EXPECT_EQ(shown.groups[0].more, 6U);
    EXPECT_EQ(shown.groups[1].console, "Quayside");
    EXPECT_EQ(shown.groups[1].count, 11U + 58U + 30U);
    EXPECT_THAT(shown.groups[1].rows, SizeIs(3 + 5 + 3));
    EXPECT_EQ(shown.groups[43].console, "Aaa");
    EXPECT_EQ(shown.groups[44].console, "Events00");
}

/// Runs in a time zone of its own.
class FleetEventsTest : public testing::Test
{
protected:
    void SetUp() override { setZone("CET-1CEST,M3.5.0,M10.5.0/3"); }
    void TearDown() override
    {
        ::unsetenv("TZ");
        ::tzset();
    }
    static void setZone(const char* zone)
    {
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
    /// An event that was first reported at this second.
    static FleetEvent reportedAt(std::int64_t seconds)
    {
        FleetEvent event;
        event.firstReported = seconds;
        return event;
    }
};

TEST_F(FleetEventsTest, AreOfAllConsolesThatAnsweredInTheChosenOrder)
{
    HandMadeConsole first("first");
    first.addEvent("1", "Closed", now - 3h, "<referenceCode>B</referenceCode>");
    first.addEvent("2", "Open", now - 4h, "<referenceCode>A</referenceCode><callHomeEnabled>true</callHomeEnabled>");
    first.add(ObjectType::ServiceableEvent, "3", "<lastReportedTimestamp>12:40</lastReportedTimestamp>");
    HandMadeConsole offline("offline");
    offline.addEvent("4", "Open", now);
    offline.reading.outcome = Reading::Outcome::Offline;
    HandMadeConsole second("second");
    second.addEvent("5", "Open", now - 1h, "<referenceCode>B</referenceCode>");
    const std::vector<FleetEvent> events = eventsOf({first.snapshot(), offline.snapshot(), second.snapshot()});

    const auto shown = [&events](const EventChoice& choice) {
        std::vector<std::string> titles;
        for (const EventGroup& group : groupedEvents(events, choice)) {
            titles.push_back(group.title + ":");
            for (const std::uint32_t each : group.events) {
                titles.back() += " " + events[each].event.problemNumber().value_or("none");
            }
        }
        return titles;
    };
    EXPECT_THAT(shown({}), ElementsAre(": 1 2 none 5"));
    EXPECT_THAT(shown({.order = EventOrder::NewestFirst}), ElementsAre(": 5 1 2 none"));
    EXPECT_THAT(shown({.order = EventOrder::ByStatus}), ElementsAre("Open: 5 2", "Closed: 1", ": none"));
    EXPECT_THAT(shown({.order = EventOrder::ByReferenceCode}), ElementsAre("A: 2", "B: 5 1", ": none"));
    EXPECT_THAT(shown({.openOnly = true, .callHomeOnly = true}), ElementsAre(": 2"));
    EXPECT_THAT(shown({.openOnly = true, .consoles = {second.corvel.get()}}), ElementsAre(": 5"));
    EXPECT_THAT(shown({.callHomeOnly = true, .consoles = {second.corvel.get()}}), IsEmpty());
    EXPECT_EQ(groupedEvents(events, {.order = EventOrder::ByReferenceCode})[1].newestText, "name of 5");
}

TEST_F(FleetEventsTest, AreCountedByTheDevicesDays)
{
    // The clocks went forward on Sunday 29 March 2026: that day began at 23:00 UTC and had 23 hours.
    const std::int64_t sunday = 1'774'738'800;
    const WallTime tuesday(std::chrono::seconds(sunday + 23 * 3600 + 24 * 3600 + 60));
    std::vector<FleetEvent> events = {reportedAt(sunday - 1),
                                      reportedAt(sunday),
                                      reportedAt(sunday + 23 * 3600 - 1),
                                      reportedAt(sunday + 23 * 3600),
                                      reportedAt(sunday - 25 * 3600),
                                      reportedAt(sunday + 100 * 3600),
                                      FleetEvent()};
    EXPECT_THAT(eventsADay(events, tuesday, 4), ElementsAre(1, 2, 1, 0));
    // Midnight of 1 November does not exist where the clocks go forward at it.
    setZone("AAA3BBB,M11.1.0/0,M2.3.0/0");
    const std::int64_t november = 1'793'502'000; // 01:00 there, the first second of the day
    events = {reportedAt(november - 1), reportedAt(november), reportedAt(november + 23 * 3600 - 1)};
    EXPECT_THAT(eventsADay(events, WallTime(std::chrono::seconds(november + 7200)), 2), ElementsAre(1, 2));
}

} // namespace
} // namespace lodestar::test
