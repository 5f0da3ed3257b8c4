// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/ObjectKind.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/EventTable.h"
#include "Fleet/FleetEvents.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <vector>

namespace lodestar
{
namespace
{

/// Which of them a choice was made of.
enum class Chosen { All, Open, Such };

/// "No open events.", or as far as is known.
std::string noneText(Chosen chosen, bool isKnown, std::string_view type)
{
    constexpr std::array texts = {
        TEXT("CommandLine", "No %1."),      TEXT("CommandLine", "No known %1."),
        TEXT("CommandLine", "No open %1."), TEXT("CommandLine", "No known open %1."),
        TEXT("CommandLine", "No such %1."), TEXT("CommandLine", "No known such %1."),
    };
    return Texts::say(texts.at(static_cast<std::size_t>(chosen) * 2 + (isKnown ? 0 : 1)), {Words::feed(type)});
}

/// On a terminal a sentence; elsewhere, where the next program takes it for a row, the titles.
std::string emptyText(const CommandContext& context, const FleetPicture& picture, const Table& table,
                      const ObjectKind& kind, Chosen chosen)
{
    const Terminal& terminal = context.output.terminal();
    if (!terminal.isTerminal) {
        return titlesText(context.arguments.has("--all") ? table : columnsOf(table, kind.usualTitles), terminal);
    }
    if (picture.consoles.empty()) {
        return sentenceText(Texts::say(TEXT("CommandLine", "No consoles yet.")), terminal);
    }
    return sentenceText(noneText(chosen, picture.hasAll(kind.type), kind.type), terminal);
}

Result<Verdict> say(CommandContext& context, std::string_view command, const FleetPicture& picture, const Table& table,
                    const ObjectKind& kind, Chosen chosen = Chosen::All)
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
        context.output.write(emptyText(context, picture, table, kind, chosen));
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
        return misuse(Texts::say(TEXT("CommandLine", "--order takes sent, newest, status or code, not %1."), {name}));
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
        return failure(
            Texts::say(TEXT("CommandLine", "Nothing of that kind is called %1."), {context.arguments.operands[1]}));
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
               choice.value().callHomeOnly ? Chosen::Such
               : choice.value().openOnly   ? Chosen::Open
                                           : Chosen::All);
}

} // namespace lodestar
