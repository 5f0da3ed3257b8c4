// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportStore.h"

#include <string>
#include <vector>

namespace lodestar
{

/// Where crash files lie and what goes into their reports.
struct CrashSources {
    std::string crashFolder; ///< the folder given to `CrashCapture::install`
    std::string logFolder;
    std::vector<std::string> secrets; ///< removed from every text of a report
};

/// Makes reports of the files that crashed runs left; returns the number of reports. Files of runs that ended well are
/// deleted; files of live runs stay. When a report cannot be saved, for instance on a full disk, its crash file stays
/// for the next start. A crash file that has crashed this function before gets a report without function names. Not on
/// the main thread.
int collectCrashes(const CrashSources& sources, const ReportStore& store);

/// Deletes the files that crashed runs left.
void forgetCrashes(const std::string& crashFolder);

} // namespace lodestar
