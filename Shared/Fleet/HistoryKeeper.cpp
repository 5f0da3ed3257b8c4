// SPDX-License-Identifier: Apache-2.0
#include "Fleet/HistoryKeeper.h"

#include "Feedback/VireoLogger.h"

#include <algorithm>
#include <charconv>
#include <ctime>
#include <iterator>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::string_view logName = "Shared/Fleet/History";

/// When a damaged file was set aside, in seconds since 1970: the file that takes its place tells it.
constexpr auto setAsideName = "setAside";

} // namespace

void HistoryKeeper::open(const std::string& folder)
{
    if (!m_path.empty()) {
        close();
    }
    // Without a folder the path would lie at the file system's root.
    m_path = folder.empty() ? std::string() : folder + "/" + std::string(HistoryFile::fileName);
    if (openFile() && m_file->needsScrub()) {
        std::ignore = m_file->scrub(); // the process ended before it could; the next writing tries again
    }
    if (m_file != nullptr) {
        write(); // that a damaged file was set aside, say
    }
}

void HistoryKeeper::close()
{
    for (const auto& [address, console] : m_consoles) {
        if (console.now->lastEnded != console.timesWritten) {
            m_waitingConsoles.insert(address);
        }
    }
    write();
    m_path.clear();
    clear();
}

void HistoryKeeper::clear()
{
    m_file.reset();
    m_waiting.clear();
    m_waitingConsoles.clear();
    m_forgotten.clear();
    m_waitingLeftOut = m_isOtherVersions = m_hasFailed = m_mustRemove = false;
    m_newest = {};
    const std::lock_guard lock(m_mutex);
    m_consoles.clear();
    m_settings.clear();
    m_changedSettings.clear();
}

bool HistoryKeeper::openFile()
{
    if (m_path.empty() || m_isOtherVersions) {
        return false;
    }
    if (m_mustRemove && !HistoryFile::remove(m_path)) {
        return false;
    }
    m_mustRemove = false;
    // A damaged file is set aside and made anew; what is damaged even then is the disk.
    for (int attempt = 0; attempt < 2; ++attempt) {
        auto opened = HistoryFile::open(m_path);
        auto contents = opened ? opened.value()->contents() : opened.error();
        if (contents) {
            m_file = std::move(opened).value();
            adopt(std::move(contents).value());
            return true;
        }
        if (HistoryFile::isOtherVersion(contents.error())) {
            m_isOtherVersions = true;
        }
        opened = contents.error(); // closes the file
        if (!HistoryFile::isDamage(contents.error()) || !setAside(contents.error())) {
            didFail(contents.error());
            return false;
        }
    }
    return false;
}

bool HistoryKeeper::setAside(const Error& error)
{
    m_file.reset();
    if (!HistoryFile::setAside(m_path)) {
        return false;
    }
    LODESTAR_LOG(logName, "-[History open:]", "The history is damaged and was set aside: {}", description(error));
    const std::lock_guard lock(m_mutex);
    setSettingLocked(setAsideName,
                     std::to_string(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now())));
    return true;
}

void HistoryKeeper::adopt(HistoryFile::Contents&& contents)
{
    const std::lock_guard lock(m_mutex);
    for (auto& [address, console] : m_consoles) {
        console.written.reset();
        m_waitingConsoles.insert(address);
    }
    for (auto& [address, memory] : contents.consoles) {
        if (!m_forgotten.contains(address) && !m_consoles.contains(address)) {
            m_newest = std::max(m_newest, memory->lastEnded.value_or(m_newest));
            m_consoles.emplace(address, Console{memory, memory, memory->lastEnded});
        }
    }
    for (const auto& [name, value] : m_settings) {
        m_changedSettings.insert(name);
    }
    for (auto& [name, value] : contents.settings) {
        if (!m_changedSettings.contains(name)) {
            m_settings.emplace(name, std::move(value));
        }
    }
}

