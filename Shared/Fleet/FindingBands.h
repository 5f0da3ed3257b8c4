// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Findings.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace lodestar
{

/// What a person chose to see. Empty sets choose everything.
struct FindingFilter {
    enum class Grouping { Severity, Console };
    Grouping grouping = Grouping::Severity;
    std::set<FindingSubject> kinds;
    std::set<const Corvel*> consoles;
    bool isSet() const { return !kinds.empty() || !consoles.empty(); }
    bool shows(const Finding& finding) const;
};

/// A row: one finding, or several of one rank with one sentence that began in one reading: that of their console, or
/// those of several consoles that were read together. Events are never folded.
struct FindingRow {
    std::vector<std::uint32_t> findings; ///< indexes into the list; the first stands for all
    bool isFolded() const { return findings.size() > 1; }
};

/// A heading with its rows.
struct FindingGroup {
    FindingBand band = FindingBand::Errors; ///< grouped by severity
    const Corvel* corvel = nullptr;         ///< grouped by console
    std::string console;
    std::size_t count = 0; ///< findings, those of rows left out included
    std::vector<FindingRow> rows;
    std::size_t more = 0; ///< rows that "Show all" would add
};

/// The rows as they stand.
struct FindingView {
    std::vector<FindingGroup> groups;
    std::size_t left = 0;         ///< findings that the filter leaves out
    std::size_t moreConsoles = 0; ///< consoles with findings behind the first `consolesAtOnce`
};

inline constexpr std::size_t foldFrom = 5;
inline constexpr std::size_t rowsOfBand = 20;
inline constexpr std::size_t rowsOfEvents = 3;    ///< also within a console's rows
inline constexpr std::size_t consolesAtOnce = 50; ///< grouped by console, worst first

/// Pure; any thread. The worst console is the one with the worst rank, then with the most things that need attention,
/// then the first by name. `whole` says which groups show all their rows: bands by their number, consoles by their
/// pointer. A fleet of more than 1,000 consoles is grouped by console whatever the filter says.
FindingView viewOf(const Findings& findings, const FindingFilter& filter, std::size_t consoles,
                   const std::set<std::uintptr_t>& whole);
std::uintptr_t identityOf(const FindingGroup& group);

} // namespace lodestar
