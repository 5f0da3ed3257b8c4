// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Controllers/REST/RESTHandler.h"
#include "Fleet/FleetSheet.h"
#include "Fleet/History.h"
#include "Fleet/Registry.h"
#include "Platform/PrivateFile.h"
#include "Platform/UtcStamp.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace lodestar
{
namespace
{

using Texts::say;

/// What is known without asking. Never a password.
Table registryTable(const std::vector<CorvelRef>& consoles)
{
    const auto stamp = [](const std::optional<WallTime>& time) {
        return time ? utcStamp(std::chrono::system_clock::to_time_t(*time)) : std::string();
    };
    Table table{{"console", "address", "user", "version", "last_complete_utc", "offline_since_utc"}, {}};
    for (const CorvelRef& corvel : consoles) {
        const auto memory = History::shared().memoryOf(corvel->address().value_or(""));
        const auto offline = memory && memory->offlineSince ? std::optional(memory->offlineSince->time) : std::nullopt;
        table.rows.push_back({corvel->name().value_or(""), corvel->address().value_or(""),
                              corvel->username().value_or(""), corvel->version().value_or(""),
                              stamp(memory ? memory->lastComplete : std::nullopt), stamp(offline)});
    }
    return table;
}

} // namespace

Result<Verdict> listConsoles(CommandContext& context)
{
    const Result<std::vector<CorvelRef>> consoles = context.session.consoles(context.arguments.values("--console"));
    if (!consoles) {
        return consoles.error();
    }
    const Table table = registryTable(consoles.value());
    if (context.arguments.has("--json")) {
        Json::Value answer = Json::answer("consoles");
        answer["consoles"] = Json::rows(table);
        context.output.write(Json::document(answer));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(table);
    } else if (table.rows.empty()) {
        context.output.write(sentenceText(say(TEXT("CommandLine", "No consoles yet.")), context.output.terminal()));
    } else {
        context.output.write(tableText(table, context.output.terminal()));
    }
    return Verdict::Good;
}

Result<Verdict> removeConsole(CommandContext& context)
{
    const Result<std::vector<CorvelRef>> called = context.session.consoles({context.arguments.operands[0]});
    if (!called) {
        return called.error();
    }
    if (called.value().size() > 1) {
        return failure(say(TEXT("CommandLine", "Several consoles are called %1. Name one by its address."),
                           {context.arguments.operands[0]}));
    }
    const CorvelRef corvel = called.value().front();
    const std::vector<CorvelRef>& list = RESTHandler::sharedInstance().corvelList();
    deleteCorvelAtIndex(static_cast<std::size_t>(std::ranges::find(list, corvel) - list.begin()));
    // The removal saved already, and would have kept a failure to itself.
    if (const Result<void> saved = context.session.save(); !saved) {
        return saved.error();
    }
    if (context.arguments.has("--json")) {
        Json::Value answer = Json::answer("consoles remove");
        answer["console"] = calledName(*corvel);
        answer["address"] = corvel->address().value_or("");
        context.output.write(Json::document(answer));
    } else {
        context.output.write(sentenceText(say(TEXT("CommandLine", "%1 was removed."), {calledName(*corvel)}),
                                          context.output.terminal()));
    }
    return Verdict::Good;
}

Result<Verdict> exportConsoles(CommandContext& context)
{
    if (context.arguments.has("--json")) {
        return misuse(
            say(TEXT("CommandLine", "consoles export writes a fleet sheet; consoles list --json writes JSON.")));
    }
    const Result<std::vector<CorvelRef>> consoles = context.session.consoles(context.arguments.values("--console"));
    if (!consoles) {
        return consoles.error();
    }
    const Table sheet = fleetSheetOf(consoles.value());
    const std::string& file = context.arguments.operands[0];
    if (file == "-") {
        context.output.writeCsv(sheet);
        return Verdict::Good;
    }
    if (const Result<void> written = writePrivateFile(file, csvOf(sheet)); !written) {
        return failure(say(TEXT("CommandLine", "Could not be saved: %1"), {Words::errorText(written.error())}));
    }
    context.output.write(sentenceText(
        //: %1 the name of a file
        Texts::count(TEXTS("CommandLine", "Saved %Ln consoles as %1"), sheet.rows.size(), {file}),
        context.output.terminal()));
    return Verdict::Good;
}

} // namespace lodestar
