// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Store/ObjectContext.h"

#include <SQLiteCpp/Database.h>

#include <memory>
#include <new>
#include <string>

namespace lodestar
{

/// Opens the model's store at the path, or makes an empty one when nothing is there: file 0600, a missing folder 0700.
/// The connection has passed an integrity check and is set up for one thread.
///
/// Refused, with the file, its write-ahead log and the folder as they were: what is no regular file, what is empty,
/// what is no store of this model, a damaged store, a store that cannot be written, a log whose main file is missing.
Result<std::unique_ptr<SQLite::Database>> openStoreFile(const std::string& path, const ManagedObjectModel& model);

/// Moves the write-ahead log into the main file and cuts it to nothing. Until then it keeps every page as it once was,
/// deleted passwords included. False when that failed, with the store as good as before.
bool emptyLog(const SQLite::Database& database);

/// Domain `storeErrorDomain`, SQLite's extended code and text.
Error storeError(const SQLite::Exception& exception);
/// Likewise for memory that could not be had.
Error storeError(const std::bad_alloc& exception);

} // namespace lodestar
