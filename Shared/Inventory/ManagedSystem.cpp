// SPDX-License-Identifier: Apache-2.0
#include "Inventory/ManagedSystem.h"

namespace lodestar
{

std::optional<std::string> ManagedSystem::availableProcessingUnits() const
{
    return text({"AssociatedSystemProcessorConfiguration", "ConfigurableSystemProcessorUnits"});
}

std::optional<std::string> ManagedSystem::availableMemory() const
{
    return text({"AssociatedSystemMemoryConfiguration", "ConfigurableSystemMemory"});
}

std::optional<std::string> ManagedSystem::identifierAt(const Feed& feed, std::size_t place)
{
    const std::vector<XMLElement> entries = feed.entries();
    if (place >= entries.size()) {
        return {};
    }
    // Some consoles put the metadata beside the system's element, but most put it inside.
    auto beside = entries[place].path({"content", "Metadata", "Atom", "AtomID"}).text();
    return beside ? beside : recordOfEntry<ManagedSystem>(entries[place]).identifier();
}

Health ManagedSystem::healthOfState(std::string_view state)
{
    if (state.find("error") != std::string_view::npos || state.find("incomplete") != std::string_view::npos) {
        return Health::Error;
    }
    return state == "operating" ? Health::Good : Health::Idle;
}

} // namespace lodestar