Difference HistoryKeeper::add(const std::string& address, const std::string& console, const Reading& reading,
                              const FeedDictionary* feeds)
{
    const auto place = m_consoles.find(address);
    const auto before = place != m_consoles.end() ? place->second.now : nullptr;
    Difference difference = differenceOf(address, console, reading, feeds, before);
    if (difference.memory == before) {
        return difference;
    }
    const std::lock_guard lock(m_mutex);
    Console& known = m_consoles[address];
    known.now = difference.memory;
    m_newest = reading.ended;
    if (difference.memoryChanged) {
        m_waitingConsoles.insert(address);
    } else if (!m_waitingConsoles.contains(address)) {
        known.written = known.now;
        if (!known.timesWritten || reading.ended - *known.timesWritten >= timesMayLag) {
            m_waitingConsoles.insert(address);
        }
    }
    m_waiting.insert(m_waiting.end(), difference.changes.begin(), difference.changes.end());
    return difference;
}

bool HistoryKeeper::expectStop(const std::string& address, const ObjectKey& object)
{
    const auto place = m_consoles.find(address);
    if (place == m_consoles.end()) {
        return false;
    }
    auto memory = std::make_shared<ConsoleMemory>(*place->second.now);
    const auto known = memory->objects.find(object);
    if (known == memory->objects.end() || std::exchange(known->second.stopExpected, true)) {
        return false;
    }
    const std::lock_guard lock(m_mutex);
    place->second.now = std::move(memory);
    m_waitingConsoles.insert(address);
    return true;
}

bool HistoryKeeper::needsWriting() const
{
    const std::lock_guard lock(m_mutex);
    return !m_waiting.empty() || !m_waitingConsoles.empty() || !m_forgotten.empty() || !m_changedSettings.empty() ||
           (m_file != nullptr && m_file->hasDayToLeave(m_newest));
}

void HistoryKeeper::write()
{
    if (m_path.empty() || !needsWriting()) {
        keepWaitingWithinBounds();
        return;
    }
    Result<void> written = tryToWrite();
    if (!written && HistoryFile::isDamage(written.error()) && setAside(written.error())) {
        written = tryToWrite();
    }
    if (!written) {
        didFail(written.error());
        keepWaitingWithinBounds();
    }
}

Result<void> HistoryKeeper::tryToWrite()
{
    if (m_file == nullptr && !openFile()) {
        keepWaitingWithinBounds();
        return {}; // the log has it already
    }
    const HistoryFile::Writing todo = writing();
    if (Result<void> written = m_file->write(todo); !written) {
        return written;
    }
    didWrite(todo);
    return m_file->needsScrub() ? m_file->scrub() : Result<void>();
}

HistoryFile::Writing HistoryKeeper::writing() const
{
    const std::lock_guard lock(m_mutex);
    HistoryFile::Writing writing;
    writing.changes = m_waiting;
    for (const std::string& address : m_waitingConsoles) {
        const Console& console = m_consoles.at(address);
        writing.consoles.push_back({address, console.written, console.now});
    }
    for (const std::string& name : m_changedSettings) {
        const auto value = m_settings.find(name);
        writing.settings.emplace_back(name, value != m_settings.end() ? std::optional(value->second) : std::nullopt);
    }
    writing.forgotten = {m_forgotten.begin(), m_forgotten.end()};
    writing.newest = m_newest;
    return writing;
}

void HistoryKeeper::didWrite(const HistoryFile::Writing& writing)
{
    if (std::exchange(m_hasFailed, false)) {
        LODESTAR_LOG(logName, "-[History write]", "The history is written again.");
    }
    m_waiting.clear();
    m_waitingLeftOut = false;
    m_waitingConsoles.clear();
    m_forgotten.clear();
    const std::lock_guard lock(m_mutex);
    for (const HistoryFile::Console& written : writing.consoles) {
        Console& console = m_consoles.at(written.address);
        console.written = written.now;
        console.timesWritten = written.now->lastEnded;
    }
    for (const auto& [name, value] : writing.settings) {
        const auto now = m_settings.find(name);
        if (value == (now != m_settings.end() ? std::optional(now->second) : std::nullopt)) {
            m_changedSettings.erase(name); // nobody changed it meanwhile
        }
    }
}

void HistoryKeeper::didFail(const Error& error)
{
    if (!std::exchange(m_hasFailed, true)) {
        LODESTAR_LOG(logName, "-[History write]", "The history cannot be kept in its file and stays in memory: {}",
                     description(error));
    }
}

