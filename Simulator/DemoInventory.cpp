// SPDX-License-Identifier: Apache-2.0
// The console that the application shows before it knows any other: small enough to read through, with one row of
// every kind, names of every length, and few enough states that the dashboard's charts stay clear.
#include "Simulator/Inventory.h"

#include <array>
#include <string_view>

namespace lodestar::simulator
{

namespace
{

/// 12 March 2026, 09:41 UTC, in seconds since 1970.
constexpr std::int64_t now = 1773308460;

enum class Kind : std::uint64_t { System = 1, Partition, VirtualServer, Event, Group };

std::string identifier(Kind kind, std::size_t i)
{
    return makeIdentifier(2026 + static_cast<std::uint64_t>(kind), i);
}

struct SystemRow {
    const char* name;
    const char* state;
    const char* led;
    const char* ipAddress;
    /// Null for a system that reports none.
    const char* referenceCode;
    const char* model;
    const char* serialNumber;
    const char* processorUnits;
    int memoryMB;
};

// Each of the four badges: none, the lamp alone, the state alone, both.
constexpr std::array<SystemRow, 10> systemRows = {{
    {"helios-01", "operating", "false", "10.24.8.61", "00000000", "M16", "06A17A8", "16", 262144},
    {"helios-02", "operating", "true", "10.24.8.62", "N210-0016", "M16", "06A17B0", "16", 262144},
    {"helios-03", "error", "false", "10.24.8.63", "X417-2208", "M16", "06A17C2", "16", 262144},
    {"helios-04", "incomplete", "true", "10.24.8.64", "C702-11F4", "M16", "06A17D9", "16", 262144},
    {"atlas-ledger-01", "operating", "false", "10.24.9.11", "00000000", "M32", "11C0E45", "64", 1048576},
    {"atlas-ledger-02", "standby", "false", "10.24.9.12", "00000000", "M32", "11C0E4B", "64", 1048576},
    {"atlas-archive-west-cold-storage-02", "operating", "false", "10.24.9.40", "00000000", "S4", "11C1F02", "8.5",
     131072},
    {"borealis-01", "power off", "false", "10.24.12.7", "00000000", "K8", "2B90A31", "24", 524288},
    {"borealis-02", "operating", "false", "10.24.12.8", nullptr, "K8", "2B90A35", "24", 524288},
    {"meridian-quay-01", "operating", "false", "10.24.14.3", "00000000", "K8", "2B9144E", "32", 524288},
}};

struct PartitionRow {
    std::size_t system;
    int number;
    const char* name;
    const char* type;
    const char* state;
    const char* referenceCode;
};

constexpr const char* general = "General purpose";
constexpr const char* dedicated = "Dedicated";
constexpr const char* hosting = "Hosting";

constexpr std::array<PartitionRow, 32> partitionRows = {{
    {0, 1, "scheduled-jobs", general, "shutting down", "N210-0004"},
    {0, 2, "settled-archive", hosting, "running", nullptr},
    {0, 3, "mail-relay", general, "running", nullptr},
    {0, 4, "directory-1", general, "running", nullptr},
    {1, 1, "directory-2", general, "running", nullptr},
    {1, 2, "berth-planning", general, "running", nullptr},
    {1, 3, "pilot-roster", general, "running", nullptr},
    {1, 4, "print-spool", general, "not activated", "00000000"},
    {2, 1, "customs-queue", general, "error", "X417-2208"},
    {2, 2, "freight-tariffs", general, "error", "X417-2208"},
    {2, 3, "crane-telemetry", dedicated, "not activated", "00000000"},
    {3, 1, "harbour-web-1", general, "not activated", "00000000"},
    {3, 2, "harbour-web-2", general, "starting", "C702-11F4"},
    {4, 1, "ledger-app-1", general, "running", nullptr},
    {4, 2, "ledger-app-2", general, "running", nullptr},
    {4, 3, "ledger-db-primary", dedicated, "running", nullptr},
    {4, 4, "batch-night", general, "not activated", "00000000"},
    {4, 5, "payments-gateway", dedicated, "running", nullptr},
    {5, 1, "ledger-db-standby", dedicated, "starting", "N140-0020"},
    {5, 2, "ledger-reporting", general, "not activated", "00000000"},
    {5, 3, "Ledger-Migration-Second-Dress-Rehearsal-2026", general, "error", "X417-2208"},
    {6, 1, "archive-index", general, "running", nullptr},
    {6, 2, "archive-cold-store", hosting, "running", nullptr},
    {6, 3, "archive-restore-drill", general, "not activated", "00000000"},
    {7, 1, "training-1", general, "not activated", "00000000"},
    {7, 2, "training-2", general, "not activated", "00000000"},
    {8, 1, "tide-model", dedicated, "running", nullptr},
    {8, 2, "weather-feed", general, "running", nullptr},
    {8, 3, "build-farm", hosting, "running", nullptr},
    {9, 1, "quay-gate-control", general, "running", nullptr},
    {9, 2, "quay-gate-standby", general, "starting", "N140-0012"},
    {9, 3, "q", general, "running", nullptr},
}};

constexpr std::array<PartitionRow, 8> serverRows = {{
    {0, 101, "vios-harbour-1a", "Virtual IO Server", "running", nullptr},
    {0, 102, "vios-harbour-1b", "Virtual IO Server", "running", nullptr},
    {1, 101, "vios-harbour-2a", "Virtual IO Server", "running", nullptr},
    {1, 102, "vios-harbour-2b", "Virtual IO Server", "not activated", "00000000"},
    {2, 101, "vios-harbour-3a", "Virtual IO Server", "error", "X417-2208"},
    {4, 101, "vios-ledger-storage-and-shared-network", "Virtual IO Server", "running", nullptr},
    {4, 102, "vios-ledger-b", "Virtual IO Server", "shutting down", "N210-0004"},
    {8, 101, "vios-borealis-2a", "Virtual IO Server", "running", nullptr},
}};

struct EventRow {
    int problemNumber;
    const char* approvalState;
    const char* referenceCode;
    const char* extension;
    const char* problemState;
    const char* firmwareFix;
    /// Seconds before now, of the last report; the first report lies `openFor` seconds further back.
    std::int64_t ago;
    std::int64_t openFor;
    /// -1 for the console itself.
    int failingSystem;
    int severity;
    int duplicates;
    const char* text;
};

constexpr std::array<EventRow, 11> eventRows = {{
    {1042, "Pending approval", "X417-2208", "0000A3C1", "Open", "None available", 0, 7200, 2, 40, 3,
     "Power supply 2 of drawer 1 does not deliver its rated output; redundancy is lost until it is replaced"},
    {1041, "Pending approval", "C702-11F4", "00000002", "Open", "Level 2.4.1", 6538, 0, 3, 50, 0,
     "The system's profile data is incomplete; it must be restored or built anew before partitions can be started"},
    {1037, "Approved", "N210-0016", "00000000", "Open", "None available", 44273, 3600, 1, 20, 1,
     "Fan 3 turns faster than its neighbours"},
    {1036, "Approved", "X417-2208", "0000A3C0", "Open", "None available", 44506, 600, 2, 40, 0, "Memory module failed"},
    {1029, "Not approved", "X417-0300", "00000011", "Closed", "None available", 158427, 86400, 2, 30, 12,
     "Storage path lost and found again"},
    {1024, "Approved", "N140-0020", "00000000", "Closed", "None available", 320050, 1200, 5, 10, 0,
     "A partition needed more than ten minutes to start"},
    {1019, "Approved", "C000-0001", "00000000", "Closed", "Level 2.3.9", 406685, 0, -1, 20, 0,
     "The console's clock was wrong by four minutes"},
    {1011, "Not approved", "X417-0301", "00000012", "Closed", "None available", 564154, 43200, 4, 30, 2,
     "Storage path lost and found again"},
    {1008, "Approved", "N210-0004", "00000000", "Closed", "None available", 605649, 60, 0, 10, 0,
     "Service processor restarted"},
    {1003, "Approved", "X417-1190", "0000B002", "Closed", "None available", 747220, 172800, 8, 50, 1,
     "Network adapter replaced after repeated errors on two of its four ports; the spare is from another lot"},
    {998, "Approved", "N210-0016", "00000000", "Closed", "None available", 1029600, 300, 7, 20, 0,
     "Fan 1 turns faster than its neighbours"},
}};

struct UnitRow {
    int problemNumber;
    ReplaceableUnit unit;
};

// None, one, two and three units: only the first of an event gets a heading.
const std::vector<UnitRow>& unitRows()
{
    static const std::vector<UnitRow> rows = {
        {1042, {"PS-1400-07", "Hardware", "Power supply, 1400 W", "drawer 1, supply 2", "false", "0", "1"}},
        {1042, {"BP-0214", "Hardware", "Drawer backplane", "drawer 1", "false", "0", "2"}},
        {1037, {"FN-0080-02", "Hardware", "Fan, 80 mm", "drawer 2, fan 3", "false", "0", "1"}},
        {1036, {"MM-0064-11", "Hardware", "Memory module, 64 GB", "processor 1, slot 6", "false", "0", "1"}},
        {1036, {"MM-0064-11", "Hardware", "Memory module, 64 GB", "processor 1, slot 7", "false", "0", "1"}},
        {1036, {"PB-0016-03", "Hardware", "Processor board", "processor 1", "false", "0", "2"}},
        {1003,
         {"NA-0425-01", "Hardware", "Network adapter, four ports, 25 Gbit/s", "drawer 1, slot 4", "true", "1772561240",
          "1"}},
        {998, {"FN-0080-02", "Hardware", "Fan, 80 mm", "drawer 1, fan 1", "true", "1772278860", "1"}},
    };
    return rows;
}

struct GroupRow {
    const char* name;
    const char* color;
    std::vector<std::size_t> systems;
    /// The partitions and the virtual servers of these systems belong to it.
    std::vector<std::size_t> contentsOf;
};

const std::vector<GroupRow>& groupRows()
{
    static const std::vector<GroupRow> rows = {
        {"Ledger production", "Green", {4}, {4}},
        {"Ledger recovery", "Orange", {5}, {5}},
        {"Batch and scheduling", "Blue", {}, {0, 4}},
        {"Storage front ends", "Cyan", {6}, {6}},
        {"Migration rehearsal of the western archive, spring 2026", "Purple", {5, 6}, {}},
        {"Quarantine", "Red", {2}, {}},
        {"Training", "Yellow", {}, {7}},
        {"Decommissioned", "Grey", {}, {}},
        {"Harbour office", "Pink", {0, 1, 2, 3}, {0, 1, 2, 3}},
        {"Everything", "None", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    };
    return rows;
}

ConsoleIdentity console()
{
    ConsoleIdentity console;
    console.id = makeIdentifier(2026, 0);
    console.name = "corvel-demo";
    console.machine = {"5180", "K2", "21F4E0A"};
    console.version = "3";
    console.release = "2";
    console.maintenance = "4";
    console.minor = "0";
    console.servicePackName = "SP1";
    console.buildLevel = "20260118.2";
    return console;
}

ManagedSystem systemOf(const SystemRow& row, std::size_t i)
{
    ManagedSystem system;
    system.id = identifier(Kind::System, i);
    system.name = row.name;
    system.state = row.state;
    system.attentionLED = row.led;
    system.ipAddress = row.ipAddress;
    if (row.referenceCode != nullptr) {
        system.referenceCode = row.referenceCode;
    }
    system.machine = {"4210", row.model, row.serialNumber};
    system.processorUnits = row.processorUnits;
    system.memoryMB = row.memoryMB;
    return system;
}

template <typename Rows>
std::vector<Partition> partitionsOf(const Rows& rows, Kind kind)
{
    std::vector<Partition> partitions;
    for (const PartitionRow& row : rows) {
        Partition partition;
        partition.id = identifier(kind, partitions.size());
        partition.name = row.name;
        partition.number = row.number;
        partition.type = row.type;
        partition.state = row.state;
        if (row.referenceCode != nullptr) {
            partition.referenceCode = row.referenceCode;
        }
        partition.system = row.system;
        partitions.push_back(std::move(partition));
    }
    return partitions;
}

ServiceableEvent eventOf(const EventRow& row, std::size_t i)
{
    ServiceableEvent event;
    event.id = identifier(Kind::Event, i);
    event.problemNumber = row.problemNumber;
    event.callHome = row.severity >= 40 ? "true" : "false";
    event.hardwareRecord = row.problemNumber - 1035 > 0 ? row.problemNumber - 1035 : 1;
    event.approvalState = row.approvalState;
    event.referenceCode = row.referenceCode;
    event.referenceCodeExtension = row.extension;
    event.systemReferenceCode = event.referenceCode.substr(0, 4);
    event.problemState = row.problemState;
    event.firmwareFix = row.firmwareFix;
    event.lastReported = now - row.ago;
    event.firstReported = event.lastReported - row.openFor;
    event.primary = event.firstReported;
    if (row.failingSystem >= 0) {
        event.failingSystem = static_cast<std::size_t>(row.failingSystem);
    }
    event.text = row.text;
    event.severity = row.severity;
    event.notificationType = row.severity >= 30 ? "Customer" : "Service";
    event.duplicates = row.duplicates;
    for (const UnitRow& unit : unitRows()) {
        if (unit.problemNumber == row.problemNumber) {
            event.units.push_back(unit.unit);
        }
    }
    return event;
}

std::vector<std::size_t> belongingTo(const std::vector<std::size_t>& systems, const std::vector<Partition>& partitions)
{
    std::vector<std::size_t> chosen;
    for (const std::size_t system : systems) {
        for (std::size_t i = 0; i < partitions.size(); ++i) {
            if (partitions[i].system == system) {
                chosen.push_back(i);
            }
        }
    }
    return chosen;
}

} // namespace

Inventory makeDemoInventory()
{
    Inventory inventory;
    inventory.published = "2026-03-12T09:41:00.000Z";
    inventory.console = console();
    for (const SystemRow& row : systemRows) {
        inventory.systems.push_back(systemOf(row, inventory.systems.size()));
    }
    inventory.partitions = partitionsOf(partitionRows, Kind::Partition);
    inventory.vios = partitionsOf(serverRows, Kind::VirtualServer);
    for (const EventRow& row : eventRows) {
        inventory.events.push_back(eventOf(row, inventory.events.size()));
    }
    for (const GroupRow& row : groupRows()) {
        inventory.groups.push_back({identifier(Kind::Group, inventory.groups.size()), row.name, row.color,
                                    belongingTo(row.contentsOf, inventory.partitions),
                                    belongingTo(row.contentsOf, inventory.vios), row.systems});
    }
    return inventory;
}

} // namespace lodestar::simulator
