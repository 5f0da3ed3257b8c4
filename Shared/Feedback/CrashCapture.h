// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Platform/Result.h"

#include <string>
#include <string_view>

namespace lodestar
{

/// Writes down where the process was when it crashed: on SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP and SIGABRT, into a
/// file that was opened, and given its room on the disk, beforehand. The next start makes a report of it (see
/// CrashCollector.h).
///
/// The handler only writes raw addresses; it takes no lock and allocates nothing. It then puts back what handled the
/// signal before and lets the signal happen again, so that core files, exit codes and whoever waits for them see the
/// crash as if it had never been here. A crash inside the handler ends the process at once.
///
/// A stack that overflows is recorded on the main thread and on those that begin with an `OwnThread`. On any other
/// it ends the process unrecorded, for want of a second stack to run the handler on.
class CrashCapture
{
public:
    /// What the file says about the run before it crashes.
    struct Run {
        std::string version;
        std::string session;
    };

    /// Main thread, once, as early as may be. The file lies in the folder, 0600, and is locked for as long as the
    /// process lives. When the folder cannot be written, crashes go unrecorded and nothing else changes.
    static Result<void> install(const std::string& folder, const Run& run);
    /// Adds the libraries that have been loaded since the last time, without which addresses in them tell nothing. Any
    /// thread but one at a time; it waits for the disk.
    static void recordModules();
    /// What the coming abort is about; at most a kilobyte of it. It stands in the file as it comes: without secrets,
    /// please. Any thread.
    static void noteException(std::string_view text) noexcept;
};

} // namespace lodestar
