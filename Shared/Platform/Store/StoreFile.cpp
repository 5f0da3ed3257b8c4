// SPDX-License-Identifier: Apache-2.0
#include "Platform/Store/StoreFile.h"

#include "Platform/PrivateFile.h"
#include "Platform/Store/StoreSchema.h"

#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sqlite3.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace lodestar
{

namespace
{

namespace fs = std::filesystem;

/// "LODS": marks every Lodestar store in its header.
constexpr std::int32_t applicationId = 0x4C4F4453;
/// The longest wait, in milliseconds, for another process's lock on the store.
constexpr int busyTimeoutMs = 2000;

Error makeError(int code, std::string description, const std::string& reason = {})
{
    return {std::string(storeErrorDomain), code, std::move(description), reason, nullptr};
}

Error systemError(std::string description, int number)
{
    return makeError(SQLITE_CANTOPEN, std::move(description), std::generic_category().message(number));
}

/// The numbers that say which program and model a store belongs to. They are written once, before the file gets its
/// name, so the main file's copy is right even while newer pages are in the write-ahead log.
struct Identity {
    std::int32_t applicationId;
    std::int32_t userVersion;
};

std::int32_t bigEndian(const std::array<unsigned char, 100>& header, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = offset; i < offset + 4; ++i) {
        value = value << 8 | header[i];
    }
    return static_cast<std::int32_t>(value);
}

/// Reads the header past SQLite, which could change the file. No connection of this process may be open to it: closing
/// a file drops all locks that the process holds on it.
Result<Identity> readIdentity(const std::string& path)
{
    std::array<unsigned char, 100> header{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char*>(header.data()), static_cast<std::streamsize>(header.size()));
    if (!file.is_open() || file.bad()) {
        const int code = file.is_open() ? SQLITE_IOERR_READ : SQLITE_CANTOPEN;
        return makeError(code, "The file cannot be read.", sqlite3_errstr(code));
    }
    constexpr std::string_view magic("SQLite format 3\0", 16);
    if (file.fail() || !std::equal(magic.begin(), magic.end(), header.begin())) {
        return makeError(SQLITE_NOTADB, "The file is not a database.");
    }
    constexpr std::size_t userVersionOffset = 60;
    constexpr std::size_t applicationIdOffset = 68;
    return Identity{bigEndian(header, applicationIdOffset), bigEndian(header, userVersionOffset)};
}

Result<void> checkIdentity(const Identity& identity, const StoreLayout& layout)
{
    if (identity.applicationId != applicationId) {
        return makeError(SQLITE_NOTADB, "The file is a database of another application.");
    }
    if (identity.userVersion != layout.version) {
        return makeError(SQLITE_SCHEMA, "The store was written by an incompatible model.",
                         "model version " + std::to_string(identity.userVersion) + ", expected " +
                             std::to_string(layout.version));
    }
    return {};
}

bool isFilled(const std::string& path)
{
    struct stat status {
    };
    return ::stat(path.c_str(), &status) == 0 && status.st_size > 0;
}

enum class Presence { Missing, Present };

Result<Presence> checkFile(const std::string& path, const StoreLayout& layout)
{
    struct stat status {
    };
    if (::stat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            return systemError("The store cannot be reached.", errno);
        }
        // SQLite would replay such a log into the new, empty file.
        if (isFilled(path + "-wal") || isFilled(path + "-journal")) {
            return makeError(SQLITE_CORRUPT, "The store's main file is missing beside its log.");
        }
        return Presence::Missing;
    }
    if (!S_ISREG(status.st_mode)) {
        return makeError(SQLITE_CANTOPEN, "The store is not a regular file.");
    }
    // A Lodestar store is never empty, not even for an instant: an empty file is one that lost its contents.
    const Result<Identity> identity = readIdentity(path);
    if (!identity) {
        return identity.error();
    }
    if (const Result<void> checked = checkIdentity(identity.value(), layout); !checked) {
        return checked.error();
    }
    return Presence::Present;
}

