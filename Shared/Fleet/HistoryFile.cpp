// SPDX-License-Identifier: Apache-2.0
#include "Fleet/HistoryFile.h"

#include "Platform/PrivateFile.h"
#include "Platform/Store/StoreFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <sqlite3.h>
#include <unistd.h>
#include <utility>

namespace lodestar
{
namespace
{

/// The log first: where the process ends in between, a main file alone is as good as both, and a log alone is not.
constexpr const char* suffixes[] = {"-wal", "-shm", ""};

/// Times are nanoseconds since 1970. The first version has no predecessor whose files would have to be taken over.
const StoreLayout& layout()
{
    static const StoreLayout value = {
        {R"(CREATE TABLE "change" ("row" INTEGER PRIMARY KEY, "seen" INTEGER NOT NULL, "previous" INTEGER NOT NULL,
            "address" TEXT NOT NULL, "console" TEXT NOT NULL, "kind" INTEGER NOT NULL, "sense" INTEGER NOT NULL,
            "type" TEXT NOT NULL, "identifier" TEXT NOT NULL, "name" TEXT NOT NULL, "old" TEXT NOT NULL,
            "new" TEXT NOT NULL, "lasted" INTEGER NOT NULL))",
         R"(CREATE TABLE "console" ("address" TEXT PRIMARY KEY, "offlineSince" INTEGER, "offlineExact" INTEGER,
            "lastEnded" INTEGER, "lastComplete" INTEGER, "version" TEXT NOT NULL, "certificate" BLOB,
            "certificateSince" INTEGER, "certificateExact" INTEGER, "neededAttention" INTEGER NOT NULL,
            "wasRead" INTEGER NOT NULL, "wasReadAgain" INTEGER NOT NULL) WITHOUT ROWID)",
         R"(CREATE TABLE "feed" ("address" TEXT, "type" TEXT, "readAt" INTEGER, "missingSince" INTEGER,
            "missingExact" INTEGER, PRIMARY KEY ("address", "type")) WITHOUT ROWID)",
         R"(CREATE TABLE "object" ("address" TEXT, "type" TEXT, "identifier" TEXT, "name" TEXT NOT NULL,
            "state" TEXT NOT NULL, "text" TEXT NOT NULL, "stateSince" INTEGER NOT NULL, "stateExact" INTEGER NOT NULL,
            "lit" INTEGER NOT NULL, "litSince" INTEGER NOT NULL, "litExact" INTEGER NOT NULL, "ranUntil" INTEGER,
            "stopExpected" INTEGER NOT NULL, PRIMARY KEY ("address", "type", "identifier")) WITHOUT ROWID)",
         R"(CREATE TABLE "setting" ("name" TEXT PRIMARY KEY, "value" TEXT NOT NULL) WITHOUT ROWID)",
         // One row: what the file says of itself.
         R"(CREATE TABLE "state" ("leftOutUntil" INTEGER, "needsScrub" INTEGER NOT NULL))"},
        1};
    return value;
}

WallTime timeOf(const SQLite::Column& column)
{
    return WallTime(WallTime::duration(column.getInt64()));
}

std::optional<WallTime> optionalTimeOf(const SQLite::Column& column)
{
    return column.isNull() ? std::nullopt : std::optional(timeOf(column));
}

std::optional<Since> optionalSinceOf(const SQLite::Column& time, const SQLite::Column& exact)
{
    return time.isNull() ? std::nullopt : std::optional(Since{timeOf(time), exact.getInt() != 0});
}

/// A number from the file as one of the enumerators; the last one may not be passed.
template <typename Enumeration>
Enumeration enumeratorOf(const SQLite::Column& column, Enumeration last)
{
    return static_cast<Enumeration>(std::clamp(column.getInt(), 0, static_cast<int>(last)));
}

using Memories = std::map<std::string, std::shared_ptr<ConsoleMemory>>;

