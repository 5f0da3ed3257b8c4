// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Commands.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Json.h"
#include "CommandLine/Passwords.h"
#include "CommandLine/Words.h"
#include "Fleet/FleetSheet.h"
#include "Platform/PrivateFile.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <unistd.h>
#include <utility>

namespace lodestar
{
namespace
{

Result<Passwords> passwordsOf(const Arguments& arguments)
{
    const Result<std::optional<int>> descriptor = arguments.number("--password-fd");
    return descriptor ? Result<Passwords>(Passwords(descriptor.value())) : Result<Passwords>(descriptor.error());
}

Result<std::string> contentsOf(const std::string& file)
{
    const int descriptor = file == "-" ? ::dup(STDIN_FILENO) : ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return fileError(file + " cannot be opened", errno);
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
    return count < 0 ? Result<std::string>(fileError(file + " cannot be read", error))
                     : Result<std::string>(std::move(bytes));
}

std::string sentenceOf(const Error& error)
{
    if (error.domain == sheetErrorDomain) {
        return "There is no first line with name, address and user.";
    }
    if (error.domain == csvErrorDomain) {
        return error.code == csvTooLarge ? "This file is too large for a fleet sheet."
                                         : "This is not a CSV file: " + error.failureReason + ".";
    }
    return shownDescription(error);
}

/// Why the row is none that can be tried; empty for one that can.
std::string objectionTo(const SheetRow& row)
{
    switch (row.kind) {
    case SheetRowKind::New:
        return {};
    case SheetRowKind::RegisteredAlready:
        return "registered already, left alone";
    case SheetRowKind::NoAddress:
        return "no address";
    case SheetRowKind::NoUser:
        return "no user";
    case SheetRowKind::BadAddress:
        return "no address of a console: " + row.address;
    case SheetRowKind::SameAddress:
        break;
    }
    return fmt::format("the same address as row {}", row.sameAs);
}

Result<std::map<std::string, std::string>> ask(const Passwords& passwords, const std::vector<std::string>& users)
{
    std::map<std::string, std::string> answers;
    for (const std::string& user : users) {
        Result<std::string> answer = passwords.next("Password of " + user);
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
        progress.show(fmt::format("verifying {} of {}", import.tried(), import.rows().size()) +
                      (left ? fmt::format(", about {} s left", left->count()) : ""));
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
    return feeds == 0 ? std::string() : fmt::format("{} of 6 feeds not read", feeds);
}

Result<void> store(CommandContext& context, FleetImport& import)
{
    if (const Result<void> added = import.add(); !added) {
        return failure("Nothing was added. " + shownDescription(added.error()));
    }
    return context.session.awaitHistory();
}

/// Each row with what became of it.
Table outcomeTable(const FleetSheet& sheet, const FleetImport& import, bool wasAdded)
{
    Table table{{"row", "name", "address", "user", "result", "note"}, {}};
    for (const SheetRow& row : sheet.rows) {
        const auto tried = std::ranges::find_if(
            import.rows(), [&row](const FleetImport::Row& each) { return each.sheet.line == row.line; });
        std::string result = row.kind == SheetRowKind::RegisteredAlready ? "registered" : "not_added";
        std::string note = objectionTo(row);
        if (tried != import.rows().end()) {
            const bool isGood = tried->state == FleetImport::State::Verified;
            result = isGood && wasAdded ? "added" : isGood ? "verified" : "not_added";
            note = isGood ? missingText(tried->missingFeeds) : tried->error ? Words::reason(*tried->error) : "";
        }
        table.rows.push_back(
            {std::to_string(row.line), row.name, row.address, row.user, std::move(result), std::move(note)});
    }
    return table;
}

void tell(CommandContext& context, const FleetSheet& sheet, const Table& outcome, std::size_t added)
{
    for (const std::string& column : sheet.passwordColumns) {
        complain("The column " + column + " was not read: passwords do not belong in a sheet.");
    }
    for (const std::string& column : sheet.unknownColumns) {
        complain("The column " + column + " is not used.");
    }
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
                                              ? std::string("Nothing was added.")
                                              : Words::count(added, "console was added.", "consoles were added."),
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
        return misuse("Say as whom to log on with --user.");
    }
    // As a sheet of one row, so that the same rules hold.
    const std::string name = context.arguments.value("--name").value_or(address);
    const Result<FleetSheet> sheet = sheetOf(csvOf({{"name", "address", "user"}, {{name, address, *user}}}));
    if (!sheet) {
        return sheet.error();
    }
    if (sheet.value().rows.empty()) {
        return misuse("The address is empty.");
    }
    const SheetRow& row = sheet.value().rows.front();
    if (const std::string objection = objectionTo(row); !objection.empty()) {
        return failure("Nothing was added: " + objection + ".");
    }
    const Result<Passwords> passwords = passwordsOf(context.arguments);
    if (!passwords) {
        return passwords.error();
    }
    const auto answers = ask(passwords.value(), {row.user});
    if (!answers) {
        return answers.error();
    }
    const auto import = std::make_shared<FleetImport>(sheet.value(), answers.value());
    if (const Result<void> tried = verify(context, *import); !tried) {
        return tried.error();
    }
    const FleetImport::Row& tried = import->rows().front();
    if (tried.state != FleetImport::State::Verified) {
        return failure("Nothing was added. " + row.address + ": " +
                       (tried.error ? Words::reason(*tried.error) : std::string("not verified")) + ".");
    }
    if (const Result<void> added = store(context, *import); !added) {
        return added.error();
    }
    if (context.arguments.has("--json") || context.arguments.has("--csv")) {
        tell(context, sheet.value(), outcomeTable(sheet.value(), *import, true), 1);
        return Verdict::Good;
    }
    const std::string missing = missingText(tried.missingFeeds);
    context.output.write(sentenceText(row.name + " was added" + (missing.empty() ? "." : ", " + missing + "."),
                                      context.output.terminal()));
    return Verdict::Good;
}

Result<Verdict> importConsoles(CommandContext& context)
{
    const Result<std::string> bytes = contentsOf(context.arguments.operands[0]);
    if (!bytes) {
        return failure(shownDescription(bytes.error()) + ".");
    }
    const Result<FleetSheet> sheet = sheetOf(bytes.value());
    if (!sheet) {
        return sheet.error();
    }
    const Result<Passwords> passwords = passwordsOf(context.arguments);
    if (!passwords) {
        return passwords.error();
    }
    const auto answers = ask(passwords.value(), sheet.value().users());
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
    tell(context, sheet.value(), outcomeTable(sheet.value(), *import, adds), adds ? import->verified() : 0);
    return !adds ? Verdict::Errors : areAllGood ? Verdict::Good : Verdict::Warnings;
}

} // namespace lodestar