/// A file with a temporary name until `moveTo` renames it. When it is not renamed, the destructor removes it with its
/// journal.
class ScratchFile
{
public:
    explicit ScratchFile(const std::string& base) : m_path(base + "-XXXXXX"), m_journal(m_path + "-journal")
    {
        if (const int descriptor = makeFile(m_path.data()); descriptor >= 0) {
            ::close(descriptor);
            m_journal.replace(0, m_path.size(), m_path);
        } else {
            m_error = errno;
        }
    }
    ~ScratchFile()
    {
        if (m_error == 0) {
            ::unlink(m_path.c_str());
            ::unlink(m_journal.c_str());
        }
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    int error() const { return m_error; }
    const std::string& path() const { return m_path; }

    /// Gives the file its name without replacing another file, where the disk can do that: a store that another process
    /// made in the meantime stays.
    int moveTo(const std::string& target)
    {
#ifdef RENAME_NOREPLACE
        if (::renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0 || errno == EEXIST) {
            return 0;
        }
        if (errno != EINVAL && errno != ENOSYS) {
            return errno;
        }
#endif
        return std::rename(m_path.c_str(), target.c_str()) == 0 ? 0 : errno;
    }

private:
    static int makeFile(char* pattern)
    {
#if defined(__linux__)
        return ::mkostemp(pattern, O_CLOEXEC);
#else
        // The file is closed at once: a child process started in that instant inherits an empty file at worst.
        return ::mkstemp(pattern);
#endif
    }

    std::string m_path;
    std::string m_journal; ///< has its full length from the start, so that the destructor needs no memory
    int m_error = 0;
};

/// Makes the complete store under another name and moves it into place, so that a process that dies in between leaves
/// either no store or a whole one.
Result<void> createStore(const std::string& path, const StoreLayout& layout)
{
    const std::string folder = fs::path(path).parent_path().string();
    if (const Result<void> made = makePrivateFolder(folder); !made) {
        return systemError("The store's folder cannot be made.", made.error().code);
    }
    ScratchFile scratch(path);
    if (scratch.error() != 0) {
        return systemError("The store cannot be created.", scratch.error());
    }
    {
        SQLite::Database database(scratch.path(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
        database.exec("PRAGMA synchronous=FULL");
        SQLite::Transaction transaction(database);
        for (const std::string& statement : layout.statements) {
            database.exec(statement);
        }
        database.exec("PRAGMA application_id=" + std::to_string(applicationId));
        database.exec("PRAGMA user_version=" + std::to_string(layout.version));
        transaction.commit();
    }
    if (const int number = scratch.moveTo(path); number != 0) {
        return systemError("The store cannot be created.", number);
    }
    syncFolder(folder);
    return {};
}

Result<void> checkSchema(const SQLite::Database& database, const StoreLayout& layout)
{
    std::vector<std::string> found;
    SQLite::Statement query(database, "SELECT sql FROM sqlite_master WHERE sql IS NOT NULL ORDER BY rowid");
    while (query.executeStep()) {
        found.push_back(query.getColumn(0).getString());
    }
    if (found != layout.statements) {
        return makeError(SQLITE_CORRUPT, "The store's tables are not those of its model.");
    }
    return {};
}

/// Makes every check that may refuse the store; only reads. The pages are checked at each start because a failed fetch
/// later would look like an empty registry.
Result<void> verify(SQLite::Database& database, const StoreLayout& layout)
{
    database.exec("PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON");
    const Identity identity{database.execAndGet("PRAGMA application_id").getInt(),
                            database.execAndGet("PRAGMA user_version").getInt()};
    if (Result<void> checked = checkIdentity(identity, layout); !checked) {
        return checked;
    }
    if (Result<void> checked = checkSchema(database, layout); !checked) {
        return checked;
    }
    if (const std::string damage = database.execAndGet("PRAGMA integrity_check(1)").getString(); damage != "ok") {
        return makeError(SQLITE_CORRUPT, "The store is damaged.", damage);
    }
    if (sqlite3_db_readonly(database.getHandle(), "main") != 0) {
        return makeError(SQLITE_READONLY, "The store cannot be written.");
    }
    return {};
}

Result<void> configure(SQLite::Database& database)
{
    if (const std::string mode = database.execAndGet("PRAGMA journal_mode=WAL").getString(); mode != "wal") {
        return makeError(SQLITE_CANTOPEN, "The store cannot keep a write-ahead log.", "journal mode " + mode);
    }
    // Deleted records hold passwords: no part of them may stay in free pages or reach a temporary file.
    database.exec("PRAGMA synchronous=FULL; PRAGMA secure_delete=ON; PRAGMA temp_store=MEMORY; PRAGMA foreign_keys=ON");
    return {};
}

/// Moves the write-ahead log into the main file and cuts the log to nothing. False when that failed.
bool emptyLog(const SQLite::Database& database)
{
    return sqlite3_wal_checkpoint_v2(database.getHandle(), "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr) ==
           SQLITE_OK;
}

void setCheckpointOnClose(const SQLite::Database& database, bool on)
{
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, on ? 0 : 1, nullptr);
}

void makePrivate(const std::string& path)
{
    for (const char* const suffix : {"", "-wal", "-shm"}) {
        const std::string file = path + suffix;
        struct stat status {
        };
        if (::stat(file.c_str(), &status) == 0 && (status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
            ::chmod(file.c_str(), S_IRUSR | S_IWUSR);
        }
    }
}

Result<std::unique_ptr<SQLite::Database>> connect(const std::string& path, const StoreLayout& layout)
{
    const bool wasLeftOpen = hasLog(path);
    auto database =
        std::make_unique<SQLite::Database>(path, SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, busyTimeoutMs);
    // The last connection that closes moves the log into the main file; a store that is about to be refused must not be
    // changed that way. Without a log the switch must stay off, because with it closing would leave an empty log
    // behind.
    setCheckpointOnClose(*database, !wasLeftOpen);
    if (const Result<void> verified = verify(*database, layout); !verified) {
        return verified.error();
    }
    if (const Result<void> configured = configure(*database); !configured) {
        return configured.error();
    }
    setCheckpointOnClose(*database, true);
    makePrivate(path);
    if (wasLeftOpen) {
        emptyLog(*database); // the process that left the log was killed before it could
    }
    return database;
}

} // namespace

Result<void> wipeDeleted(SQLite::Database& database)
{
    try {
        database.exec("VACUUM");
        if (!emptyLog(database)) {
            return makeError(database.getErrorCode(), "The log cannot be emptied.");
        }
        return {};
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

bool hasLog(const std::string& path)
{
    return isFilled(path + "-wal");
}

Error storeError(const SQLite::Exception& exception)
{
    const int code = exception.getExtendedErrorCode();
    return makeError(code, exception.what(), code > 0 ? sqlite3_errstr(code) : "");
}

Error storeError(const std::bad_alloc& /*exception*/)
{
    return makeError(SQLITE_NOMEM, sqlite3_errstr(SQLITE_NOMEM));
}

Result<std::unique_ptr<SQLite::Database>> openStoreFile(const std::string& path, const ManagedObjectModel& model)
{
    try {
        return openStoreFile(path, StoreLayout{schemaStatements(model), model.version});
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

Result<std::unique_ptr<SQLite::Database>> openStoreFile(const std::string& path, const StoreLayout& layout)
{
    sqlite3_initialize();
    try {
        std::error_code code;
        const std::string absolute = fs::absolute(path, code).string();
        if (code || path.empty()) {
            return makeError(SQLITE_CANTOPEN, "The store has no place.");
        }
        const Result<Presence> presence = checkFile(absolute, layout);
        if (!presence) {
            return presence.error();
        }
        if (presence.value() == Presence::Missing) {
            if (const Result<void> created = createStore(absolute, layout); !created) {
                return created.error();
            }
        }
        return connect(absolute, layout);
    } catch (const SQLite::Exception& exception) {
        return storeError(exception);
    } catch (const std::bad_alloc& exception) {
        return storeError(exception);
    }
}

} // namespace lodestar
