// SPDX-License-Identifier: Apache-2.0
#include "Simulator/Inventory.h"

#include <algorithm>
#include <array>
#include <random>
#include <span>
#include <string_view>

namespace lodestar::simulator
{

namespace
{

using Words = std::span<const std::string_view>;

constexpr auto sites = std::to_array<std::string_view>({"harbour", "ridgeway", "northfield", "uplands", "millbrook",
                                                        "eastquay", "lowmoor", "saltmarsh", "kingsferry", "beaconhill",
                                                        "tidewater", "fernworth", "oldmint", "stonebridge"});

constexpr auto systemFamilies =
    std::to_array<std::string_view>({"helios", "atlas-ledger", "borealis", "meridian", "castor", "tidemark",
                                     "atlas-archive-west-cold", "cygnus", "lanternist", "pollux"});

constexpr auto partitionRoles = std::to_array<std::string_view>(
    {"ledger-app", "ledger-db-primary", "batch-night", "mail-relay", "settled-archive", "scheduled-jobs",
     "freight-tariff", "customs-queue", "print-spool", "berth-planning", "pilot-roster", "web:01",
     "Ledger-Migration-Rehearsal-2026-second-attempt", "crane-telemetry", "MyDirectory"});

// Systems take these states in this order, so that a small inventory shows every kind of row already. "error" and
// "incomplete" also occur inside longer words, which badges must count, and with a capital letter, which they must not.
constexpr auto uneasySystemStates =
    std::to_array<std::string_view>({"error", "incomplete", "standby", "power off", "initializing", "not available",
                                     "error - terminated", "Operating", "incomplete - version mismatch", "alert"});

constexpr auto uneasyPartitionStates = std::to_array<std::string_view>(
    {"not activated", "error", "starting", "shutting down", "alert", "not available", "not activated", "Running"});

constexpr auto colors = std::to_array<std::string_view>(
    {"Cyan", "Green", "Red", "Purple", "Blue", "Grey", "Yellow", "Orange", "Pink", "Teal"});

// Mixes the bits, so that a change of any bit may change all others.
std::uint64_t scrambled(std::uint64_t bits)
{
    bits = (bits ^ bits >> 30U) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ bits >> 27U) * 0x94D049BB133111EBU;
    return bits ^ bits >> 31U;
}

class Generator
{
public:
    Generator(const Settings& settings, std::uint64_t number)
        : m_settings(settings), m_number(number), m_random(settings.seed * 7919 + number)
    {
    }

    Inventory make()
    {
        m_inventory.console = makeConsoleIdentity(m_settings.seed, static_cast<int>(m_number));
        for (int i = 0; i < m_settings.systems; ++i) {
            addSystem(static_cast<std::size_t>(i));
        }
        for (int i = 0; i < m_settings.vios && m_settings.systems > 0; ++i) {
            addVirtualServer(static_cast<std::size_t>(i));
        }
        for (int i = 0; i < m_settings.events; ++i) {
            addEvent(static_cast<std::size_t>(i));
        }
        for (int i = 0; i < m_settings.groups; ++i) {
            addGroup(static_cast<std::size_t>(i));
        }
        return std::move(m_inventory);
    }

private:
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : static_cast<std::size_t>(m_random() % limit); }

    std::string identifier()
    {
        const std::uint64_t high = m_random();
        return makeIdentifier(high, m_random());
    }

    std::string hexadecimal(std::size_t digits)
    {
        static constexpr std::string_view alphabet = "0123456789ABCDEF";
        std::string text;
        for (std::size_t i = 0; i < digits; ++i) {
            text += alphabet[below(alphabet.size())];
        }
        return text;
    }

    std::string referenceCode()
    {
        static constexpr std::array<std::string_view, 4> families = {"X417", "N140", "N210", "C702"};
        return std::string(families[below(families.size())]) + "-" + hexadecimal(4);
    }

    static std::string numbered(Words words, std::size_t i)
    {
        const std::size_t round = i / words.size() + 1;
        return std::string(words[i % words.size()]) + (round < 10 ? "-0" : "-") + std::to_string(round);
    }

    MachineIdentity machine()
    {
        static constexpr std::array<std::string_view, 4> models = {"M16", "M32", "S4", "K8"};
        return {"4210", std::string(models[below(models.size())]), hexadecimal(7)};
    }

