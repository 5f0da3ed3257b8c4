// SPDX-License-Identifier: Apache-2.0
#include "Feedback/CrashCapture.h"
#include "Feedback/CrashModules.h"

// Replaces CrashCapture.cpp and CrashModules.cpp on systems whose loader and registers those files do not know: the
// system's own reporter then handles crashes, and the rest of the feedback works.

namespace lodestar
{

Result<void> CrashCapture::install(const std::string& /*folder*/, std::string_view /*version*/)
{
    return Error{"CrashCapture", 1, "Crashes will go unrecorded", "not made for this system", nullptr};
}

void CrashCapture::recordModules() {}

void CrashCapture::noteException(std::string_view /*text*/) noexcept {}

std::vector<LoadedModule> loadedModules()
{
    return {};
}

} // namespace lodestar
