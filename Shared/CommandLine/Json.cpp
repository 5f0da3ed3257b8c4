// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Json.h"

#include "CommandLine/Words.h"
#include "Fleet/AttentionTable.h"
#include "Fleet/ChangeTable.h"
#include "Platform/UtcStamp.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>

namespace lodestar
{
namespace
{

/// Titles of tables below which we ourselves write numbers.
constexpr std::array<std::string_view, 10> numberTitles = {
    "systems_in_error", "attention_leds", "systems", "io_servers",  "partitions",
    "events",           "groups",         "members", "open_events", "row"};

std::string_view wordOf(FindingSubject subject)
{
    switch (subject) {
    case FindingSubject::Console:
        return "console";
    case FindingSubject::System:
        return "system";
    case FindingSubject::IOServer:
        return "io_server";
    case FindingSubject::Partition:
        return "partition";
    case FindingSubject::Group:
        return "group";
    case FindingSubject::Event:
        break;
    }
    return "event";
}

Json::Value numberOf(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? Json::Value(number) : Json::text(text);
}

void addFields(Json::Value& object, const Finding& finding)
{
    switch (finding.rank) {
    case FindingRank::ConsoleOffline:
        object["error"] = Json::error(finding.error);
        break;
    case FindingRank::FeedsMissing:
        object["missing_feeds"] = finding.missing;
        break;
    case FindingRank::Stopped:
        object["ran_until"] = Json::time(finding.ranUntil);
        break;
    case FindingRank::GroupError:
        object["members_in_error"] = finding.membersInError;
        object["members"] = finding.members;
        break;
    case FindingRank::OpenEvent:
        object["number"] = Json::text(finding.eventNumber);
        object["call_home"] = finding.callsHome;
        object["reports"] = finding.duplicates + 1;
        break;
    default:
        break;
    }
}

} // namespace

Json::Value Json::answer(std::string_view command)
{
    return {{"schema", schema}, {"command", command}};
}

Json::Value Json::answer(std::string_view command, const FleetPicture& picture)
{
    Value value = answer(command);
    value["made"] = time(picture.made);
    value["verdict"] = lodestar::wordOf(picture.verdict());
    value["reading"] = {{"consoles", picture.consoles.size()},
                        {"complete", picture.complete},
                        {"partial", picture.partial},
                        {"offline", picture.offline},
                        {"left_out", picture.leftOut.size()}};
    return value;
}

Json::Value Json::time(const std::optional<WallTime>& time)
{
    return time ? Value(utcStamp(std::chrono::system_clock::to_time_t(*time))) : Value();
}

Json::Value Json::text(std::string_view text)
{
    return text.empty() ? Value() : Value(text);
}

Json::Value Json::error(const std::optional<Error>& error)
{
    return error ? Value{{"domain", error->domain}, {"code", error->code}, {"reason", Words::reason(*error)}} : Value();
}

Json::Value Json::row(const Table& table, const std::vector<std::string>& row)
{
    Value object = Value::object();
    for (std::size_t i = 0; i < table.titles.size(); ++i) {
        const std::string& title = table.titles[i];
        const std::string_view cell = i < row.size() ? std::string_view(row[i]) : std::string_view();
        const bool isNumber = std::ranges::find(numberTitles, title) != numberTitles.end();
        object[title] = isNumber ? numberOf(cell) : text(cell);
    }
    return object;
}

Json::Value Json::rows(const Table& table)
{
    Value list = Value::array();
    for (const auto& each : table.rows) {
        list.push_back(row(table, each));
    }
    return list;
}

Json::Value Json::finding(const Finding& finding, WallTime now)
{
    Value object = {{"band", lodestar::wordOf(bandOf(finding.rank))},
                    {"rank", static_cast<int>(finding.rank)},
                    {"kind", wordOf(finding.subject)},
                    {"name", finding.name},
                    {"id", text(finding.object.identifier)},
                    {"console", finding.console},
                    {"address", finding.corvel->address().value_or("")},
                    {"sentence", Words::sentence(finding, now)},
                    {"state", text(finding.state)},
                    {"system", text(finding.system)},
                    {"reference_code", text(finding.referenceCode)},
                    {"since", time(finding.since ? std::optional(finding.since->time) : std::nullopt)},
                    {"since_is_exact", finding.since && finding.since->exact}};
    addFields(object, finding);
    return object;
}

Json::Value Json::change(const Change& change)
{
    const bool hasLasted = change.kind == ChangeKind::OnlineAgain;
    return {{"seen", time(change.seen)},
            {"before", time(change.before)},
            {"sense", lodestar::wordOf(change.sense)},
            {"change", lodestar::wordOf(change.kind)},
            {"console", change.console},
            {"address", change.address},
            {"type", text(change.object.type)},
            {"id", text(change.object.identifier)},
            {"name", text(change.name)},
            {"from", text(change.from)},
            {"to", text(change.to)},
            {"lasted_seconds", hasLasted ? Value(change.lasted.count()) : Value()}};
}

std::string Json::document(const Value& value)
{
    return value.dump(2, ' ', true, Value::error_handler_t::replace) + "\n";
}

std::string Json::line(const Value& value)
{
    return value.dump(-1, ' ', true, Value::error_handler_t::replace) + "\n";
}

} // namespace lodestar
