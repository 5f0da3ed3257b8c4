// SPDX-License-Identifier: Apache-2.0
#include "Fleet/AttentionTable.h"

#include "Fleet/TableCells.h"

#include <numeric>
#include <utility>

namespace lodestar
{
namespace
{

/// As the feed table names types; "Console" for a console itself.
std::string_view wordOf(FindingSubject subject)
{
    switch (subject) {
    case FindingSubject::Console:
        break;
    case FindingSubject::System:
        return ObjectType::ManagedSystem;
    case FindingSubject::IOServer:
        return ObjectType::VirtualIOServer;
    case FindingSubject::Partition:
        return ObjectType::LogicalPartition;
    case FindingSubject::Group:
        return ObjectType::Group;
    case FindingSubject::Event:
        return ObjectType::ServiceableEvent;
    }
    return "Console";
}

std::vector<std::string> cellsOf(const Finding& finding)
{
    std::string missing;
    for (const std::string_view type : finding.missing) {
        appendToCell(missing, type);
    }
    const bool isGroup = finding.subject == FindingSubject::Group;
    const bool isEvent = finding.subject == FindingSubject::Event;
    const auto ofGroup = [isGroup](std::size_t count) { return isGroup ? std::to_string(count) : std::string(); };
    return {
        finding.console,
        finding.corvel != nullptr ? finding.corvel->address().value_or("") : "",
        std::to_string(static_cast<int>(finding.rank)),
        std::string(lodestar::wordOf(bandOf(finding.rank))),
        std::string(lodestar::wordOf(finding.rank)),
        std::string(wordOf(finding.subject)),
        finding.name,
        finding.state,
        finding.since ? utcCell(finding.since->time) : "",
        finding.since ? truthCell(finding.since->exact) : "",
        finding.system,
        finding.referenceCode,
        finding.error ? shownDescription(*finding.error) : "",
        std::move(missing),
        utcCell(finding.ranUntil),
        ofGroup(finding.membersInError),
        ofGroup(finding.members),
        finding.eventNumber,
        finding.eventText,
        isEvent ? truthCell(finding.callsHome) : "",
        isEvent ? std::to_string(finding.duplicates) : "",
        finding.object.identifier,
    };
}

} // namespace

std::string_view wordOf(FindingBand band)
{
    switch (band) {
    case FindingBand::Errors:
        return "errors";
    case FindingBand::NotAnswering:
        return "not_answering";
    case FindingBand::Warnings:
        return "warnings";
    case FindingBand::OpenEvents:
        break;
    }
    return "open_events";
}

std::string_view wordOf(FindingRank rank)
{
    switch (rank) {
    case FindingRank::SystemErrorLit:
        return "system_error_lit";
    case FindingRank::SystemError:
        return "system_error";
    case FindingRank::IOServerError:
        return "io_server_error";
    case FindingRank::PartitionError:
        return "partition_error";
    case FindingRank::ConsoleOffline:
        return "console_offline";
    case FindingRank::FeedsMissing:
        return "feeds_missing";
    case FindingRank::Stopped:
        return "stopped";
    case FindingRank::LEDLit:
        return "led_lit";
    case FindingRank::GroupError:
        return "group_error";
    case FindingRank::OpenEvent:
        break;
    }
    return "open_event";
}

Table tableOfFindings(const Findings& findings, const std::vector<std::uint32_t>& shown)
{
    Table table;
    table.titles = {"console",       "address",
                    "rank",          "band",
                    "finding",       "type",
                    "name",          "state",
                    "since_utc",     "since_exact",
                    "system",        "reference_code",
                    "error",         "missing_feeds",
                    "ran_until_utc", "members_in_error",
                    "members",       "event_number",
                    "event_text",    "call_home",
                    "duplicates",    "id"};
    table.rows.reserve(shown.size());
    for (const std::uint32_t index : shown) {
        table.rows.push_back(cellsOf(findings.list[index]));
    }
    return table;
}

Table tableOfFindings(const Findings& findings)
{
    std::vector<std::uint32_t> all(findings.list.size());
    std::iota(all.begin(), all.end(), 0);
    return tableOfFindings(findings, all);
}

} // namespace lodestar