void HistoryKeeper::keepWaitingWithinBounds()
{
    const WallTime oldest = HistoryFile::oldestKept(m_newest);
    std::erase_if(m_waiting, [&](const Change& change) { return change.seen < oldest; });
    while (m_waiting.size() > mostChangesKept) {
        const WallTime end = HistoryFile::beginOfDay(m_waiting.front().seen, 1);
        auto kept = std::ranges::find_if(m_waiting, [&](const Change& change) { return change.seen >= end; });
        if (kept == m_waiting.end()) {
            kept -= static_cast<std::ptrdiff_t>(mostChangesKept);
        }
        m_waiting.erase(m_waiting.begin(), kept);
        m_waitingLeftOut = true;
    }
}

ChangeList HistoryKeeper::changes()
{
    ChangeList list;
    if (m_file != nullptr) {
        if (auto changes = m_file->changes(HistoryFile::oldestKept(m_newest)); changes) {
            list.changes = std::move(changes).value();
        } else {
            didFail(changes.error());
        }
        list.leftOut = m_file->leftOutUntil().has_value();
    }
    if (!m_waiting.empty()) {
        list.changes.insert(list.changes.end(), m_waiting.begin(), m_waiting.end());
        std::ranges::stable_sort(list.changes, std::greater(), &Change::seen);
    }
    list.leftOut |= m_waitingLeftOut;
    list.mayShow = !list.changes.empty() || std::ranges::any_of(m_consoles, [](const auto& console) {
        return console.second.now->wasReadAgain;
    });
    return list;
}

std::vector<std::string> HistoryKeeper::addressesBut(const std::vector<std::string>& addresses) const
{
    std::vector<std::string> others;
    for (const auto& [address, console] : m_consoles) {
        if (std::ranges::find(addresses, address) == addresses.end()) {
            others.push_back(address);
        }
    }
    return others;
}

void HistoryKeeper::forget(const std::vector<std::string>& addresses)
{
    for (const std::string& address : addresses) {
        std::erase_if(m_waiting, [&](const Change& change) { return change.address == address; });
        m_waitingConsoles.erase(address);
        if (!m_path.empty()) {
            m_forgotten.insert(address);
        }
        const std::lock_guard lock(m_mutex);
        m_consoles.erase(address);
    }
    if (!m_path.empty() && !HistoryFile::removeSetAside(m_path)) {
        LODESTAR_LOG(logName, "-[History forget:]", "The damaged history cannot be removed.");
    }
    write();
}

void HistoryKeeper::forgetAll()
{
    clear();
    m_mustRemove = !m_path.empty() && !HistoryFile::remove(m_path);
    if (m_mustRemove) {
        LODESTAR_LOG(logName, "-[History forgetAll]", "The history cannot be removed.");
    }
}

std::shared_ptr<const ConsoleMemory> HistoryKeeper::memoryOf(const std::string& address) const
{
    const std::lock_guard lock(m_mutex);
    const auto console = m_consoles.find(address);
    return console != m_consoles.end() ? console->second.now : nullptr;
}

bool HistoryKeeper::wasSetAside() const
{
    const auto time = setting(setAsideName);
    std::time_t seconds = 0;
    if (time) {
        std::from_chars(time->data(), time->data() + time->size(), seconds);
    }
    return time &&
           std::chrono::system_clock::from_time_t(seconds) >= HistoryFile::oldestKept(std::chrono::system_clock::now());
}

std::optional<std::string> HistoryKeeper::setting(const std::string& name) const
{
    const std::lock_guard lock(m_mutex);
    const auto value = m_settings.find(name);
    return value != m_settings.end() ? std::optional(value->second) : std::nullopt;
}

void HistoryKeeper::setSetting(const std::string& name, std::optional<std::string> value)
{
    const std::lock_guard lock(m_mutex);
    setSettingLocked(name, std::move(value));
}

void HistoryKeeper::setSettingLocked(const std::string& name, std::optional<std::string> value)
{
    const auto known = m_settings.find(name);
    if (value == (known != m_settings.end() ? std::optional(known->second) : std::nullopt)) {
        return;
    }
    m_changedSettings.insert(name);
    if (value) {
        m_settings.insert_or_assign(name, std::move(*value));
    } else {
        m_settings.erase(known);
    }
}

} // namespace lodestar
