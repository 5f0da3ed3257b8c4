// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine/Session.h"
#include "CommandLine/Verdict.h"
#include "Fleet/Findings.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace lodestar
{

/// What one reading of the chosen consoles found.
struct FleetPicture {
    std::vector<ConsoleSnapshot> consoles; ///< in the order of the list
    Findings findings;
    WallTime made;
    std::size_t complete = 0, partial = 0, offline = 0;
    /// Consoles that were not asked because their certificate changed within an earlier attempt: an attempt would take
    /// the new certificate and send it the password, which a person decides by naming the console.
    std::vector<CorvelRef> leftOut;

    bool isComplete() const { return !consoles.empty() && complete == consoles.size(); }
    /// Whether the feed of each console was read.
    bool hasAll(std::string_view type) const;
    /// An error that was seen counts, whatever was not seen. Otherwise the worst is not known unless every console was
    /// read in full, so that warnings count after that. Open events alone are no warning.
    Verdict verdict() const;
    /// "4 of 6 consoles answered in full".
    std::string completeness() const;
    /// A sentence for each console that was left out.
    std::vector<std::string> leftOutSentences() const;
};

/// Which consoles are read.
struct FleetChoice {
    std::vector<std::string> named; ///< names or addresses; empty for all
    std::set<std::string> without;  ///< addresses
    bool isByHand = false;          ///< a person asked for just these: then none is left out
};

/// Refreshes the consoles as the application's pull does, and tells the progress on standard error. Fails when a signal
/// came. Main thread.
Result<FleetPicture> readFleet(Session& session, const FleetChoice& choice);

} // namespace lodestar
