// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/Passwords.h"
#include "CommandLine/Texts.h"
#include "CommandLine/Words.h"
#include "Fleet/FleetSheet.h"
#include "Platform/PrivateFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <string_view>
#include <unistd.h>
#include <unordered_set>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

Result<Passwords> passwordsOf(const Arguments& arguments)
{
    const Result<std::optional<int>> descriptor = arguments.number("--password-fd");
    return descriptor ? Result<Passwords>(Passwords(descriptor.value())) : Result<Passwords>(descriptor.error());
}

Result<std::string> contentsOf(const std::string& file)
{
    const int descriptor = file == "-" ? ::dup(STDIN_FILENO) : ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return fileError(say(TEXT("CommandLine", "%1 cannot be opened"), {file}), errno);
    }
    std::string bytes;
    std::string piece(std::size_t{64} << 10, '\0');
    ssize_t count = 0;
    // A byte more than a sheet may have tells the reader that it is too large.
    while (bytes.size() <= csvMostBytes && (count = ::read(descriptor, piece.data(), piece.size())) > 0) {
        bytes.append(piece, 0, static_cast<std::size_t>(count));
    }
    const int error = errno;
    ::close(descriptor);
    return count < 0 ? Result<std::string>(fileError(say(TEXT("CommandLine", "%1 cannot be read"), {file}), error))
                     : Result<std::string>(std::move(bytes));
}

std::string sentenceOf(const Error& error)
{
    if (error.domain == sheetErrorDomain) {
        return say(TEXT("lodestar::FleetSheetText", "There is no first line with name, address and user."));
    }
    if (error.domain == csvErrorDomain) {
        return error.code == csvTooLarge
                   ? say(TEXT("lodestar::FleetSheetText", "This file is too large for a fleet sheet."))
                   : say(TEXT("CommandLine", "This is not a CSV file: %1."), {error.failureReason});
    }
    return Words::errorText(error);
}

/// Why the row is none that can be tried; empty for one that can.
std::string objectionTo(const SheetRow& row)
{
    switch (row.kind) {
    case SheetRowKind::New:
        return {};
    case SheetRowKind::RegisteredAlready:
        return say(TEXT("CommandLine", "registered already, left alone"));
    case SheetRowKind::NoAddress:
        return say(TEXT("CommandLine", "no address"));
    case SheetRowKind::NoUser:
        return say(TEXT("CommandLine", "no user"));
    case SheetRowKind::BadAddress:
        return say(TEXT("CommandLine", "no address of a console: %1"), {row.address});
    case SheetRowKind::SameAddress:
        break;
    }
    return say(TEXT("CommandLine", "the same address as row %1"), {std::to_string(row.sameAs)});
}

/// A descriptor has a line for every user whom the sheet names, so that the same lines fit when some consoles are
/// registered already.
Result<std::map<std::string, std::string>> ask(const Passwords& passwords, const FleetSheet& sheet)
{
    const std::vector<std::string> users = sheet.users();
    const std::unordered_set<std::string_view> needed(users.begin(), users.end());
    std::map<std::string, std::string> answers;
    for (const std::string& user : sheet.allUsers()) {
        if (answers.size() == needed.size()) {
            break;
        }
        if (!needed.contains(user)) {
            if (const Result<void> skipped = passwords.skip(); !skipped) {
                return skipped.error();
            }
            continue;
        }
        Result<std::string> answer = passwords.next(say(TEXT("CommandLine", "Password of %1"), {user}));
        if (!answer) {
            return answer.error();
        }
        answers.emplace(user, std::move(answer).value());
    }
    return answers;
}

/// Tries all rows. When a signal comes, nothing of them stays.
Result<void> verify(CommandContext& context, FleetImport& import)
{
    ProgressLine progress;
    import.verify(nullptr);
    const Loop::End end = context.session.loop().runUntil([&] {
        const auto left = import.timeLeft();
        const std::string tried = std::to_string(import.tried());
        const std::string all = std::to_string(import.rows().size());
        progress.show(left ? Texts::count(TEXTS("CommandLine", "verifying %1 of %2, about %Ln s left"),
                                          static_cast<std::size_t>(left->count()), {tried, all})
                           : say(TEXT("CommandLine", "verifying %1 of %2"), {tried, all}));
        return !import.isRunning();
    });
    if (end != Loop::End::Met) {
        import.stop();
        return interrupted();
    }
    return {};
}

std::string missingText(std::size_t feeds)
{
    return feeds == 0 ? std::string() : Words::feedsNotRead(feeds);
}

Result<void> store(CommandContext& context, FleetImport& import)
{
    if (const Result<void> added = import.add(); !added) {
        return failure(say(TEXT("CommandLine", "Nothing was added.")) + " " + Words::errorText(added.error()));
    }
    return context.session.awaitHistory();
}

/// Each row with what became of it.
Table outcomeTable(const FleetSheet& sheet, const FleetImport& import, bool wasAdded)
{
    Table table{{"row", "name", "address", "user", "result", "note"}, {}};
    auto tried = import.rows().begin(); // those of the new rows, in their order
    for (const SheetRow& row : sheet.rows) {
        std::string result = row.kind == SheetRowKind::RegisteredAlready ? "registered" : "not_added";
        std::string note = objectionTo(row);
        if (row.kind == SheetRowKind::New) {
            const bool isGood = tried->state == FleetImport::State::Verified;
            result = isGood && wasAdded ? "added" : isGood ? "verified" : "not_added";
            note = isGood ? missingText(tried->missingFeeds) : tried->error ? Words::reason(*tried->error) : "";
            ++tried;
        }
        table.rows.push_back(
            {std::to_string(row.line), row.name, row.address, row.user, std::move(result), std::move(note)});
    }
    return table;
}