void readConsoles(const SQLite::Database& database, Memories& memories)
{
    SQLite::Statement query(database, R"(SELECT "address", "offlineSince", "offlineExact", "lastEnded", )"
                                      R"("lastComplete", "version", "certificate", "certificateSince", )"
                                      R"("certificateExact", "neededAttention", "wasRead", "wasReadAgain" )"
                                      R"(FROM "console")");
    while (query.executeStep()) {
        auto memory = std::make_shared<ConsoleMemory>();
        memory->offlineSince = optionalSinceOf(query.getColumn(1), query.getColumn(2));
        memory->lastEnded = optionalTimeOf(query.getColumn(3));
        memory->lastComplete = optionalTimeOf(query.getColumn(4));
        memory->versionThen = query.getColumn(5).getString();
        const SQLite::Column certificate = query.getColumn(6);
        if (ServerTrust::Fingerprint fingerprint{}; certificate.size() == static_cast<int>(fingerprint.size())) {
            std::memcpy(fingerprint.data(), certificate.getBlob(), fingerprint.size());
            memory->certificate = fingerprint;
        }
        memory->certificateSince = optionalSinceOf(query.getColumn(7), query.getColumn(8));
        memory->neededAttention = static_cast<std::size_t>(std::max<std::int64_t>(0, query.getColumn(9).getInt64()));
        memory->wasRead = query.getColumn(10).getInt() != 0;
        memory->wasReadAgain = query.getColumn(11).getInt() != 0;
        memories.emplace(query.getColumn(0).getString(), std::move(memory));
    }
}

/// Both tables are in the order of the addresses; rows whose console is not there are left out.
ConsoleMemory* consoleOf(const SQLite::Statement& query, Memories& memories, Memories::iterator& last)
{
    const std::string address = query.getColumn(0).getString();
    if (last == memories.end() || last->first != address) {
        last = memories.find(address);
    }
    return last != memories.end() ? last->second.get() : nullptr;
}

void readFeeds(const SQLite::Database& database, Memories& memories)
{
    SQLite::Statement query(
        database, R"(SELECT "address", "type", "readAt", "missingSince", "missingExact" FROM "feed" ORDER BY 1, 2)");
    auto last = memories.end();
    while (query.executeStep()) {
        if (ConsoleMemory* const memory = consoleOf(query, memories, last); memory != nullptr) {
            const std::string type = query.getColumn(1).getString();
            if (const auto readAt = optionalTimeOf(query.getColumn(2)); readAt) {
                memory->readAt.emplace(type, *readAt);
            }
            if (const auto since = optionalSinceOf(query.getColumn(3), query.getColumn(4)); since) {
                memory->missingSince.emplace(type, *since);
            }
        }
    }
}

void readObjects(const SQLite::Database& database, Memories& memories)
{
    SQLite::Statement query(database, R"(SELECT "address", "type", "identifier", "name", "state", "text", )"
                                      R"("stateSince", "stateExact", "lit", "litSince", "litExact", "ranUntil", )"
                                      R"("stopExpected" FROM "object" ORDER BY 1, 2, 3)");
    auto last = memories.end();
    while (query.executeStep()) {
        if (ConsoleMemory* const memory = consoleOf(query, memories, last); memory != nullptr) {
            KnownObject object;
            object.name = query.getColumn(3).getString();
            object.state = query.getColumn(4).getString();
            object.text = query.getColumn(5).getString();
            object.stateSince = {timeOf(query.getColumn(6)), query.getColumn(7).getInt() != 0};
            object.lit = query.getColumn(8).getInt() != 0;
            object.litSince = {timeOf(query.getColumn(9)), query.getColumn(10).getInt() != 0};
            object.ranUntil = optionalTimeOf(query.getColumn(11));
            object.stopExpected = query.getColumn(12).getInt() != 0;
            memory->objects.emplace_hint(memory->objects.end(),
                                         ObjectKey{query.getColumn(1).getString(), query.getColumn(2).getString()},
                                         std::move(object));
        }
    }
}

Change changeOf(const SQLite::Statement& query)
{
    Change change;
    change.row = query.getColumn(0).getInt64();
    change.seen = timeOf(query.getColumn(1));
    change.before = timeOf(query.getColumn(2));
    change.address = query.getColumn(3).getString();
    change.console = query.getColumn(4).getString();
    change.kind = enumeratorOf(query.getColumn(5), ChangeKind::CertificateChanged);
    change.sense = enumeratorOf(query.getColumn(6), ChangeSense::Neutral);
    change.object = {query.getColumn(7).getString(), query.getColumn(8).getString()};
    change.name = query.getColumn(9).getString();
    change.from = query.getColumn(10).getString();
    change.to = query.getColumn(11).getString();
    change.lasted = std::chrono::seconds(query.getColumn(12).getInt64());
    return change;
}

