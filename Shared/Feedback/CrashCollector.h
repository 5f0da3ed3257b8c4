// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportStore.h"

#include <string>
#include <vector>

namespace lodestar
{

/// Where a crash is found and what its report is made of.
struct CrashSources {
    std::string crashFolder; ///< as given to `CrashCapture::install`
    std::string logFolder;
    std::vector<std::string> secrets; ///< to be taken out of every text, should they be in one
};

/// Turns what crashed runs left into reports and returns how many those are. Files of runs that ended well go, those of
/// runs that are still alive stay. A crash whose report cannot be kept, on a full disk, stays for the next start; one
/// that has already crashed this function is kept without the names of its functions. Not on the main thread.
int collectCrashes(const CrashSources& sources, const ReportStore& store);

/// Takes away what crashed runs left.
void forgetCrashes(const std::string& crashFolder);

} // namespace lodestar
