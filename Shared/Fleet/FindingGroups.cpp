// SPDX-License-Identifier: Apache-2.0
#include "Fleet/FindingGroups.h"

#include "Inventory/Identity.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

namespace lodestar
{
namespace
{

constexpr std::array memberTypes = {ObjectType::ManagedSystem, ObjectType::LogicalPartition,
                                    ObjectType::VirtualIOServer};

bool isInError(const XMLElement& object, std::string_view type)
{
    const auto state = type == ObjectType::ManagedSystem ? ManagedSystem(object).state() : Partition(object).state();
    return state && ResourceGroup::healthOfMember(*state) == Health::Error;
}

struct InError {
    std::unordered_set<std::string> all;
    std::unordered_set<std::string> unlisted;
    LookedUpMembers lookedUp; ///< of those, what no feed shows
};

InError objectsInError(const FeedDictionary& feeds, const LookedUpMembers* lookedUp)
{
    InError objects;
    if (lookedUp != nullptr) {
        objects.lookedUp = *lookedUp;
    }
    for (const std::string_view feedType : memberTypes) {
        for (const XMLElement& entry : feeds.feed(feedType).entries()) {
            for (const std::string_view type : memberTypes) {
                const XMLElement object = contentOf(entry, type);
                if (object && !objects.lookedUp.empty()) {
                    objects.lookedUp.erase(identityOfEntry(entry, type));
                }
                if (object && isInError(object, type)) {
                    std::string identity = identityOfEntry(entry, type);
                    if (type != feedType) {
                        objects.unlisted.insert(identity);
                    }
                    objects.all.insert(std::move(identity));
                }
            }
        }
    }
    for (const auto& [identity, time] : objects.lookedUp) {
        objects.unlisted.insert(identity);
        objects.all.insert(identity);
    }
    return objects;
}

} // namespace

std::vector<GroupInError> groupsInError(const FeedDictionary& feeds, const LookedUpMembers* lookedUp)
{
    std::vector<GroupInError> found;
    const InError objects = objectsInError(feeds, lookedUp);
    if (objects.unlisted.empty()) {
        return found;
    }
    for (const XMLElement& entry : feeds.feed(ResourceGroup::type).entries()) {
        const auto group = recordOfEntry<ResourceGroup>(entry);
        GroupInError counted{group, identityOfEntry(entry, ResourceGroup::type), 0, 0, std::nullopt};
        bool isListedItself = true;
        bool isOfFeeds = false;
        for (const ResourceGroup::Member& member : group.members()) {
            const std::string identity = identityOfMember(member);
            ++counted.members;
            counted.membersInError += objects.all.count(identity);
            if (!objects.unlisted.contains(identity)) {
                continue;
            }
            isListedItself = false;
            const auto time = objects.lookedUp.find(identity);
            if (time == objects.lookedUp.end()) {
                isOfFeeds = true;
            } else {
                counted.lookedUp = std::min(counted.lookedUp.value_or(time->second), time->second);
            }
        }
        if (isOfFeeds) {
            counted.lookedUp.reset();
        }
        if (!isListedItself) {
            found.push_back(std::move(counted));
        }
    }
    return found;
}

} // namespace lodestar