std::string damagedPath(const std::string& path)
{
    return (std::filesystem::path(path).parent_path() / HistoryFile::damagedName).string();
}

bool removeFiles(const std::string& path)
{
    bool removed = true;
    for (const char* const suffix : suffixes) {
        removed = (::unlink((path + suffix).c_str()) == 0 || errno == ENOENT) && removed;
    }
    return removed;
}

} // namespace

Result<std::unique_ptr<HistoryFile>> HistoryFile::open(const std::string& path)
{
    try {
        auto database = openStoreFile(path, layout());
        if (!database) {
            return database.error();
        }
        std::unique_ptr<HistoryFile> file(new HistoryFile(std::move(database).value()));
        file->readState();
        return file;
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

HistoryFile::HistoryFile(std::unique_ptr<SQLite::Database> database) : m_database(std::move(database)) {}

HistoryFile::~HistoryFile() = default;

bool HistoryFile::isDamage(const Error& error)
{
    const int code = error.code & 0xff; // without the extended part
    // A damaged header may speak of a format that nobody knows, which is a plain error.
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB || code == SQLITE_ERROR;
}

bool HistoryFile::isOtherVersion(const Error& error)
{
    return error.code == SQLITE_SCHEMA;
}

bool HistoryFile::setAside(const std::string& path)
{
    const std::string damaged = damagedPath(path);
    if (!removeFiles(damaged)) {
        return false;
    }
    for (const char* const suffix : suffixes) {
        if (std::rename((path + suffix).c_str(), (damaged + suffix).c_str()) != 0 && errno != ENOENT) {
            return false;
        }
    }
    return true;
}

bool HistoryFile::remove(const std::string& path)
{
    const bool removed = removeFiles(path);
    return removeSetAside(path) && removed;
}

bool HistoryFile::removeSetAside(const std::string& path)
{
    const bool removed = removeFiles(damagedPath(path));
    syncFolder(std::filesystem::path(path).parent_path().string());
    return removed;
}

void HistoryFile::readState()
{
    SQLite::Statement bounds(*m_database, R"(SELECT count(*), min("seen") FROM "change")");
    bounds.executeStep();
    m_rows = static_cast<std::size_t>(bounds.getColumn(0).getInt64());
    m_oldest = optionalTimeOf(bounds.getColumn(1));
    SQLite::Statement state(*m_database, R"(SELECT "leftOutUntil", "needsScrub" FROM "state")");
    const bool hasState = state.executeStep();
    m_leftOutUntil = hasState ? optionalTimeOf(state.getColumn(0)) : std::nullopt;
    m_needsScrub = hasState && state.getColumn(1).getInt() != 0;
}

Result<HistoryFile::Contents> HistoryFile::contents() const
{
    try {
        Memories memories;
        readConsoles(*m_database, memories);
        readFeeds(*m_database, memories);
        readObjects(*m_database, memories);
        Contents contents;
        contents.consoles = {std::make_move_iterator(memories.begin()), std::make_move_iterator(memories.end())};
        SQLite::Statement settings(*m_database, R"(SELECT "name", "value" FROM "setting")");
        while (settings.executeStep()) {
            contents.settings.emplace(settings.getColumn(0).getString(), settings.getColumn(1).getString());
        }
        return contents;
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

Result<std::vector<Change>> HistoryFile::changes(WallTime since) const
{
    try {
        std::vector<Change> changes;
        // Within a reading the order is the console's.
        SQLite::Statement query(*m_database, R"(SELECT "row", "seen", "previous", "address", "console", "kind", )"
                                             R"("sense", "type", "identifier", "name", "old", "new", "lasted" )"
                                             R"(FROM "change" WHERE "seen" >= ? ORDER BY "seen" DESC, "row")");
        query.bind(1, static_cast<std::int64_t>(since.time_since_epoch().count()));
        while (query.executeStep()) {
            changes.push_back(changeOf(query));
        }
        return changes;
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

} // namespace lodestar
