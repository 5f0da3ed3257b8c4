// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inventory/StateCounts.h"

#include <cstdint>

namespace lodestar
{

class Corvel;
class Feed;

/// What all consoles come to. The sums have 32 bits and wrap.
struct Totals {
    std::int32_t online = 0;
    std::int32_t attentionLEDs = 0;
    std::int32_t events = 0;
    /// By the states' own words. What has no state is left out.
    StateCounts managedSystems;
    StateCounts partitions;

    /// Adds what the record itself says: whether its console is online, and how many of its attention LEDs are lit.
    void addConsole(const Corvel& corvel);
    /// Each adds one feed of a console, whatever becomes of the console's other feeds. "NA" adds nothing.
    void addManagedSystems(const Feed& feed);
    void addPartitions(const Feed& feed);
    void addEvents(const Feed& feed);
};

} // namespace lodestar
