// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportStore.h"

#include <functional>
#include <string>
#include <vector>

namespace lodestar
{

/// What the feedback screens need of the application.
struct FeedbackSetup {
    ReportStore store{std::string()};
    std::string crashFolder;
    std::string logFolder;
    std::string exportFolder; ///< where a person finds files that were exported
    std::string address;      ///< where reports may be sent; empty for nowhere
    /// When, by which version, on what system and in which run a report is made. Main thread.
    std::function<Report()> facts;
    /// The passwords and session keys that the application holds, to be taken out of every text. Main thread.
    std::function<std::vector<std::string>()> secrets;
};

} // namespace lodestar
