// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"
#include "Platform/Store/ManagedObjectModel.h"

#include <SQLiteCpp/Database.h>

#include <memory>
#include <new>
#include <string>
#include <vector>

namespace lodestar
{

/// What a store's file must hold.
struct StoreLayout {
    std::vector<std::string> statements; ///< one for each table and index, in order of creation; compared text by text
    int version = 1;                     ///< another one is refused with `SQLITE_SCHEMA`
};

/// Opens the model's store at the path, or makes an empty store when nothing is there: the file 0600, a missing folder
/// 0700. The connection has passed an integrity check and is set up for one thread.
///
/// Refuses the following and leaves the file, its write-ahead log and the folder as they were: anything but a regular
/// file, an empty file, a file that is no store of this model, a damaged store, a store that cannot be written, a log
/// whose main file is missing.
Result<std::unique_ptr<SQLite::Database>> openStoreFile(const std::string& path, const ManagedObjectModel& model);
Result<std::unique_ptr<SQLite::Database>> openStoreFile(const std::string& path, const StoreLayout& layout);

/// Leaves no byte of what was deleted in the store's files. Deleting zeroes a row where it stands, but a page that was
/// balanced before may hold an older copy of the row in its gap, and the write-ahead log holds earlier versions of
/// whole pages. So the file is made anew, which takes as long as writing all of it, and the log is cut to nothing.
/// After a failure the store is as good as before; an end of the process in between leaves a log.
Result<void> wipeDeleted(SQLite::Database& database);

/// Whether a log lies beside the store: the process that wrote it did not close the store, or has not yet, and what it
/// deleted may not be wiped.
bool hasLog(const std::string& path);

/// An error in `storeErrorDomain` with SQLite's extended code and text.
Error storeError(const SQLite::Exception& exception);
/// An error in `storeErrorDomain` for an allocation that failed.
Error storeError(const std::bad_alloc& exception);

} // namespace lodestar
