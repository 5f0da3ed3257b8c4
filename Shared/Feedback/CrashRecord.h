// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/CrashModules.h"

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What a crashed run left, as `CrashCapture` wrote it.
struct CrashRecord {
    int signal = 0;
    int code = 0;
    std::time_t time = 0;
    std::string version;
    std::string session;
    std::string exception;                 ///< type and description when an exception ended it
    std::optional<std::uintptr_t> address; ///< that could not be read or written
    std::vector<std::uintptr_t> calls;     ///< where it crashed, then the return addresses outwards
    std::vector<LoadedModule> modules;
    std::vector<std::string> lastLines; ///< of the log, without their line feeds

    /// "SIGSEGV" and its like.
    std::string signalName() const;
    /// One sentence: what a list shows.
    std::string summary() const;
};

/// Reads whatever is there, whole or cut. Empty when the run did not crash.
std::optional<CrashRecord> parseCrashRecord(std::string_view text);

} // namespace lodestar
