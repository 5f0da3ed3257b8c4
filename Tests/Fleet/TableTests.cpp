// SPDX-License-Identifier: Apache-2.0
// The tables that scripts and spreadsheets get: titles that never change, and fields that are whole.
#include "Fleet/AttentionTable.h"
#include "Fleet/ChangeTable.h"
#include "Fleet/EventTable.h"
#include "Fleet/ObjectTable.h"
#include "Tests/Fleet/HandMadeConsole.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>

namespace lodestar::test
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Cells = std::vector<std::string>;

std::string titlesOf(const Table& table)
{
    std::string titles;
    for (const std::string& title : table.titles) {
        titles += (titles.empty() ? "" : " ") + title;
    }
    return titles;
}

/// Some of a row's cells by their titles. Fails for a row that is not as long as the titles.
Cells cellsOf(const Table& table, std::size_t row, const Cells& titles)
{
    EXPECT_EQ(table.rows.at(row).size(), table.titles.size());
    Cells cells;
    for (const std::string& title : titles) {
        const auto found = std::ranges::find(table.titles, title);
        if (found == table.titles.end()) {
            throw std::out_of_range(title);
        }
        cells.push_back(table.rows.at(row).at(static_cast<std::size_t>(found - table.titles.begin())));
    }
    return cells;
}

std::string machine(const std::string& tag)
{
    return "<" + tag + "><MachineType>4210</MachineType><Model>M16</Model><SerialNumber>06A~1:2</SerialNumber></" +
           tag + ">";
}

/// A console with one object of each type and more.
HandMadeConsole harbour()
{
    HandMadeConsole console("Harbour B");
    console.add(ObjectType::ManagementConsole, "c1",
                "<ManagementConsoleName>mc</ManagementConsoleName>" + machine("MachineTypeModelAndSerialNumber") +
                    "<VersionInfo><BuildLevel>2</BuildLevel><Version>3</Version></VersionInfo>");
    console.add(ObjectType::ManagedSystem, "s1",
                "<SystemName>=helios</SystemName><State>error - terminated</State>"
                "<PhysicalSystemAttentionLEDState>true</PhysicalSystemAttentionLEDState>"
                "<AssociatedSystemMemoryConfiguration><ConfigurableSystemMemory>64</ConfigurableSystemMemory>"
                "</AssociatedSystemMemoryConfiguration>" +
                    machine("MachineTypeModelAndSerialNumber"));
    console.addSystem("s2", "operating");
    console.add(ObjectType::LogicalPartition, "p0", "", ObjectType::VirtualIOServer); // of another type: no row
    console.addPartition(ObjectType::VirtualIOServer, "v1", "running", "s1");
    console.addPartition(ObjectType::LogicalPartition, "p1", "error", "s2", "N210");
    // This console puts the identifier beside the object.
    console.entries[ObjectType::LogicalPartition] +=
        "<entry><content><Metadata><Atom><AtomID>p2</AtomID></Atom></Metadata><LogicalPartition>"
        "<PartitionName>two</PartitionName></LogicalPartition></content></entry>";
    console.addPartition(ObjectType::LogicalPartition, "p3", "not activated", "elsewhere");
    console.addEvent("1042", "Open", now - 1h,
                     "<firstReportedTimestamp>soon</firstReportedTimestamp><callHomeEnabled>true</callHomeEnabled>"
                     "<failingManagedSystemNode><hostName>h</hostName>" +
                         machine("managedTypeModelSerial") +
                         "</failingManagedSystemNode><fieldReplaceableUnits>"
                         "<FieldReplaceableUnit><locationCode>U1</locationCode></FieldReplaceableUnit>"
                         "<FieldReplaceableUnit><partNumber>PS-7</partNumber><locationCode>U2</locationCode>"
                         "</FieldReplaceableUnit></fieldReplaceableUnits>");
    console.addEvent("1043", "Closed", now - 2h);
    console.add(ObjectType::Group, "g1",
                "<GroupName>Ledger</GroupName><AssociatedLogicalPartitions><link href='/p/p1'/><link href='/p/p3'/>"
                "</AssociatedLogicalPartitions>");
    return console;
}

