// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/StateCounts.h"

#include <cstdint>

namespace lodestar
{

class Corvel;
class Feed;

/// Sums over all consoles. The sums have 32 bits and wrap.
struct Totals {
    std::int32_t online = 0;
    std::int32_t attentionLEDs = 0;
    std::int32_t events = 0;
    /// Counts by the states' own words. Objects without a state are left out.
    StateCounts managedSystems;
    StateCounts partitions;

    /// Adds what the record itself tells: whether its console is online, and how many attention LEDs are lit.
    void addConsole(const Corvel& corvel);
    /// Each adds one feed of a console, independently of the console's other feeds. "NA" adds nothing.
    void addManagedSystems(const Feed& feed);
    void addPartitions(const Feed& feed);
    void addEvents(const Feed& feed);
};

} // namespace lodestar
