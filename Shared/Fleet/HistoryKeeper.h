// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/HistoryFile.h"

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lodestar
{

/// What the history knows, and when it goes into the file. What cannot be written (no folder, a full disk, a file of
/// another version) stays here and goes with the next writing that succeeds.
///
/// What is written when: a change, and what is remembered where it differs, at once. The times that move with every
/// reading go along with these; otherwise they are written when the history closes, and when those in the file are six
/// hours old. So two readings of unchanged consoles write nothing, and after a kill the file still knows to within six
/// hours when something last ran, which is judged by the day.
///
/// The history's queue calls, unless a function says otherwise.
class HistoryKeeper
{
public:
    static constexpr std::chrono::hours timesMayLag{6};

    /// Opens the file in the folder and reads it. What came before the opening counts more than what the file says.
    void open(const std::string& folder);
    /// Writes what waits, closes the file and drops what is known.
    void close();

    /// Compares the reading and remembers it. Nothing is written yet.
    Difference add(const std::string& address, const std::string& console, const Reading& reading,
                   const FeedDictionary* feeds);
    /// False when there is no such object, or its stop was expected already.
    bool expectStop(const std::string& address, const ObjectKey& object);
    /// Writes what waits, if anything does.
    void write();
    /// What is kept, newest first.
    ChangeList changes();

    void forget(const std::vector<std::string>& addresses);
    /// The addresses that are known and not among these.
    std::vector<std::string> addressesBut(const std::vector<std::string>& addresses) const;
    /// Removes the file; the next writing makes a new one.
    void forgetAll();

    /// Any thread.
    std::shared_ptr<const ConsoleMemory> memoryOf(const std::string& address) const;
    /// Whether changes of the days that are kept are missing because a damaged file was set aside.
    bool wasSetAside() const;
    std::optional<std::string> setting(const std::string& name) const;
    void setSetting(const std::string& name, std::optional<std::string> value);

private:
    struct Console {
        std::shared_ptr<const ConsoleMemory> now;
        /// What the file holds, apart from the times that move; null when the file's rows do not count.
        std::shared_ptr<const ConsoleMemory> written;
        std::optional<WallTime> timesWritten; ///< `lastEnded` of what the file holds
    };

    void clear();
    bool openFile();
    void adopt(HistoryFile::Contents&& contents);
    bool setAside(const Error& error);
    void setSettingLocked(const std::string& name, std::optional<std::string> value);
    Result<void> tryToWrite();
    bool needsWriting() const;
    HistoryFile::Writing writing() const;
    void didWrite(const HistoryFile::Writing& writing);
    void didFail(const Error& error);
    void keepWaitingWithinBounds();

    std::string m_path; ///< empty while not open: everything stays in memory
    std::unique_ptr<HistoryFile> m_file;
    bool m_isOtherVersions = false; ///< the file is left alone
    bool m_mustRemove = false;      ///< the file was to be removed, and could not be
    bool m_hasFailed = false;       ///< the log has the line
    std::vector<Change> m_waiting;  ///< changes that are not in the file yet, in order of time
    bool m_waitingLeftOut = false;
    std::set<std::string> m_waitingConsoles; ///< addresses whose rows in the file differ from what is known
    std::set<std::string> m_forgotten;       ///< addresses whose rows are still in the file
    WallTime m_newest;                       ///< the end of the last reading

    mutable std::mutex m_mutex; ///< guards what follows; only the history's queue changes the consoles
    std::map<std::string, Console> m_consoles;
    std::map<std::string, std::string> m_settings;
    std::set<std::string> m_changedSettings;
};

} // namespace lodestar