/// What is not read and cannot be used, before a person is asked anything.
void complainOf(const FleetSheet& sheet)
{
    for (const std::string& column : sheet.passwordColumns) {
        complain(say(TEXT("CommandLine", "The column %1 was not read: passwords do not belong in a sheet."), {column}));
    }
    for (const std::string& column : sheet.unknownColumns) {
        complain(say(TEXT("CommandLine", "The column %1 is not used."), {column}));
    }
    for (const SheetRow& row : sheet.rows) {
        if (row.kind != SheetRowKind::New && row.kind != SheetRowKind::RegisteredAlready) {
            //: %1 the number of a sheet's row, %2 what is wrong with it
            complain(say(TEXT("CommandLine", "Row %1: %2."), {std::to_string(row.line), objectionTo(row)}));
        }
    }
}

void tell(CommandContext& context, const Table& outcome, std::size_t added)
{
    if (context.arguments.has("--json")) {
        Json::Value answer = Json::answer(context.arguments.has("--user") ? "consoles add" : "consoles import");
        answer["added"] = added;
        answer["rows"] = Json::rows(outcome);
        context.output.write(Json::document(answer));
    } else if (context.arguments.has("--csv")) {
        context.output.writeCsv(outcome);
    } else {
        const Terminal& terminal = context.output.terminal();
        context.output.write(tableText(outcome, terminal) +
                             sentenceText(added == 0
                                              ? say(TEXT("CommandLine", "Nothing was added."))
                                              : Texts::count(TEXTS("CommandLine", "%Ln consoles were added."), added),
                                          terminal));
    }
}

Result<FleetSheet> sheetOf(const std::string& bytes)
{
    const Result<FleetSheet> sheet = readFleetSheet(bytes, registeredAddresses());
    return sheet ? sheet : Result<FleetSheet>(failure(sentenceOf(sheet.error())));
}

} // namespace

Result<Verdict> addConsole(CommandContext& context)
{
    const std::string& address = context.arguments.operands[0];
    const auto user = context.arguments.value("--user");
    if (!user) {
        return misuse(say(TEXT("CommandLine", "Say as whom to log on with --user.")));
    }
    // As a sheet of one row, so that the same rules hold.
    const std::string name = context.arguments.value("--name").value_or(address);
    const Result<FleetSheet> sheet = sheetOf(csvOf({{"name", "address", "user"}, {{name, address, *user}}}));
    if (!sheet) {
        return sheet.error();
    }
    if (sheet.value().rows.empty()) {
        return misuse(say(TEXT("CommandLine", "The address is empty.")));
    }
    const SheetRow& row = sheet.value().rows.front();
    if (const std::string objection = objectionTo(row); !objection.empty()) {
        return failure(say(TEXT("CommandLine", "Nothing was added: %1."), {objection}));
    }
    const Result<Passwords> passwords = passwordsOf(context.arguments);
    if (!passwords) {
        return passwords.error();
    }
    const auto answers = ask(passwords.value(), sheet.value());
    if (!answers) {
        return answers.error();
    }
    const auto import = std::make_shared<FleetImport>(sheet.value(), answers.value());
    if (const Result<void> tried = verify(context, *import); !tried) {
        return tried.error();
    }
    const FleetImport::Row& tried = import->rows().front();
    if (tried.state != FleetImport::State::Verified) {
        return failure(say(
            //: %1 an address, %2 why, as in "connection refused"
            TEXT("CommandLine", "Nothing was added. %1: %2."),
            {row.address, tried.error ? Words::reason(*tried.error) : say(TEXT("CommandLine", "not verified"))}));
    }
    if (const Result<void> added = store(context, *import); !added) {
        return added.error();
    }
    if (context.arguments.has("--json") || context.arguments.has("--csv")) {
        tell(context, outcomeTable(sheet.value(), *import, true), 1);
        return Verdict::Good;
    }
    const std::string missing = missingText(tried.missingFeeds);
    context.output.write(sentenceText(missing.empty()
                                          ? say(TEXT("CommandLine", "%1 was added."), {row.name})
                                          //: %1 a console, %2 as in "4 of 6 feeds not read"
                                          : say(TEXT("CommandLine", "%1 was added, %2."), {row.name, missing}),
                                      context.output.terminal()));
    return Verdict::Good;
}

Result<Verdict> importConsoles(CommandContext& context)
{
    const Result<std::string> bytes = contentsOf(context.arguments.operands[0]);
    if (!bytes) {
        return failure(Words::errorText(bytes.error()) + ".");
    }
    const Result<FleetSheet> sheet = sheetOf(bytes.value());
    if (!sheet) {
        return sheet.error();
    }
    const Result<Passwords> passwords = passwordsOf(context.arguments);
    if (!passwords) {
        return passwords.error();
    }
    complainOf(sheet.value());
    const auto answers = ask(passwords.value(), sheet.value());
    if (!answers) {
        return answers.error();
    }
    const auto import = std::make_shared<FleetImport>(sheet.value(), answers.value());
    if (const Result<void> tried = verify(context, *import); !tried) {
        return tried.error();
    }
    const bool areAllGood = sheet.value().unusable() == 0 && import->verified() == import->rows().size();
    const bool adds = import->verified() > 0 && (areAllGood || !context.arguments.has("--all-or-none"));
    if (adds) {
        if (const Result<void> added = store(context, *import); !added) {
            return added.error();
        }
    }
    tell(context, outcomeTable(sheet.value(), *import, adds), adds ? import->verified() : 0);
    // A sheet whose consoles are all registered leaves nothing to do; one without rows is a mistake.
    const bool isDone = areAllGood && !sheet.value().rows.empty();
    return isDone ? Verdict::Good : adds ? Verdict::Warnings : Verdict::Errors;
}

} // namespace lodestar
