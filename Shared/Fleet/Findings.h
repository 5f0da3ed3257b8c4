// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Fleet/Finding.h"

#include <cstddef>
#include <vector>

namespace lodestar
{

/// Everything that is wrong, ranked: by rank (among the stopped I/O servers before partitions), the newest first, then
/// by console and name; and what the list leaves out.
struct Findings {
    std::vector<Finding> list;
    std::size_t needAttention = 0; ///< ranks 1 to 9, what the badge counts
    std::size_t openEvents = 0;
    /// How many things needed attention at consoles that are offline now. They are not in the list: what is old is not
    /// known.
    std::size_t beforeOffline = 0;
};

/// Judges by the same rules as the lists. A console that is offline, a feed that is "NA" and a look-up that failed are
/// findings: nothing is healthy because it was not read. Pure; any thread.
Findings findingsOf(const std::vector<ConsoleSnapshot>& consoles, WallTime now);

} // namespace lodestar
