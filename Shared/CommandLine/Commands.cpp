// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"

#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"

namespace lodestar
{
namespace
{

using Texts::say;

constexpr Option passwordDescriptor = {"--password-fd", "N",
                                       TEXT("CommandLine", "Read passwords from descriptor N, one a line.")};

} // namespace

const std::vector<Command>& commandTable()
{
    static const std::vector<Command> table = {
        {{"status",
          "",
          0,
          0,
          TEXT("CommandLine", "Tell how all consoles are. The exit code says how the fleet is."),
          {}},
         &showStatus},
        {{"attention",
          "",
          0,
          0,
          TEXT("CommandLine", "List everything that needs attention. The exit code as with status."),
          {}},
         &showAttention},
        {{"list",
          "KIND",
          1,
          1,
          TEXT("CommandLine", "List consoles, systems, io-servers, partitions, events or groups."),
          {{"--all", "", TEXT("CommandLine", "Show every field as a column, not only the usual ones.")}}},
         &listObjects},
        {{"show", "KIND ID", 2, 2, TEXT("CommandLine", "Show one object, by identifier, name or number."), {}},
         &showObject},
        {{"events",
          "",
          0,
          0,
          TEXT("CommandLine", "List serviceable events."),
          {{"--open", "", TEXT("CommandLine", "Only open ones.")},
           {"--call-home", "", TEXT("CommandLine", "Only those that are reported to the maker.")},
           {"--order", "ORDER", TEXT("CommandLine", "sent, newest (as at first), status or code.")}}},
         &listEvents},
        {{"metrics",
          "SYSTEM",
          1,
          1,
          TEXT("CommandLine", "Show processors and memory of a system over the last half day."),
          {{"--memory", "", TEXT("CommandLine", "With --csv: memory instead of processors.")}}},
         &showMetrics},
        {{"watch",
          "",
          0,
          0,
          TEXT("CommandLine", "Read the consoles again and again, and write a line for each change."),
          {{"--every", "TIME",
            TEXT("CommandLine", "Minutes between readings, or 30s, 2h; at first as Lodestar's Watch has it.")},
           {"--times", "N", TEXT("CommandLine", "End after so many readings.")}}},
         &watchConsoles},
        {{"export",
          "",
          0,
          0,
          TEXT("CommandLine", "Write how all consoles are as OpenMetrics, for Prometheus."),
          {{"--openmetrics", "FILE",
            TEXT("CommandLine", "Replace this file, for a collector of text files; - is standard output.")},
           {"--listen", "PORT",
            TEXT("CommandLine", "Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.")},
           {"--every", "TIME", TEXT("CommandLine", "With --listen: minutes between readings, or 30s, 2h.")},
           {"--system", "SYSTEM", TEXT("CommandLine", "Also its processors and memory; may be repeated.")}}},
         &exportFleet},
        {{"consoles list", "", 0, 0, TEXT("CommandLine", "List the registered consoles without asking them."), {}},
         &listConsoles},
        {{"consoles add",
          "ADDRESS",
          1,
          1,
          TEXT("CommandLine", "Verify a console and register it."),
          {{"--user", "USER", TEXT("CommandLine", "Log on as this user.")},
           {"--name", "NAME", TEXT("CommandLine", "Call it so; the address at first.")},
           passwordDescriptor}},
         &addConsole},
        {{"consoles remove",
          "CONSOLE",
          1,
          1,
          TEXT("CommandLine", "Remove a console and what is remembered of it."),
          {}},
         &removeConsole},
        {{"consoles import",
          "FILE",
          1,
          1,
          TEXT("CommandLine",
               "Verify the consoles of a fleet sheet and register them together; - reads standard input."),
          {passwordDescriptor, {"--all-or-none", "", TEXT("CommandLine", "Register none unless all can be.")}}},
         &importConsoles},
        {{"consoles export",
          "FILE",
          1,
          1,
          TEXT("CommandLine", "Write the consoles as a fleet sheet, without secrets; - writes standard output."),
          {}},
         &exportConsoles},
        {{"consoles", "", 0, 0, TEXT("CommandLine", "The same as consoles list."), {}}, &listConsoles},
    };
    return table;
}

Result<FleetPicture> readFleet(CommandContext& context)
{
    const std::vector<std::string> named = context.arguments.values("--console");
    return readFleet(context.session, {named, {}, !named.empty()});
}

Ink inkOfState(std::string_view title, std::string_view cell)
{
    if (title != "health" && title != "severity" && title != "last_reading") {
        return Ink::None;
    }
    const auto isBand = [cell](FindingBand band) { return cell == Words::band(band); };
    return cell == "good" || cell == "complete"                                  ? Ink::Good
           : cell == "error" || cell == "offline" || isBand(FindingBand::Errors) ? Ink::Error
           : cell == "alert" || cell == "partial" || isBand(FindingBand::Warnings) || isBand(FindingBand::NotAnswering)
               ? Ink::Warning
               : Ink::None;
}

void complainOfGaps(const FleetPicture& picture)
{
    for (const ConsoleSnapshot& console : picture.consoles) {
        const std::string name = calledName(*console.corvel);
        if (console.reading->outcome == Reading::Outcome::Offline) {
            //: %1 a console, %2 why, as in "connection refused"
            complain(say(TEXT("CommandLine", "%1 did not answer: %2."),
                         {name, console.reading->error ? Words::reason(*console.reading->error)
                                                       : say(TEXT("CommandLine", "offline"))}));
        } else if (console.reading->outcome == Reading::Outcome::Partial) {
            //: %1 a console, %2 as in "Partitions not read"
            complain(say(TEXT("CommandLine", "%1: %2."), {name, Words::feedsNotRead(console.reading->missingFeeds())}));
        }
    }
    for (const std::string& sentence : picture.leftOutSentences()) {
        complain(sentence);
    }
    if (picture.consoles.empty()) {
        complain(say(TEXT("CommandLine", "No consoles yet.")));
    }
}

} // namespace lodestar
