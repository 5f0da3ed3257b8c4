// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"

#include "CommandLine/Words.h"

namespace lodestar
{
namespace
{

constexpr Option passwordDescriptor = {"--password-fd", "N", "Read passwords from descriptor N, one a line."};

} // namespace

const std::vector<Command>& commandTable()
{
    static const std::vector<Command> table = {
        {{"status", "", 0, 0, "Tell how all consoles are. The exit code says how the fleet is.", {}}, &showStatus},
        {{"attention", "", 0, 0, "List everything that needs attention. The exit code as with status.", {}},
         &showAttention},
        {{"list",
          "KIND",
          1,
          1,
          "List consoles, systems, io-servers, partitions, events or groups.",
          {{"--all", "", "Show every field as a column, not only the usual ones."}}},
         &listObjects},
        {{"show", "KIND ID", 2, 2, "Show one object, by identifier, name or number.", {}}, &showObject},
        {{"events",
          "",
          0,
          0,
          "List serviceable events.",
          {{"--open", "", "Only open ones."},
           {"--call-home", "", "Only those that are reported to the maker."},
           {"--order", "ORDER", "sent, newest (as at first), status or code."}}},
         &listEvents},
        {{"metrics",
          "SYSTEM",
          1,
          1,
          "Show processors and memory of a system over the last half day.",
          {{"--memory", "", "With --csv: memory instead of processors."}}},
         &showMetrics},
        {{"watch",
          "",
          0,
          0,
          "Read the consoles again and again, and write a line for each change.",
          {{"--every", "TIME", "Minutes between readings, or 30s, 2h; at first as Lodestar's Watch has it."},
           {"--times", "N", "End after so many readings."}}},
         &watchConsoles},
        {{"export",
          "",
          0,
          0,
          "Write how all consoles are as OpenMetrics, for Prometheus.",
          {{"--openmetrics", "FILE", "Replace this file, for a collector of text files; - is standard output."},
           {"--listen", "PORT", "Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too."},
           {"--every", "TIME", "With --listen: minutes between readings, or 30s, 2h."},
           {"--system", "SYSTEM", "Also its processors and memory; may be repeated."}}},
         &exportFleet},
        {{"consoles list", "", 0, 0, "List the registered consoles without asking them.", {}}, &listConsoles},
        {{"consoles add",
          "ADDRESS",
          1,
          1,
          "Verify a console and register it.",
          {{"--user", "USER", "Log on as this user."},
           {"--name", "NAME", "Call it so; the address at first."},
           passwordDescriptor}},
         &addConsole},
        {{"consoles remove", "CONSOLE", 1, 1, "Remove a console and what is remembered of it.", {}}, &removeConsole},
        {{"consoles import",
          "FILE",
          1,
          1,
          "Verify the consoles of a fleet sheet and register them together; - reads standard input.",
          {passwordDescriptor, {"--all-or-none", "", "Register none unless all can be."}}},
         &importConsoles},
        {{"consoles export",
          "FILE",
          1,
          1,
          "Write the consoles as a fleet sheet, without secrets; - writes standard output.",
          {}},
         &exportConsoles},
        {{"consoles", "", 0, 0, "The same as consoles list.", {}}, &listConsoles},
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
    return cell == "good" || cell == "complete"                                                    ? Ink::Good
           : cell == "error" || cell == "offline" || cell == "Errors"                              ? Ink::Error
           : cell == "alert" || cell == "partial" || cell == "Warnings" || cell == "Not answering" ? Ink::Warning
                                                                                                   : Ink::None;
}

void complainOfGaps(const FleetPicture& picture)
{
    for (const ConsoleSnapshot& console : picture.consoles) {
        const std::string name = calledName(*console.corvel);
        if (console.reading->outcome == Reading::Outcome::Offline) {
            complain(name + " did not answer: " +
                     (console.reading->error ? Words::reason(*console.reading->error) : std::string("offline")) + ".");
        } else if (console.reading->outcome == Reading::Outcome::Partial) {
            complain(name + ": " + Words::feedsNotRead(console.reading->missingFeeds()) + ".");
        }
    }
    for (const std::string& sentence : picture.leftOutSentences()) {
        complain(sentence);
    }
    if (picture.consoles.empty()) {
        complain("No consoles yet.");
    }
}

} // namespace lodestar
