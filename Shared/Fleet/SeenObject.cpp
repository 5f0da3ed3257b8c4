// SPDX-License-Identifier: Apache-2.0
#include "Fleet/SeenObject.h"

#include "Inventory/Identity.h"

#include <set>
#include <utility>

namespace lodestar
{
namespace
{

void read(const ManagedSystem& system, SeenObject& seen)
{
    seen.name = system.name();
    seen.state = system.state();
    if (system.attentionLEDState()) {
        seen.lit = system.isAttentionLEDLit();
    }
}

void read(const Partition& partition, SeenObject& seen)
{
    seen.name = partition.name();
    seen.state = partition.state();
}

void read(const ServiceableEvent& event, SeenObject& seen)
{
    seen.name = event.problemNumber();
    seen.state = event.problemState();
    seen.text = event.shortDescription();
}

void read(const ResourceGroup& group, SeenObject& seen)
{
    seen.name = group.name();
}

template <typename Kind>
std::vector<SeenObject> objectsOf(const Feed& feed)
{
    std::vector<SeenObject> objects;
    std::set<std::string> identifiers;
    for (const XMLElement& entry : feed.entries()) {
        const auto record = recordOfEntry<Kind>(entry);
        std::string identifier = record ? keptText(identityOfEntry(entry, Kind::type)) : std::string();
        // Of two objects with one identifier only the first counts: to compare both with what is remembered of the one
        // would find a change at each reading.
        if (identifier.empty() || !identifiers.insert(identifier).second) {
            continue;
        }
        SeenObject& seen = objects.emplace_back();
        seen.key = {std::string(Kind::type), std::move(identifier)};
        read(record, seen);
        for (auto* const words : {&seen.name, &seen.state, &seen.text}) {
            if (*words) {
                **words = keptText(std::move(**words));
            }
        }
    }
    return objects;
}

} // namespace

std::string keptText(std::string text)
{
    if (text.size() > longestKeptText) {
        std::size_t end = longestKeptText;
        while (end > longestKeptText - 3 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
            --end;
        }
        text.resize(end);
    }
    return text;
}

std::vector<SeenObject> seenObjects(std::string_view type, const Feed& feed)
{
    if (type == ObjectType::ManagedSystem) {
        return objectsOf<ManagedSystem>(feed);
    }
    if (type == ObjectType::VirtualIOServer) {
        return objectsOf<VirtualIOServer>(feed);
    }
    if (type == ObjectType::LogicalPartition) {
        return objectsOf<LogicalPartition>(feed);
    }
    if (type == ObjectType::ServiceableEvent) {
        return objectsOf<ServiceableEvent>(feed);
    }
    return type == ObjectType::Group ? objectsOf<ResourceGroup>(feed) : std::vector<SeenObject>();
}

} // namespace lodestar
