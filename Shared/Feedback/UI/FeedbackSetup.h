// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Feedback/ReportStore.h"

#include <functional>
#include <string>
#include <vector>

namespace lodestar
{

/// What the application provides to the feedback screens.
struct FeedbackSetup {
    ReportStore store{std::string()};
    std::string crashFolder;
    std::string logFolder;
    std::string exportFolder; ///< the folder where a person finds exported files
    std::string address;      ///< the server for reports; empty when reports are sent nowhere
    /// Time, version, system and run of a report made now. Main thread.
    std::function<Report()> facts;
    /// The passwords and session keys that the application holds; they are removed from every text. Main thread.
    std::function<std::vector<std::string>()> secrets;
};

} // namespace lodestar
