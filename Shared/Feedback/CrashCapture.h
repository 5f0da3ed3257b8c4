// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <string>
#include <string_view>

namespace lodestar
{

/// Records where the process crashed: on SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP and SIGABRT, in a file that was
/// opened beforehand with its room on the disk reserved. The next start makes a report of the file (see
/// CrashCollector.h).
///
/// The handler only writes raw addresses; it takes no lock and allocates nothing. It then restores the signal's earlier
/// handler and lets the signal happen again, so that core files, exit codes and waiting processes see the crash as if
/// this handler did not exist. A crash inside the handler ends the process at once.
///
/// A stack overflow is recorded on the main thread and on threads that begin with an `OwnThread`. On any other thread
/// it ends the process unrecorded, because the handler has no second stack to run on.
class CrashCapture
{
public:
    /// Main thread; call once, as early as possible. Makes the file in the folder, 0600, locked as long as the process
    /// lives, and writes the application's version and the run's session to it in advance. When the folder cannot be
    /// written, crashes go unrecorded and nothing else changes.
    static Result<void> install(const std::string& folder, std::string_view version);
    /// Adds the libraries that were loaded since the last call; without them addresses inside them mean nothing. Any
    /// thread, one at a time; waits for the disk.
    static void recordModules();
    /// Notes the reason for the coming abort, at most a kilobyte of it. The file keeps the text unchanged, so it must
    /// hold no secrets. Any thread.
    static void noteException(std::string_view text) noexcept;
};

} // namespace lodestar
