// SPDX-License-Identifier: Apache-2.0
#include "Fleet/HistoryFile.h"
#include "Platform/Store/StoreFile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <ctime>
#include <set>
#include <utility>

namespace lodestar
{
namespace
{

/// The tables that hold what is known of a console.
constexpr const char* tablesOfConsoles[] = {"change", "console", "feed", "object"};

/// A statement whose parameters are bound one after the other.
class Row
{
public:
    Row(const SQLite::Database& database, const char* sql) : m_statement(database, sql) {}

    Row& text(const std::string& value)
    {
        m_statement.bindNoCopy(++m_index, value);
        return *this;
    }
    Row& number(std::int64_t value)
    {
        m_statement.bind(++m_index, value);
        return *this;
    }
    Row& time(const std::optional<WallTime>& value)
    {
        return value ? number(value->time_since_epoch().count()) : null();
    }
    Row& since(const std::optional<Since>& value)
    {
        return value ? time(value->time).number(value->exact ? 1 : 0) : null().null();
    }
    Row& fingerprint(const std::optional<ServerTrust::Fingerprint>& value)
    {
        if (!value) {
            return null();
        }
        m_statement.bindNoCopy(++m_index, value->data(), static_cast<int>(value->size()));
        return *this;
    }
    /// Returns the number of rows that changed.
    int execute()
    {
        const int changed = m_statement.exec();
        m_statement.reset();
        m_index = 0;
        return changed;
    }

private:
    Row& null()
    {
        m_statement.bind(++m_index);
        return *this;
    }

    SQLite::Statement m_statement;
    int m_index = 0;
};

} // namespace

WallTime HistoryFile::beginOfDay(WallTime moment, int daysLater)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm day{};
    ::localtime_r(&seconds, &day);
    day.tm_sec = day.tm_min = day.tm_hour = 0;
    day.tm_mday += daysLater;
    day.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&day));
}

WallTime HistoryFile::oldestKept(WallTime newest)
{
    return beginOfDay(newest - changesKeptFor);
}

Result<void> HistoryFile::write(const Writing& writing)
{
    Result<void> result;
    try {
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        for (const std::string& address : writing.forgotten) {
            for (const char* const table : tablesOfConsoles) {
                const std::string sql = std::string("DELETE FROM \"") + table + R"(" WHERE "address" = ?)";
                Row(*m_database, sql.c_str()).text(address).execute();
            }
            m_needsScrub = true; // even without a row: settings may have named the address
        }
        for (const Console& console : writing.consoles) {
            writeConsole(console);
        }
        for (const auto& [name, value] : writing.settings) {
            writeSetting(name, value);
        }
        writeChanges(writing.changes);
        keepBounds(writing.newest);
        m_database->exec(R"(DELETE FROM "state")");
        Row(*m_database, R"(INSERT INTO "state" VALUES (?, ?))")
            .time(m_leftOutUntil)
            .number(m_needsScrub ? 1 : 0)
            .execute();
        transaction.commit();
    } catch (const SQLite::Exception& exception) {
        result = storeError(exception);
    } catch (const std::bad_alloc& exception) {
        result = storeError(exception);
    }
    if (!result || !writing.forgotten.empty()) {
        try {
            readState();
        } catch (const std::exception&) {
            // A file that cannot even be read fails at the next writing, too.
        }
    }
    return result;
}

void HistoryFile::writeChanges(std::span<const Change> changes)
{
    Row row(*m_database, R"(INSERT INTO "change" VALUES (NULL, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?))");
    for (const Change& change : changes) {
        row.time(change.seen)
            .time(change.before)
            .text(change.address)
            .text(change.console)
            .number(static_cast<int>(change.kind))
            .number(static_cast<int>(change.sense))
            .text(change.object.type)
            .text(change.object.identifier)
            .text(change.name)
            .text(change.from)
            .text(change.to)
            .number(change.lasted.count())
            .execute();
        m_oldest = std::min(m_oldest.value_or(change.seen), change.seen);
    }
    m_rows += changes.size();
}

