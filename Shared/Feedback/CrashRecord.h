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

/// The contents of a crash file, as `CrashCapture` wrote them.
struct CrashRecord {
    int signal = 0;
    int code = 0;
    std::time_t time = 0;
    std::string version;
    std::string session;
    std::string exception;                 ///< type and description, when an exception ended the process
    std::optional<std::uintptr_t> address; ///< the address that could not be read or written
    std::vector<std::uintptr_t> calls;     ///< the place of the crash, then the return addresses outwards
    std::vector<LoadedModule> modules;
    std::vector<std::string> lastLines; ///< of the log, without line feeds

    /// The signal's name, such as "SIGSEGV".
    std::string signalName() const;
    /// One sentence for the list of reports.
    std::string summary() const;
};

/// Reads a crash file, whole or cut. None when the run did not crash.
std::optional<CrashRecord> parseCrashRecord(std::string_view text);

} // namespace lodestar
