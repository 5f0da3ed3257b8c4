// SPDX-License-Identifier: Apache-2.0
#include "Fleet/ObjectTable.h"

#include "Fleet/EventTable.h"
#include "Fleet/SystemNames.h"
#include "Fleet/TableCells.h"
#include "Inventory/Identity.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace lodestar
{
namespace
{

using Cells = std::vector<std::string>;

std::string textOf(const std::optional<std::string>& field)
{
    return field.value_or("");
}

/// What a row needs to know of its console.
struct Surroundings {
    std::map<std::string, std::string> systemNames;
};

// One pair of functions a kind: the titles, and the cells below them in the same order.

Cells titlesOf(const ConsoleInformation& /*kind*/)
{
    return {"name", "machine_type", "model", "serial_number", "version", "build_level", "id"};
}
Cells cellsOf(const ConsoleInformation& console, std::string identifier, const Surroundings& /*around*/)
{
    const MachineIdentity identity = console.identity();
    return {textOf(console.name()),   textOf(identity.machineType()),
            textOf(identity.model()), textOf(identity.serialNumber()),
            console.version(),        textOf(console.buildLevel()),
            std::move(identifier)};
}

Cells titlesOf(const ManagedSystem& /*kind*/)
{
    return {"name",         "state", "health",        "attention_led",    "reference_code", "ip_address",
            "machine_type", "model", "serial_number", "processing_units", "memory_mb",      "id"};
}
Cells cellsOf(const ManagedSystem& system, std::string identifier, const Surroundings& /*around*/)
{
    const MachineIdentity identity = system.identity();
    return {textOf(system.name()),
            textOf(system.state()),
            wordOf(system.health()),
            textOf(system.attentionLEDState()),
            textOf(system.referenceCode()),
            textOf(system.primaryIPAddress()),
            textOf(identity.machineType()),
            textOf(identity.model()),
            textOf(identity.serialNumber()),
            textOf(system.availableProcessingUnits()),
            textOf(system.availableMemory()),
            std::move(identifier)};
}

Cells titlesOf(const Partition& /*kind*/)
{
    return {"name", "state", "health", "partition_id", "type", "reference_code", "system", "system_id", "id"};
}
Cells cellsOf(const Partition& partition, std::string identifier, const Surroundings& around)
{
    std::string system = identityOfSystem(partition);
    const auto name = around.systemNames.find(system);
    return {textOf(partition.name()),
            textOf(partition.state()),
            wordOf(partition.health()),
            textOf(partition.identifier()),
            textOf(partition.kind()),
            textOf(partition.referenceCode()),
            name != around.systemNames.end() ? name->second : std::string(),
            std::move(system),
            std::move(identifier)};
}

Cells titlesOf(const ServiceableEvent& /*kind*/)
{
    return eventTitles();
}
Cells cellsOf(const ServiceableEvent& event, std::string identifier, const Surroundings& /*around*/)
{
    return eventCells(event, std::move(identifier));
}

Cells titlesOf(const ResourceGroup& /*kind*/)
{
    return {"name", "color", "members", "member_ids", "id"};
}
Cells cellsOf(const ResourceGroup& group, std::string identifier, const Surroundings& /*around*/)
{
    const auto members = group.members();
    std::string identities;
    for (const ResourceGroup::Member& member : members) {
        appendToCell(identities, identityOfMember(member));
    }
    return {textOf(group.name()), textOf(group.color()), std::to_string(members.size()), std::move(identities),
            std::move(identifier)};
}

/// Finds the entries of elements, since only an entry tells its object's identifier for certain. Elements that follow
/// one another in the feed are found at once, those of a few groups in one pass a group.
class EntryFinder
{
public:
    EntryFinder(const Feed& feed, std::string_view type) : m_entries(feed.entries())
    {
        for (const XMLElement& entry : m_entries) {
            m_elements.push_back(contentOf(entry, type));
        }
    }

    /// No element when the feed was replaced meanwhile.
    XMLElement entryOf(const XMLElement& element)
    {
        for (std::size_t passed = 0; passed < m_elements.size() && !m_isOther; ++passed) {
            const std::size_t at = m_next;
            m_next = (m_next + 1) % m_elements.size();
            if (m_elements[at] == element) {
                return m_entries[at];
            }
        }
        m_isOther = true;
        return {};
    }

private:
    const std::vector<XMLElement> m_entries;
    std::vector<XMLElement> m_elements;
    std::size_t m_next = 0;
    bool m_isOther = false;
};

template <typename Kind>
class TableOf
{
public:
    TableOf() : m_table{titlesOf(Kind()), {}} { m_table.titles.insert(m_table.titles.begin(), {"console", "address"}); }

    void addAll(const ConsoleSnapshot& console)
    {
        const Surroundings around = surroundingsOf(console);
        for (const XMLElement& entry : feedOf(console).entries()) {
            if (const auto record = recordOfEntry<Kind>(entry)) {
                add(console, record, identityOfEntry(entry, Kind::type), around);
            }
        }
    }

    void add(const ConsoleSnapshot& console, const std::vector<XMLElement>& elements)
    {
        const Surroundings around = surroundingsOf(console);
        EntryFinder finder(feedOf(console), Kind::type);
        for (const XMLElement& element : elements) {
            const XMLElement entry = finder.entryOf(element);
            const Kind record(element);
            add(console, record, entry ? identityOfEntry(entry, Kind::type) : identityOf(record), around);
        }
    }

    Table take() { return std::move(m_table); }

private:
    static Feed feedOf(const ConsoleSnapshot& console)
    {
        return console.feeds != nullptr ? console.feeds->feed(Kind::type) : Feed();
    }

    static Surroundings surroundingsOf(const ConsoleSnapshot& console)
    {
        const bool needsNames = std::is_base_of_v<Partition, Kind> && console.feeds != nullptr;
        return needsNames ? Surroundings{systemNamesOf(*console.feeds)} : Surroundings{};
    }

    void add(const ConsoleSnapshot& console, const Kind& record, std::string identifier, const Surroundings& around)
    {
        Cells cells = cellsOf(record, std::move(identifier), around);
        cells.insert(cells.begin(), {console.name, console.address});
        m_table.rows.push_back(std::move(cells));
    }

    Table m_table;
};

/// The table of a type, filled by `fill(table)`; without titles for a type that no console serves.
template <typename Fill>
Table tableOfType(std::string_view type, const Fill& fill)
{
    const auto filled = [&fill](auto table) {
        fill(table);
        return table.take();
    };
    if (type == ConsoleInformation::type) {
        return filled(TableOf<ConsoleInformation>());
    }
    if (type == ManagedSystem::type) {
        return filled(TableOf<ManagedSystem>());
    }
    if (type == VirtualIOServer::type) {
        return filled(TableOf<VirtualIOServer>());
    }
    if (type == LogicalPartition::type) {
        return filled(TableOf<LogicalPartition>());
    }
    if (type == ServiceableEvent::type) {
        return filled(TableOf<ServiceableEvent>());
    }
    return type == ResourceGroup::type ? filled(TableOf<ResourceGroup>()) : Table();
}

std::string countOf(const ConsoleSnapshot& console, std::string_view type)
{
    const Feed feed = console.feeds != nullptr ? console.feeds->feed(type) : Feed();
    return feed.isNA() ? std::string() : std::to_string(feed.entryCount());
}

std::string wordOf(Reading::Outcome outcome)
{
    switch (outcome) {
    case Reading::Outcome::NotTried:
        break;
    case Reading::Outcome::Complete:
        return "complete";
    case Reading::Outcome::Partial:
        return "partial";
    case Reading::Outcome::Offline:
        return "offline";
    }
    return "not_tried";
}

Cells cellsOfConsole(const ConsoleSnapshot& console)
{
    static const Reading notTried;
    const Reading& reading = console.reading != nullptr ? *console.reading : notTried;
    const bool wasTried = reading.outcome != Reading::Outcome::NotTried;
    std::string missing;
    for (const std::string_view type : reading.missingFeeds()) {
        appendToCell(missing, type);
    }
    Cells cells = {console.name,
                   console.address,
                   textOf(console.corvel->version()),
                   console.corvel->completedFetch ? wordOf(healthOf(*console.corvel)) : std::string(),
                   std::to_string(console.corvel->numMSErrors),
                   std::to_string(console.corvel->numMSLEDs)};
    for (const FeedKind& kind : feedTable) {
        if (kind.type != ConsoleInformation::type) {
            cells.push_back(countOf(console, kind.type));
        }
    }
    cells.insert(cells.end(), {wordOf(reading.outcome), wasTried ? utcCell(reading.ended) : std::string(),
                               utcCell(reading.lastComplete), std::move(missing),
                               reading.error ? shownDescription(*reading.error) : std::string()});
    return cells;
}

} // namespace

Table tableOfObjects(std::string_view type, const std::vector<ConsoleSnapshot>& consoles)
{
    return tableOfType(type, [&consoles](auto& table) {
        for (const ConsoleSnapshot& console : consoles) {
            table.addAll(console);
        }
    });
}

Table tableOfElements(std::string_view type, const ConsoleSnapshot& console, const std::vector<XMLElement>& elements)
{
    return tableOfType(type, [&](auto& table) { table.add(console, elements); });
}

Table tableOfFound(const FleetSearch& search, std::size_t kind, const std::vector<FoundObject>& found)
{
    if (kind == consoleKind) {
        std::vector<ConsoleSnapshot> consoles;
        consoles.reserve(found.size());
        std::ranges::transform(found, std::back_inserter(consoles),
                               [&search](const FoundObject& one) { return search.consoleOf(one); });
        return tableOfConsoles(consoles);
    }
    return tableOfType(searchedKinds.at(kind), [&](auto& table) {
        for (auto one = found.begin(); one != found.end();) {
            const ConsoleSnapshot& console = search.consoleOf(*one);
            const std::uint32_t number = one->console;
            std::vector<XMLElement> elements;
            for (; one != found.end() && one->console == number; ++one) {
                elements.push_back(search.searchedOf(*one).elementOf(one->object));
            }
            table.add(console, elements);
        }
    });
}

Table tableOfConsoles(const std::vector<ConsoleSnapshot>& consoles)
{
    Table table;
    table.titles = {
        "console",          "address",           "version",       "health", "systems_in_error", "attention_leds",
        "systems",          "io_servers",        "partitions",    "events", "groups",           "last_reading",
        "last_reading_utc", "last_complete_utc", "missing_feeds", "error"};
    for (const ConsoleSnapshot& console : consoles) {
        table.rows.push_back(cellsOfConsole(console));
    }
    return table;
}

} // namespace lodestar