void HistoryFile::writeConsole(const Console& console)
{
    const ConsoleMemory& memory = *console.now;
    Row(*m_database, R"(INSERT OR REPLACE INTO "console" VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?))")
        .text(console.address)
        .since(memory.offlineSince)
        .time(memory.lastEnded)
        .time(memory.lastComplete)
        .text(memory.versionThen)
        .fingerprint(memory.certificate)
        .since(memory.certificateSince)
        .number(static_cast<std::int64_t>(memory.neededAttention))
        .number(memory.wasRead ? 1 : 0)
        .number(memory.wasReadAgain ? 1 : 0)
        .execute();
    if (console.written == nullptr) {
        for (const char* const sql :
             {R"(DELETE FROM "feed" WHERE "address" = ?)", R"(DELETE FROM "object" WHERE "address" = ?)"}) {
            Row(*m_database, sql).text(console.address).execute();
        }
    }
    Row feed(*m_database, R"(INSERT OR REPLACE INTO "feed" VALUES (?, ?, ?, ?, ?))");
    for (const FeedKind& kind : feedTable) {
        const std::string type(kind.type);
        const auto readAt = memory.readAt.find(type);
        const auto missing = memory.missingSince.find(type);
        feed.text(console.address)
            .text(type)
            .time(readAt != memory.readAt.end() ? std::optional(readAt->second) : std::nullopt)
            .since(missing != memory.missingSince.end() ? std::optional(missing->second) : std::nullopt)
            .execute();
    }
    writeObjects(console);
}

void HistoryFile::writeObjects(const Console& console)
{
    static const ConsoleMemory nothing;
    const ConsoleMemory* const written = console.written != nullptr ? console.written.get() : &nothing;
    const auto& before = written->objects;
    Row remove(*m_database, R"(DELETE FROM "object" WHERE "address" = ? AND "type" = ? AND "identifier" = ?)");
    for (const auto& [key, object] : before) {
        if (!console.now->objects.contains(key)) {
            remove.text(console.address).text(key.type).text(key.identifier).execute();
        }
    }
    Row row(*m_database, R"(INSERT OR REPLACE INTO "object" VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?))");
    for (const auto& [key, object] : console.now->objects) {
        if (const auto known = before.find(key); known != before.end() && known->second == object) {
            continue;
        }
        row.text(console.address)
            .text(key.type)
            .text(key.identifier)
            .text(object.name)
            .text(object.state)
            .text(object.text)
            .since(object.stateSince)
            .number(object.lit ? 1 : 0)
            .since(object.litSince)
            .time(object.ranUntil)
            .number(object.stopExpected ? 1 : 0)
            .execute();
    }
}

void HistoryFile::writeSetting(const std::string& name, const std::optional<std::string>& value)
{
    if (value) {
        Row(*m_database, R"(INSERT OR REPLACE INTO "setting" VALUES (?, ?))").text(name).text(*value).execute();
    } else {
        Row(*m_database, R"(DELETE FROM "setting" WHERE "name" = ?)").text(name).execute();
    }
}

void HistoryFile::keepBounds(WallTime newest)
{
    if (hasDayToLeave(newest)) {
        removeBefore(oldestKept(newest));
    }
    while (m_rows > mostChangesKept) {
        removeOldestDay();
    }
    if (m_leftOutUntil && *m_leftOutUntil < oldestKept(newest)) {
        m_leftOutUntil.reset(); // it would have left by now anyway
    }
}

void HistoryFile::removeBefore(WallTime moment)
{
    m_rows -=
        static_cast<std::size_t>(Row(*m_database, R"(DELETE FROM "change" WHERE "seen" < ?)").time(moment).execute());
    SQLite::Statement oldest(*m_database, R"(SELECT min("seen") FROM "change")");
    oldest.executeStep();
    m_oldest.reset();
    if (!oldest.getColumn(0).isNull()) {
        m_oldest = WallTime(WallTime::duration(oldest.getColumn(0).getInt64()));
    }
}

void HistoryFile::removeOldestDay()
{
    const WallTime end = beginOfDay(*m_oldest, 1);
    SQLite::Statement leaving(*m_database, R"(SELECT count(*), max("seen") FROM "change" WHERE "seen" < ?)");
    leaving.bind(1, static_cast<std::int64_t>(end.time_since_epoch().count()));
    leaving.executeStep();
    const auto count = static_cast<std::size_t>(leaving.getColumn(0).getInt64());
    const auto last = WallTime(WallTime::duration(leaving.getColumn(1).getInt64()));
    leaving.reset();
    if (count < m_rows) {
        removeBefore(end);
    } else {
        // All are of one day, which is too long by itself: the newest of it stay.
        Row(*m_database, R"(DELETE FROM "change" WHERE "row" IN )"
                         R"((SELECT "row" FROM "change" ORDER BY "seen", "row" DESC LIMIT ?))")
            .number(static_cast<std::int64_t>(m_rows - mostChangesKept))
            .execute();
        m_rows = mostChangesKept;
    }
    m_leftOutUntil = std::max(m_leftOutUntil.value_or(last), last);
}

Result<void> HistoryFile::scrub()
{
    if (Result<void> wiped = wipeDeleted(*m_database); !wiped) {
        return wiped;
    }
    try {
        m_database->exec(R"(UPDATE "state" SET "needsScrub" = 0)");
        m_needsScrub = false;
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

} // namespace lodestar
