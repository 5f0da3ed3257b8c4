// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/ObjectKind.h"

#include "CommandLine/TableText.h"
#include "CommandLine/Texts.h"
#include "Fleet/ObjectTable.h"

#include <algorithm>

namespace lodestar
{
namespace
{

const std::vector<ObjectKind>& kinds()
{
    static const std::vector<ObjectKind> all = {
        {"consoles",
         ObjectType::ManagementConsole,
         {"console", "address", "version", "health", "systems", "partitions", "events", "last_reading", "missing_feeds",
          "error"},
         {"version", "last_reading"},
         {"address", "console"}},
        {"systems",
         ObjectType::ManagedSystem,
         {"name", "state", "health", "attention_led", "reference_code", "machine_type", "model", "serial_number",
          "console"},
         {"model", "machine_type", "attention_led", "serial_number"},
         {"id", "name", "serial_number"}},
        {"io-servers",
         ObjectType::VirtualIOServer,
         {"name", "state", "health", "partition_id", "reference_code", "system", "console"},
         {"partition_id"},
         {"id", "name"}},
        {"partitions",
         ObjectType::LogicalPartition,
         {"name", "state", "health", "partition_id", "type", "reference_code", "system", "console"},
         {"type", "partition_id", "health"},
         {"id", "name"}},
        {"events",
         ObjectType::ServiceableEvent,
         {"number", "status", "reference_code", "text", "failing_system", "last_reported_utc", "call_home", "console"},
         {"call_home", "failing_system", "status"},
         {"number", "id"}},
        {"groups", ObjectType::Group, {"name", "color", "members", "console"}, {}, {"id", "name"}},
    };
    return all;
}

} // namespace

const ObjectKind* objectKindOf(std::string_view word)
{
    const auto found = std::ranges::find_if(kinds(), [word](const ObjectKind& kind) {
        return word == kind.name || word == kind.name.substr(0, kind.name.size() - 1);
    });
    return found != kinds().end() ? &*found : nullptr;
}

std::string noSuchKind(const std::string& word)
{
    //: The kinds are words of the command, which stay as they are
    return Texts::say(
        TEXT("CommandLine", "There is no kind %1: consoles, systems, io-servers, partitions, events or groups."),
        {word});
}

Table tableOf(const ObjectKind& kind, const std::vector<ConsoleSnapshot>& consoles)
{
    return kind.type == ObjectType::ManagementConsole ? tableOfConsoles(consoles) : tableOfObjects(kind.type, consoles);
}

std::vector<std::size_t> rowsCalled(const ObjectKind& kind, const Table& table, std::string_view name)
{
    std::vector<std::size_t> rows;
    for (const std::string_view title : kind.callingTitles) {
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            if (cellOf(table, table.rows[i], title) == name) {
                rows.push_back(i);
            }
        }
        if (!rows.empty()) {
            break;
        }
    }
    return rows;
}

} // namespace lodestar
