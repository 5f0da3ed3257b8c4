// SPDX-License-Identifier: Apache-2.0
#include "CommandLine/Session.h"

#include "Application/Model/DataFolder.h"
#include "Application/Model/FileUserDefaults.h"
#include "Application/Model/Setting.h"
#include "Application/Model/StoreStack.h"
#include "CommandLine/BundledResources.h"
#include "CommandLine/Failure.h"
#include "CommandLine/Terminal.h"
#include "CommandLine/Texts.h"
#include "Controllers/REST/RESTHandler.h"
#include "Feedback/LogWriter.h"
#include "Feedback/VireoLogger.h"
#include "Fleet/History.h"
#include "Fleet/HistoryFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar
{
namespace
{

using Texts::say;

std::optional<Error> objectionTo(FolderClaim claim, const std::string& folder)
{
    switch (claim) {
    case FolderClaim::Ours:
        return std::nullopt;
    case FolderClaim::Taken:
        return failure(
            say(TEXT("CommandLine", "Lodestar is open, or another command is at work, in %1. Close it, or name "
                                    "another folder with --data."),
                {folder}));
    case FolderClaim::Foreign:
        return failure(say(TEXT("CommandLine", "Lodestar keeps nothing in a folder of another user: %1"), {folder}));
    case FolderClaim::NoLock:
        break;
    }
    return failure(say(TEXT("CommandLine", "Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours."),
                       {folder}));
}

/// The error with its causes, in words for a person.
std::string causesOf(const Error& error)
{
    std::string text = shownDescription(error);
    for (const Error* cause = error.underlying.get(); cause != nullptr; cause = cause->underlying.get()) {
        text += " " + shownDescription(*cause);
    }
    return text;
}

ino_t damagedHistoryIn(const std::string& folder)
{
    struct stat status = {};
    return ::stat((folder + "/" + std::string(HistoryFile::damagedName)).c_str(), &status) == 0 ? status.st_ino : 0;
}

/// The store needs room even for reading, and says of a disk without it only that it failed. Empty when it has room.
std::string diskTrouble(const std::string& folder)
{
    if (::access(folder.c_str(), W_OK) != 0 && errno == EROFS) {
        return say(TEXT("CommandLine", "The disk can only be read."));
    }
    constexpr std::uintmax_t needed = std::uintmax_t{64} << 10;
    std::error_code error;
    const std::filesystem::space_info space = std::filesystem::space(folder, error);
    return !error && space.available < needed ? say(TEXT("CommandLine", "The disk is full.")) : std::string();
}

} // namespace

Result<std::unique_ptr<Session>> Session::open(const std::string& asked)
{
    const std::string folder = asked.empty() ? DataFolder::standard() : std::filesystem::absolute(asked).string();
    if (folder.empty()) {
        return failure(say(TEXT("CommandLine", "There is no home folder. Name a data folder with --data.")));
    }
    if (const Result<void> made = makePrivateFolder(folder); !made) {
        return failure(say(TEXT("CommandLine", "There is no data folder. %1"), {causesOf(made.error())}));
    }
    if (auto objection = objectionTo(DataFolder::claim(folder), folder)) {
        return *std::move(objection);
    }
    LogWriter::shared().mayCopyToStandardError = false;
    VireoLogger::openLogFolder(DataFolder::logs(folder));
    UserDefaults::install(std::make_unique<FileUserDefaults>(DataFolder::defaults(folder)));
    if (UserDefaults::standard().boolForKey(Setting::resetUnderWay)) {
        return failure(say(TEXT("CommandLine", "A reset of Lodestar was cut short. Open Lodestar once to finish it.")));
    }
    Resources::install(std::make_unique<BundledResources>());
    StoreStack::shared().setApplicationDocumentsDirectory(DataFolder::documents(folder));
    if (const Result<void> opened = StoreStack::shared().open(); !opened) {
        const std::string trouble = diskTrouble(folder);
        //: %1 a folder, %2 a sentence that tells why
        return failure(say(TEXT("CommandLine", "The consoles in %1 cannot be read. %2"),
                           {folder, trouble.empty() ? causesOf(opened.error()) : trouble}));
    }
    std::unique_ptr<Session> session(new Session(DataFolder::documents(folder)));
    openHistory(DataFolder::documents(folder));
    if (const Result<void> known = session->awaitHistory(); !known) {
        return known.error();
    }
    return session;
}

Session::Session(std::string folder) : m_folder(std::move(folder)), m_damagedFile(damagedHistoryIn(m_folder)) {}

Session::~Session()
{
    History::shared().close();
    UserDefaults::standard().synchronize();
    StoreStack::shared().close();
    VireoLogger::flush();
}

Result<std::vector<CorvelRef>> Session::consoles(const std::vector<std::string>& named) const
{
    const std::vector<CorvelRef>& all = RESTHandler::sharedInstance().corvelList();
    const auto isCalled = [](const CorvelRef& corvel, const std::string& name) {
        return corvel->name() == name || corvel->address() == name;
    };
    for (const std::string& name : named) {
        if (std::ranges::none_of(all, [&](const CorvelRef& corvel) { return isCalled(corvel, name); })) {
            return failure(say(TEXT("CommandLine", "No console is called %1."), {name}));
        }
    }
    std::vector<CorvelRef> chosen = all;
    std::erase_if(chosen, [&](const CorvelRef& corvel) {
        return !named.empty() &&
               std::ranges::none_of(named, [&](const std::string& name) { return isCalled(corvel, name); });
    });
    return chosen;
}

Result<void> Session::awaitHistory()
{
    const auto isKnown = std::make_shared<bool>(false);
    History::shared().whenWritten([isKnown] { *isKnown = true; });
    if (m_loop.runUntil([isKnown] { return *isKnown; }) != Loop::End::Met) {
        return interrupted();
    }
    tellOfDamage();
    return {};
}

/// Only the command that met the damage tells of it: one that runs every five minutes would tell it for 30 days.
void Session::tellOfDamage()
{
    const ino_t before = std::exchange(m_damagedFile, damagedHistoryIn(m_folder));
    if (m_damagedFile != 0 && m_damagedFile != before) {
        complain(say(TEXT("CommandLine", "The history was damaged. It was set aside as %1, and a new one was begun. "
                                         "Earlier changes are missing."),
                     {m_folder + "/" + std::string(HistoryFile::damagedName)}));
    }
}

Result<void> Session::save()
{
    const Result<void> saved = StoreStack::shared().managedObjectContext().save();
    return saved ? Result<void>()
                 : failure(say(TEXT("CommandLine", "Nothing was stored. %1"), {causesOf(saved.error())}));
}

std::string calledName(const Corvel& corvel)
{
    const std::string name = corvel.name().value_or("");
    return name.empty() ? corvel.address().value_or("") : name;
}

} // namespace lodestar