TEST(TableTests, ObjectsAreWholeUnderTitlesThatStay)
{
    HandMadeConsole lab("Lab");
    lab.entries[ObjectType::ManagedSystem] = "NA";
    ConsoleSnapshot unread{lab.corvel, "New", "new.example", nullptr, nullptr, nullptr};
    const std::vector<ConsoleSnapshot> consoles = {harbour().snapshot(), lab.snapshot(), unread};
    const auto table = [&consoles](std::string_view type) { return tableOfObjects(type, consoles); };

    const Table systems = table(ObjectType::ManagedSystem);
    EXPECT_EQ(titlesOf(systems),
              "console address name state health attention_led reference_code ip_address machine_type "
              "model serial_number processing_units memory_mb id");
    EXPECT_EQ(systems.rows, (std::vector<Cells>{{"Harbour B", "Harbour B.example", "=helios", "error - terminated",
                                                 "error", "true", "", "", "4210", "M16", "06A~1:2", "", "64", "s1"},
                                                {"Harbour B", "Harbour B.example", "name of s2", "operating", "good",
                                                 "false", "", "", "", "", "", "", "", "s2"}}));

    const Table partitions = table(ObjectType::LogicalPartition);
    EXPECT_EQ(titlesOf(partitions),
              "console address name state health partition_id type reference_code system system_id id");
    ASSERT_THAT(partitions.rows, SizeIs(3));
    const Cells some = {"name", "state", "health", "system", "system_id", "id"};
    EXPECT_THAT(cellsOf(partitions, 0, some), ElementsAre("name of p1", "error", "error", "name of s2", "s2", "p1"));
    EXPECT_THAT(cellsOf(partitions, 1, some), ElementsAre("two", "", "alert", "", "", "p2"));
    EXPECT_THAT(cellsOf(partitions, 2, some),
                ElementsAre("name of p3", "not activated", "idle", "", "elsewhere", "p3"));
    EXPECT_THAT(cellsOf(table(ObjectType::VirtualIOServer), 0, {"name", "system"}),
                ElementsAre("name of v1", "=helios"));

    EXPECT_EQ(table(ObjectType::ManagementConsole).rows,
              (std::vector<Cells>{{"Harbour B", "Harbour B.example", "mc", "4210", "M16", "06A~1:2",
                                   "V3R(null).(null).(null).(null)", "2", "c1"}}));
    EXPECT_EQ(table(ObjectType::Group).rows,
              (std::vector<Cells>{{"Harbour B", "Harbour B.example", "Ledger", "", "2", "p1; p3", "g1"}}));
    EXPECT_THAT(table("Unheard").titles, IsEmpty());

    const Table fleet = tableOfConsoles(consoles);
    const Cells counts = {"console", "systems", "partitions", "last_reading", "last_reading_utc"};
    EXPECT_THAT(cellsOf(fleet, 0, counts), ElementsAre("Harbour B", "2", "3", "complete", "2026-03-12T09:39:00Z"));
    EXPECT_THAT(cellsOf(fleet, 1, counts), ElementsAre("Lab", "", "0", "complete", "2026-03-12T09:39:00Z"));
    EXPECT_THAT(cellsOf(fleet, 2, counts), ElementsAre("New", "", "", "not_tried", ""));
}

TEST(TableTests, RowsAreThoseOfTheListInItsOrder)
{
    const ConsoleSnapshot console = harbour().snapshot();
    std::vector<XMLElement> shown;
    for (const XMLElement& entry : console.feeds->feed(ObjectType::LogicalPartition).entries()) {
        shown.insert(shown.begin(), contentOf(entry, ObjectType::LogicalPartition));
    }
    const auto identifiers = [&console](const std::vector<XMLElement>& elements) {
        Cells found;
        const Table table = tableOfElements(ObjectType::LogicalPartition, console, elements);
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            found.push_back(cellsOf(table, row, {"id"}).front());
        }
        return found;
    };
    EXPECT_THAT(identifiers(shown), ElementsAre("p3", "p2", "p1"));
    EXPECT_THAT(identifiers({shown[1]}), ElementsAre("p2"));
    // The list still shows elements of a feed that was replaced meanwhile.
    shown[1] = XMLElement::parse("<LogicalPartition><PartitionName>old</PartitionName></LogicalPartition>").value();
    EXPECT_THAT(identifiers(shown), ElementsAre("p3", "old", "p1"));
}

