// SPDX-License-Identifier: Apache-2.0
#include "Inventory/Totals.h"

#include "Application/Model/Corvel.h"
#include "Inventory/ManagedSystem.h"
#include "Inventory/Partition.h"

#include <cstddef>
#include <utility>

namespace lodestar
{
namespace
{

void add(std::int32_t& sum, std::size_t value)
{
    sum = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum) + static_cast<std::uint32_t>(value));
}

template <typename Kind>
void countStates(StateCounts& counts, const Feed& feed)
{
    for (const Kind& record : recordsOf<Kind>(feed)) {
        if (auto state = record.state()) {
            counts.add(std::move(*state));
        }
    }
}

} // namespace

void Totals::addConsole(const Corvel& corvel)
{
    add(online, corvel.isOnline ? 1 : 0);
    add(attentionLEDs, static_cast<std::size_t>(corvel.numMSLEDs.load()));
}

void Totals::addManagedSystems(const Feed& feed)
{
    countStates<ManagedSystem>(managedSystems, feed);
}

void Totals::addPartitions(const Feed& feed)
{
    countStates<LogicalPartition>(partitions, feed);
}

void Totals::addEvents(const Feed& feed)
{
    add(events, feed.entryCount());
}

} // namespace lodestar
