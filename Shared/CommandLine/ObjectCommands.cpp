// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/ObjectKind.h"
#include "CommandLine/Words.h"
#include "Fleet/EventTable.h"
#include "Fleet/FleetEvents.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <vector>

namespace lodestar
{
namespace
{

/// On a terminal a sentence; elsewhere, where the next program takes it for a row, the titles.
std::string emptyText(const CommandContext& context, const FleetPicture& picture, const Table& table,
                      const ObjectKind& kind, std::string_view such)
{
    const Terminal& terminal = context.output.terminal();
    if (!terminal.isTerminal) {
        return titlesText(context.arguments.has("--all") ? table : columnsOf(table, kind.usualTitles), terminal);
    }
    if (picture.consoles.empty()) {
        return sentenceText("No consoles yet.", terminal);
    }
    const std::string_view no = picture.hasAll(kind.type) ? "No" : "No known";
    return sentenceText(fmt::format("{} {}{}.", no, such, Words::feed(kind.type)), terminal);
}

/// `such` tells of which of them a choice was made: "open ".
Result<Verdict> say(CommandContext& context, std::string_view command, const FleetPicture& picture, const Table& table,
                    const ObjectKind& kind, std::string_view such = {})
{
    const Terminal& terminal = context.output.terminal();
    if (context.arguments.has("--json")) {
        Json::Value answer = Json::answer(command, picture);
        answer["type"] = kind.type;
        answer["objects"] = Json::rows(table);
        context.output.write(Json::document(answer));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(table);
    } else if (table.rows.empty()) {
        context.output.write(emptyText(context, picture, table, kind, such));
    } else {
        const bool all = context.arguments.has("--all");
        context.output.write(all ? tableText(table, terminal, &inkOfState)
                                 : tableText(table, kind.usualTitles, kind.spareTitles, terminal, &inkOfState));
    }
    complainOfGaps(picture);
    return picture.hasAll(kind.type) ? Verdict::Good : Verdict::Unknown;
}

struct OrderName {
    std::string_view name;
    EventOrder order;
};
constexpr std::array orders = {OrderName{"sent", EventOrder::AsSent}, OrderName{"newest", EventOrder::NewestFirst},
                               OrderName{"status", EventOrder::ByStatus},
                               OrderName{"code", EventOrder::ByReferenceCode}};

Result<EventChoice> choiceOf(const Arguments& arguments)
{
    EventChoice choice;
    const std::string name = arguments.value("--order").value_or("newest");
    const auto* const order = std::ranges::find(orders, name, &OrderName::name);
    if (order == orders.end()) {
        return misuse("--order takes sent, newest, status or code, not " + name + ".");
    }
    choice.order = order->order;
    choice.openOnly = arguments.has("--open");
    choice.callHomeOnly = arguments.has("--call-home");
    return choice;
}

} // namespace

Result<Verdict> listObjects(CommandContext& context)
{
    const ObjectKind* const kind = objectKindOf(context.arguments.operands[0]);
    if (kind == nullptr) {
        return misuse(noSuchKind(context.arguments.operands[0]));
    }
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    return say(context, "list", picture.value(), tableOf(*kind, picture.value().consoles), *kind);
}

Result<Verdict> showObject(CommandContext& context)
{
    const ObjectKind* const kind = objectKindOf(context.arguments.operands[0]);
    if (kind == nullptr) {
        return misuse(noSuchKind(context.arguments.operands[0]));
    }
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    const Table table = tableOf(*kind, picture.value().consoles);
    const std::vector<std::size_t> found = rowsCalled(*kind, table, context.arguments.operands[1]);
    if (found.empty()) {
        complainOfGaps(picture.value());
        return failure("Nothing of that kind is called " + context.arguments.operands[1] + ".");
    }
    Table chosen{table.titles, {}};
    for (const std::size_t row : found) {
        chosen.rows.push_back(table.rows[row]);
    }
    if (context.arguments.has("--json")) {
        Json::Value answer = Json::answer("show", picture.value());
        answer["type"] = kind->type;
        answer["objects"] = Json::rows(chosen);
        context.output.write(Json::document(answer));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(chosen);
    } else {
        std::string text;
        for (const auto& row : chosen.rows) {
            text += (text.empty() ? "" : "\n") + recordText(chosen.titles, row, context.output.terminal(), &inkOfState);
        }
        context.output.write(text);
    }
    return Verdict::Good;
}

Result<Verdict> listEvents(CommandContext& context)
{
    const Result<EventChoice> choice = choiceOf(context.arguments);
    if (!choice) {
        return choice.error();
    }
    const Result<FleetPicture> picture = readFleet(context);
    if (!picture) {
        return picture.error();
    }
    const std::vector<FleetEvent> events = eventsOf(picture.value().consoles);
    std::vector<std::uint32_t> shown;
    for (const EventGroup& group : groupedEvents(events, choice.value())) {
        shown.insert(shown.end(), group.events.begin(), group.events.end());
    }
    return say(context, "events", picture.value(), tableOfEvents(events, shown), *objectKindOf("events"),
               choice.value().callHomeOnly ? "such "
               : choice.value().openOnly   ? "open "
                                           : "");
}

} // namespace lodestar
