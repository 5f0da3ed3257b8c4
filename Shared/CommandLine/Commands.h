// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/Arguments.h"
#include "CommandLine/FleetPicture.h"
#include "CommandLine/Output.h"
#include "CommandLine/Session.h"
#include "CommandLine/TableText.h"
#include "CommandLine/Verdict.h"
#include "Platform/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What a command works with.
struct CommandContext {
    const Arguments& arguments;
    Session& session;
    Output& output;
};

/// A command: how it is called, and what it does. Fails with a sentence for a person.
struct Command {
    Syntax syntax;
    Result<Verdict> (*run)(CommandContext& context);
};

/// Every command of the program, as the help lists them. A further one is a row here and a function.
const std::vector<Command>& commandTable();

Result<Verdict> listConsoles(CommandContext& context);
Result<Verdict> addConsole(CommandContext& context);
Result<Verdict> removeConsole(CommandContext& context);
Result<Verdict> importConsoles(CommandContext& context);
Result<Verdict> exportConsoles(CommandContext& context);
Result<Verdict> showStatus(CommandContext& context);
Result<Verdict> showAttention(CommandContext& context);
Result<Verdict> listObjects(CommandContext& context);
Result<Verdict> showObject(CommandContext& context);
Result<Verdict> listEvents(CommandContext& context);
Result<Verdict> showMetrics(CommandContext& context);
Result<Verdict> watchConsoles(CommandContext& context);
Result<Verdict> exportFleet(CommandContext& context);

// What several commands do.

/// Reads the consoles that the arguments name, or all.
Result<FleetPicture> readFleet(CommandContext& context);
/// Green, orange and red for the states and healths of objects.
Ink inkOfState(std::string_view title, std::string_view cell);
/// Says on standard error which consoles did not answer in full, for what cannot say it in its own text.
void complainOfGaps(const FleetPicture& picture);

} // namespace lodestar
