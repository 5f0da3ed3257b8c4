// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Change.h"
#include "Platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace SQLite
{
class Database;
}

namespace lodestar
{

/// The history's file: what is remembered of each console, the changes, and the settings. Its writings are whole or not
/// there, and are on the disk when a function returns. One thread at a time; each call waits for the disk. Errors are
/// those of the object store.
class HistoryFile
{
public:
    static constexpr std::string_view fileName = "History.sqlite";
    static constexpr std::string_view damagedName = "History.damaged.sqlite"; ///< of one that was set aside

    /// Opens the file or makes an empty one; refuses the same as `openStoreFile`.
    static Result<std::unique_ptr<HistoryFile>> open(const std::string& path);
    /// Whether the error means that the file itself is bad. All other errors may pass.
    static bool isDamage(const Error& error);
    /// Whether the file was written by another version of the application, which may read it again.
    static bool isOtherVersion(const Error& error);
    /// Renames the file to "History.damaged.sqlite", with what belongs to it. False when that is impossible.
    static bool setAside(const std::string& path);
    /// Removes the file and those that were set aside. Nobody may have it open. False when one is left.
    static bool remove(const std::string& path);
    /// Removes only those that were set aside.
    static bool removeSetAside(const std::string& path);

    ~HistoryFile();
    HistoryFile(const HistoryFile&) = delete;
    HistoryFile& operator=(const HistoryFile&) = delete;

    struct Contents {
        std::map<std::string, std::shared_ptr<const ConsoleMemory>> consoles; ///< by address
        std::map<std::string, std::string> settings;
    };
    Result<Contents> contents() const;
    /// All changes since the moment, the newest reading's first.
    Result<std::vector<Change>> changes(WallTime since) const;

    /// What one console's row becomes. Only what differs from `written` is written; null means that nothing of this
    /// console in the file counts any more.
    struct Console {
        std::string address;
        std::shared_ptr<const ConsoleMemory> written;
        std::shared_ptr<const ConsoleMemory> now;
    };
    struct Writing {
        std::span<const Change> changes; ///< in order of time
        std::vector<Console> consoles;
        std::vector<std::pair<std::string, std::optional<std::string>>> settings;
        std::vector<std::string> forgotten; ///< addresses
        /// The end of the newest reading. Days that ended more than `changesKeptFor` before leave.
        WallTime newest;
    };
    /// One transaction.
    Result<void> write(const Writing& writing);
    /// Whether consoles were forgotten whose bytes are still in the file.
    bool needsScrub() const { return m_needsScrub; }
    /// Makes the file anew without the bytes of what was forgotten.
    Result<void> scrub();

    /// Whether a day is over that the next writing removes.
    bool hasDayToLeave(WallTime newest) const { return m_oldest && *m_oldest < oldestKept(newest); }
    /// The begin of the oldest day that is kept.
    static WallTime oldestKept(WallTime newest);
    /// The begin of the moment's day in the device's time zone, or of the day so many days later.
    static WallTime beginOfDay(WallTime moment, int daysLater = 0);
    /// The newest change that left because there were too many; none while all were kept.
    std::optional<WallTime> leftOutUntil() const { return m_leftOutUntil; }

private:
    explicit HistoryFile(std::unique_ptr<SQLite::Database> database);
    void readState();
    void writeChanges(std::span<const Change> changes);
    void writeConsole(const Console& console);
    void writeObjects(const Console& console);
    void writeSetting(const std::string& name, const std::optional<std::string>& value);
    void keepBounds(WallTime newest);
    void removeBefore(WallTime moment);
    void removeOldestDay();

    const std::unique_ptr<SQLite::Database> m_database;
    std::size_t m_rows = 0;
    std::optional<WallTime> m_oldest; ///< of the changes
    std::optional<WallTime> m_leftOutUntil;
    bool m_needsScrub = false;
};

} // namespace lodestar