    void addSystem(std::size_t i)
    {
        ManagedSystem system;
        system.id = identifier();
        system.name = numbered(systemFamilies, i);
        const Words uneasy = uneasySystemStates;
        system.state = i % 2 == 0 ? "operating" : uneasy[(i / 2 + m_number) % uneasy.size()];
        // Lamps are lit on good and on failing systems. A lamp that says "True" does not count as lit.
        system.attentionLED = i % 5 == 1 || i % 7 == 4 ? "true" : i % 11 == 6 ? "True" : "false";
        system.ipAddress = i % 6 == 3 ? "fd00:24:8::" + std::to_string(60 + i)
                                      : "10.24." + std::to_string(m_number % 250) + "." + std::to_string(20 + i % 230);
        if (i % 4 != 2) {
            system.referenceCode = system.state == "operating" ? "00000000" : referenceCode();
        }
        system.machine = machine();
        system.processorUnits = std::to_string(16U << (i % 3)) + (i % 3 == 1 ? ".5" : "");
        system.memoryMB = 262144 << (i % 4);
        m_inventory.systems.push_back(std::move(system));
        for (int k = 0; k < m_settings.partitions; ++k) {
            addPartition(i, static_cast<std::size_t>(k));
        }
    }

    void addPartition(std::size_t system, std::size_t k)
    {
        static constexpr std::array<std::string_view, 3> types = {"General purpose", "Dedicated", "Hosting"};
        const std::size_t i = m_inventory.partitions.size();
        Partition partition;
        partition.id = identifier();
        partition.name = numbered(partitionRoles, i);
        partition.number = static_cast<int>(k) + 1;
        partition.type = types[i % 4 == 3 ? 1 + below(2) : 0];
        const Words uneasy = uneasyPartitionStates;
        partition.state = i % 3 != 1 ? "running" : uneasy[(i / 3 + m_number) % uneasy.size()];
        if (partition.state != "running") {
            partition.referenceCode = partition.state == "not activated" ? "00000000" : referenceCode();
        }
        partition.system = system;
        m_inventory.partitions.push_back(std::move(partition));
    }

    void addVirtualServer(std::size_t i)
    {
        static constexpr std::array<std::string_view, 6> states = {"running", "running", "not activated",
                                                                   "error",   "running", "shutting down"};
        Partition server;
        server.id = identifier();
        server.system = i / 2 % m_inventory.systems.size();
        server.name = "vios-" + std::string(sites[m_number % sites.size()]) + "-" + std::to_string(i / 2 + 1) +
                      (i % 2 == 0 ? "a" : "b");
        server.number = 100 + static_cast<int>(i % 2);
        server.type = "Virtual IO Server";
        server.state = states[(i + m_number) % states.size()];
        m_inventory.vios.push_back(std::move(server));
    }

    void addEvent(std::size_t i)
    {
        static constexpr std::array<std::string_view, 3> approvals = {"Pending approval", "Approved", "Not approved"};
        static constexpr std::array<std::string_view, 4> texts = {
            "Power supply 2 of drawer 1 does not deliver its rated output; redundancy is lost until it is replaced",
            "Fan speed out of range", "Memory module deconfigured & kept out of use until <reseated>",
            "The service processor was reset by its watchdog after it had not answered for two minutes"};
        ServiceableEvent event;
        event.id = identifier();
        const std::string code = referenceCode();
        const std::int64_t lastReported = 1773308460 - static_cast<std::int64_t>(i) * 86413;
        const std::string firstReported = std::to_string(lastReported - 7200);
        event.fields = {{"problemNumber", std::to_string(1042 - static_cast<int>(i))},
                        {"callHomeEnabled", i % 3 == 0 ? "true" : "false"},
                        {"problemManagementHardwareRecord", std::to_string(7 + i)},
                        {"ApprovalState", std::string(approvals[i % approvals.size()])},
                        {"referenceCode", code},
                        {"referenceCodeExtension", hexadecimal(8)},
                        {"systemReferenceCode", code.substr(0, 4)},
                        {"problemState", i % 4 == 3 ? "Closed" : "Open"},
                        {"firmwareFix", i % 5 == 4 ? "Level 2.4.1" : "None available"},
                        {"firstReportedTimestamp", firstReported},
                        {"lastReportedTimestamp", std::to_string(lastReported)},
                        {"primaryTimestamp", std::to_string(lastReported - 3600)},
                        {"shortDescription", std::string(texts[i % texts.size()])},
                        {"eventSeverity", std::to_string(10 * (1 + i % 5))},
                        {"notificationType", i % 2 == 0 ? "Customer" : "Service"},
                        {"duplicateCount", std::to_string(i % 4)}};
        if (!m_inventory.systems.empty() && i % 7 != 6) {
            event.failingSystem = below(m_inventory.systems.size());
        }
        for (std::size_t unit = 0; unit < i % 4; ++unit) {
            event.units.push_back({{"partNumber", "PS-1400-0" + std::to_string(unit)},
                                   {"class", "Hardware"},
                                   {"fieldReplaceableUnitDescription", "Power supply, 1400 W"},
                                   {"locationCode", "drawer 1, supply " + std::to_string(unit + 1)},
                                   {"previouslyReplaced", unit == 1 ? "true" : "false"},
                                   {"replacedTimestamp", unit == 1 ? firstReported : "0"},
                                   {"replacementGroup", std::to_string(unit + 1)}});
        }
        m_inventory.events.push_back(std::move(event));
    }