TEST(TableTests, EventsFindingsAndChangesSayWhatTheirRowsSay)
{
    HandMadeConsole console = harbour();
    console.failFeed(ObjectType::Group);
    console.failFeed(ObjectType::VirtualIOServer);
    const std::vector<ConsoleSnapshot> consoles = {console.snapshot()};

    const Table all = tableOfObjects(ObjectType::ServiceableEvent, consoles);
    const Table events = tableOfEvents(eventsOf(consoles), {1, 0});
    EXPECT_EQ(events.titles, all.titles);
    EXPECT_EQ(events.rows, (std::vector<Cells>{all.rows.at(1), all.rows.at(0)}));
    EXPECT_THAT(
        cellsOf(events, 1,
                {"number", "status", "first_reported", "first_reported_utc", "last_reported", "last_reported_utc",
                 "failing_system", "failing_serial_number", "part_numbers", "part_locations"}),
        ElementsAre("1042", "Open", "soon", "", "1773304860", "2026-03-12T08:41:00Z", "h", "06A~1:2", "; PS-7",
                    "U1; U2"));

    const Findings findings = findingsOf(consoles, now);
    const Table attention = tableOfFindings(findings);
    ASSERT_THAT(attention.rows, SizeIs(4));
    const Cells some = {"rank", "band", "finding", "type", "name", "state", "missing_feeds", "id"};
    EXPECT_THAT(cellsOf(attention, 0, some), ElementsAre("1", "errors", "system_error_lit", "ManagedSystem", "=helios",
                                                         "error - terminated", "", "s1"));
    EXPECT_THAT(cellsOf(attention, 1, {"finding", "system", "reference_code", "since_utc", "since_exact", "members"}),
                ElementsAre("partition_error", "name of s2", "N210", "2026-03-12T09:39:00Z", "false", ""));
    EXPECT_THAT(cellsOf(attention, 2, {"finding", "type", "missing_feeds", "address"}),
                ElementsAre("feeds_missing", "Console", "VirtualIOServer; Group", "Harbour B.example"));
    EXPECT_THAT(cellsOf(attention, 3, {"finding", "event_number", "event_text", "call_home", "duplicates"}),
                ElementsAre("open_event", "1042", "name of 1042", "true", "0"));
    EXPECT_EQ(tableOfFindings(findings, {3, 1}).rows, (std::vector<Cells>{attention.rows[3], attention.rows[1]}));

    Change change;
    change.seen = now;
    change.before = now - 15min;
    change.address = "h.example";
    change.console = "Harbour B";
    change.sense = ChangeSense::Worse;
    change.object = {"ManagedSystem", "s1"};
    change.name = "helios";
    change.from = "operating";
    change.to = "error";
    Change back = change;
    back.kind = ChangeKind::OnlineAgain;
    back.sense = ChangeSense::Better;
    back.before = {};
    back.lasted = 25min;
    const Table changes = tableOfChanges({change, back}, {1, 0});
    EXPECT_EQ(titlesOf(changes),
              "console address seen_utc before_utc change sense type name from to lasted_seconds id");
    EXPECT_EQ(changes.rows[1], (Cells{"Harbour B", "h.example", "2026-03-12T09:41:00Z", "2026-03-12T09:26:00Z", "state",
                                      "worse", "ManagedSystem", "helios", "operating", "error", "", "s1"}));
    EXPECT_THAT(cellsOf(changes, 0, {"before_utc", "change", "sense", "lasted_seconds"}),
                ElementsAre("", "online_again", "better", "1500"));
}

} // namespace
} // namespace lodestar::test
