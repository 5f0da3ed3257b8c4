// SPDX-License-Identifier: Apache-2.0
#include "Fleet/EventTable.h"

#include "Inventory/Identity.h"
#include "Platform/UtcStamp.h"

#include <array>
#include <optional>
#include <utility>

namespace lodestar
{
namespace
{

using Field = std::optional<std::string>;

/// Empty for a text that is no time, or for one outside the calendar.
Field utcOf(const Field& seconds)
{
    constexpr std::int64_t firstSecond = -62'167'219'200; // of the year 0
    constexpr std::int64_t lastSecond = 253'402'300'799;  // of the year 9999
    const auto time = reportedSeconds(seconds);
    return time && *time >= firstSecond && *time <= lastSecond ? Field(utcStamp(*time)) : std::nullopt;
}

/// One field of all parts.
Field ofUnits(const ServiceableEvent& event, Field (FieldReplaceableUnit::*field)() const)
{
    std::string texts;
    const auto units = event.units();
    for (std::size_t i = 0; i < units.size(); ++i) {
        texts += (i > 0 ? "; " : "") + (units[i].*field)().value_or("");
    }
    return texts;
}

struct Column {
    const char* title;
    Field (*field)(const ServiceableEvent& event);
};
using Event = const ServiceableEvent&;

constexpr std::array columns = {
    Column{"number", [](Event event) { return event.problemNumber(); }},
    Column{"status", [](Event event) { return event.problemState(); }},
    Column{"text", [](Event event) { return event.shortDescription(); }},
    Column{"reference_code", [](Event event) { return event.referenceCode(); }},
    Column{"reference_code_extension", [](Event event) { return event.referenceCodeExtension(); }},
    Column{"system_reference_code", [](Event event) { return event.systemReferenceCode(); }},
    Column{"severity", [](Event event) { return event.severity(); }},
    Column{"approval_state", [](Event event) { return event.approvalState(); }},
    Column{"call_home", [](Event event) { return event.callHomeEnabled(); }},
    Column{"first_reported", [](Event event) { return event.firstReported(); }},
    Column{"first_reported_utc", [](Event event) { return utcOf(event.firstReported()); }},
    Column{"last_reported", [](Event event) { return event.lastReported(); }},
    Column{"last_reported_utc", [](Event event) { return utcOf(event.lastReported()); }},
    Column{"data_time", [](Event event) { return event.primaryTimestamp(); }},
    Column{"data_time_utc", [](Event event) { return utcOf(event.primaryTimestamp()); }},
    Column{"duplicates", [](Event event) { return event.duplicateCount(); }},
    Column{"hardware_record", [](Event event) { return event.hardwareRecord(); }},
    Column{"firmware_fix", [](Event event) { return event.firmwareFix(); }},
    Column{"notification_type", [](Event event) { return event.notificationType(); }},
    Column{"failing_system", [](Event event) { return event.failingSystem().hostName(); }},
    Column{"failing_machine_type", [](Event event) { return event.failingSystem().identity().machineType(); }},
    Column{"failing_model", [](Event event) { return event.failingSystem().model(); }},
    Column{"failing_serial_number", [](Event event) { return event.failingSystem().identity().serialNumber(); }},
    Column{"reporting_console", [](Event event) { return event.reportingConsole().hostName(); }},
    Column{"reporting_machine_type", [](Event event) { return event.reportingConsole().identity().machineType(); }},
    Column{"reporting_model", [](Event event) { return event.reportingConsole().model(); }},
    Column{"reporting_serial_number", [](Event event) { return event.reportingConsole().identity().serialNumber(); }},
    Column{"analyzing_console", [](Event event) { return event.analyzingConsole().hostName(); }},
    Column{"analyzing_machine_type", [](Event event) { return event.analyzingConsole().identity().machineType(); }},
    Column{"analyzing_model", [](Event event) { return event.analyzingConsole().model(); }},
    Column{"analyzing_serial_number", [](Event event) { return event.analyzingConsole().identity().serialNumber(); }},
    Column{"part_numbers", [](Event event) { return ofUnits(event, &FieldReplaceableUnit::partNumber); }},
    Column{"part_classes", [](Event event) { return ofUnits(event, &FieldReplaceableUnit::unitClass); }},
    Column{"part_descriptions", [](Event event) { return ofUnits(event, &FieldReplaceableUnit::unitDescription); }},
    Column{"part_locations", [](Event event) { return ofUnits(event, &FieldReplaceableUnit::locationCode); }},
    Column{"parts_replaced_before",
           [](Event event) { return ofUnits(event, &FieldReplaceableUnit::previouslyReplaced); }},
    Column{"part_replacement_times",
           [](Event event) { return ofUnits(event, &FieldReplaceableUnit::replacedTimestamp); }},
    Column{"part_replacement_groups",
           [](Event event) { return ofUnits(event, &FieldReplaceableUnit::replacementGroup); }},
};

} // namespace

std::vector<std::string> eventTitles()
{
    std::vector<std::string> titles;
    titles.reserve(columns.size() + 3); // behind console and address
    for (const Column& column : columns) {
        titles.emplace_back(column.title);
    }
    titles.emplace_back("id");
    return titles;
}

std::vector<std::string> eventCells(const ServiceableEvent& event, std::string identifier)
{
    std::vector<std::string> cells;
    cells.reserve(columns.size() + 3); // behind console and address
    for (const Column& column : columns) {
        cells.push_back(column.field(event).value_or(""));
    }
    cells.push_back(std::move(identifier));
    return cells;
}

Table tableOfEvents(const std::vector<FleetEvent>& events, const std::vector<std::uint32_t>& shown)
{
    Table table{eventTitles(), {}};
    table.titles.insert(table.titles.begin(), {"console", "address"});
    table.rows.reserve(shown.size());
    for (const std::uint32_t index : shown) {
        const FleetEvent& each = events[index];
        std::vector<std::string> cells = eventCells(each.event, identityOf(each.event));
        cells.insert(cells.begin(), {each.console, each.corvel->address().value_or("")});
        table.rows.push_back(std::move(cells));
    }
    return table;
}

} // namespace lodestar
