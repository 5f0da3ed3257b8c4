// SPDX-License-Identifier: Apache-2.0
#include "Fleet/SystemNames.h"

#include "Inventory/Identity.h"

namespace lodestar
{

std::map<std::string, std::string> systemNamesOf(const FeedDictionary& feeds)
{
    std::map<std::string, std::string> names;
    for (const XMLElement& entry : feeds.feed(ManagedSystem::type).entries()) {
        names.emplace(identityOfEntry(entry, ManagedSystem::type),
                      recordOfEntry<ManagedSystem>(entry).name().value_or(""));
    }
    return names;
}

} // namespace lodestar