    // One group stays empty, and one has a single resource.
    void addGroup(std::size_t i)
    {
        static constexpr auto names = std::to_array<std::string_view>(
            {"Ledger production", "Ledger recovery", "Quarantine", "Decommissioned", "Batch & scheduling",
             "Storage front ends", "Training", "Migration rehearsal of the western archive, spring 2026",
             "Harbour office", "Unsorted"});
        Group group;
        group.id = identifier();
        group.name = i < names.size() ? std::string(names[i]) : numbered(names, i);
        group.color = colors[i % colors.size()];
        if (i % names.size() == 2 && !m_inventory.partitions.empty()) {
            group.partitions.push_back(below(m_inventory.partitions.size()));
        } else if (i % names.size() != 3) {
            group.partitions = everyNth(m_inventory.partitions.size(), i);
            group.vios = everyNth(m_inventory.vios.size(), i);
            group.systems = everyNth(m_inventory.systems.size(), i);
        }
        m_inventory.groups.push_back(std::move(group));
    }

    // Chooses eight at most, since a screen asks for each of them in turn.
    static std::vector<std::size_t> everyNth(std::size_t count, std::size_t offset)
    {
        std::vector<std::size_t> chosen;
        for (std::size_t i = offset; i < count && chosen.size() < 8; i += 3) {
            chosen.push_back(i);
        }
        return chosen;
    }

    const Settings& m_settings;
    std::uint64_t m_number;
    std::mt19937_64 m_random;
    Inventory m_inventory;
};

} // namespace

Inventory makeInventory(const Settings& settings, std::uint64_t number)
{
    return Generator(settings, number).make();
}

ConsoleIdentity makeConsoleIdentity(std::uint64_t seed, int index)
{
    const auto number = static_cast<std::uint64_t>(index);
    const std::string id = makeIdentifier(seed, number);
    ConsoleIdentity console;
    console.id = id;
    console.name =
        "corvel-" + std::string(sites[number % sites.size()]) + "-" + std::to_string(number / sites.size() + 1);
    console.machine = {"5180", "K2", id.substr(0, 7)};
    console.version = {{"BuildLevel", "20260118.2"},
                       {"Maintenance", number % 5 == 3 ? "9" : "4"},
                       {"Minor", "0"},
                       {"Release", number % 5 == 3 ? "1" : "2"},
                       {"ServicePackName", "SP" + std::to_string(1 + number % 4)},
                       {"Version", "3"}};
    return console;
}

InventorySummary summaryOf(const Inventory& inventory)
{
    InventorySummary summary;
    const auto listed = [](const auto& list) {
        return static_cast<int>(std::ranges::count_if(list, [](const auto& each) { return !each.isGone; }));
    };
    summary.systems = listed(inventory.systems);
    for (const ManagedSystem& system : inventory.systems) {
        if (system.isGone) {
            continue;
        }
        const bool failing =
            system.state.find("error") != std::string::npos || system.state.find("incomplete") != std::string::npos;
        summary.systemErrors += failing ? 1 : 0;
        summary.attentionLEDs += system.attentionLED == "true" ? 1 : 0;
    }
    summary.partitions = listed(inventory.partitions);
    summary.vios = listed(inventory.vios);
    summary.events = static_cast<int>(inventory.events.size());
    summary.groups = static_cast<int>(inventory.groups.size());
    return summary;
}

std::string makeIdentifier(std::uint64_t high, std::uint64_t low)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    const std::uint64_t state = high * 0xD1342543DE82EF95U + low;
    const std::array<std::uint64_t, 2> bits = {scrambled(state), scrambled(~state)};
    std::string text;
    for (std::size_t i = 0; i < 32; ++i) {
        text += i == 8 || i == 12 || i == 16 || i == 20 ? "-" : "";
        text += digits[bits.at(i / 16) >> 4 * (i % 16) & 0xFU];
    }
    return text;
}

} // namespace lodestar::simulator
